#pragma once
/// What the host's log tells of update brackets.

#include <string>
#include <vector>

namespace oxcheck {

/// The first thing wrong: a bracket within another, a change outside its scene's bracket, one left open or
/// closed twice. Empty when all is well.
std::string bracket_fault(const std::vector<std::string>& log);

}  // namespace oxcheck
