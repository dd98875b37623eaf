/// oxcheck: checks a bundle from outside, with a host of its own whose every answer is scripted.

#include <algorithm>
#include <charconv>
#include <chrono>
#include <fstream>
#include <iostream>
#include <optional>

#include "oxcheck/child.h"
#include "oxcheck/report.h"
#include "oxcheck/system/system.h"

namespace oxcheck {
namespace {

namespace fs = std::filesystem;

struct usage_error : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct options {
    fs::path bundle;
    std::optional<fs::path> json;
    std::vector<std::string> only;  ///< names of checks or groups; empty is all
    std::chrono::milliseconds limit{20000};
    bool list = false;
    bool help = false;
};

constexpr const char* usage_text =
    "usage: oxcheck BUNDLE [--json FILE] [--only NAME]... [--seconds N]\n"
    "       oxcheck --list\n"
    "Checks the binary contract of a bundle. NAME is a check or a group of checks, as --list shows\n"
    "them; N is the processor time that each check may take, and how long it may stand still.\n"
    "Exit codes: 0 nothing failed, 1 a check failed, 64 wrong usage, 66 the bundle cannot be read.\n";

std::chrono::milliseconds seconds(const std::string& text) {
    unsigned number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number == 0 || number > 3600)
        throw usage_error("--seconds takes a whole number from 1 to 3600, not \"" + text + "\"");
    return std::chrono::seconds(number);
}

/// Throws `usage_error`.
options parse_options(const std::vector<fs::path>& arguments) {
    options chosen;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string word = arguments[i].string();
        const auto value = [&]() -> const fs::path& {
            if (i + 1 == arguments.size()) throw usage_error(word + " needs a value");
            return arguments[++i];
        };
        if (word == "--list")
            chosen.list = true;
        else if (word == "--help")
            chosen.help = true;
        else if (word == "--json")
            chosen.json = value();
        else if (word == "--only")
            chosen.only.push_back(value().string());
        else if (word == "--seconds")
            chosen.limit = seconds(value().string());
        else if (word.starts_with("--"))
            throw usage_error("unknown option " + word);
        else if (!chosen.bundle.empty())
            throw usage_error("one bundle at a time, not also " + word);
        else
            chosen.bundle = arguments[i];
    }
    if (chosen.bundle.empty() && !chosen.list && !chosen.help) throw usage_error("no bundle given");
    return chosen;
}

enum exit_code { nothing_failed = 0, check_failed = 1, wrong_usage = 64, unreadable = 66, not_written = 73 };

bool is_meant(const check& each, const std::string& name) {
    return name == each.name || std::string(each.name).starts_with(name + ".");
}

std::vector<check> chosen_checks(const std::vector<std::string>& only) {
    std::vector<check> all = all_checks();
    if (only.empty()) return all;
    for (const std::string& name : only)
        if (std::ranges::none_of(all, [&](const check& each) { return is_meant(each, name); }))
            throw usage_error("no check is named " + name);
    std::erase_if(all, [&](const check& each) {
        return std::ranges::none_of(only, [&](const std::string& name) { return is_meant(each, name); });
    });
    return all;
}

bool is_readable(const fs::path& file) {
    std::error_code ignored;
    return fs::is_regular_file(file, ignored) && std::ifstream(file, std::ios::binary).get() != EOF;
}

int check_bundle(const options& chosen) {
    const std::vector<check> checks = chosen_checks(chosen.only);
    if (!is_readable(chosen.bundle)) {
        std::cerr << "oxcheck: " << chosen.bundle.string() << ": cannot be read\n";
        return unreadable;
    }
    const fs::path bundle = fs::absolute(chosen.bundle);
    std::vector<result> results;
    for (const check& each : checks) {
        results.push_back({each, run_in_child(each, bundle, chosen.limit)});
        print(std::cout, results.back());
    }
    print_summary(std::cout, results);
    if (chosen.json) {
        std::ofstream out(*chosen.json);
        write_json(out, bundle, results);
        if (!out.flush()) {
            std::cerr << "oxcheck: " << chosen.json->string() << ": cannot be written\n";
            return not_written;
        }
    }
    const bool failed =
        std::ranges::any_of(results, [](const result& each) { return each.found.result == verdict::failed; });
    return failed ? check_failed : nothing_failed;
}

int run(const std::vector<fs::path>& arguments) {
    if (arguments.size() == 4 && arguments[0] == child_option)
        return run_as_child(arguments[1].string(), arguments[2], arguments[3]);
    const options chosen = parse_options(arguments);
    if (chosen.help) {
        std::cout << usage_text;
        return nothing_failed;
    }
    if (!chosen.list) return check_bundle(chosen);
    for (const check& each : chosen_checks(chosen.only)) std::cout << each.name << ": " << each.claim << "\n";
    return nothing_failed;
}

}  // namespace
}  // namespace oxcheck

int main(int count, char** values) {
    try {
        return oxcheck::run(oxcheck::system::arguments(count, values));
    } catch (const oxcheck::usage_error& problem) {
        std::cerr << "oxcheck: " << problem.what() << "\n" << oxcheck::usage_text;
        return oxcheck::wrong_usage;
    } catch (const std::exception& problem) {
        std::cerr << "oxcheck: " << problem.what() << "\n";
        return oxcheck::check_failed;
    }
}
