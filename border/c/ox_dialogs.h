#pragma once
/// Utilities, and the dialogs that bundles describe and hosts show.
///
/// At start:    a factory publishes a modal dialog service per dialog id; the host holds it, calls `report`,
///              and attaches a dialog host to the modal dialog that is reported. Another factory publishes
///              a utility service; the host holds it and calls `report` for the utility.
/// In use:      host -> utility.run -> dialog_host.show_modal(docker, button box), which returns when the
///              dialog is closed. Meanwhile the host walks docker.element (ox_layouts.h), attaches views,
///              works the elements and the buttons. A dialog may show further ones through the dialog
///              hosts of their ids.
/// Afterwards:  docker, button box and elements end once show_modal has returned; the host has let go of
///              them by then.

#include <stdint.h>

#include "ox_pointer.h"

#define OX_UTILITY_SERVICE_INTERFACE "ox_utility_service_interface_2"
#define OX_UTILITY_SERVICE_VISITOR_INTERFACE "ox_utility_service_visitor_interface_2"
#define OX_UTILITY_INTERFACE "ox_utility_interface_4"
#define OX_UTILITY_VISITOR_INTERFACE "ox_utility_visitor_interface_2"
#define OX_MODAL_DIALOG_SERVICE_INTERFACE "ox_modal_dialog_service_interface_102"
#define OX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE "ox_modal_dialog_service_visitor_interface_102"
#define OX_MODAL_DIALOG_INTERFACE "ox_modal_dialog_interface_101"
#define OX_MODAL_DIALOG_VISITOR_INTERFACE "ox_modal_dialog_visitor_interface_101"
#define OX_DOCKER_INTERFACE "ox_docker_interface_92"
#define OX_BUTTON_BOX_INTERFACE "ox_button_box_interface_2"

// ---- Utilities --------------------------------------------------------------------------------------------

/// Publishes one utility. [bundle implements]
struct ox_utility_service_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// Its referent (ox_lifetime.h). The host holds it for as long as it wants the utility.
    ox_pointer (*referent)(const void* table, void* object);
    /// Calls the visitor once, with the utility and its id.
    void (*report)(const void* table, void* object, ox_pointer utility_visitor);
};

/// How a factory publishes: the registry answers it by name. [host implements]
struct ox_utility_service_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// A service that the host knows already changes nothing. One that nobody holds when the factory's
    /// `create` returns has ended.
    void (*visit)(const void* table, void* object, ox_pointer service);
};

/// [host implements]
struct ox_utility_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// `utility` lives as long as its service; `id` is [lent for the call].
    void (*visit)(const void* table, void* object, const wchar_t* id, ox_pointer utility);
};

/// Something the user can start. [bundle implements]
struct ox_utility_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit_caption)(const void* table, void* object, ox_pointer string_visitor);
    /// No visit: the utility has no picture.
    void (*visit_icon)(const void* table, void* object, ox_pointer bitmap_visitor);
    /// The host's window in which the utility is offered. [kept until replaced]
    void (*attach)(const void* table, void* object, ox_pointer window);
    /// May the utility be started? Bundles answer true unless they have a reason.
    bool (*host_request)(const void* table, void* object);
    /// Does the work; returns when the utility's dialog is closed. Without an attached dialog host it returns
    /// at once and changes nothing.
    void (*run)(const void* table, void* object);
    void (*reserved_6)(const void* table, void* object);
    /// Data of the host's own. [kept until replaced]
    void (*set_host_data)(const void* table, void* object, ox_pointer data);
};

// ---- Modal dialogs ----------------------------------------------------------------------------------------

/// Publishes the place of one dialog id. [bundle implements]
struct ox_modal_dialog_service_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// Its referent (ox_lifetime.h).
    ox_pointer (*referent)(const void* table, void* object);
    /// Calls the visitor once, with the modal dialog and its id.
    void (*report)(const void* table, void* object, ox_pointer modal_dialog_visitor);
};

/// As ox_utility_service_visitor_table. [host implements]
struct ox_modal_dialog_service_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit)(const void* table, void* object, ox_pointer service);
};

