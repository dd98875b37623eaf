#pragma once
/// All that reports and maps tell of.

#include "run/outcome.h"
#include "run/reprojection.h"

namespace oxhost::app {

struct run_record {
    const reprojection& command;
    const target& to;
    const std::vector<scene_result>& results;
    const std::vector<std::string>& warnings;
    const std::vector<polyline>& before;  ///< as many as results, in their source projections
    std::vector<polyline> after;          ///< in the projections that the scenes have now
};

}  // namespace oxhost::app
