#pragma once
/// Which projection a line without one may have, shown on the map candidate by candidate.

#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "desktop/document.h"

namespace oxhost::desktop {

struct guessed {
    std::size_t scene = 0;  ///< number from 0
    std::string proj4;
};

/// The person's choice for one of the open project's lines without projection; `scene` is offered first, if
/// it is one of them. `show` is told where the line would lie by the candidate in hand, longitude and
/// latitude on WGS 84, and at the end an empty line. Throws project_error when no line is without projection.
std::optional<guessed> guess_projection(document& shown, std::optional<std::size_t> scene,
                                        const std::function<void(const polyline&)>& show, QWidget* over);

}  // namespace oxhost::desktop
