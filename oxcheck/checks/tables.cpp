// Rows that a table does not have.

#include <limits>

#include "oxcheck/check.h"
#include "oxcheck/stage/anything.h"
#include "oxcheck/stage/script.h"
#include "oxcheck/tree/play.h"

namespace oxcheck {

namespace {

using host_double::host;

/// A table with its columns and check boxes, asked about one item.
class inquiry {
public:
    inquiry(const std::vector<element>& dialog, const element& table, custom_pointer item)
        : table_(table.pointer), item_(item) {
        for (const element& each : dialog)
            if (each.outline == table_) parts_.push_back(each);
    }

    /// What the item is found to be where it ought to be an empty row; empty when it is one.
    std::string fault() const {
        if (ox::call<&ox::outline_impl::is_selected>(table_, item_)) return "it is selected";
        if (item_ && ox::call<&ox::outline_impl::child_count>(table_, item_) != 0) return "it has children";
        for (const element& part : parts_) {
            if (part.is<ox::outline_checks_impl>() &&
                ox::call<&ox::outline_checks_impl::state>(part.pointer, item_))
                return "it is checked";
            if (part.is<ox::string_outline_column_impl>())
                if (std::string found = column_fault(part.pointer); !found.empty()) return found;
        }
        return {};
    }

    void set_everything() const {
        ox::call<&ox::outline_impl::set_current_item>(table_, item_);
        ox::call<&ox::outline_impl::set_selected>(table_, item_, true);
        for (const element& part : parts_) {
            if (part.is<ox::outline_checks_impl>())
                ox::call<&ox::outline_checks_impl::set_state>(part.pointer, item_, true);
            if (part.is<ox::string_outline_column_impl>())
                ox::call<&ox::string_outline_column_impl::set_cell_text>(part.pointer, item_, L"text");
        }
    }

    std::string current_row() const {
        const auto row = current_row_of(table_);
        return row ? std::to_string(*row) : "none";
    }

private:
    std::string column_fault(custom_pointer column) const {
        using impl = ox::string_outline_column_impl;
        const auto read = [&]<auto Visit>() {
            return read_text([&](custom_pointer v) { ox::call<Visit>(column, item_, v); });
        };
        if (!read.operator()<&impl::visit_cell_text>().empty()) return "it has a text";
        if (!read.operator()<&impl::visit_cell_hint>().empty()) return "it has a hint";
        if (ox::call<&impl::highlight>(column, item_)) return "it is highlighted";
        if (ox::call<&impl::sorts_after>(column, item_, item_)) return "it sorts after itself";
        return {};
    }

    custom_pointer table_, item_;
    std::vector<element> parts_;
};

void expect_empty_row(const std::vector<element>& dialog, const element& table, custom_pointer item,
                      const std::string& name) {
    note("at " + name);
    const inquiry asked(dialog, table, item);
    const std::string current = asked.current_row(), host_before = script::describe_host();
    for (const char* when : {"", ", after everything was set in it"}) {
        const std::string fault = asked.fault();
        require(fault.empty(), name + " is an empty row" + when, fault);
        asked.set_everything();
    }
    require(asked.current_row() == current, name + ", set current, changes nothing: current row " + current,
            asked.current_row());
    require(script::describe_host() == host_before, name + " changes nothing in the host",
            script::describe_host());
}

/// The root too, which otherwise stands for the first row.
void expect_no_rows(const std::vector<element>& dialog, const element& table) {
    anything item;
    require_equal(rows_of(table), 0u, "rows of a table without content:");
    expect_empty_row(dialog, table, {nullptr, nullptr}, "the root of an empty table");
    expect_empty_row(dialog, table, {item.pointer().table, nullptr}, "an item without object");
    expect_empty_row(dialog, table, {nullptr, item.pointer().object}, "an item without table");
}

void expect_no_further_rows(const std::vector<element>& dialog, const element& table) {
    const std::uint32_t rows = rows_of(table);
    for (const std::uint32_t row : {rows, rows + 1000, std::numeric_limits<std::uint32_t>::max()}) {
        anything item(row);
        expect_empty_row(dialog, table, item.pointer(),
                         "row " + std::to_string(row) + " of " + std::to_string(rows));
    }
}

void lack_no_row(const subject& given) {
    session started(given.bundle);
    std::size_t tables = 0;
    const auto look_at_tables = [&](bool filled) {
        script::set_stage();
        if (!filled) host().scenes.clear();
        if (!filled) host().favourites.clear();
        play acted(started);
        acted.on_dialog = [&](const std::vector<element>& dialog, int) {
            for (const element& each : dialog) {
                if (!each.is<ox::outline_impl>()) continue;
                ++tables;
                if (!filled) expect_no_rows(dialog, each);
                expect_no_further_rows(dialog, each);
            }
        };
        acted.run();
    };
    look_at_tables(false);
    look_at_tables(true);
    if (tables == 0) throw no_occasion("no dialog has a table");
}

constexpr check checks[] = {
    {"elements.root_of_empty_table", "the root of an empty table and rows beyond the last are empty rows",
     lack_no_row},
};

}  // namespace

std::span<const check> table_checks() { return checks; }

}  // namespace oxcheck
