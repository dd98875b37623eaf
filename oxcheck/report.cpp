#include "oxcheck/report.h"

#include <algorithm>
#include <ostream>
#include <string>
#include <string_view>

namespace oxcheck {

namespace {

constexpr const char* words[] = {"passed", "failed", "not applicable"};
constexpr const char* keys[] = {"passed", "failed", "not_applicable"};

auto count(const std::vector<result>& results, verdict wanted) {
    return std::ranges::count_if(results,
                                 [wanted](const result& each) { return each.found.result == wanted; });
}

std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') result += '\\';
        if (c == '\n')
            result += "\\n";
        else if (static_cast<unsigned char>(c) < 0x20)
            result += ' ';
        else
            result += c;
    }
    return result + '"';
}

std::string utf8(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

}  // namespace

void print(std::ostream& out, const result& each) {
    out << words[static_cast<int>(each.found.result)] << ": " << each.what.name << "\n";
    if (each.found.result == verdict::not_applicable) out << "    " << each.found.got << "\n";
    if (each.found.result == verdict::failed)
        out << "    expected: " << each.found.expected << "\n    got: " << each.found.got << "\n";
    out.flush();
}

void print_summary(std::ostream& out, const std::vector<result>& results) {
    out << count(results, verdict::passed) << " passed, " << count(results, verdict::failed) << " failed, "
        << count(results, verdict::not_applicable) << " not applicable\n";
}

void write_json(std::ostream& out, const std::filesystem::path& bundle, const std::vector<result>& results) {
    out << "{\n  \"bundle\": " << quoted(utf8(bundle));
    for (const verdict each : {verdict::passed, verdict::failed, verdict::not_applicable})
        out << ",\n  \"" << keys[static_cast<int>(each)] << "\": " << count(results, each);
    out << ",\n  \"checks\": [";
    const char* separator = "\n";
    for (const auto& [what, found] : results) {
        out << separator << "    {\"name\": " << quoted(what.name) << ", \"claim\": " << quoted(what.claim)
            << ", \"result\": " << quoted(keys[static_cast<int>(found.result)])
            << ", \"expected\": " << quoted(found.expected) << ", \"got\": " << quoted(found.got) << "}";
        separator = ",\n";
    }
    out << "\n  ]\n}\n";
}

}  // namespace oxcheck
