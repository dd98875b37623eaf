#pragma once
/// An outline of the bundle as a table. Cells are read when they are asked for, never ahead. [ui]

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "border/interfaces/outlines.h"
#include "shell/values.h"

namespace oxhost::shell {

struct table_column {
    std::string id;
    std::string caption;
    bool pictures;  ///< else texts
    ox::custom_pointer pointer;
};

class table_model final : private ox::outline_view_slots {
public:
    /// Attaches its view to the outline until it ends.
    explicit table_model(ox::custom_pointer outline);
    ~table_model();
    table_model(const table_model&) = delete;
    table_model& operator=(const table_model&) = delete;

    std::uint32_t row_count();  ///< rows and columns given to the others lie below the counts
    const std::vector<table_column>& columns() const { return columns_; }
    /// Throws std::out_of_range that names the id.
    std::size_t column_of(std::string_view id) const;

    std::string text(std::uint32_t row, std::size_t column) const;  ///< of a column of texts
    std::string hint(std::uint32_t row, std::size_t column) const;
    bool highlighted(std::uint32_t row, std::size_t column) const;
    bool editable(std::uint32_t row, std::size_t column) const;
    void edit(std::uint32_t row, std::size_t column, std::string_view text);
    picture image(std::uint32_t row, std::size_t column) const;  ///< of a column of pictures
    /// Does row `a` go after row `b` when sorted by the column?
    bool sorts_after(std::uint32_t a, std::uint32_t b, std::size_t column) const;

    bool has_checks() const { return static_cast<bool>(checks_); }
    bool checked(std::uint32_t row) const;
    void check(std::uint32_t row, bool checked_now);

    bool selected(std::uint32_t row) const;
    void select(std::uint32_t row, bool selected_now);
    std::optional<std::uint32_t> current() const;
    void make_current(std::uint32_t row);

    std::function<void()> on_refresh;            ///< rows and cells are to be read again
    std::function<void()> on_selection_changed;  ///< the selection or the current row

private:
    void refresh() override;
    void selection_changed() override;

    ox::custom_pointer outline_;
    ox::custom_pointer checks_{};
    std::vector<table_column> columns_;
    std::optional<std::uint32_t> row_count_;
};

}  // namespace oxhost::shell
