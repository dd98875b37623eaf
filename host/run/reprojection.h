#pragma once
/// The subcommand `reproject`.

#include "app/command.h"
#include "run/target.h"
#include "session/console_messages.h"

namespace oxhost::app {

enum class on_error { stop, skip, rollback };

struct reprojection {
    std::filesystem::path project;
    std::string to;
    bool all = false;
    std::vector<std::string> scenes;
    answering questions = answering::ask;
    bool dry_run = false;
    on_error policy = on_error::stop;
    std::filesystem::path report;  ///< empty for none
    std::filesystem::path map;     ///< empty for none
    bool quiet = false;
    std::filesystem::path bundle;
};

exit_code reproject(const reprojection& command);

}  // namespace oxhost::app
