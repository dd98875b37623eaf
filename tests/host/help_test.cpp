#include <gtest/gtest.h>

#include <regex>
#include <set>

#include "oxhost_run.h"

namespace {

using namespace oxhost_test;

std::vector<std::string> commands_of(const std::string& help) {
    std::vector<std::string> commands;
    const std::string list = help.substr(help.find("Команды:"));
    const std::regex first_word("\n  ([a-z]+) ");
    for (auto it = std::sregex_iterator(list.begin(), list.end(), first_word); it != std::sregex_iterator();
         ++it)
        commands.push_back((*it)[1]);
    return commands;
}

/// Latin words in small letters beside options, commands, placeholders and values, extensions and keys.
std::set<std::string> english_words(std::string help) {
    for (const char* allowed : {"JSON: [^\n]*", "-{1,2}[a-z][-a-z0-9]*", "\\.[a-z0-9]+", "oxhost [a-z]*",
                                "\\S*[|=()]\\S*", "oxk_\\w+", "\n  [a-z]+ ", "\\S+\\.gpkg"})
        help = std::regex_replace(help, std::regex(allowed), "\n  ");
    static const std::set<std::string> names{"proj4",   "none",    "ru",   "en",    "oxhost", "ox",
                                             "caption", "profile", "name", "title", "pj4",    "prj"};
    std::set<std::string> found;
    const std::regex word("[a-z][a-z0-9]+");
    for (auto it = std::sregex_iterator(help.begin(), help.end(), word); it != std::sregex_iterator(); ++it)
        if (const auto before = it->prefix().str();
            !names.contains(it->str()) &&
            (before.empty() || !std::isalnum(static_cast<unsigned char>(before.back()))))
            found.insert(it->str());
    return found;
}

TEST(Help, IsRussianThroughout) {
    const sandbox box;
    const std::string help = box.oxhost({"--help", "--lang", "ru"}).out;
    const auto commands = commands_of(help);
    ASSERT_GE(commands.size(), 8U) << help;
    EXPECT_EQ(english_words(help), std::set<std::string>{}) << help;
    for (const std::string& each : commands) {
        const std::string text = box.oxhost({each, "--help"}, "ru").out;
        EXPECT_EQ(english_words(text), std::set<std::string>{}) << text;
    }
}

}  // namespace
