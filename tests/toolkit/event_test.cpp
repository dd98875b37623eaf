// Who is called by an event.

#include "toolkit/event.h"

#include <gtest/gtest.h>

#include <ctime>
#include <string>
#include <vector>

namespace ox::toolkit {
namespace {

TEST(Event, CallsThoseWhoAreStillThere) {
    event<void()> changed;
    std::string calls;
    auto first = std::make_unique<subscription>(changed, [&] { calls += "first "; });
    subscription second(changed, [&] { calls += "second ", first.reset(); });
    subscription third(changed, [&] { calls += "third "; });
    third.connection().disconnect();
    changed.fire();
    changed.fire();
    EXPECT_EQ(calls, "first second second ");

    auto observer = std::make_shared<events::observer>();
    observer->callback = [] {};
    const auto connection = changed.connect(observer);
    connection->block();
    EXPECT_TRUE(observer->blocked);
    observer.reset();
    connection->unblock();
    EXPECT_FALSE(connection->connected());
}

TEST(Event, WhoJoinsOrLeavesMeanwhileCountsFromThenOn) {
    event<void()> changed;
    std::string calls;
    std::vector<std::unique_ptr<subscription>> late;
    std::unique_ptr<subscription> leaves, next;
    leaves = std::make_unique<subscription>(changed, [&] {
        calls += "leaves ";
        leaves.reset();
        next.reset();
        changed.fire();
    });
    next = std::make_unique<subscription>(changed, [&] { calls += "next "; });
    subscription joiner(changed, [&] {
        calls += "joiner ";
        late.push_back(std::make_unique<subscription>(changed, [&] { calls += "late "; }));
    });
    changed.fire();  // the inner firing calls the joiner, then the outer one does
    EXPECT_EQ(calls, "leaves joiner joiner ");
    calls.clear();
    changed.fire();
    EXPECT_EQ(calls, "joiner late late ");
}

TEST(Event, AnObserverOfTwoConnectionsIsCalledForEachUntilOneDisconnects) {
    event<void()> changed, other;
    int calls = 0;
    auto observer = std::make_shared<events::observer>();
    observer->callback = [&] { ++calls; };
    const auto first = changed.connect(observer), second = changed.connect(observer);
    const auto elsewhere = other.connect(observer);
    changed.fire();
    EXPECT_EQ(calls, 2);
    second->disconnect();
    first->disconnect();
    changed.fire();
    EXPECT_EQ(calls, 2);
    other.fire();
    EXPECT_EQ(calls, 3);
}

TEST(Event, MayEndWhileItFires) {
    auto changed = std::make_unique<event<void()>>();
    int calls = 0;
    subscription ends(*changed, [&] { changed.reset(); });
    subscription after(*changed, [&] { ++calls; });
    changed->fire();
    EXPECT_EQ(calls, 1);
}

TEST(Event, ForgetsEndedObserversAtOnce) {
    event<void()> changed;
    const subscription stays(changed, [] {});
    auto connected = std::make_shared<events::observer>();
    connected->callback = [&] { EXPECT_EQ(changed.size(), 2u); };
    changed.connect(connected);
    changed.fire();
    connected.reset();
    EXPECT_EQ(changed.size(), 1u);
    for (int i = 0; i < 100; ++i) subscription passing(changed, [] {});
    EXPECT_EQ(changed.size(), 1u);
}

TEST(Event, FiresInLinearTime) {
    event<void()> changed;
    int calls = 0;
    std::vector<std::unique_ptr<subscription>> many;
    for (int i = 0; i < 20000; ++i) many.push_back(std::make_unique<subscription>(changed, [&] { ++calls; }));
    const std::clock_t begin = std::clock();
    changed.fire();
    EXPECT_LT(std::clock() - begin, CLOCKS_PER_SEC);  // processor time
    EXPECT_EQ(calls, 20000);
}

}  // namespace
}  // namespace ox::toolkit
