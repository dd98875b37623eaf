#pragma once
/// What an import hands over, kept.

#include "exchange/exchange.h"
#include "workspace.h"

namespace project_test {

struct imported final : scene_taker {
    explicit imported(const fs::path& source, const import_options& options = {})
        : report(load_exchange().import_lines(source, options, *this)) {}

    std::vector<std::string> begin_layer(std::span<const field>) override { return {}; }
    void take(const new_scene& scene) override {
        scenes.push_back(scene);
        scenes.back().values.clear();
    }

    std::vector<new_scene> scenes;
    import_report report;
};

}  // namespace project_test
