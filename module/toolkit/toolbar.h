#pragma once
/// Turns an application class that lists its tools into the host's toolbar or context menu.

#include <cstddef>
#include <deque>
#include <type_traits>
#include <utility>

#include "border/interfaces/tools.h"
#include "toolkit/view.h"

namespace ox::toolkit {

/// One enumeration of tools.
struct tools_visitor {
    /// Present during the first pass only, in which the application declares its tool sets.
    class toolset_state {
    public:
        virtual ~toolset_state() = default;
        /// Declares one more tool set after the first.
        virtual void begin_tool_set() = 0;
    };

    template <class Toolbar>
    class toolset_state_impl final : public toolset_state {
    public:
        toolset_state_impl(Toolbar& toolbar, std::size_t parent) : toolbar_(toolbar), parent_(parent) {}
        void begin_tool_set() override { toolbar_.append_tool_set(parent_); }

    private:
        Toolbar& toolbar_;
        std::size_t parent_;
    };

    custom_pointer visitor;     ///< receives the tools
    std::size_t group;          ///< the tool set asked for, counted from 0
    toolset_state* collecting;  ///< null when the host asks

    /// Passes a tool to the host when it asks for the tool's group.
    void action(std::size_t tool_group, const wchar_t* id, action_tool_impl& tool) const {
        if (!collecting && group == tool_group)
            call<&tool_set_visitor_impl::visit_action_tool>(visitor, id,
                                                            make_pointer<action_tool_impl>(tool));
    }
};

/// Implemented by the application: passes every tool, in its fixed order, to the state.
class with_tools {
public:
    virtual void visit_tools(const tools_visitor& state) = 0;

protected:
    ~with_tools() = default;
};

template <class T, class Impl, class = void>
class toolbar;

/// A toolbar over the tools of `T`, one record per tool set.
template <class T>
class toolbar<T, toolbar_impl, void> final : public with_view<toolbar_impl> {
public:
    template <class... A>
    requires std::is_constructible_v<T, A...>
    explicit toolbar(A&&... arguments) : application_(std::forward<A>(arguments)...) {
        tools_visitor::toolset_state_impl<toolbar> collecting(*this, 0);
        append_tool_set(0);
        application_.visit_tools({{}, 0, &collecting});
    }

    void visit_tool_sets(custom_pointer tool_set_visitor) override {
        for (toolset& set : sets_)
            call<&tool_set_visitor_impl::visit_tool_set>(tool_set_visitor, make_pointer<tool_set_impl>(set));
    }

    T& application() { return application_; }
    void append_tool_set(std::size_t parent) { sets_.emplace_back(*this, parent, sets_.size()); }

    class toolset final : public with_view<tool_set_impl> {
    public:
        toolset(toolbar& owner, std::size_t parent, std::size_t index)
            : owner_(owner), parent_(parent), index_(index) {}
        void visit_tools(custom_pointer tool_set_visitor) override {
            owner_.application_.visit_tools({tool_set_visitor, index_, nullptr});
        }
        std::size_t parent() const { return parent_; }

    private:
        toolbar& owner_;
        std::size_t parent_;
        std::size_t index_;
    };

private:
    T application_;
    std::deque<toolset> sets_;  ///< stays put while it grows: the host keeps pointers
};

/// A context menu over `T`, which is the menu's one tool set itself.
template <class T>
class toolbar<T, context_menu_impl, void> final : public with_view<context_menu_impl> {
public:
    template <class... A>
    requires std::is_constructible_v<T, A...>
    explicit toolbar(A&&... arguments) : application_(std::forward<A>(arguments)...) {}

    void visit_tool_sets(custom_pointer tool_set_visitor) override {
        call<&tool_set_visitor_impl::visit_tool_set>(tool_set_visitor,
                                                     make_pointer<tool_set_impl>(application_));
    }

    T& application() { return application_; }

private:
    T application_;
};

}  // namespace ox::toolkit
