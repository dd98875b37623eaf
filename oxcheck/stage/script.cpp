#include "oxcheck/stage/script.h"

#include <sstream>
#include <string_view>

namespace oxcheck::script {

using host_double::host;

namespace {

/// Of the hosts before this one.
std::vector<std::string>& earlier_complaints() {
    static std::vector<std::string> all;
    return all;
}

}  // namespace

std::vector<std::string> complaints() {
    std::vector<std::string> all = earlier_complaints();
    for (const std::string& function : host().given_null) all.push_back(function + " was handed null");
    for (const std::string& fault : host().border_faults)
        all.push_back("an exception came as far as the border of " + fault);
    return all;
}

void clear_stage() {
    earlier_complaints() = complaints();
    host_double::reset();
}

void set_stage(int language) {
    clear_stage();
    host().language = language;
    host().scenes_refuse = true;
    host().add(L"Line 1", L"+proj=longlat +datum=WGS84", {{37, 55}, {38, 56}});
    host().add(L"Line 2", L"+proj=utm +zone=37 +datum=WGS84", {{400000, 6100000}, {410000, 6200000}});
    host().add(L"Plan", L"+proj=longlat +datum=WGS84").profile = false;
    host().add(L"Line 3", L"");
    host().add(L"Sketch", L"").has_data = false;
    host().add(L"Line 4", L"+proj=utm +zone=38 +datum=WGS84", {{400000, 6300000}, {420000, 6310000}});
    host().files[opened_file] = L"+proj=utm +zone=39 +datum=WGS84";
    host().crs[L"EPSG:4326"] = L"+proj=longlat +datum=WGS84 +no_defs";
    host().favourites = {{L"first", L"+proj=longlat +datum=WGS84"}, {L"second", L"+proj=utm +zone=37"}};
}

std::string describe_host() {
    using host_double::narrow;
    std::ostringstream text;
    for (const auto& scene : host().scenes) {
        text << narrow(scene->caption) << ": " << narrow(scene->pj4);
        for (const auto& [x, y] : scene->pv) text << " (" << x << " " << y << ")";
        text << "\n";
    }
    for (const auto& [caption, pj4] : host().favourites)
        text << "favourite " << narrow(caption) << ": " << narrow(pj4) << "\n";
    for (const auto& [path, pj4] : host().files)
        text << "file " << narrow(path) << ": " << narrow(pj4) << "\n";
    for (const auto* said : {&host().messages, &host().errors, &host().questions})
        for (const auto& line : *said) text << "said " << narrow(line) << "\n";
    for (const double fraction : host().progress) text << "progress " << fraction << "\n";
    for (const std::string& line : host().log) text << line << "\n";
    return text.str();
}

std::string bracket_fault() {
    std::string open;  // scene whose bracket is open
    for (const std::string& line : host().log) {
        const auto after = [&line](std::string_view word) { return line.substr(word.size()); };
        if (line.starts_with("begin ")) {
            if (!open.empty()) return "the bracket of " + after("begin ") + " begins within that of " + open;
            open = after("begin ");
        } else if (line.starts_with("end ")) {
            if (open != after("end "))
                return "the bracket of " + after("end ") + " ends without having begun";
            open.clear();
        } else if (line.starts_with("line ") || line.starts_with("text ")) {
            if (open != after("line ")) return "a change of " + after("line ") + " outside its bracket";
        }
    }
    return open.empty() ? "" : "the bracket of " + open + " stays open";
}

std::string objects_left() {
    std::string text;
    for (const auto& [kind, number] : host().live)
        if (number != 0 && kind != "bracket") text += std::to_string(number) + " " + kind + " ";
    return text;
}

}  // namespace oxcheck::script