/// [host implements]
struct ox_modal_dialog_visitor_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// `id` is that of the utility or dialog which is shown here, or "" for the place that serves dialogs
    /// without an id and file dialogs. `modal_dialog` lives as long as its service; `id` is
    /// [lent for the call].
    void (*visit)(const void* table, void* object, const wchar_t* id, ox_pointer modal_dialog);
};

/// [bundle implements]
struct ox_modal_dialog_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// The dialog host for this id. [kept until replaced] The host attaches an empty one before it ends its
    /// own.
    void (*attach)(const void* table, void* object, ox_pointer dialog_host);
};

#define OX_ASK_FILE_OPEN 0
#define OX_ASK_FILE_SAVE 1

/// Shows dialogs. Has no interface name. [host implements]
struct ox_dialog_host_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// Asks the user for a file; `mode` is OX_ASK_FILE_OPEN or OX_ASK_FILE_SAVE. `filter` holds pairs of
    /// description and pattern, all separated by "|": "Projections (*.pj4)|*.pj4". The visitor receives the
    /// full path; a cancelled dialog does not call it.
    void (*ask_file)(const void* table, void* object, int32_t mode, const wchar_t* filter,
                     ox_pointer string_visitor);
    /// Shows a dialog and returns when it is closed: true when an accepting button closed it. Docker, button
    /// box and everything behind them are [lent for the call].
    bool (*show_modal)(const void* table, void* object, ox_pointer docker, ox_pointer button_box);
};

/// One dialog: its looks and the root of its element tree. [bundle implements]
struct ox_docker_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    void (*visit_icon)(const void* table, void* object, ox_pointer bitmap_visitor);
    void (*visit_caption)(const void* table, void* object, ox_pointer string_visitor);
    /// The root, an OX_GRID_LAYOUT_INTERFACE pointer that lives as long as the docker.
    ox_pointer (*element)(const void* table, void* object);
    /// The meaning of the next two is the host's; bundles answer true and 0xFFFFFFFF.
    bool (*flag)(const void* table, void* object);
    uint32_t (*value)(const void* table, void* object);
    /// Something of the host's that goes with the window. [kept until replaced]
    void (*attach)(const void* table, void* object, ox_pointer host);
};

// ---- Buttons at the foot of a dialog ----------------------------------------------------------------------

/// What the buttons of a box are for. The kinds do not cross the border, their captions do, which are texts
/// of the basic module (ox_resources.h): hosts tell accepting buttons by them. A box shows its buttons in
/// ascending order of kind.
#define OX_BUTTON_ACCEPT 1u /* "apply": does the work, closes the dialog when that went well */
#define OX_BUTTON_APPLY 2u  /* as OX_BUTTON_ACCEPT */
#define OX_BUTTON_REJECT 4u /* "close": closes the dialog */
#define OX_BUTTON_CLOSE 8u  /* as OX_BUTTON_REJECT */
#define OX_BUTTON_HELP 16u  /* "help": shows help, closes nothing */
#define OX_BUTTON_YES 32u   /* "yes": as OX_BUTTON_ACCEPT */
#define OX_BUTTON_NO 64u    /* "no": as OX_BUTTON_REJECT */

/// Indexes count from 0; the host asks below `count`. [bundle implements]
struct ox_button_box_table {
    ox_pointer (*polymorphic)(const void* table, void* object);
    /// Two independent element views (ox_layouts.h); both are told when a button is enabled or greyed.
    /// [kept until replaced]
    void (*attach_first_view)(const void* table, void* object, ox_pointer view);
    void (*attach_second_view)(const void* table, void* object, ox_pointer view);
    int32_t (*count)(const void* table, void* object);
    void (*visit_caption)(const void* table, void* object, int32_t index, ox_pointer string_visitor);
    bool (*enabled)(const void* table, void* object, int32_t index);
    /// The user has pressed an enabled button; the work is done before this returns. Answers whether the host
    /// is to close the dialog. An index below 0 (the user has closed the window) answers true.
    bool (*click)(const void* table, void* object, int32_t index);
    /// Button of the Enter key; -1 for none.
    int32_t (*default_index)(const void* table, void* object);
    /// Its meaning is the host's; bundles answer -1.
    int32_t (*second_index)(const void* table, void* object);
};
