#pragma once
/// A row or column of buttons, presented as a grid whose last cell is empty and takes up free space.

#include <deque>

#include "toolkit/button.h"
#include "toolkit/element.h"

namespace ox::toolkit {

/// What a button stands for, as bits; the order of the bits is the order of buttons in a button box.
enum class command : std::uint32_t {
    accept = 1,
    apply = 2,
    reject = 4,
    close = 8,
    help = 16,
    yes = 32,
    no = 64,
};

/// Mask of several commands.
template <class... Commands>
constexpr std::uint32_t commands(Commands... each) {
    return (std::uint32_t{0} | ... | static_cast<std::uint32_t>(each));
}

class button_layout final : public with_view<grid_layout_impl> {
public:
    enum class direction : std::int32_t { row = 0, column = 1 };
    /// Natural sizes, equal along the direction, equal in both.
    enum class sizes : std::uint32_t { natural = 0, equal_along = 1, equal = 2 };

    explicit button_layout(direction along = direction::row, sizes uniform = sizes::natural)
        : along_(along), uniform_(uniform) {}

    std::uint32_t layout_value() override { return uniform_ != sizes::natural; }
    std::int32_t column_count() override { return vertical() ? 1 : size() + 1; }
    std::int32_t row_count() override { return vertical() ? size() + 1 : 1; }
    bool column_expands(std::int32_t column) override { return !vertical() && column == size(); }
    bool row_expands(std::int32_t row) override { return vertical() && row == size(); }
    std::uint32_t column_value(std::int32_t) override { return equal_across(!vertical()); }
    std::uint32_t row_value(std::int32_t) override { return equal_across(vertical()); }
    void visit_cell(std::int32_t column, std::int32_t row, custom_pointer element_visitor) override;

    /// `kind` is a `command` or a command id of the owner's.
    button& add(std::int32_t caption, std::uint32_t kind);

    callback<void(std::uint32_t kind)> on_command;
    callback<void()> on_accept;
    callback<void()> on_reject;

private:
    bool vertical() const { return along_ == direction::column; }
    std::int32_t size() const { return static_cast<std::int32_t>(buttons_.size()); }
    std::uint32_t equal_across(bool along_direction) const {
        return uniform_ == sizes::equal || (uniform_ == sizes::equal_along && along_direction);
    }
    void dispatch(std::uint32_t kind);

    std::deque<button> buttons_;  ///< stays put while it grows: the host keeps pointers
    direction along_;
    sizes uniform_;
};

}  // namespace ox::toolkit
