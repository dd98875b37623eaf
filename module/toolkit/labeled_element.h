#pragma once
/// An element together with the caption that its parent places in the cell to the left of it.

#include <concepts>

#include "toolkit/label.h"

namespace ox::toolkit {

/// Through this a parent finds the caption of what it places.
class with_place {
public:
    explicit with_place(std::int32_t caption) : caption_label_(caption) {}
    label& caption_label() { return caption_label_; }

protected:
    ~with_place() = default;

private:
    label caption_label_;
};

template <class X>
class labeled_element final : public X, public with_place {
public:
    template <class... A>
    explicit labeled_element(std::int32_t caption, A&&... arguments)
        : X(std::forward<A>(arguments)...), with_place(caption) {}

    /// Greys the caption along with the control, which is told first. The caption of a drop-down stays.
    void set_enabled(bool enabled) requires(!std::derived_from<X, dropdown_impl> &&
                                            requires(X & x) { x.set_enabled(true); }) {
        const in_one_step caption(caption_label()), control(*this);
        X::set_enabled(enabled);
        caption_label().set_enabled(enabled);
    }
};

/// Places an element in the cell at (column + 1, row) of a grid, its caption in the cell before.
template <class Grid, class X>
void put_labeled(Grid& grid, std::int32_t column, std::int32_t row, labeled_element<X>& element) {
    grid.put(column, row, element.caption_label());
    grid.put(column + 1, row, static_cast<X&>(element));
}

}  // namespace ox::toolkit
