#pragma once
/// Utilities, modal dialogs and the description of one dialog. [ui]

#include <cstdint>

#include "border/binding.h"

namespace ox {

/// Publishes one utility under its id. [module implements]
struct utility_service_impl : binding<utility_service_impl, utility_service> {
    virtual custom_pointer referent() { return {}; }
    virtual void report(custom_pointer /*utility_visitor*/) {}
    using table = operations<&utility_service_impl::referent, &utility_service_impl::report>;
};

/// Something the user can start. [module implements]
struct utility_impl : binding<utility_impl, utility> {
    virtual void visit_caption(custom_pointer /*string_visitor*/) {}
    virtual void visit_icon(custom_pointer /*bitmap_visitor*/) {}
    virtual void attach(custom_pointer /*window*/) {}
    virtual bool host_request() { return false; }
    virtual void run() {}
    virtual void reserved() {}
    virtual void set_host_data(custom_pointer /*data*/) {}
    using table = operations<&utility_impl::visit_caption, &utility_impl::visit_icon, &utility_impl::attach,
                             &utility_impl::host_request, &utility_impl::run, &utility_impl::reserved,
                             &utility_impl::set_host_data>;
};

struct utility_visitor_impl : binding<utility_visitor_impl, utility_visitor> {
    virtual void visit(const wchar_t* /*id*/, custom_pointer /*utility*/) {}
    using table = operations<&utility_visitor_impl::visit>;
};

struct utility_service_visitor_impl : binding<utility_service_visitor_impl, utility_service_visitor> {
    virtual void visit(custom_pointer /*service*/) {}
    using table = operations<&utility_service_visitor_impl::visit>;
};

/// Publishes the place where the host attaches its dialog host. [module implements]
struct modal_dialog_service_impl : binding<modal_dialog_service_impl, modal_dialog_service> {
    virtual custom_pointer referent() { return {}; }
    virtual void report(custom_pointer /*modal_dialog_visitor*/) {}
    using table = operations<&modal_dialog_service_impl::referent, &modal_dialog_service_impl::report>;
};

struct modal_dialog_impl : binding<modal_dialog_impl, modal_dialog> {
    virtual void attach(custom_pointer /*dialog_host*/) {}
    using table = operations<&modal_dialog_impl::attach>;
};

struct modal_dialog_visitor_impl : binding<modal_dialog_visitor_impl, modal_dialog_visitor> {
    virtual void visit(const wchar_t* /*id*/, custom_pointer /*modal_dialog*/) {}
    using table = operations<&modal_dialog_visitor_impl::visit>;
};

struct modal_dialog_service_visitor_impl
    : binding<modal_dialog_service_visitor_impl, modal_dialog_service_visitor> {
    virtual void visit(custom_pointer /*service*/) {}
    using table = operations<&modal_dialog_service_visitor_impl::visit>;
};

/// Shows dialogs and asks for files. [host implements]
struct dialog_host_impl : binding<dialog_host_impl> {
    static constexpr const char* label = "dialog host";
    static constexpr std::int32_t open_file = 0;
    static constexpr std::int32_t save_file = 1;

    /// `filter`: pairs of description and pattern, separated by "|". The visitor receives the full
    /// path; a cancelled dialog does not call it.
    virtual void ask_file(std::int32_t /*mode*/, const wchar_t* /*filter*/,
                          custom_pointer /*string_visitor*/) {}
    /// Returns when the dialog is closed; true when an accepting button closed it.
    virtual bool show_modal(custom_pointer /*docker*/, custom_pointer /*button_box*/) { return false; }
    using table = operations<&dialog_host_impl::ask_file, &dialog_host_impl::show_modal>;
};

/// One dialog: its appearance and the root of its element tree. [module implements]
/// 1. host attaches itself   2. reads caption, icon, flag and value   3. walks the tree from `element`
struct docker_impl : binding<docker_impl, docker> {
    /// All bits: what dialogs here answer as their value.
    static constexpr std::uint32_t whole_value = 0xFFFFFFFF;

    virtual void visit_icon(custom_pointer /*bitmap_visitor*/) {}
    virtual void visit_caption(custom_pointer /*string_visitor*/) {}
    /// The root, as a grid layout.
    virtual custom_pointer element() { return {}; }
    virtual bool flag() { return false; }
    virtual std::uint32_t value() { return 0; }
    virtual void attach(custom_pointer /*host*/) {}
    using table = operations<&docker_impl::visit_icon, &docker_impl::visit_caption, &docker_impl::element,
                             &docker_impl::flag, &docker_impl::value, &docker_impl::attach>;
};

/// The standard buttons at the foot of a dialog. [module implements]
/// 1. host attaches its views   2. reads count, captions, enabled, default   3. clicks, and closes the dialog
/// when the answer is true   4. attaches empty views when the dialog is gone
struct button_box_impl : binding<button_box_impl, button_box> {
    virtual void attach_first_view(custom_pointer /*view*/) {}
    virtual void attach_second_view(custom_pointer /*view*/) {}
    virtual std::int32_t count() { return 0; }
    virtual void visit_caption(std::int32_t /*index*/, custom_pointer /*string_visitor*/) {}
    virtual bool enabled(std::int32_t /*index*/) { return true; }
    /// Does the dialog close?
    virtual bool click(std::int32_t /*index*/) { return false; }
    virtual std::int32_t default_index() { return -1; }
    virtual std::int32_t second_index() { return -1; }
    using table =
        operations<&button_box_impl::attach_first_view, &button_box_impl::attach_second_view,
                   &button_box_impl::count, &button_box_impl::visit_caption, &button_box_impl::enabled,
                   &button_box_impl::click, &button_box_impl::default_index, &button_box_impl::second_index>;
};

}  // namespace ox
