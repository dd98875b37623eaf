/// The two listings of the border, pinned together: this file compiles when they agree.

#include "border/c/ox_bundle.h"
#include "border/c/ox_controls.h"
#include "border/c/ox_dialogs.h"
#include "border/c/ox_layouts.h"
#include "border/c/ox_lifetime.h"
#include "border/c/ox_outlines.h"
#include "border/c/ox_services.h"
#include "border/c/ox_tools.h"
#include "border/c/ox_values.h"
#include "border/interfaces/controls.h"
#include "border/interfaces/dialogs.h"
#include "border/interfaces/layouts.h"
#include "border/interfaces/lifetime.h"
#include "border/interfaces/outlines.h"
#include "border/interfaces/services.h"
#include "border/interfaces/tools.h"
#include "border/interfaces/values.h"
#include "border/pins/pin.h"

// ---- Pointers and queries ---------------------------------------------------------------------------------

static_assert(sizeof(ox_pointer) == sizeof(ox::custom_pointer) &&
              alignof(ox_pointer) == alignof(ox::custom_pointer));
static_assert(offsetof(ox_pointer, table) == offsetof(ox::custom_pointer, table) &&
              offsetof(ox_pointer, object) == offsetof(ox::custom_pointer, object));
static_assert(std::is_same_v<decltype(ox_pointer::table), decltype(ox::custom_pointer::table)> &&
              std::is_same_v<decltype(ox_pointer::object), decltype(ox::custom_pointer::object)>);

static_assert(sizeof(ox_polymorphic_table) == sizeof(ox::detail::polymorphic_table<ox::label_impl>));
static_assert(
    std::is_nothrow_convertible_v<ox::detail::query_function, decltype(ox_polymorphic_table::query)>);

// ---- Lifetime ---------------------------------------------------------------------------------------------

OX_PIN(referent, OX_REFERENT_INTERFACE, add_referrer, remove_referrer, owner, self);
OX_PIN(referrer, OX_REFERRER_INTERFACE, released, holds);

// ---- Values -----------------------------------------------------------------------------------------------

OX_PIN(string_visitor, OX_STRING_VISITOR_INTERFACE, visit);
OX_PIN(integers_visitor, OX_INTEGERS_VISITOR_INTERFACE, visit);
OX_PIN(bigints_visitor, OX_BIGINTS_VISITOR_INTERFACE, visit);
OX_PIN(floatings_visitor, OX_FLOATINGS_VISITOR_INTERFACE, visit);
OX_PIN(short_floatings_visitor, OX_SHORT_FLOATINGS_VISITOR_INTERFACE, visit);
OX_PIN(histogram_distribution_visitor, OX_HISTOGRAM_DISTRIBUTION_VISITOR_INTERFACE, visit);
OX_PIN(thrice_interleaved_bytes_visitor, OX_THRICE_INTERLEAVED_BYTES_VISITOR_INTERFACE, visit);
OX_PIN(bitmap, OX_BITMAP_INTERFACE, width, height, visit_pixels);
OX_PIN(bitmap_visitor, OX_BITMAP_VISITOR_INTERFACE, visit);
OX_PIN(masked_bitmap, OX_MASKED_BITMAP_INTERFACE, width, height, visit_colour, visit_mask);
OX_PIN(masked_bitmap_visitor, OX_MASKED_BITMAP_VISITOR_INTERFACE, visit);

// ---- Bundle and services ----------------------------------------------------------------------------------

// The bundle's own tables have no binding.
static_assert(offsetof(ox_bundle_table, context) == 0 * sizeof(void*) &&
              offsetof(ox_bundle_table, visit_factories) == 1 * sizeof(void*) &&
              sizeof(ox_bundle_table) == 6 * sizeof(void*));
static_assert(std::is_same_v<decltype(ox_context_table::query), decltype(ox_polymorphic_table::query)> &&
              sizeof(ox_context_table) == sizeof(void*));

OX_PIN_TABLE(ox::factory_visitor_impl, ox_factory_visitor_table, visit);
OX_PIN(service_factory, OX_SERVICE_FACTORY_INTERFACE, create);
OX_PIN(bundle_context, OX_BUNDLE_CONTEXT_INTERFACE, visit_registry);
OX_PIN(service_registry, OX_SERVICE_REGISTRY_INTERFACE, visit);
OX_PIN(service_registry_visitor, OX_SERVICE_REGISTRY_VISITOR_INTERFACE, visit_registry);
OX_PIN(service_visitor, OX_SERVICE_VISITOR_INTERFACE);
OX_PIN(localizer, OX_LOCALIZER_INTERFACE, referent, visit_string, visit_bitmap, visit_masked_bitmap);
OX_PIN(localizer_service, OX_LOCALIZER_SERVICE_INTERFACE, visit_localizer);
OX_PIN(localizer_service_visitor, OX_LOCALIZER_SERVICE_VISITOR_INTERFACE, visit_service);
OX_PIN(localizer_visitor, OX_LOCALIZER_VISITOR_INTERFACE, visit_localizer);
OX_PIN(localizer_client, OX_LOCALIZER_CLIENT_INTERFACE, notify);

// ---- Utilities and dialogs --------------------------------------------------------------------------------

