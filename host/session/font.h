#pragma once
/// What the host's font handles point at. Made with new by the host part that hands a font out; ended
/// by its owner through oxk_basic.

#include <string>

namespace oxhost {

struct font_type {
    std::string family;  ///< UTF-8; empty for the view's own
    double points = 0;   ///< 0 for the view's own
    bool bold = false;
    bool italic = false;
};

}  // namespace oxhost
