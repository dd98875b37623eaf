#pragma once
/// Messages on a command line: information on the output, errors on the error output, questions on a
/// terminal or answered beforehand. Two verdicts of a module are not shown: on scenes that
/// were declined since the program was told to end, and on a failure that the journal knows by name.

#include <iosfwd>

#include "session/messages.h"

namespace oxhost {

/// The streams of a command line; they outlive what uses them.
struct console {
    std::ostream& out;
    std::ostream& error;
    std::istream& in;
    bool answers;      ///< somebody at a terminal reads `out` and types into `in`
    bool draws_a_bar;  ///< `out` is a terminal, which moves its cursor back on \r

    /// Of this process.
    static console standard();
};

enum class answering { ask, yes, no };

struct console_options {
    answering questions = answering::ask;
    bool quiet = false;  ///< errors and questions that are asked, nothing else
};

class console_messages final : public message_policy {
public:
    console_messages(console shown_on, console_options options) : console_(shown_on), options_(options) {}

    void show(message_kind kind, const std::string& text) override;
    std::optional<bool> ask(const std::string& text) override;
    std::unique_ptr<progress_display> open_progress() override;

private:
    std::optional<bool> ask_terminal(const std::string& text);

    console console_;
    console_options options_;
};

}  // namespace oxhost
