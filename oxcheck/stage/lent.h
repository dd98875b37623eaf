#pragma once
/// Visitors that are lent for one call. They stay in memory afterwards, so that a bundle which keeps one and
/// calls it later is found out instead of crashing.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "border/call.h"
#include "border/interfaces/dialogs.h"
#include "border/interfaces/layouts.h"
#include "border/interfaces/outlines.h"
#include "border/interfaces/services.h"
#include "border/interfaces/tools.h"
#include "border/interfaces/values.h"

namespace oxcheck {

using ox::custom_pointer;

/// Calls that came too late, by what was called.
inline std::vector<std::string>& late_calls() {
    static std::vector<std::string> calls;
    return calls;
}

struct lent_object {
    virtual ~lent_object() = default;
    bool over = false;

    /// Whether a call comes after the time it was lent for; such calls are written down.
    bool late(const char* what) const {
        if (over) late_calls().push_back(what);
        return over;
    }
};

namespace detail {
inline std::vector<std::unique_ptr<lent_object>> lent_objects;
}

/// Frees what was lent so far. No bundle may be loaded, or none that was found to call too late.
inline void forget_lent_objects() {
    detail::lent_objects.clear();
    detail::lent_objects.shrink_to_fit();
}

/// Lends a `Visitor` for as long as this lives.
template <class Visitor>
class lending {
public:
    lending() {
        auto made = std::make_unique<Visitor>();
        visitor_ = made.get();
        detail::lent_objects.push_back(std::move(made));
    }
    ~lending() { visitor_->over = true; }
    lending(const lending&) = delete;
    lending& operator=(const lending&) = delete;

    Visitor* operator->() { return visitor_; }
    custom_pointer pointer() { return ox::make_pointer<typename Visitor::interface>(*visitor_); }

private:
    Visitor* visitor_;
};

struct text_sink final : ox::string_visitor_impl, lent_object {
    using interface = ox::string_visitor_impl;
    std::vector<std::wstring> texts;
    void visit(const wchar_t* text) override {
        if (!late("a string visitor")) texts.emplace_back(text ? text : L"");
    }
};

/// Visitors that receive one pointer, with or without an id.
struct received {
    std::wstring id;
    custom_pointer pointer;
};

struct factory_sink final : ox::factory_visitor_impl, lent_object {
    using interface = ox::factory_visitor_impl;
    std::vector<received> all;
    void visit(const wchar_t* key, custom_pointer factory) override {
        if (!late("a factory visitor")) all.push_back({key ? key : L"(null)", factory});
    }
};

struct utility_sink final : ox::utility_visitor_impl, lent_object {
    using interface = ox::utility_visitor_impl;
    std::vector<received> all;
    void visit(const wchar_t* id, custom_pointer utility) override {
        if (!late("a utility visitor")) all.push_back({id ? id : L"(null)", utility});
    }
};

struct modal_dialog_sink final : ox::modal_dialog_visitor_impl, lent_object {
    using interface = ox::modal_dialog_visitor_impl;
    std::vector<received> all;
    void visit(const wchar_t* id, custom_pointer dialog) override {
        if (!late("a modal dialog visitor")) all.push_back({id ? id : L"(null)", dialog});
    }
};

struct tool_sink final : ox::tool_set_visitor_impl, lent_object {
    using interface = ox::tool_set_visitor_impl;
    std::vector<received> sets, tools;
    void visit_tool_set(custom_pointer set) override {
        if (!late("a tool set visitor")) sets.push_back({{}, set});
    }
    void visit_action_tool(const wchar_t* id, custom_pointer tool) override {
        if (!late("a tool set visitor")) tools.push_back({id ? id : L"(null)", tool});
    }
};

struct menu_sink final : ox::context_menu_visitor_impl, lent_object {
    using interface = ox::context_menu_visitor_impl;
    std::vector<received> all;
    void visit(custom_pointer menu) override {
        if (!late("a context menu visitor")) all.push_back({{}, menu});
    }
};

struct checks_sink final : ox::outline_checks_visitor_impl, lent_object {
    using interface = ox::outline_checks_visitor_impl;
    std::vector<received> all;
    void visit(custom_pointer checks) override {
        if (!late("an outline checks visitor")) all.push_back({{}, checks});
    }
};

struct item_sink final : ox::outline_item_index_visitor_impl, lent_object {
    using interface = ox::outline_item_index_visitor_impl;
    std::optional<std::uint32_t> row;  ///< none of the root
    void visit(custom_pointer item) override {
        if (!late("an outline item visitor") && item) row = ox::call<&ox::outline_item_index_impl::row>(item);
    }
};

struct column_sink final : ox::outline_column_visitor_impl, lent_object {
    using interface = ox::outline_column_visitor_impl;
    std::vector<received> strings, bitmaps;
    void visit_string_column(custom_pointer column, const wchar_t* id) override {
        if (!late("an outline column visitor")) strings.push_back({id ? id : L"(null)", column});
    }
    void visit_bitmap_column(custom_pointer column, const wchar_t* id) override {
        if (!late("an outline column visitor")) bitmaps.push_back({id ? id : L"(null)", column});
    }
};

/// The text that `visit` hands to the visitor it is given; empty when it hands over none.
template <class Visit>
std::wstring read_text(Visit&& visit) {
    lending<text_sink> sink;
    visit(sink.pointer());
    return sink->texts.empty() ? std::wstring() : sink->texts.back();
}

}  // namespace oxcheck
