#pragma once
/// Looks through the scenes of the open project.

#include <stddef.h>

struct survey {
    unsigned profiles;
    unsigned without_projection;
    unsigned in_that_projection;
};

/// Counts the profile scenes; `projection` is a proj4 text to compare theirs with.
struct survey survey_scenes(const wchar_t* projection);
