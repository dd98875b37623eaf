#pragma once
/// The table of profile scenes: caption, projection, and a check box per row. [ui]

#include <array>

#include "prf_reproj/profile_list.h"
#include "toolkit/outline_table.h"

namespace ox::element::detail {

using prf_reproj::prf_list;
using prf_reproj::prf_row;

/// The row that an item names, or null.
inline prf_row* find_row(prf_list& list, custom_pointer item) {
    const std::uint32_t row = toolkit::row_among(list.rows.size(), item);
    return row == toolkit::no_row ? nullptr : &list.rows[row];
}

/// The row that an item names; where there is none, an empty one.
const prf_row& row_at(prf_list& list, custom_pointer item);

/// A column that shows one text of each row.
class prf_column : public toolkit::string_column {
public:
    void visit_caption(custom_pointer string_visitor) override {
        toolkit::visit_text_of(caption_, string_visitor);
    }
    /// By code units; on a common prefix the shorter text goes first.
    bool sorts_after(custom_pointer a, custom_pointer b) override { return text_at(a) > text_at(b); }
    void visit_cell_text(custom_pointer item, custom_pointer string_visitor) override {
        call<&string_visitor_impl::visit>(string_visitor, text_at(item).c_str());
    }
    bool highlight(custom_pointer item) override { return row_at(*list_, item).differs; }

protected:
    prf_column(const wchar_t* id, prf_list& list, std::int32_t caption, std::wstring prf_row::*text)
        : toolkit::string_column(id), list_(&list), caption_(caption), text_(text) {}
    ~prf_column() = default;

private:
    const std::wstring& text_at(custom_pointer item) const { return row_at(*list_, item).*text_; }

    prf_list* list_;
    std::int32_t caption_;
    std::wstring prf_row::*text_;
};

class prf_name_column final : public prf_column {
public:
    static constexpr const wchar_t* id = L"oxk_scn2d_prf_reproj_name_column";
    explicit prf_name_column(prf_list& list);
};

/// The raw proj4 text, also as the cell's hint.
class prf_projection_column final : public prf_column {
public:
    static constexpr const wchar_t* id = L"oxk_scn2d_prf_reproj_projection_column";
    explicit prf_projection_column(prf_list& list);
    void visit_cell_hint(custom_pointer item, custom_pointer string_visitor) override {
        visit_cell_text(item, string_visitor);
    }
};

/// A check box of a selected row stands for the whole selection.
class prf_check final : public outline_checks_impl {
public:
    explicit prf_check(prf_list& list) : list_(&list) {}
    bool state(custom_pointer item) override { return row_at(*list_, item).checked; }
    void set_state(custom_pointer item, bool checked) override;

private:
    prf_list* list_;
};

class prf_outline final : public toolkit::outline_table {
public:
    explicit prf_outline(prf_list& list) : list_(&list), name_(list), projection_(list), check_(list) {}

    void visit_checks(custom_pointer checks_visitor) override;
    bool is_selected(custom_pointer item) override { return row_at(*list_, item).selected; }
    void set_selected(custom_pointer item, bool selected) override {
        if (prf_row* row = find_row(*list_, item)) row->selected = selected;
    }
    /// From here on the list's changes refresh this view.
    void attach_view(custom_pointer view) override;
    std::uint32_t row_count() override { return static_cast<std::uint32_t>(list_->rows.size()); }

protected:
    std::span<toolkit::outline_column* const> columns() override { return columns_; }

private:
    prf_list* list_;
    prf_name_column name_;
    prf_projection_column projection_;
    std::array<toolkit::outline_column*, 2> columns_{&name_, &projection_};
    prf_check check_;
};

}  // namespace ox::element::detail
