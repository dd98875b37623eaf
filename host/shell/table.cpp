#include "shell/table.h"

#include <algorithm>
#include <stdexcept>

#include "base/language.h"
#include "shell/values.h"

namespace oxhost::shell {

namespace {

using ox::call;
using outline = ox::outline_impl;
using string_column = ox::string_outline_column_impl;
using bitmap_column = ox::bitmap_outline_column_impl;

/// Names a row to the bundle, for one call.
struct row_item final : ox::outline_item_index_impl {
    explicit row_item(std::uint32_t row_number) : number(row_number) {}
    void visit_parent(ox::custom_pointer item_visitor) override {
        call<&ox::outline_item_index_visitor_impl::visit>(item_visitor, ox::custom_pointer{});
    }
    std::uint32_t row() override { return number; }
    ox::custom_pointer pointer() { return ox::make_pointer<ox::outline_item_index_impl>(*this); }
    std::uint32_t number;
};

struct item_reader final : ox::outline_item_index_visitor_impl {
    void visit(ox::custom_pointer item) override {
        if (item) row = call<&ox::outline_item_index_impl::row>(item);
    }
    std::optional<std::uint32_t> row;
};

struct checks_reader final : ox::outline_checks_visitor_impl {
    void visit(ox::custom_pointer found) override { checks = found; }
    ox::custom_pointer checks{};
};

struct column_reader final : ox::outline_column_visitor_impl {
    void visit_bitmap_column(ox::custom_pointer column, const wchar_t* id) override {
        columns.push_back({to_utf8(id), read_utf8<&bitmap_column::visit_caption>(column), true, column});
    }
    void visit_string_column(ox::custom_pointer column, const wchar_t* id) override {
        columns.push_back({to_utf8(id), read_utf8<&string_column::visit_caption>(column), false, column});
    }
    std::vector<table_column> columns;
};

}  // namespace

table_model::table_model(ox::custom_pointer outline_pointer) : outline_(outline_pointer) {
    checks_reader checks;
    call<&outline::visit_checks>(outline_, ox::make_pointer<ox::outline_checks_visitor_impl>(checks));
    checks_ = checks.checks;
    column_reader reader;
    const std::uint32_t count = call<&outline::column_count>(outline_);
    for (std::uint32_t i = 0; i < count; ++i)
        call<&outline::visit_column>(outline_, i, ox::make_pointer<ox::outline_column_visitor_impl>(reader));
    columns_ = std::move(reader.columns);
    call<&outline::attach_view>(outline_, ox::make_pointer<ox::outline_view_slots>(*this));
}

table_model::~table_model() { call<&outline::attach_view>(outline_, ox::custom_pointer{}); }

std::uint32_t table_model::row_count() {
    if (!row_count_) row_count_ = call<&outline::child_count>(outline_, ox::custom_pointer{});
    return *row_count_;
}

std::size_t table_model::column_of(std::string_view id) const {
    const auto found = std::ranges::find(columns_, id, &table_column::id);
    if (found == columns_.end())
        throw std::out_of_range(words("в таблице нет столбца ", "the table has no column ") +
                                std::string(id));
    return static_cast<std::size_t>(found - columns_.begin());
}

std::string table_model::text(std::uint32_t row, std::size_t column) const {
    return read_utf8<&string_column::visit_cell_text>(columns_[column].pointer, row_item(row).pointer());
}

std::string table_model::hint(std::uint32_t row, std::size_t column) const {
    return read_utf8<&string_column::visit_cell_hint>(columns_[column].pointer, row_item(row).pointer());
}

bool table_model::highlighted(std::uint32_t row, std::size_t column) const {
    return call<&string_column::highlight>(columns_[column].pointer, row_item(row).pointer());
}

bool table_model::editable(std::uint32_t row, std::size_t column) const {
    return call<&string_column::cell_is_editable>(columns_[column].pointer, row_item(row).pointer());
}

void table_model::edit(std::uint32_t row, std::size_t column, std::string_view text) {
    call<&string_column::set_cell_text>(columns_[column].pointer, row_item(row).pointer(),
                                        to_wide(text).c_str());
}

picture table_model::image(std::uint32_t row, std::size_t column) const {
    return read_picture([&](ox::custom_pointer visitor) {
        call<&bitmap_column::visit_cell_image>(columns_[column].pointer, row_item(row).pointer(), visitor);
    });
}

bool table_model::sorts_after(std::uint32_t a, std::uint32_t b, std::size_t column) const {
    return call<&string_column::sorts_after>(columns_[column].pointer, row_item(a).pointer(),
                                             row_item(b).pointer());
}

bool table_model::checked(std::uint32_t row) const {
    return call<&ox::outline_checks_impl::state>(checks_, row_item(row).pointer());
}

void table_model::check(std::uint32_t row, bool checked_now) {
    call<&ox::outline_checks_impl::set_state>(checks_, row_item(row).pointer(), checked_now);
}

bool table_model::selected(std::uint32_t row) const {
    return call<&outline::is_selected>(outline_, row_item(row).pointer());
}

void table_model::select(std::uint32_t row, bool selected_now) {
    call<&outline::set_selected>(outline_, row_item(row).pointer(), selected_now);
}

std::optional<std::uint32_t> table_model::current() const {
    item_reader reader;
    call<&outline::visit_current_item>(outline_,
                                       ox::make_pointer<ox::outline_item_index_visitor_impl>(reader));
    return reader.row;
}

void table_model::make_current(std::uint32_t row) {
    call<&outline::set_current_item>(outline_, row_item(row).pointer());
}

void table_model::refresh() {
    row_count_.reset();
    if (on_refresh) on_refresh();
}

void table_model::selection_changed() {
    if (on_selection_changed) on_selection_changed();
}

}  // namespace oxhost::shell
