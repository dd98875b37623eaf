// Element trees: operations, empty neighbours, views, and what is lent to them.

#include <algorithm>
#include <deque>

#include "oxcheck/check.h"
#include "oxcheck/stage/anything.h"
#include "oxcheck/stage/script.h"
#include "oxcheck/tree/ask.h"
#include "oxcheck/tree/play.h"

namespace oxcheck {

namespace {

/// Asks an element for each of its rows, any other once.
template <class Neighbour>
void ask_rows(const element& each, Neighbour neighbour) {
    note(std::string("asking ") + each.interface);
    const std::uint32_t rows = each.outline ? rows_of(each) : 1;
    for (std::uint32_t row = 0; row < rows; ++row) ask_everything(each, neighbour(row));
}

/// Asks everything behind every dialog, then the utility and its service.
template <class Neighbour>
void ask_all(const subject& given, Neighbour neighbour) {
    script::set_stage();
    session started(given.bundle);
    bool seen = false;
    started.dialogs.on_show = [&](custom_pointer docker, custom_pointer box, int) {
        seen = true;
        for (const element& each : walk(docker, box)) {
            ask_rows(each, neighbour);
            if (!each.is<ox::context_menu_impl>()) continue;
            const open_menu open(each.pointer);
            for (const element& tool : open.tools()) ask_rows(tool, neighbour);
        }
        return false;
    };
    try {
        started.run();
        if (!seen) throw no_occasion("the utility shows no dialog");
        ask_rows(make_element<ox::utility_impl>(started.utility()), neighbour);
    } catch (const exception_left& slot) {
        throw failure("no exception leaves an entry", std::string("one left ") + slot.what());
    }
}

void answer_everything(const subject& given) {
    static std::deque<anything> neighbours;  // stay, as some of them are kept as views
    ask_all(given, [](std::uint32_t row) {
        while (neighbours.size() <= row) neighbours.emplace_back(neighbours.size());
        return neighbours[row].pointer();
    });
}

void bear_empty_neighbours(const subject& given) {
    ask_all(given, [](std::uint32_t) { return custom_pointer{}; });
}

void attach(const element& each, custom_pointer view) { attach_views(each, view, view); }

/// Each dialog is acted on with views that come, are replaced and go; only the current ones may hear of it.
void change_views(const subject& given) {
    static anything replaced, current;
    script::set_stage();
    session started(given.bundle);
    play acted(started);
    std::size_t heard = 0, detached = 0;
    acted.on_dialog = [&](const std::vector<element>& elements, int) {
        for (const element& each : elements) {
            attach(each, replaced.pointer());
            attach(each, current.pointer());
        }
    };
    acted.run();
    require_equal(replaced.calls(), std::size_t{0}, "calls of views that were replaced:");
    heard = current.calls();
    acted.on_dialog = [&](const std::vector<element>& elements, int) {
        for (const element& each : elements) {
            attach(each, current.pointer());
            attach(each, custom_pointer{});
        }
        ++detached;
    };
    acted.run();
    if (detached == 0) throw no_occasion("the utility shows no dialog");
    require_equal(current.calls() - heard, std::size_t{0}, "calls of views that were detached:");
}

/// Entries of menus: some are given a view and kept beyond the dialog, some are detached before, some never
/// get a view and end with their menu.
void outlive_their_menu(const subject& given) {
    static anything view;
    script::set_stage();
    session started(given.bundle);
    std::vector<element> kept;
    play acted(started);
    acted.on_dialog = [&kept](const std::vector<element>& dialog, int) {
        for (const element& each : dialog) {
            if (!each.is<ox::context_menu_impl>()) continue;
            menu_tools(each.pointer);
            for (const bool keeps : {true, false})
                for (const element& entry : menu_tools(each.pointer)) {
                    attach(entry, view.pointer());
                    if (keeps) kept.push_back(entry);
                    if (!keeps) attach(entry, custom_pointer{});
                }
        }
    };
    acted.run();
    if (kept.empty()) throw no_occasion("no dialog has a menu with entries");
    const std::string before = script::describe_host();
    for (const element& entry : kept) {
        note("at an entry whose dialog is closed");
        ox::call<&ox::action_tool_impl::enabled>(entry.pointer);
        read_text(
            [&](custom_pointer v) { ox::call<&ox::action_tool_impl::visit_caption>(entry.pointer, v); });
        ox::call<&ox::action_tool_impl::click>(entry.pointer);
        attach(entry, custom_pointer{});
    }
    require(script::describe_host() == before, "entries of a closed dialog leave the host alone",
            script::describe_host());
}

void keep_no_visitor(const subject& given) {
    script::set_stage();
    {
        session started(given.bundle, {.with_localizer = true});
        for (int i = 0; i < 2; ++i) {
            play acted(started);
            acted.on_dialog = [](const std::vector<element>& elements, int) {
                for (const element& each : elements) captions_of(each);
            };
            acted.run();
        }
    }
    require(late_calls().empty(), "visitors are called while they are lent only",
            late_calls().empty() ? "" : late_calls().front() + " was called later");
}

void copy_texts(const subject& given) {
    script::set_stage();
    session started(given.bundle);
    play acted(started);
    std::size_t inputs = 0;
    acted.on_dialog = [&](const std::vector<element>& elements, int) {
        for (const element& each : elements) {
            if (!each.is<ox::input_impl>()) continue;
            ++inputs;
            std::wstring lent = L"lent text";
            ox::call<&ox::input_impl::set_text>(each.pointer, lent.c_str());
            std::ranges::fill(lent, L'x');
            const std::wstring kept =
                read_text([&](custom_pointer v) { ox::call<&ox::input_impl::visit_text>(each.pointer, v); });
            require(kept == L"lent text", "the input holds \"lent text\"",
                    "\"" + host_double::narrow(kept) + "\"");
        }
    };
    acted.run();
    if (inputs == 0) throw no_occasion("no dialog has a text input");
}

constexpr check checks[] = {
    {"elements.answer", "every element answers all its operations, for its whole count", answer_everything},
    {"elements.empty", "empty visitors, views and items are accepted everywhere", bear_empty_neighbours},
    {"elements.views", "views come, are replaced and go at any time", change_views},
    {"elements.menu_entries", "menu entries with a view belong to the host, also after their dialog",
     outlive_their_menu},
    {"elements.lent_visitors", "no visitor is called after the call it was lent for", keep_no_visitor},
    {"elements.lent_texts", "texts that are handed in are copied", copy_texts},
};

}  // namespace

std::span<const check> element_checks() { return checks; }

}  // namespace oxcheck
