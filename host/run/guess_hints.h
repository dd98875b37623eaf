#pragma once
/// What a project tells of the lines whose projection is to be guessed. [ui]

#include <vector>

#include "geodesy/guess.h"
#include "project/project.h"

namespace oxhost::run {

/// Of its lines that have a projection and are not asked for; of many, some from all over the list.
guess_hints hints_of(project& opened, const std::vector<scene*>& asked);

}  // namespace oxhost::run
