// Lifetimes of the services.

#include <algorithm>
#include <utility>

#include "oxcheck/check.h"
#include "oxcheck/stage/script.h"
#include "oxcheck/stage/session.h"

namespace oxcheck {

namespace {

using ox::referent_impl;

std::size_t add(custom_pointer referent, watcher& referrer) {
    return ox::call<&referent_impl::add_referrer>(referent, referrer.pointer());
}
void remove(custom_pointer referent, watcher& referrer) {
    ox::call<&referent_impl::remove_referrer>(referent, referrer.pointer());
}

std::string name_of_service(const service& each) {
    return (each.what == publication::kind::utility ? "the utility service \"" : "the dialog service \"") +
           host_double::narrow(each.id) + "\"";
}

std::string listed(const std::vector<int>& numbers) {
    std::string text;
    for (const int number : numbers) text += std::to_string(number) + " ";
    return text.empty() ? "none" : text;
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

/// Three observers of a service that ends. One of them takes another away meanwhile, or none; then a new
/// holder comes.
struct reentry {
    const char* what;
    bool while_asked;  ///< whether it holds; else while it is told
    int actor;
    int leaves;             ///< 0: nobody
    std::vector<int> told;  ///< in this order
};
const reentry reentries[] = {
    {"the first leaves while it is told", false, 1, 1, {1, 2, 3}},
    {"the first takes the second away while it is told", false, 1, 2, {1, 3}},
    {"the last takes the first away while it is told", false, 3, 1, {1, 2, 3}},
    {"a holder comes while the second is told", false, 2, 0, {1, 2, 3}},
    {"the second leaves while it is asked", true, 2, 2, {1, 3}},
    {"the first takes the last away while it is asked", true, 1, 3, {1, 2}},
};

void bear_reentry(const subject& given, const reentry& tried) {
    with_services(given, [&tried](session& started, const service& each, custom_pointer referent,
                                  const std::string& service_name) {
        const std::string name = service_name + ", " + tried.what;
        note("at " + name);
        std::vector<int> told;
        watcher* observers[3];
        for (int i = 0; i < 3; ++i) {
            observers[i] = &new_watcher(false);
            observers[i]->on_released = [&told, i] { told.push_back(i + 1); };
            add(referent, *observers[i]);
        }
        watcher& newcomer = new_watcher(true);
        const std::function<void()> interfere = [&, once = false]() mutable {
            if (std::exchange(once, true)) return;
            if (tried.leaves == 0)
                add(referent, newcomer);
            else
                remove(referent, *observers[tried.leaves - 1]);
        };
        watcher& actor = *observers[tried.actor - 1];
        if (tried.while_asked)
            actor.on_asked = interfere;
        else
            actor.on_released = [interfere, tell = actor.on_released] {
                tell();
                interfere();
            };
        const auto left = [&started] { return std::ranges::count(started.given.log, "remove"); };
        const auto before = left();
        started.release(each);
        require(told == tried.told, name + ", told in order: " + listed(tried.told), listed(told));
        require_equal(newcomer.releases, 0, name + ", the newcomer hears of it:");
        require_equal(left() - before, std::ptrdiff_t{1}, name + ", times that it lets go of its owner:");
    });
}

void bear_reentries(const subject& given) {
    for (const reentry& each : reentries) bear_reentry(given, each);
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
    {"referents.reentrant", "referrers may come and go while a service asks them and tells them",
     bear_reentries},
    {"referents.pin", "an empty referrer pins a service, and services pin in their turn", respect_the_pin},
    {"referents.owner", "services hold their context, and nothing does after unloading",
     belong_to_the_context},
};

}  // namespace

std::span<const check> referent_checks() { return checks; }

}  // namespace oxcheck
