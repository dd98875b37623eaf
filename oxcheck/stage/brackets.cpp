#include "oxcheck/stage/brackets.h"

#include <string_view>

namespace oxcheck {

std::string bracket_fault(const std::vector<std::string>& log) {
    std::string open;  // scene whose bracket is open
    for (const std::string& line : log) {
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

}  // namespace oxcheck
