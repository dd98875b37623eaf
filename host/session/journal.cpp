#include "session/journal.h"

namespace oxhost {

journal& journal::instance() {
    static journal only;
    return only;
}

void journal::begin(std::size_t scene) {
    updates_.emplace_back().scene = scene;
    open_ = true;
}

}  // namespace oxhost
