#include "session/console_messages.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <iostream>
#include <string_view>

#include "session/language.h"
#include "session/progress_line.h"

namespace oxhost {
namespace {

/// Nothing for an answer that is neither.
std::optional<bool> parse_answer(std::string_view line) {
    constexpr std::array<std::string_view, 6> yes{"y", "Y", "yes", "д", "Д", "да"};
    constexpr std::array<std::string_view, 7> no{"", "n", "N", "no", "н", "Н", "нет"};
    if (std::find(yes.begin(), yes.end(), line) != yes.end()) return true;
    if (std::find(no.begin(), no.end(), line) != no.end()) return false;
    return {};
}

}  // namespace

console console::standard() {
    const bool out_is_terminal = isatty(STDOUT_FILENO) != 0;
    return {std::cout, std::cerr, std::cin, out_is_terminal && isatty(STDIN_FILENO) != 0, out_is_terminal};
}

void console_messages::show(message_kind kind, const std::string& text) {
    if (kind == message_kind::error) {
        on_.error << text << std::endl;
    } else if (!options_.quiet) {
        on_.out << text << std::endl;
    }
}

std::optional<bool> console_messages::ask(const std::string& text) {
    if (options_.questions != answering::ask) {
        const bool yes = options_.questions == answering::yes;
        if (!options_.quiet)
            on_.out << text << ' ' << (yes ? in_language("да", "yes") : in_language("нет", "no"))
                    << std::endl;
        return yes;
    }
    if (on_.answers) return ask_terminal(text);
    on_.error << text << '\n'
              << in_language("Спросить некого: ответьте заранее с --yes или --no.",
                             "There is nobody to ask: answer beforehand with --yes or --no.")
              << std::endl;
    return {};
}

std::optional<bool> console_messages::ask_terminal(const std::string& text) {
    for (std::string line;;) {
        on_.out << text << in_language(" [д/Н] ", " [y/N] ") << std::flush;
        if (!std::getline(on_.in, line)) return {};
        if (const auto answer = parse_answer(line)) return answer;
    }
}

std::unique_ptr<progress_display> console_messages::open_progress() {
    if (options_.quiet) return nullptr;
    if (on_.draws_a_bar) return std::make_unique<progress_bar>(on_.out);
    return std::make_unique<progress_lines>(on_.out);
}

}  // namespace oxhost
