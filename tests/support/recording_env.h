#pragma once
/// Collects what is reported while it lives.

#include <string>
#include <vector>

#include "support/env_out.h"

class recording_env {
public:
    std::vector<std::string> errors, debug_lines;

    recording_env() {
        ox::Tox_env_out::callbacks functions;
        functions.error = [](void* self, const char* text) {
            static_cast<recording_env*>(self)->errors.emplace_back(text);
        };
        functions.debug = [](void* self, const char* text) {
            static_cast<recording_env*>(self)->debug_lines.emplace_back(text);
        };
        env_.set_callbacks(this, functions);
        ox::set_env(&env_);
    }
    ~recording_env() { ox::set_env(nullptr); }
    recording_env(const recording_env&) = delete;
    recording_env& operator=(const recording_env&) = delete;

    ox::Tox_env& env() { return env_; }

private:
    ox::Tox_env_out env_;
};
