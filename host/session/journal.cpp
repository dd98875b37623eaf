#include "session/journal.h"

#include <utility>

namespace oxhost {

journal& journal::instance() {
    static journal only;
    return only;
}

void journal::clear() {
    updates_.clear();
    open_ = false;
    file_failure_.reset();
}

void journal::begin(std::size_t scene) {
    updates_.emplace_back().scene = scene;
    open_ = true;
}

bool journal::last_failed() const { return !updates_.empty() && updates_.back().failed(); }

void journal::file_function_ended(std::optional<std::string> failure) { file_failure_ = std::move(failure); }

std::optional<std::string> journal::take_file_failure() { return std::exchange(file_failure_, {}); }

}  // namespace oxhost
