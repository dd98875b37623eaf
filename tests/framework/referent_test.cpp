// Lives and deaths across referrers.

#include <functional>
#include <map>
#include <string>
#include <utility>

#include "border/interfaces/dialogs.h"
#include "framework/referent.h"
#include "testing/case_name.h"

namespace ox {
namespace {

int services_alive = 0;

struct service : util::referent<utility_service_impl> {
    explicit service(custom_pointer owner = {}) : obj(owner) { ++services_alive; }
    ~service() override { --services_alive; }
    custom_pointer pointer() { return make_pointer<utility_service_impl>(*this); }
    custom_pointer referent_pointer() { return make_pointer<referent_impl>(*this); }
};

using holding = ref<utility_service, 0>;
using observing = ref<utility_service, 1>;

/// What it does when it is told or asked is the test's.
struct scripted final : referrer_impl {
    bool held = false;
    std::function<void()> when_told, when_asked;
    void released(custom_pointer) override {
        if (when_told) when_told();
    }
    bool holds() override {
        if (when_asked) when_asked();
        return held;
    }
};

class Referents : public testing::Test {
protected:
    void SetUp() override { services_alive = 0; }
    void TearDown() override { EXPECT_EQ(services_alive, 0); }
};

TEST_F(Referents, LastHolderEndsItAndObserversAreTold) {
    holding first((new service)->pointer());
    holding second(first);
    observing watcher(first.get());
    first.reset();
    EXPECT_EQ(services_alive, 1);
    EXPECT_TRUE(watcher);
    second.reset();
    EXPECT_EQ(services_alive, 0);
    EXPECT_FALSE(watcher);
}

TEST_F(Referents, AnObserverLeavingDoesNotEndWhatIsHeld) {
    holding holder((new service)->pointer());
    { observing watcher(holder.get()); }
    EXPECT_EQ(services_alive, 1);
}

TEST_F(Referents, ReassigningToTheSameTargetKeepsIt) {
    holding holder((new service)->pointer());
    holder.reset(holder.get());
    const holding& same = holder;
    holder = same;
    EXPECT_EQ(services_alive, 1);
}

TEST_F(Referents, APinHoldsUntilItIsRemoved) {
    auto* pinned = new service;
    const custom_pointer referent = pinned->referent_pointer();
    call<&referent_impl::add_referrer>(referent, custom_pointer{});
    { holding holder(pinned->pointer()); }
    EXPECT_EQ(services_alive, 1);
    call<&referent_impl::remove_referrer>(referent, custom_pointer{});
    EXPECT_EQ(services_alive, 0);
}

TEST_F(Referents, AChildKeepsItsOwnerAndTakesItAlong) {
    auto* owner = new service;
    holding owner_holder(owner->pointer());
    holding child((new service(owner->referent_pointer()))->pointer());
    owner_holder.reset();
    EXPECT_EQ(services_alive, 2);
    child.reset();  // the child's end drops the last hold on the owner, which the pin survives
    EXPECT_EQ(services_alive, 0);
}

TEST_F(Referents, AReferrerAddedTwiceIsRemovedTwice) {
    struct counter final : referrer_impl {
        int told = 0;
        void released(custom_pointer) override { ++told; }
        bool holds() override { return true; }
    } twice;
    const custom_pointer referrer = make_pointer<referrer_impl>(twice);
    const custom_pointer referent = (new service)->referent_pointer();
    for (const unsigned count : {1u, 2u})
        EXPECT_EQ(call<&referent_impl::add_referrer>(referent, referrer), count);
    for (const int left : {1, 0}) {
        call<&referent_impl::remove_referrer>(referent, referrer);
        EXPECT_EQ(services_alive, left);
    }
    EXPECT_EQ(twice.told, 0);
}

// ---- References that live in what other references release ----

struct link final : service {
    link() : obj(custom_pointer{}) {}
    holding next;
};

TEST_F(Referents, AReferenceMovesAlongTheChainThatItReleases) {
    auto *first = new link, *second = new link;
    first->next.reset(second->pointer());
    holding head(first->pointer());
    head = first->next;
    EXPECT_EQ(services_alive, 1);
    EXPECT_EQ(head.get(), second->pointer());
}

TEST_F(Referents, AReferenceMayLiveInWhatItReleases) {
    auto *circular = new link, *other = new link;
    const holding holder(other->pointer());
    circular->next.reset(circular->pointer());
    circular->next = holder;
    EXPECT_EQ(services_alive, 1);
}

TEST_F(Referents, AnObserverSeesTheEndOfATargetThatGoesWithTheOldOne) {
    auto *first = new link, *second = new link;
    first->next.reset(second->pointer());
    observing watcher(first->pointer());
    watcher.reset(second->pointer());  // nobody holds the first one
    EXPECT_FALSE(watcher);
}

TEST_F(Referents, AReferenceMayBeSetAnewWhileItsTargetEnds) {
    auto *first = new link, *second = new link;
    const holding holder(second->pointer());
    observing watcher;
    scripted resetter;
    resetter.when_told = [&] { watcher.reset(second->pointer()); };
    holding head(first->pointer());
    first->add_referrer(make_pointer<referrer_impl>(resetter));
    watcher.reset(first->pointer());
    head.reset();
    EXPECT_EQ(watcher.get(), second->pointer());
}

// ---- Referrers that come and go while a referent asks or tells them ----

struct meanwhile_case {
    const char* name;
    const char* referrers;  ///< in order of addition; a capital one holds
    char actor;             ///< acts once
    const char* when;       ///< "told" or "asked"
    const char* acts;       ///< "-c" removes c, "+d" adds d
    const char* told;
};

TEST_CASES_F(
    Referents, ReferentMeanwhile, EndsOnceAndTellsThoseWhoAreLeft, meanwhile_case,
    {"SelfWhenTold", "abc", 'b', "told", "-b", "abc"}, {"NextWhenTold", "abc", 'a', "told", "-b", "ac"},
    {"LastWhenTold", "abc", 'b', "told", "-c", "ab"}, {"PreviousWhenTold", "abc", 'b', "told", "-a", "abc"},
    {"AllWhenTold", "abc", 'a', "told", "-a-b-c", "a"}, {"StrangerWhenTold", "abc", 'b', "told", "-y", "abc"},
    {"OneOfTwoWhenTold", "abbc", 'b', "told", "-b", "abbc"},
    {"AddedWhenTold", "ab", 'a', "told", "+d+E-E", "ab"}, {"SelfWhenAsked", "abc", 'b', "asked", "-b", "ac"},
    {"NextWhenAsked", "abc", 'a', "asked", "-b", "ac"},
    {"SelfWhenAskedThoughOneHolds", "abC", 'a', "asked", "-a", "bC"},
    {"SelfWhenAskedAndSaysItHolds", "Ab", 'A', "asked", "-A", "b"}) {
    const custom_pointer referent = (new service)->referent_pointer();
    std::string told;
    std::map<char, scripted> referrers;
    const auto of = [&](char letter) {
        const auto [at, added] = referrers.try_emplace(letter);
        if (added) at->second.held = letter >= 'A' && letter <= 'Z';
        if (added) at->second.when_told = [&told, letter] { told += letter; };
        return make_pointer<referrer_impl>(at->second);
    };
    auto act = [&, done = false]() mutable {
        if (std::exchange(done, true)) return;
        for (const char* step = c.acts; *step; step += 2)
            if (*step == '-')
                call<&referent_impl::remove_referrer>(referent, of(step[1]));
            else
                call<&referent_impl::add_referrer>(referent, of(step[1]));
    };
    for (const char* letter = c.referrers; *letter; ++letter)
        call<&referent_impl::add_referrer>(referent, of(*letter));
    scripted& actor = referrers[c.actor];
    if (std::string_view(c.when) == "told")
        actor.when_told = [tell = actor.when_told, act]() mutable { tell(), act(); };
    else
        actor.when_asked = act;
    call<&referent_impl::remove_referrer>(referent, of('z'));
    EXPECT_EQ(told, c.told);
    EXPECT_EQ(services_alive, 0);
}

}  // namespace
}  // namespace ox
