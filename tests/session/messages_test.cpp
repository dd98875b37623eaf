#include "session/messages.h"

#include <sstream>

#include "base/language.h"
#include "session/console_messages.h"
#include "testing/case_name.h"

namespace {

using namespace oxhost;

/// Installs console messages over string streams.
class scripted_console {
public:
    scripted_console(const std::string& typed, bool terminal, console_options options) : in_(typed) {
        choose_language(language::english);
        messages::instance().forget();
        messages::instance().use(
            std::make_unique<console_messages>(console{out, error, in_, terminal, terminal}, options));
    }
    ~scripted_console() {
        messages::instance().use(std::make_unique<console_messages>(console::standard(), console_options{}));
        choose_language({});
    }
    scripted_console(const scripted_console&) = delete;
    scripted_console& operator=(const scripted_console&) = delete;

    std::ostringstream out, error;

private:
    std::istringstream in_;
};

struct question_case {
    const char* name;
    answering questions;
    bool terminal;
    const char* typed;
    std::optional<bool> answer;
};

TEST_CASES(Questions, AreAnsweredAndRecorded, question_case,
           {"YesBeforehand", answering::yes, false, "", true},
           {"NoBeforehand", answering::no, true, "y\n", false},
           {"TypedYes", answering::ask, true, "y\n", true},
           {"TypedRussian", answering::ask, true, "да\n", true},
           {"JustReturn", answering::ask, true, "\n", false},
           {"AskedAgain", answering::ask, true, "maybe\nyes\n", true},
           {"InputEnds", answering::ask, true, "maybe", std::nullopt},
           {"NobodyToAsk", answering::ask, false, "y\n", std::nullopt}) {
    scripted_console shown(c.typed, c.terminal, {.questions = c.questions});
    EXPECT_EQ(messages::instance().ask("Continue?"), c.answer.value_or(false));
    ASSERT_EQ(messages::instance().shown().size(), 1u);
    EXPECT_EQ(messages::instance().shown()[0].answer, c.answer);
    EXPECT_EQ(messages::instance().declined(), !c.answer.value_or(false));
    EXPECT_NE((shown.out.str() + shown.error.str()).find("Continue?"), std::string::npos);
}

TEST(Console, PutsErrorsOnTheErrorOutputEvenWhenQuiet) {
    for (const bool quiet : {false, true}) {
        scripted_console shown("", false, {.quiet = quiet});
        messages::instance().inform("Done");
        messages::instance().report_error("Broken");
        EXPECT_EQ(shown.out.str(), quiet ? "" : "Done\n");
        EXPECT_EQ(shown.error.str(), "Broken\n");
        EXPECT_EQ(messages::instance().shown().size(), 2u);
        EXPECT_FALSE(messages::instance().declined());
    }
}

/// What a run of `scenes` leaves on the output.
std::string progress_of(int scenes, bool terminal, bool quiet) {
    scripted_console shown("", terminal, {.quiet = quiet});
    if (const auto display = messages::instance().open_progress())
        for (int i = 0; i < scenes; ++i) display->report(static_cast<double>(i) / scenes);
    return shown.out.str();
}

TEST(Progress, IsAFewLinesAWipedBarOrNothing) {
    const std::string nine = "10 %\n20 %\n30 %\n40 %\n50 %\n60 %\n70 %\n80 %\n90 %\n";
    EXPECT_EQ(progress_of(10, false, false), nine);
    EXPECT_EQ(progress_of(10000, false, false), nine);
    EXPECT_EQ(progress_of(1, false, false), "");
    EXPECT_EQ(progress_of(10, false, true), "");
    const std::string bar = progress_of(10000, true, false);
    EXPECT_EQ(std::count(bar.begin(), bar.end(), '\r'), 101);  // once per per cent, and the wiping
    EXPECT_TRUE(bar.ends_with("\r\x1b[K"));
}

}  // namespace
