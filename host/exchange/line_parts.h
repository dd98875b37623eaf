#pragma once
/// The lines that a geometry holds.

#include <vector>

#include "base/line.h"
#include "exchange/import_notes.h"

class OGRGeometry;

namespace oxhost {

/// All of them in order, with heights and measures: parts, members of collections, and the chords of curves.
/// `northing_first`: the source keeps y before x. What is no line is counted.
std::vector<section_line> line_parts(const OGRGeometry& geometry, bool northing_first, import_notes& notes);

}  // namespace oxhost
