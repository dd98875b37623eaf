#include "session/language.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "testing/case_name.h"

namespace {

using oxhost::language;

struct environment_case {
    const char* name;
    const char* all;
    const char* messages;
    const char* lang;
    language expected;
};

class EnvironmentLanguage : public testing::TestWithParam<environment_case> {};

TEST_P(EnvironmentLanguage, FollowsTheFirstVariableThatIsSet) {
    const auto& given = GetParam();
    const std::pair<const char*, const char*> variables[] = {
        {"LC_ALL", given.all}, {"LC_MESSAGES", given.messages}, {"LANG", given.lang}};
    for (const auto& [name, value] : variables) setenv(name, value, 1);
    EXPECT_EQ(oxhost::current_language(), given.expected);
    oxhost::choose_language(language::russian);
    EXPECT_EQ(oxhost::current_language(), language::russian);
    oxhost::choose_language({});
    for (const auto& [name, value] : variables) unsetenv(name);
}

INSTANTIATE_TEST_SUITE_P(
    Variables, EnvironmentLanguage,
    testing::Values(environment_case{"Nothing", "", "", "", language::english},
                    environment_case{"Lang", "", "", "ru_RU.UTF-8", language::russian},
                    environment_case{"MessagesBeforeLang", "", "ru", "en_US.UTF-8", language::russian},
                    environment_case{"AllBeforeMessages", "C", "ru_RU", "ru_RU", language::english},
                    environment_case{"Kirundi", "rn_BI", "", "ru_RU", language::english},
                    environment_case{"LongerCode", "rup_MK", "", "", language::english}),
    case_name);

}  // namespace
