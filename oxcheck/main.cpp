/// oxcheck: checks a bundle from outside, with a host of its own whose every answer is scripted.

#include <algorithm>
#include <fstream>
#include <iostream>

#include "oxcheck/child.h"
#include "oxcheck/options.h"
#include "oxcheck/report.h"
#include "oxcheck/system/system.h"

namespace oxcheck {
namespace {

namespace fs = std::filesystem;

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
