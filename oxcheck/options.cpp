#include "oxcheck/options.h"

#include <charconv>

namespace oxcheck {

namespace {

std::chrono::milliseconds seconds(const std::string& text) {
    unsigned number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || number == 0 || number > 3600)
        throw usage_error("--seconds takes a whole number from 1 to 3600, not \"" + text + "\"");
    return std::chrono::seconds(number);
}

}  // namespace

options parse_options(const std::vector<std::filesystem::path>& arguments) {
    options chosen;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string word = arguments[i].string();
        const auto value = [&]() -> const std::filesystem::path& {
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

}  // namespace oxcheck
