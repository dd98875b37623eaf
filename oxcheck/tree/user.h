#pragma once
/// A user who tries everything that a dialog offers.

#include <functional>

#include "oxcheck/tree/element.h"

namespace oxcheck {

/// Acts on every control of a dialog once: types, chooses, clicks, opens menus, checks all rows; then presses
/// the buttons at its foot until one closes it. Answers what the dialog host is to answer.
/// `before_accepting` is called before, `after_accepting` after the first of these buttons.
struct user {
    std::function<void()> before_accepting = {};
    std::function<void()> after_accepting = {};

    bool operate(custom_pointer docker, custom_pointer button_box) const;
};

}  // namespace oxcheck
