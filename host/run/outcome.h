#pragma once
/// What became of the scenes of one reprojection, told from the journal of the host's functions.

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "project/project.h"
#include "session/journal.h"

namespace oxhost::run {

enum class outcome { reprojected, assigned, reset, unchanged, failed, not_attempted };

/// As reports spell it: "not attempted".
std::string_view name_of(outcome told);

struct scene_failure {
    std::string reason;
    std::optional<vertex_failure> vertex;
};

struct scene_result {
    scene* subject;
    std::string source;  ///< proj4 text from before
    outcome came_to = outcome::not_attempted;
    std::optional<scene_failure> failure;
    bool rolled_back = false;            ///< changed, then put back
    std::optional<double> return_error;  ///< metres, where the way back was tried
    std::size_t added_vertices = 0;
};

/// The scenes as they are before a run, none attempted.
std::vector<scene_result> before_run(const std::vector<scene*>& scenes);

using failure_listener = std::function<void(const scene_result& failed)>;

/// Takes over what the journal has recorded since `seen` records; answers how many it has now. Tells of each
/// that is a failure.
std::size_t read_journal(std::vector<scene_result>& results, const std::string& target, std::size_t seen,
                         const failure_listener& tell = {});

std::size_t count(const std::vector<scene_result>& results, outcome counted);

/// `PROJECT: scene 3 "caption": vertex 17 (x, y): reason`, of a result with a failure.
std::string failure_line(const scene_result& result);

/// "12 reprojected, 1 unchanged; 30 vertices added", in the user's language.
std::string summary(const std::vector<scene_result>& results);

}  // namespace oxhost::run
