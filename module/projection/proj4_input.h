#pragma once
/// The element through which a widget holds and edits a proj4 text. [ui]

#include <optional>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "toolkit/button.h"
#include "toolkit/event.h"
#include "toolkit/layouts.h"
#include "toolkit/multiline_output.h"
#include "toolkit/tool.h"
#include "toolkit/toolbar.h"

namespace ox::element {

class proj4_input;

namespace detail {

/// The menu of suggested projections: one entry per suggestion, made when the host opens the menu.
class proj4_input_toolset final : public toolkit::with_view<tool_set_impl> {
public:
    explicit proj4_input_toolset(proj4_input& owner) : owner_(owner) {}
    proj4_input_toolset(const proj4_input_toolset&) = delete;
    proj4_input_toolset& operator=(const proj4_input_toolset&) = delete;
    ~proj4_input_toolset();

    void visit_tools(custom_pointer tool_set_visitor) override;

private:
    /// Belongs to the host from when that attaches its view until it detaches it, which may be after the
    /// menu has ended. Where no view is attached it ends with the menu.
    class menu_action : public toolkit::action_tool {
    public:
        menu_action(proj4_input_toolset& menu, std::size_t index);
        menu_action(const menu_action&) = delete;
        menu_action& operator=(const menu_action&) = delete;
        virtual ~menu_action();
        void visit_caption(custom_pointer string_visitor) override;
        void click() override;
        void menu_ends();

    private:
        proj4_input_toolset* menu_;  ///< null after its end; the entry is then empty and does nothing
        std::size_t index_;
    };

    proj4_input& owner_;
    std::unordered_set<menu_action*> live_;
};

}  // namespace detail

/// Shows the description of the text; saves and loads it, opens the projection dialog on it, and offers
/// suggestions.
class proj4_input final : public toolkit::grid_layout<2, 1> {
public:
    /// Caption and proj4 text.
    using suggestion = std::pair<std::wstring, std::wstring>;

    proj4_input();

    /// Empty when unset.
    const std::wstring& text() const;
    /// Sets the text, possibly to an empty one, or unsets it; nobody is notified.
    void set_text(std::optional<std::wstring> pj4);

    void set_suggestions(std::vector<suggestion> suggestions) { suggestions_ = std::move(suggestions); }
    const std::vector<suggestion>& suggestions() const { return suggestions_; }
    void choose_suggestion(std::size_t index);

    /// Fires when the user has changed the text.
    event<void()>& changed() { return changed_; }

private:
    void save() const;
    void load();
    void edit();
    void user_sets(std::wstring pj4);
    void describe();

    std::optional<std::wstring> text_;
    std::vector<suggestion> suggestions_;
    event<void()> changed_;

    toolkit::multiline_output description_;
    toolkit::button save_;
    toolkit::button load_;
    toolkit::button dialog_;
    toolkit::button suggest_;
    toolkit::grid_layout<1, 5> buttons_;  ///< the last cell stays empty and takes up free width
    toolkit::toolbar<detail::proj4_input_toolset, context_menu_impl, void> menu_;
};

/// Shows the description of a proj4 text.
class proj4_output final : public toolkit::grid_layout<1, 1> {
public:
    proj4_output();
    void set_text(const std::wstring& pj4);

private:
    toolkit::multiline_output description_;
};

/// The host's readable description of a proj4 text, which may be empty.
std::wstring describe_proj4(const std::wstring& pj4);

}  // namespace ox::element
