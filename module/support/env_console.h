#pragma once
/// Diagnostics on standard output.

#include <string>

#include "support/env.h"

namespace ox {

/// One wait and one progress can be open at a time; a second is refused. Starts with debug lines on.
class Tox_env_console final : public Tox_env {
public:
    void message(const char* text) override;
    void error(const char* text) override;
    void set_debug(bool enabled) override { debug_ = enabled; }
    void debug(const char* text) override;
    handle wait_begin(const char* text) override;
    void wait_end(handle wait) override;
    /// A full run prints "0%....10%....20%" and so on up to "100%" in one line.
    handle progress_begin(const char* title) override;
    void progress_step(handle progress, std::uint32_t position, std::uint32_t total) override;
    void progress_end(handle progress, std::int32_t outcome) override;
    std::uint32_t query_state() override { return state_; }

private:
    bool debug_ = true;
    std::string wait_text_;
    handle wait_ = 0;  ///< address of the text while a wait is open
    std::string progress_title_;
    handle progress_ = 0;  ///< address of the title while a progress is open
    std::uint32_t last_percentage_ = 0;
    std::uint32_t state_ = 0;
};

}  // namespace ox
