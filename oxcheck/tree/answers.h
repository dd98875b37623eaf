#pragma once
/// What an element answers, to be compared with what it answers at another time.

#include <string>

#include "oxcheck/tree/element.h"

namespace oxcheck {

/// Everything that a host would draw of the element, one answer a line. Left out are the selection of a
/// table, which has its own notification, and whether a button is checked, which changes with each click,
/// drawn or not.
std::string answers_of(const element& each);

/// The selected rows of an outline and its current one.
std::string selection_of(const element& outline);

/// The first answer in which two such texts differ: "enabled 0, enabled 1".
std::string first_difference(const std::string& a, const std::string& b);

}  // namespace oxcheck
