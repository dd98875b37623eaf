#include "project/project.h"

namespace oxhost {

namespace {

project* current = nullptr;

}  // namespace

project* current_project() { return current; }
void set_current_project(project* opened) { current = opened; }

}  // namespace oxhost
