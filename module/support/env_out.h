#pragma once
/// Diagnostics handed to the code that embeds this one.

#include "support/env.h"

namespace ox {

/// Each operation calls its callback with the context first; without a callback it does nothing and
/// answers 0.
class Tox_env_out final : public Tox_env {
public:
    /// In the order of the operations. The context belongs to the caller.
    struct callbacks {
        void (*message)(void* context, const char* text) = nullptr;
        void (*error)(void* context, const char* text) = nullptr;
        void (*set_debug)(void* context, bool enabled) = nullptr;
        void (*debug)(void* context, const char* text) = nullptr;
        handle (*wait_begin)(void* context, const char* text) = nullptr;
        void (*wait_end)(void* context, handle wait) = nullptr;
        handle (*progress_begin)(void* context, const char* title) = nullptr;
        void (*progress_step)(void* context, handle progress, std::uint32_t position,
                              std::uint32_t total) = nullptr;
        void (*progress_end)(void* context, handle progress, std::int32_t outcome) = nullptr;
        std::uint32_t (*query_state)(void* context) = nullptr;
    };

    void set_callbacks(void* context, const callbacks& functions) {
        context_ = context;
        functions_ = functions;
    }

    void message(const char* text) override { forward(functions_.message, text); }
    void error(const char* text) override { forward(functions_.error, text); }
    void set_debug(bool enabled) override { forward(functions_.set_debug, enabled); }
    void debug(const char* text) override { forward(functions_.debug, text); }
    handle wait_begin(const char* text) override { return forward(functions_.wait_begin, text); }
    void wait_end(handle wait) override { forward(functions_.wait_end, wait); }
    handle progress_begin(const char* title) override { return forward(functions_.progress_begin, title); }
    void progress_step(handle progress, std::uint32_t position, std::uint32_t total) override {
        forward(functions_.progress_step, progress, position, total);
    }
    void progress_end(handle progress, std::int32_t outcome) override {
        forward(functions_.progress_end, progress, outcome);
    }
    std::uint32_t query_state() override { return forward(functions_.query_state); }

private:
    template <class Result, class... Arguments>
    Result forward(Result (*function)(void*, Arguments...), Arguments... arguments) {
        return function ? function(context_, arguments...) : Result();
    }

    void* context_ = nullptr;
    callbacks functions_;
};

}  // namespace ox
