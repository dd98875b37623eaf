// Lifetimes of the services.

#include "oxcheck/check.h"
#include "oxcheck/stage/script.h"
#include "oxcheck/stage/session.h"

namespace oxcheck {

namespace {

using ox::referent_impl;

std::size_t add(custom_pointer referent, watcher& by) {
    return ox::call<&referent_impl::add_referrer>(referent, by.pointer());
}
void remove(custom_pointer referent, watcher& by) {
    ox::call<&referent_impl::remove_referrer>(referent, by.pointer());
}

std::string name_of_service(const service& each) {
    return (each.what == publication::kind::utility ? "the utility service \"" : "the dialog service \"") +
           host_double::narrow(each.id) + "\"";
}

/// Starts the bundle and tries each of its services in turn.
template <class Try>
void with_services(const subject& given, Try attempt) {
    script::set_stage();
    session started(given.bundle);
    if (started.services().empty()) throw no_occasion("the bundle publishes nothing");
    for (const service& each : started.services()) {
        const std::string name = name_of_service(each);
        note("at " + name);
        const custom_pointer referent = each.referent();
        require(static_cast<bool>(referent), name + " answers its referent", "an empty pointer");
        attempt(started, each, referent, name);
    }
}

void count(const subject& given) {
    with_services(given, [](session&, const service&, custom_pointer referent, const std::string& name) {
        require(ox::call<&referent_impl::self>(referent) == referent, name + " is its own referent",
                "another pointer");
        watcher &first = new_watcher(true), &second = new_watcher(false);
        const std::size_t before = add(referent, first) - 1;
        require_equal(add(referent, first), before + 2, name + ", the same referrer twice:");
        require_equal(add(referent, second), before + 3, name + ", another referrer:");
        remove(referent, first);  // one of the two entries
        require_equal(add(referent, second), before + 3, name + ", one taken away and one added:");
        remove(referent, first);
        remove(referent, second);
        remove(referent, second);
        require_equal(add(referent, first), before + 1, name + ", all taken away and one added:");
        remove(referent, first);
    });
}

void end_with_the_last_holder(const subject& given) {
    with_services(
        given, [](session& started, const service& each, custom_pointer referent, const std::string& name) {
            watcher &holder = new_watcher(true), &observer = new_watcher(false);
            add(referent, holder);
            add(referent, observer);
            started.release(each);
            require_equal(observer.releases, 0, name + ", releases while a holder is left:");
            remove(referent, holder);
            require_equal(observer.releases, 1, name + ", releases after the last holder left:");
        });
}

void tell_before_they_end(const subject& given) {
    with_services(
        given, [](session& started, const service& each, custom_pointer referent, const std::string& name) {
            watcher& observer = new_watcher(false);
            add(referent, observer);
            started.release(each);
            if (observer.releases == 0) return;  // end_with_the_last_holder speaks of that
            require(observer.released_by == referent, name + " names itself as the one that ends",
                    "another pointer");
            require(observer.self_while_released == referent,
                    name + " still answers while it tells its referrers", "it does not");
        });
}

void respect_the_pin(const subject& given) {
    with_services(
        given, [](session& started, const service& each, custom_pointer referent, const std::string& name) {
            watcher& observer = new_watcher(false);
            add(referent, observer);
            ox::call<&referent_impl::add_referrer>(referent, custom_pointer{});
            started.release(each);
            require_equal(observer.releases, 0, name + ", releases while it is pinned:");
            auto& pins = started.owners_owner.log;
            pins.clear();
            ox::call<&referent_impl::remove_referrer>(referent, custom_pointer{});
            require_equal(observer.releases, 1, name + ", releases after the pin is gone:");
            require(pins == std::vector<std::string>{"pin", "unpin"},
                    name + " pins the owner of its owner while it lets go of that",
                    std::to_string(pins.size()) + " calls");
        });
}

void belong_to_the_context(const subject& given) {
    script::set_stage();
    session started(given.bundle, {.with_localizer = true});
    if (started.services().empty()) throw no_occasion("the bundle publishes nothing");
    for (const service& each : started.services())
        require(ox::call<&referent_impl::owner>(each.referent()) == started.given.self(),
                name_of_service(each) + " is owned by the context", "another owner");
    const std::size_t held = started.given.referrers.size();
    require(held >= started.services().size(), "each service refers to the context",
            std::to_string(held) + " referrers");
    started.unload();
    require_equal(started.given.referrers.size(), std::size_t{0},
                  "referrers of the context after unloading:");
    require_equal(started.localized.referent_.referrers.size(), std::size_t{0},
                  "referrers of the localizer after unloading:");
}

constexpr check checks[] = {
    {"referents.count", "referrers are counted, twice added ones twice", count},
    {"referents.holders", "a service ends with its last holder, observers or not", end_with_the_last_holder},
    {"referents.release", "a service tells its referrers before it ends", tell_before_they_end},
    {"referents.pin", "an empty referrer pins a service, and services pin in their turn", respect_the_pin},
    {"referents.owner", "services hold their context, and nothing does after unloading",
     belong_to_the_context},
};

}  // namespace

std::span<const check> referent_checks() { return checks; }

}  // namespace oxcheck
