#include "support/env_console.h"

#include <cstdio>

#include "support/lng_tables.h"
#include "support/numbers.h"

namespace ox {
namespace {

void print_line(const char* head, const char* text) { std::printf("%s%s\n", head, text); }

}  // namespace

void Tox_env_console::message(const char* text) { print_line("Message: ", text); }

void Tox_env_console::error(const char* text) { print_line("Error: ", text); }

void Tox_env_console::debug(const char* text) {
    if (debug_) print_line("Debug: ", text);
}

Tox_env::handle Tox_env_console::wait_begin(const char* text) {
    if (wait_) return 0;
    wait_text_ = text;
    wait_ = reinterpret_cast<handle>(wait_text_.c_str());
    print_line("Wait: ", wait_text_.c_str());
    return wait_;
}

void Tox_env_console::wait_end(handle wait) {
    if (!wait_ || wait != wait_) return;
    print_line("Finished: ", wait_text_.c_str());
    wait_ = 0;
}

Tox_env::handle Tox_env_console::progress_begin(const char* title) {
    if (progress_) return 0;
    progress_title_ = title;
    progress_ = reinterpret_cast<handle>(progress_title_.c_str());
    last_percentage_ = 0;
    std::printf("%s\n0%%", progress_title_.c_str());
    return progress_;
}

void Tox_env_console::progress_step(handle progress, std::uint32_t position, std::uint32_t total) {
    if (!progress_ || progress != progress_) return;
    const std::uint32_t hundredfold = position * 100u;  // wraps above 42,949,672
    const std::int64_t percentage = truncated(static_cast<double>(hundredfold) / total + 0.5);
    if (percentage <= last_percentage_) return;
    for (std::int64_t value = last_percentage_ + std::int64_t{1}; value <= percentage; ++value) {
        if (value % 10 == 0 && value <= 100) {
            std::printf("%d%%", static_cast<int>(value));
        } else if (value % 2 == 0) {
            std::putchar('.');
        }
    }
    last_percentage_ = static_cast<std::uint32_t>(percentage);
}

void Tox_env_console::progress_end(handle progress, std::int32_t outcome) {
    if (!progress_ || progress != progress_) return;
    progress_ = 0;
    const std::int32_t word = outcome == outcome_done ? 0 : outcome == outcome_user_stop ? 1 : 2;
    print_line(" - ", lng_text(lng_group_outcomes, word));
}

}  // namespace ox
