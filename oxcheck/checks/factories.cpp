// The factories: order, constancy, repeated and empty creation.

#include <algorithm>

#include "border/interfaces/services.h"
#include "oxcheck/check.h"
#include "oxcheck/stage/script.h"
#include "oxcheck/stage/session.h"

namespace oxcheck {

namespace {

using host_double::narrow;

std::string join(const std::vector<std::wstring>& texts) {
    std::string joined;
    for (const std::wstring& text : texts)
        joined += (joined.empty() ? "" : ", ") + ("\"" + narrow(text) + "\"");
    return joined.empty() ? "none" : joined;
}

/// What each factory does when it is called, in the order in which they are reported.
struct deed {
    std::wstring key, does;
};

std::vector<deed> deeds_of(const subject& given) {
    script::set_stage();
    const session started(given.bundle, {.with_localizer = true});
    std::vector<deed> deeds;
    // Every factory publishes again what it has; a client asks the registry only the first time.
    for (const received& factory : started.loaded().factories()) {
        registry fresh;
        ox::call<&ox::service_factory_impl::create>(
            factory.pointer, const_cast<context&>(started.given).pointer(), fresh.pointer());
        std::wstring does = L"client";
        for (const publication& published : fresh.published)
            for (const service& each : started.services())
                if (each.pointer == published.service)
                    does = (each.what == publication::kind::utility ? L"utility " : L"dialog ") + each.id;
        deeds.push_back({factory.id, does});
    }
    return deeds;
}

void come_in_order(const subject& given) {
    const std::vector<deed> deeds = deeds_of(given);
    std::wstring utility;
    for (const deed& each : deeds)
        if (each.does.starts_with(L"utility ")) utility = each.does.substr(8);
    if (utility.empty()) throw no_occasion("no factory publishes a utility");

    std::vector<std::wstring> keys, does;
    for (const deed& each : deeds) {
        keys.push_back(each.key);
        does.push_back(each.does);
    }
    std::vector<std::wstring> expected{L"dialog ", L"utility " + utility, L"dialog " + utility, L"client"};
    if (utility == L"oxk_scn2d_prf_reproj")
        expected.insert(expected.end(),
                        {L"dialog ox_common_projection_dialog", L"dialog ox_common_projection_crs_dialog"});
    else
        does.resize(std::min(does.size(), expected.size()));  // further dialogs may follow
    require(does == expected, join(expected), join(does));

    std::vector<std::wstring> expected_keys(keys.size());
    expected_keys[1] = ox::category_key(ox::utility_category);
    require(keys == expected_keys, "the keys " + join(expected_keys), join(keys));
}

void stay_the_same(const subject& given) {
    const bundle loaded(given.bundle);
    const std::vector<received> first = loaded.factories();
    for (int visit = 2; visit <= 4; ++visit) {
        const std::vector<received> again = loaded.factories();
        const std::string at = " at visit " + std::to_string(visit);
        require_equal(again.size(), first.size(), "factories" + at + ":");
        for (std::size_t i = 0; i < first.size(); ++i)
            require(first[i].id == again[i].id && first[i].pointer == again[i].pointer,
                    "the same factory in place " + std::to_string(i + 1) + at, "another one");
    }
}

void create_once(const subject& given) {
    script::set_stage();
    session started(given.bundle);
    const std::vector<publication> first = started.registered.published;
    if (first.empty()) throw no_occasion("the bundle publishes nothing");
    started.registered.published.clear();
    for (const received& factory : started.loaded().factories())
        ox::call<&ox::service_factory_impl::create>(factory.pointer, started.given.pointer(),
                                                    started.registered.pointer());
    const std::vector<publication> second = std::exchange(started.registered.published, {});
    require(second == first, "the " + std::to_string(first.size()) + " services of the first creation again",
            second.size() == first.size() ? "other services" : std::to_string(second.size()) + " services");
}

void bear_empty_neighbours(const subject& given) {
    script::set_stage();
    const bundle loaded(given.bundle);
    for (const received& factory : loaded.factories()) {
        note("creating for an empty context and registry");
        ox::call<&ox::service_factory_impl::create>(factory.pointer, custom_pointer{}, custom_pointer{});
    }
}

constexpr check checks[] = {
    {"factories.order", "the factories come in the order and with the keys of the contract", come_in_order},
    {"factories.same", "every visit reports the same factories", stay_the_same},
    {"factories.create_again", "a second creation publishes the same services", create_once},
    {"factories.empty", "an empty context and registry are borne", bear_empty_neighbours},
};

}  // namespace

std::span<const check> factory_checks() { return checks; }

}  // namespace oxcheck
