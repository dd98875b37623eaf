#pragma once
/// The user's favourite projections: the host keeps and stores them, the projection dialog shows them
/// beside its choices. [ui]

#include <array>
#include <functional>
#include <memory>
#include <string>

#include "border/host_api/oxk_proj4_d2.h"
#include "toolkit/event.h"
#include "toolkit/layouts.h"
#include "toolkit/outline_table.h"
#include "toolkit/tool.h"
#include "toolkit/toolbar.h"

namespace ox::dialog {

/// A favourites list of the host, read when it is made and written back when it ends.
class favourites_model {
public:
    favourites_model();
    ~favourites_model();
    favourites_model(const favourites_model&) = delete;
    favourites_model& operator=(const favourites_model&) = delete;

    std::function<std::wstring()> current_text;           ///< what the dialog would return now
    std::function<void(const std::wstring&)> apply_text;  ///< sets a text into the dialog
    event<void()> list_changed;
    event<void()> selection_changed;

    std::int32_t count() const;
    bool has(std::int32_t index) const { return index >= 0 && index < count(); }
    std::int32_t selected() const { return selected_; }  ///< -1 for none
    std::wstring caption(std::int32_t index) const;      ///< empty for an index that is none

    /// Adds what the dialog would return; nothing while that is empty.
    void append();
    void remove_selected();
    /// A null caption is an empty one.
    void rename(std::int32_t index, const wchar_t* caption);
    /// Makes a favourite the selected one and sets its text into the dialog.
    void choose(std::int32_t index);
    /// Selects the first favourite whose text is exactly what the dialog would return.
    void reselect();

private:
    struct destroy_list {
        void operator()(void* list) const { ox_pj4_fav_list_destroy(list); }
    };
    std::wstring proj4(std::int32_t index) const;
    void select(std::int32_t index);
    /// The first favourite with the current text, or -1.
    std::int32_t find_current() const;

    std::unique_ptr<void, destroy_list> list_;
    std::int32_t selected_ = -1;
};

}  // namespace ox::dialog

namespace ox::element {

namespace detail {

class proj_favorites_tools final : public toolkit::with_tools {
public:
    explicit proj_favorites_tools(dialog::favourites_model& model);
    void visit_tools(const toolkit::tools_visitor& state) override;

private:
    toolkit::action_tool append_;
    toolkit::action_tool remove_;
};

/// The same small picture in every row.
class pj4str_column_bitmap final : public toolkit::bitmap_column {
public:
    static constexpr const wchar_t* id = L"oxk_proj_favorite_outline_bitmap_column";
    explicit pj4str_column_bitmap(dialog::favourites_model& model)
        : toolkit::bitmap_column(id), model_(model) {}
    void visit_cell_image(custom_pointer item, custom_pointer bitmap_visitor) override;

private:
    dialog::favourites_model& model_;
};

/// The captions, renamed in place.
class pj4str_column final : public toolkit::string_column {
public:
    static constexpr const wchar_t* id = L"oxk_proj_favorite_outline_text_column";
    explicit pj4str_column(dialog::favourites_model& model) : toolkit::string_column(id), model_(model) {}

    void visit_caption(custom_pointer string_visitor) override;
    void visit_cell_text(custom_pointer item, custom_pointer string_visitor) override;
    bool cell_is_editable(custom_pointer item) override;
    void set_cell_text(custom_pointer item, const wchar_t* text) override;

private:
    dialog::favourites_model& model_;
};

class proj_favorites_outline final : public toolkit::outline_table {
public:
    explicit proj_favorites_outline(dialog::favourites_model& model);

    std::uint32_t row_count() override { return static_cast<std::uint32_t>(model_.count()); }
    std::uint32_t current_row() override { return static_cast<std::uint32_t>(model_.selected()); }
    void set_current_row(std::uint32_t row) override { model_.choose(static_cast<std::int32_t>(row)); }

protected:
    std::span<toolkit::outline_column* const> columns() override { return columns_; }

private:
    dialog::favourites_model& model_;
    pj4str_column_bitmap picture_;
    pj4str_column caption_;
    std::array<toolkit::outline_column*, 2> columns_{&picture_, &caption_};
    subscription list_changed_;
    subscription selection_changed_;
};

}  // namespace detail

/// The favourites area: tools above the list.
class proj_favorites final : public toolkit::grid_layout<2, 1> {
public:
    explicit proj_favorites(dialog::favourites_model& model);

private:
    toolkit::toolbar<detail::proj_favorites_tools, toolbar_impl, void> tools_;
    detail::proj_favorites_outline list_;
};

}  // namespace ox::element
