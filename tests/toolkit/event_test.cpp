// Who is called by an event.

#include <gtest/gtest.h>

#include "toolkit/event.h"

namespace ox::toolkit {
namespace {

TEST(Event, CallsThoseWhoAreStillThere) {
    event<void()> changed;
    std::string calls;
    auto first = std::make_unique<subscription>(changed, [&] { calls += "first "; });
    subscription second(changed, [&] {
        calls += "second ";
        first.reset();
    });
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

}  // namespace
}  // namespace ox::toolkit
