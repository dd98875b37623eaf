// A null text is an empty one, whoever hands it over.

#include "oxcheck/check.h"
#include "oxcheck/stage/anything.h"
#include "oxcheck/stage/script.h"
#include "oxcheck/tree/play.h"

namespace oxcheck {

namespace {

using host_double::host;
using host_double::narrow;

/// What an element shows after `set` has handed it a text.
template <class Set, class Get>
void expect_null_to_empty(const std::string& name, Set set, Get get) {
    note("at " + name);
    set(L"text");
    set(L"");
    const std::wstring emptied = read_text(get);
    set(L"text");
    set(nullptr);
    const std::wstring came = read_text(get);
    require(came == emptied, name + ", given null: \"" + narrow(emptied) + "\"", "\"" + narrow(came) + "\"");
}

void take_null_texts(const subject& given) {
    script::set_stage();
    session started(given.bundle);
    play acted(started);
    std::size_t takers = 0;
    acted.on_dialog = [&takers](const std::vector<element>& dialog, int) {
        for (const element& each : dialog) {
            if (each.is<ox::input_impl>()) {
                const auto set = [&each](const wchar_t* text) {
                    ox::call<&ox::input_impl::set_text>(each.pointer, text);
                    ox::call<&ox::input_impl::commit>(each.pointer);
                };
                expect_null_to_empty("an input", set, [&each](custom_pointer v) {
                    ox::call<&ox::input_impl::visit_text>(each.pointer, v);
                });
                ++takers;
            }
            if (each.is<ox::string_outline_column_impl>() && rows_of(each) > 0) {
                using impl = ox::string_outline_column_impl;
                anything first(0);
                const auto set = [&](const wchar_t* text) {
                    ox::call<&impl::set_cell_text>(each.pointer, first.pointer(), text);
                };
                expect_null_to_empty("a cell of " + narrow(each.id), set, [&](custom_pointer v) {
                    ox::call<&impl::visit_cell_text>(each.pointer, first.pointer(), v);
                });
                ++takers;
            }
        }
    };
    acted.run();
    if (takers == 0) throw no_occasion("no dialog has an input or a table");
}

/// What a run shows and leaves on a stage that `prepare` changes.
template <class Prepare>
std::string run_on(const subject& given, Prepare prepare) {
    script::set_stage();
    session started(given.bundle, {.with_localizer = true});
    prepare(started);
    std::string shown;
    play acted(started);
    acted.on_dialog = [&shown](const std::vector<element>& dialog, int) {
        for (const element& each : dialog)
            for (const std::wstring& text : captions_of(each)) shown += narrow(text) + "\n";
    };
    acted.run();
    return shown + script::describe_host();
}

void blank_the_host() {
    for (const auto& scene : host().scenes) scene->caption = scene->pj4 = L"";
    for (auto* texts : {&host().files, &host().crs})
        for (auto& [key, text] : *texts) text.clear();
    for (auto& favourite : host().favourites) favourite = {};
}

void hear_null_as_empty(const subject& given) {
    const auto expect_same = [&given](const std::string& source, auto prepare) {
        note("at null texts of " + source);
        const std::string emptied = run_on(given, [&](session& started) { prepare(started, false); });
        const std::string came = run_on(given, [&](session& started) { prepare(started, true); });
        require(came == emptied, "null texts of " + source + ", the same as with empty ones:\n" + emptied,
                came);
    };
    expect_same("the host, here and there", [](session&, bool null) { host().null_for_empty = null; });
    expect_same("the host, everywhere", [](session&, bool null) {
        blank_the_host();
        host().null_for_empty = null;
    });
    expect_same("the localizer", [](session& started, bool null) {
        started.localized.gives = null ? answer::null : answer::empty;
    });
    expect_same("the file dialog", [](session& started, bool null) {
        started.dialogs.gives = null ? answer::null : answer::empty;
    });
}

constexpr check element_nulls[] = {
    {"elements.null_texts", "a null text that an element is handed is an empty one", take_null_texts},
};
constexpr check text_nulls[] = {
    {"texts.null", "a null text from host, localizer or file dialog is an empty one", hear_null_as_empty},
};

}  // namespace

std::span<const check> element_null_checks() { return element_nulls; }
std::span<const check> text_null_checks() { return text_nulls; }

}  // namespace oxcheck
