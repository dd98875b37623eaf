#pragma once

#include <vector>

#include "border/interfaces/tools.h"
#include "toolkit/callback.h"
#include "toolkit/view.h"

namespace ox::toolkit {

namespace detail {

template <class Impl, class>
class tool;

/// A command with a picture and up to three texts, each by id.
template <>
class tool<action_tool_impl, void> : public with_enabled<action_tool_impl> {
public:
    tool(std::int32_t image, std::int32_t caption, std::int32_t hint, callback<void()> click = {})
        : on_click(std::move(click)), image_(image), caption_(caption), hint_(hint) {}

    void visit_image(custom_pointer bitmap_visitor) override { visit_picture_of(image_, bitmap_visitor); }
    void visit_extra_texts(custom_pointer string_visitor) override {
        for (const std::int32_t id : extra_texts_) visit_text_of(id, string_visitor);
    }
    void visit_caption(custom_pointer string_visitor) override { visit_text_of(caption_, string_visitor); }
    void visit_hint(custom_pointer string_visitor) override { visit_text_of(hint_, string_visitor); }
    void visit_long_text(custom_pointer string_visitor) override {
        if (long_text_ > 0) resource::visit_string(long_text_, string_visitor);
    }
    bool checked() override { return checked_; }
    void click() override { on_click(); }

    void set_long_text(std::int32_t text) { update(long_text_, text); }  ///< of this module only
    void set_extra_texts(std::vector<std::int32_t> texts) { update(extra_texts_, std::move(texts)); }
    void set_checked(bool checked) { update(checked_, checked); }

    callback<void()> on_click;

private:
    std::int32_t image_;
    std::int32_t caption_;
    std::int32_t hint_;
    std::int32_t long_text_ = 0;
    std::vector<std::int32_t> extra_texts_;
    bool checked_ = false;
};

}  // namespace detail

using action_tool = detail::tool<action_tool_impl, void>;

/// A tool made on the heap for a menu: the host owns it and ends it by attaching an empty view.
template <class Action, class = tool_view>
class reattachable final : public Action {
public:
    using Action::Action;
    void attach_view(custom_pointer view) override {
        Action::attach_view(view);
        if (!view) delete this;
    }
};

}  // namespace ox::toolkit
