// Lives and deaths across referrers.

#include <gtest/gtest.h>

#include "border/interfaces/dialogs.h"
#include "framework/referent.h"

namespace ox {
namespace {

int services_alive = 0;

struct service final : util::referent<utility_service_impl> {
    explicit service(custom_pointer owner = {}) : obj(owner) { ++services_alive; }
    ~service() override { --services_alive; }
    custom_pointer pointer() { return make_pointer<utility_service_impl>(*this); }
    custom_pointer referent_pointer() { return make_pointer<referent_impl>(*this); }
};

using holding = ref<utility_service, 0>;
using observing = ref<utility_service, 1>;

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
    holder = holder;
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
    EXPECT_EQ(call<&referent_impl::add_referrer>(referent, referrer), 1u);
    EXPECT_EQ(call<&referent_impl::add_referrer>(referent, referrer), 2u);
    call<&referent_impl::remove_referrer>(referent, referrer);
    EXPECT_EQ(services_alive, 1);
    call<&referent_impl::remove_referrer>(referent, referrer);
    EXPECT_EQ(services_alive, 0);
    EXPECT_EQ(twice.told, 0);
}

}  // namespace
}  // namespace ox