OX_PIN(utility_service, OX_UTILITY_SERVICE_INTERFACE, referent, report);
OX_PIN(utility_service_visitor, OX_UTILITY_SERVICE_VISITOR_INTERFACE, visit);
OX_PIN(utility_visitor, OX_UTILITY_VISITOR_INTERFACE, visit);
OX_PIN(utility, OX_UTILITY_INTERFACE, visit_caption, visit_icon, attach, host_request, run, set_host_data);
OX_PIN(modal_dialog_service, OX_MODAL_DIALOG_SERVICE_INTERFACE, referent, report);
OX_PIN(modal_dialog_service_visitor, OX_MODAL_DIALOG_SERVICE_VISITOR_INTERFACE, visit);
OX_PIN(modal_dialog_visitor, OX_MODAL_DIALOG_VISITOR_INTERFACE, visit);
OX_PIN(modal_dialog, OX_MODAL_DIALOG_INTERFACE, attach);
OX_PIN_TABLE(ox::dialog_host_impl, ox_dialog_host_table, ask_file, show_modal);
OX_PIN(docker, OX_DOCKER_INTERFACE, visit_icon, visit_caption, element, flag, value, attach);
OX_PIN(button_box, OX_BUTTON_BOX_INTERFACE, attach_first_view, attach_second_view, count, visit_caption,
       enabled, click, default_index, second_index);

static_assert(ox::dialog_host_impl::open_file == OX_ASK_FILE_OPEN &&
              ox::dialog_host_impl::save_file == OX_ASK_FILE_SAVE);

// ---- Layouts ----------------------------------------------------------------------------------------------

OX_PIN(element_visitor, OX_ELEMENT_VISITOR_INTERFACE, grid_layout, stack_layout, input, floating_input,
       multiline_output, button, label, outline, dropdown, groupbox, toolbar);
OX_PIN_TABLE(ox::element_view_slots, ox_element_view_table, changed);
OX_PIN(grid_layout, OX_GRID_LAYOUT_INTERFACE, layout_value, column_count, row_count, column_expands,
       row_expands, column_value, row_value, column_shown, row_shown, visit_cell, attach_view);
OX_PIN(stack_layout, OX_STACK_LAYOUT_INTERFACE, child_count, visit_child, current, attach_view);
OX_PIN(groupbox, OX_GROUPBOX_INTERFACE, visit_caption, visit_second_text, visit_content, flag, attach_view);

// ---- Controls ---------------------------------------------------------------------------------------------

OX_PIN(label, OX_LABEL_INTERFACE, enabled, visit_caption, attach_view);
OX_PIN(button, OX_BUTTON_INTERFACE, visit_image, visit_caption, visit_hint, visit_menu, enabled, flag_2,
       checked, flag_4, click, attach_view);
OX_PIN(input, OX_INPUT_INTERFACE, visit_text, visit_caption, enabled, flag_2, flag_3, value, text_selection,
       set_text, commit, attach_view);
OX_PIN_NAME(text_selection, OX_TEXT_SELECTION_INTERFACE);
OX_PIN(floating_input, OX_FLOATING_INPUT_INTERFACE, value, minimum, maximum, decimals, visit_caption, enabled,
       read_only, set_value, attach_view);
OX_PIN(dropdown, OX_DROPDOWN_INTERFACE, item_count, visit_item, visit_text, value, enabled, current, select,
       attach_view);
OX_PIN(multiline_output, OX_MULTILINE_OUTPUT_INTERFACE, visit_text, visit_caption, copy_font, enabled,
       first_value, second_value, attach_view);

static_assert(ox::dropdown_impl::no_item == OX_NO_ITEM);

// ---- Tools ------------------------------------------------------------------------------------------------

OX_PIN(action_tool, OX_ACTION_TOOL_INTERFACE, visit_image, visit_extra_texts, visit_caption, visit_hint,
       visit_long_text, enabled, checked, click, attach_view);
OX_PIN(tool_set, OX_TOOL_SET_INTERFACE, visit_tools, attach_view);
OX_PIN(tool_set_visitor, OX_TOOL_SET_VISITOR_INTERFACE, visit_tool_set, visit_action_tool);
OX_PIN(toolbar, OX_TOOLBAR_INTERFACE, visit_tool_sets, attach_view);
OX_PIN(context_menu, OX_CONTEXT_MENU_INTERFACE, visit_tool_sets, attach_view);
OX_PIN(context_menu_visitor, OX_CONTEXT_MENU_VISITOR_INTERFACE, visit);

// ---- Outlines ---------------------------------------------------------------------------------------------

OX_PIN(outline_item_index, OX_OUTLINE_ITEM_INDEX_INTERFACE, visit_parent, row);
OX_PIN(outline_item_index_visitor, OX_OUTLINE_ITEM_INDEX_VISITOR_INTERFACE, visit);
OX_PIN(outline, OX_OUTLINE_INTERFACE, flag_1, flag_2, visit_root, column_count, visit_checks, visit_column,
       value_8, visit_current_item, set_current_item, is_selected, set_selected, has_children, child_count,
       flag_29, flag_30, index_33, attach_view);
OX_PIN_TABLE(ox::outline_view_slots, ox_outline_view_table, selection_changed, refresh);
OX_PIN(outline_checks, OX_OUTLINE_CHECKS_INTERFACE, flag, state, set_state);
OX_PIN(outline_checks_visitor, OX_OUTLINE_CHECKS_VISITOR_INTERFACE, visit);
OX_PIN(outline_column_visitor, OX_OUTLINE_COLUMN_VISITOR_INTERFACE, visit_bitmap_column, visit_string_column);
OX_PIN(string_outline_column, OX_STRING_OUTLINE_COLUMN_INTERFACE, visit_caption, visit_cell_hint, sorts_after,
       visit_cell_text, set_cell_text, cell_is_editable, highlight);
OX_PIN(bitmap_outline_column, OX_BITMAP_OUTLINE_COLUMN_INTERFACE, visit_caption, visit_cell_image);
