#include "projection/favourites.h"

#include <algorithm>

#include "resources/text.h"
#include "support/string_adapter.h"

namespace ox::dialog {

favourites_model::favourites_model() : list_(ox_pj4_fav_list_create()) {
    if (list_) ox_pj4_fav_list_deserialize(list_.get());
}

favourites_model::~favourites_model() {
    if (list_) ox_pj4_fav_list_serialize(list_.get());
}

std::int32_t favourites_model::count() const {
    return list_ ? std::max(ox_pj4_fav_list_get_count(list_.get()), 0) : 0;
}

std::wstring favourites_model::caption(std::int32_t index) const {
    if (!has(index)) return {};
    return adapted_text([&](void* adapter) { ox_pj4_fav_get_caption(list_.get(), index, adapter); });
}

std::wstring favourites_model::proj4(std::int32_t index) const {
    return adapted_text([&](void* adapter) { ox_pj4_fav_get_pj4str(list_.get(), index, adapter); });
}

void favourites_model::select(std::int32_t index) {
    selected_ = index;
    selection_changed.fire();
}

void favourites_model::append() {
    const std::wstring pj4 = current_text();
    if (!list_ || pj4.empty()) return select(-1);
    const std::wstring caption =
        adapted_text([&](void* adapter) { ox_pj4_get_short_text_w(pj4.c_str(), adapter); });
    ox_pj4_fav_add_item(list_.get(), caption.c_str(), pj4.c_str());
    selected_ = find_current();
    list_changed.fire();
    choose(selected_);
}

void favourites_model::remove_selected() {
    if (list_) ox_pj4_fav_del_item(list_.get(), selected_);
    const bool deselected = selected_ != -1;
    selected_ = -1;
    list_changed.fire();
    if (deselected) selection_changed.fire();
}

void favourites_model::rename(std::int32_t index, const wchar_t* caption) {
    if (!has(index)) return;
    ox_pj4_fav_set_caption(list_.get(), index, caption ? caption : L"");
    list_changed.fire();
}

void favourites_model::choose(std::int32_t index) {
    if (!has(index)) return select(-1);
    selected_ = index;
    apply_text(proj4(index));  // which selects anew
}

void favourites_model::reselect() { select(find_current()); }

std::int32_t favourites_model::find_current() const {
    const std::wstring pj4 = current_text();
    const std::int32_t all = count();
    std::int32_t index = 0;
    while (index < all && proj4(index) != pj4) ++index;
    return index < all ? index : -1;
}

}  // namespace ox::dialog

namespace ox::element {

namespace detail {

namespace {

/// Index of the favourite that an item names; -1 where there is none.
std::int32_t index_of(const dialog::favourites_model& model, custom_pointer item) {
    return static_cast<std::int32_t>(toolkit::row_among(static_cast<std::size_t>(model.count()), item));
}

}  // namespace

proj_favorites_tools::proj_favorites_tools(dialog::favourites_model& model)
    : append_(picture::append, text::append, text::append, [&model] { model.append(); }),
      remove_(picture::remove, text::remove, text::remove, [&model] { model.remove_selected(); }) {}

void proj_favorites_tools::visit_tools(const toolkit::tools_visitor& state) {
    state.action(0, L"ox_proj_dialog_favorites_append_tool", append_);
    state.action(0, L"ox_proj_dialog_favorites_remove_tool", remove_);
}

void pj4str_column_bitmap::visit_cell_image(custom_pointer item, custom_pointer bitmap_visitor) {
    if (model_.has(index_of(model_, item))) toolkit::visit_picture_of(picture::favourite, bitmap_visitor);
}

void pj4str_column::visit_caption(custom_pointer string_visitor) {
    toolkit::visit_text_of(text::favourites, string_visitor);
}

void pj4str_column::visit_cell_text(custom_pointer item, custom_pointer string_visitor) {
    const std::wstring caption = model_.caption(index_of(model_, item));
    call<&string_visitor_impl::visit>(string_visitor, caption.c_str());
}

bool pj4str_column::cell_is_editable(custom_pointer item) { return model_.has(index_of(model_, item)); }

void pj4str_column::set_cell_text(custom_pointer item, const wchar_t* text) {
    model_.rename(index_of(model_, item), text);
}

proj_favorites_outline::proj_favorites_outline(dialog::favourites_model& model)
    : model_(model),
      picture_(model),
      caption_(model),
      list_changed_(model.list_changed, [this] { refresh(); }),
      selection_changed_(model.selection_changed, [this] { selection_changed(); }) {}

}  // namespace detail

proj_favorites::proj_favorites(dialog::favourites_model& model) : tools_(model), list_(model) {
    put(0, 0, tools_);
    put(0, 1, list_);
    set_row_expands(1);
    set_column_expands(0);
}

}  // namespace ox::element
