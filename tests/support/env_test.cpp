#include "support/env.h"

#include <gmock/gmock.h>

#include "recording_env.h"
#include "support/env_console.h"
#include "support/lng_tables.h"
#include "testing/case_name.h"

namespace {

template <class Use>
std::string printed_by(Use use) {
    ox::lng_init();
    ox::lng_set(0);
    ox::Tox_env_console console;
    testing::internal::CaptureStdout();
    use(console);
    return testing::internal::GetCapturedStdout();
}

TEST(EnvConsole, PrintsLinesAndOneWaitAtATime) {
    const auto printed = printed_by([](auto& env) {
        env.message("m");
        env.error("e");
        env.debug("d");
        env.set_debug(false);
        env.debug("silent");
        const auto wait = env.wait_begin("w");
        EXPECT_EQ(env.wait_begin("second"), 0u);
        for (const auto handle : {wait + 1, wait, wait}) env.wait_end(handle);
        EXPECT_EQ(env.query_state(), 0u);
    });
    EXPECT_EQ(printed, "Message: m\nError: e\nDebug: d\nWait: w\nFinished: w\n");
}

struct progress_case {
    const char* name;
    std::uint32_t first, last, total;
    int outcome;
    const char* printed;
};

TEST_CASES(EnvConsoleProgress, Prints, progress_case,
           {"Full", 0, 10, 10, 0,
            "....10%....20%....30%....40%....50%....60%....70%....80%....90%....100% - done"},
           {"NoTotal", 0, 5, 0, 101, " - user stop"}, {"RoundsHalfUp", 1, 3, 200, 5, ". - error"},
           {"HundredfoldWraps", 42949673, 42949673, 100, 0, " - done"}) {
    const auto printed = printed_by([&](auto& env) {
        const auto progress = env.progress_begin("t");
        EXPECT_EQ(env.progress_begin("second"), 0u);
        env.progress_step(0, 1, 1);
        for (const bool repeated : {false, true}) {
            for (auto step = c.first; step <= c.last; ++step) env.progress_step(progress, step, c.total);
            if (!repeated) env.progress_end(progress + 1, 0);
        }
        env.progress_end(progress, c.outcome);
        env.progress_step(progress, 1, 1);
    });
    EXPECT_EQ(printed, std::string("t\n0%") + c.printed + "\n");
}

TEST(Timers, ReportSecondsSinceTheFirstStart) {
    ox::timer_stop("nobody listens");
    recording_env reported;
    ox::timer_stop("t");
    ox::timer_start("t");
    ox::timer_stop("t");
    ox::timer_stop("t");
    ox::clear_timers();
    ox::timer_stop("t");
    ASSERT_EQ(reported.debug_lines.size(), 4u);
    EXPECT_EQ(reported.debug_lines[0], "t time(unknown start)");
    EXPECT_THAT(reported.debug_lines[2], testing::AnyOf("t time(0)", "t time(1)"));
    EXPECT_EQ(reported.debug_lines[3], "t time(unknown start)");
}

}  // namespace
