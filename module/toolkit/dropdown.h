#pragma once
/// Drop-down lists.

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "border/interfaces/controls.h"
#include "toolkit/callback.h"
#include "toolkit/view.h"

namespace ox::toolkit {

/// What the kinds of drop-down share: everything but the items.
class dropdown_base : public with_enabled<dropdown_impl> {
public:
    void visit_text(custom_pointer string_visitor) override {
        call<&string_visitor_impl::visit>(string_visitor, text_.c_str());
    }
    std::uint32_t value() override { return value_; }
    std::uint32_t current() override { return current_; }
    /// The user's choice; `on_select` hears also of choosing the current item again.
    void select(std::uint32_t index) override {
        current_ = index;
        on_select(index);
    }

    /// Shows a choice of the program's own, or none beyond the items; `on_select` does not hear of it.
    void set_current(std::uint32_t index) { update(current_, index < item_count() ? index : no_item); }
    void set_text(std::wstring text) { update(text_, std::move(text)); }
    void set_value(std::uint32_t value) { update(value_, value); }

    callback<void(std::uint32_t index)> on_select;

protected:
    ~dropdown_base() = default;

private:
    std::uint32_t current_ = 0;
    std::wstring text_;
    std::uint32_t value_ = 0;
};

namespace detail {

/// An item that stands for a value.
template <class Value>
struct valued_item {
    std::wstring caption;
    Value value;
};

inline const std::wstring& caption_of(const std::wstring& item) { return item; }
template <class Value>
const std::wstring& caption_of(const valued_item<Value>& item) {
    return item.caption;
}

/// A drop-down over items that have captions.
template <class Item>
class dropdown_of : public dropdown_base {
public:
    std::uint32_t item_count() override { return static_cast<std::uint32_t>(items_.size()); }
    void visit_item(std::uint32_t index, custom_pointer string_visitor) override {
        if (index < items_.size())
            call<&string_visitor_impl::visit>(string_visitor, caption_of(items_[index]).c_str());
    }

    /// The items and which of them is current, in one step.
    void set_items(std::vector<Item> items, std::uint32_t current) {
        const in_one_step step(*this);
        const auto same_caption = [](const Item& a, const Item& b) { return caption_of(a) == caption_of(b); };
        const bool looks_same = std::ranges::equal(items_, items, same_caption);
        items_ = std::move(items);
        if (!looks_same) changed();
        set_current(current);
    }

protected:
    ~dropdown_of() = default;
    const std::vector<Item>& items() const { return items_; }

private:
    std::vector<Item> items_;
};

}  // namespace detail

class dropdown : public detail::dropdown_of<std::wstring> {};

template <class Value>
class dropdownex : public detail::dropdown_of<detail::valued_item<Value>> {
    using base = detail::dropdown_of<detail::valued_item<Value>>;

public:
    using item = detail::valued_item<Value>;

    /// The first item of the current value is the current one, if there is any.
    void set_items(std::vector<item> items, std::optional<Value> current) {
        const std::uint32_t index = index_of(items, current);
        base::set_items(std::move(items), index);
    }
    void set_current_value(std::optional<Value> value) { this->set_current(index_of(this->items(), value)); }
    /// Value of the current item.
    std::optional<Value> current_value() {
        if (this->current() >= this->items().size()) return std::nullopt;
        return this->items()[this->current()].value;
    }

private:
    static std::uint32_t index_of(const std::vector<item>& items, std::optional<Value> value) {
        const auto found =
            std::ranges::find(items, value, [](const item& i) { return std::optional(i.value); });
        return static_cast<std::uint32_t>(found - items.begin());
    }
};

}  // namespace ox::toolkit
