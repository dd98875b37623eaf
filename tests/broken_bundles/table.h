#pragma once
/// The table of scenes: one column, check boxes, a selection.

#include <string>
#include <vector>

#include "toolkit/outline_table.h"

namespace broken {

using ox::custom_pointer;

struct table_row {
    std::wstring caption;
    bool checked = false;
    bool selected = false;
};

class scene_table final : public ox::toolkit::outline_table {
public:
    explicit scene_table(const std::vector<void*>& scenes);

    std::uint32_t row_count() override { return static_cast<std::uint32_t>(rows_.size()); }
    std::uint32_t column_count() override { return 1; }
    void visit_checks(custom_pointer checks_visitor) override;
    void visit_column(std::uint32_t index, custom_pointer column_visitor) override;
    bool is_selected(custom_pointer item) override;
    void set_selected(custom_pointer item, bool selected) override;

private:
    using rows = std::vector<table_row>;

    struct column final : ox::string_outline_column_impl {
        explicit column(rows& shown) : rows_(shown) {}
        void visit_caption(custom_pointer string_visitor) override;
        void visit_cell_text(custom_pointer item, custom_pointer string_visitor) override;
        bool sorts_after(custom_pointer a, custom_pointer b) override;
        rows& rows_;
    };
    struct checks final : ox::outline_checks_impl {
        explicit checks(rows& shown) : rows_(shown) {}
        bool state(custom_pointer item) override;
        void set_state(custom_pointer item, bool checked) override;
        rows& rows_;
    };

    rows rows_;
    column column_{rows_};
    checks checks_{rows_};
};

}  // namespace broken
