#pragma once
/// What an element answers, to be compared with what it answers at another time.

#include <string>

#include "oxcheck/tree/element.h"

namespace oxcheck {

/// Everything that a host would draw of the element, one answer a line. Whether a button is checked is left
/// out: it changes with each click, drawn or not.
std::string answers_of(const element& each);

/// The first answer in which two such texts differ: "enabled 0, enabled 1".
std::string first_difference(const std::string& a, const std::string& b);

}  // namespace oxcheck
