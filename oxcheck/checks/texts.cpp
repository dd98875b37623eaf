// What the bundle says, in both languages and through a localizer.

#include <algorithm>

#include "oxcheck/check.h"
#include "oxcheck/stage/script.h"
#include "oxcheck/tree/play.h"

namespace oxcheck {

namespace {

using host_double::narrow;

struct caption {
    std::string where;
    std::wstring text;
};

std::wstring utility_caption(const session& started) {
    return read_text(
        [&](custom_pointer v) { ox::call<&ox::utility_impl::visit_caption>(started.utility(), v); });
}

/// All captions, in a fixed order.
std::vector<caption> captions(session& started) {
    std::vector<caption> all{{"the utility", utility_caption(started)}};
    play acted(started);
    acted.on_dialog = [&all](const std::vector<element>& elements, int depth) {
        for (std::size_t i = 0; i < elements.size(); ++i)
            for (const std::wstring& text : captions_of(elements[i]))
                all.push_back({std::string(elements[i].interface) + " number " + std::to_string(i + 1) +
                                   " of dialog level " + std::to_string(depth + 1),
                               text});
    };
    acted.run();
    return all;
}

std::vector<caption> captions_in(const subject& given, int language) {
    script::set_stage(language);
    session started(given.bundle);
    return captions(started);
}

/// Short words in capitals, such as names of registries, are the same in every language.
bool is_abbreviation(const std::wstring& text) {
    return text.size() <= 5 && std::ranges::all_of(text, [](wchar_t c) { return c >= L'A' && c <= L'Z'; });
}

void come_in_both_languages(const subject& given) {
    const auto russian = captions_in(given, script::russian), english = captions_in(given, script::english);
    require_equal(english.size(), russian.size(), "captions in English, as in Russian:");
    for (const auto* language : {&russian, &english})
        require(!language->front().text.empty(), "a caption of the utility", "none");
    for (std::size_t i = 0; i < russian.size(); ++i) {
        require(russian[i].text.empty() == english[i].text.empty(),
                russian[i].where + ", a text in both languages", "one of them is empty");
        require(
            russian[i].text.empty() || russian[i].text != english[i].text || is_abbreviation(english[i].text),
            russian[i].where + ", different texts", "\"" + narrow(english[i].text) + "\" twice");
    }
}

void follow_the_localizer(const subject& given) {
    script::set_stage();
    session started(given.bundle, {.with_localizer = true});
    if (started.localized.referent_.referrers.empty()) throw no_occasion("the bundle asks for no localizer");
    const std::wstring localized = utility_caption(started);
    auto& asked = started.localized.asked;
    require(!asked.empty(), "the localizer is asked for the utility's caption", "it is not");
    require(localized == started.localized.text_of(asked.back()), "the localizer's text", narrow(localized));
    captions(started);
    for (const std::uint32_t id : asked)
        require(static_cast<std::int32_t>(id) > 0, "only the bundle's own texts, ids above 0",
                std::to_string(static_cast<std::int32_t>(id)));
    started.localized.gives = answer::none;
    const std::wstring refused = utility_caption(started);
    require(refused.empty(), "no text where the localizer has none", narrow(refused));
}

void outlive_the_localizer(const subject& given) {
    script::set_stage();
    session started(given.bundle, {.with_localizer = true});
    if (started.localized.referent_.referrers.empty()) throw no_occasion("the bundle asks for no localizer");
    utility_caption(started);
    started.localized.referent_.release_all();
    started.localized.asked.clear();
    const std::wstring own = utility_caption(started);
    require(started.localized.asked.empty(), "a localizer that has ended is not asked", "it is");
    require(!own.empty(), "the bundle's own caption again", "no text");
    started.unload();
    const auto& log = started.localized.referent_.log;
    require_equal(std::ranges::count(log, "remove"), std::ptrdiff_t{0},
                  "removals from a localizer that has ended:");
}

constexpr check checks[] = {
    {"texts.languages", "captions exist in Russian and English and differ", come_in_both_languages},
    {"texts.localizer", "a localizer takes over all texts of the bundle", follow_the_localizer},
    {"texts.localizer_ends", "when the localizer ends, the bundle speaks for itself", outlive_the_localizer},
};

}  // namespace

std::span<const check> text_checks() { return checks; }

}  // namespace oxcheck
