#pragma once
/// Drop-down lists.

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "border/interfaces/controls.h"
#include "toolkit/view.h"

namespace ox::toolkit {

/// What the kinds of drop-down share: everything but the items.
class dropdown_base : public with_view<dropdown_impl> {
public:
    void visit_text(custom_pointer string_visitor) override {
        call<&string_visitor_impl::visit>(string_visitor, text_.c_str());
    }
    std::uint32_t value() override { return value_; }
    bool enabled() override { return enabled_; }
    std::uint32_t current() override { return current_; }
    /// The user's choice; `on_select` hears also of choosing the current item again.
    void select(std::uint32_t index) override {
        current_ = index;
        if (on_select) on_select(index);
    }

    /// Shows a choice of the program's own; `on_select` does not hear of it.
    void set_current(std::uint32_t index) { update(current_, index); }

    std::function<void(std::uint32_t index)> on_select;

protected:
    ~dropdown_base() = default;

private:
    std::uint32_t current_ = 0;
    std::wstring text_;
    std::uint32_t value_ = 0;
    bool enabled_ = true;
};

class dropdown : public dropdown_base {
public:
    std::uint32_t item_count() override { return static_cast<std::uint32_t>(items_.size()); }
    void visit_item(std::uint32_t index, custom_pointer string_visitor) override {
        if (index < items_.size()) call<&string_visitor_impl::visit>(string_visitor, items_[index].c_str());
    }

    void set_items(std::vector<std::wstring> items) {
        items_ = std::move(items);
        changed();
    }

private:
    std::vector<std::wstring> items_;
};

/// Items that stand for values.
template <class Value>
class dropdownex : public dropdown_base {
public:
    struct item {
        std::wstring caption;
        Value value;
    };

    std::uint32_t item_count() override { return static_cast<std::uint32_t>(items_.size()); }
    void visit_item(std::uint32_t index, custom_pointer string_visitor) override {
        if (index < items_.size())
            call<&string_visitor_impl::visit>(string_visitor, items_[index].caption.c_str());
    }

    void set_items(std::vector<item> items) {
        items_ = std::move(items);
        changed();
    }
    /// Makes the first item of that value current, or none.
    void set_current_value(std::optional<Value> value) {
        std::uint32_t index = 0;
        while (index < items_.size() && items_[index].value != value) ++index;
        set_current(index < items_.size() ? index : no_item);
    }
    /// Value of the current item.
    std::optional<Value> current_value() {
        if (current() >= items_.size()) return std::nullopt;
        return items_[current()].value;
    }

private:
    std::vector<item> items_;
};

}  // namespace ox::toolkit
