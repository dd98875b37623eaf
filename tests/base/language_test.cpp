#include "base/language.h"

#include <cstdlib>

#include "testing/case_name.h"

namespace {

using oxhost::language;

struct environment_case {
    const char *name, *all, *messages, *lang;
    language expected;
};

TEST_CASES(EnvironmentLanguage, FollowsTheFirstVariableThatIsSet, environment_case,
           {"Nothing", "", "", "", language::english}, {"Lang", "", "", "ru_RU.UTF-8", language::russian},
           {"MessagesBeforeLang", "", "ru", "en_US.UTF-8", language::russian},
           {"AllBeforeMessages", "C", "ru_RU", "ru_RU", language::english},
           {"Kirundi", "rn_BI", "", "ru_RU", language::english},
           {"LongerCode", "rup_MK", "", "", language::english}) {
    const std::pair<const char*, const char*> variables[] = {
        {"LC_ALL", c.all}, {"LC_MESSAGES", c.messages}, {"LANG", c.lang}};
    for (const auto& [name, value] : variables) setenv(name, value, 1);
    EXPECT_EQ(oxhost::current_language(), c.expected);
    oxhost::choose_language(language::russian);
    EXPECT_EQ(oxhost::current_language(), language::russian);
    oxhost::choose_language({});
    for (const auto& [name, value] : variables) unsetenv(name);
}

}  // namespace
