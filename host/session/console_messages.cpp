#include "session/console_messages.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <ostream>
#include <string_view>

#include "base/language.h"
#include "session/interruption.h"
#include "session/journal.h"

namespace oxhost {

namespace {

/// Whole ones of `parts` that are done; a fraction that is no number counts as nothing. A hair is added so
/// that 3 / 10 of the work are three tenths.
int parts_done(double fraction, int parts) {
    if (!(fraction > 0)) return 0;
    return static_cast<int>(std::floor(std::min(fraction, 1.0) * parts + 1e-9));
}

/// One line of a terminal, drawn over itself and wiped at the end.
class progress_bar final : public progress_display {
public:
    explicit progress_bar(std::ostream& out) : out_(out) {}  // `out` outlives the bar
    ~progress_bar() override {
        if (percent_ >= 0) out_ << "\r\x1b[K" << std::flush;
    }
    progress_bar(const progress_bar&) = delete;
    progress_bar& operator=(const progress_bar&) = delete;

    void report(double fraction) override {
        constexpr std::size_t width = 40;
        const int percent = parts_done(fraction, 100);
        if (percent == percent_) return;
        percent_ = percent;
        const std::size_t filled = static_cast<std::size_t>(percent) * width / 100;
        out_ << "\r[" << std::string(filled, '#') << std::string(width - filled, '.') << "] " << percent
             << " %" << std::flush;
    }

private:
    std::ostream& out_;
    int percent_ = -1;  // on display
};

/// A line whenever another tenth of the work is done.
class progress_lines final : public progress_display {
public:
    explicit progress_lines(std::ostream& out) : out_(out) {}  // `out` outlives the lines

    void report(double fraction) override {
        const int tenths = parts_done(fraction, 10);
        if (tenths <= tenths_) return;
        tenths_ = tenths;
        out_ << tenths * 10 << " %" << std::endl;
    }

private:
    std::ostream& out_;
    int tenths_ = 0;  // reported
};

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
    if (interrupting_signal()) return;  // a verdict on scenes that were declined
    if (kind == message_kind::error) {
        if (journal::instance().last_failed()) return;
        console_.error << text << std::endl;
    } else if (!options_.quiet) {
        console_.out << text << std::endl;
    }
}

std::optional<bool> console_messages::ask(const std::string& text) {
    if (options_.questions != answering::ask) {
        const bool yes = options_.questions == answering::yes;
        if (!options_.quiet)
            console_.out << text << ' ' << (yes ? in_language("да", "yes") : in_language("нет", "no"))
                         << std::endl;
        return yes;
    }
    if (console_.answers) return ask_terminal(text);
    console_.error << text << '\n'
                   << in_language("Спросить некого: ответьте заранее с --yes или --no.",
                                  "There is nobody to ask: answer beforehand with --yes or --no.")
                   << std::endl;
    return {};
}

std::optional<bool> console_messages::ask_terminal(const std::string& text) {
    for (std::string line;;) {
        console_.out << text << in_language(" [д/Н] ", " [y/N] ") << std::flush;
        if (&console_.in == &std::cin && !wait_for_input(STDIN_FILENO)) return {};
        if (!std::getline(console_.in, line)) return {};
        if (const auto answer = parse_answer(line)) return answer;
    }
}

std::unique_ptr<progress_display> console_messages::open_progress() {
    if (options_.quiet) return nullptr;
    if (console_.draws_a_bar) return std::make_unique<progress_bar>(console_.out);
    return std::make_unique<progress_lines>(console_.out);
}

}  // namespace oxhost
