#include "exchange/line_parts.h"

#include <ogr_geometry.h>

namespace oxhost {

namespace {

section_line line_of(const OGRLineString& source, bool northing_first) {
    section_line line;
    const auto count = static_cast<std::size_t>(source.getNumPoints());
    if (count == 0) return line;
    line.xy.resize(count);
    if (source.Is3D()) line.z.resize(count);
    if (source.IsMeasured()) line.m.resize(count);
    double* first = &line.xy[0].x;
    double* second = &line.xy[0].y;
    if (northing_first) std::swap(first, second);
    constexpr int step = sizeof(double);
    source.getPoints(first, sizeof(point), second, sizeof(point), line.z.empty() ? nullptr : line.z.data(),
                     step, line.m.empty() ? nullptr : line.m.data(), step);
    return line;
}

class collector {
public:
    collector(bool northing_first, import_notes& notes) : northing_first_(northing_first), notes_(notes) {}

    void take(const OGRGeometry& geometry) {
        const auto type = wkbFlatten(geometry.getGeometryType());
        if (type == wkbLineString) return add(*geometry.toLineString());
        if (OGR_GT_IsCurve(type)) return take_chords(*geometry.toCurve());
        if (type == wkbMultiLineString || type == wkbMultiCurve) return take_members(geometry);
        if (type == wkbGeometryCollection) {
            const std::size_t before = lines.size();
            take_members(geometry);
            return notes_.count(loss::out_of_collection, lines.size() - before);
        }
        if (type == wkbPoint || type == wkbMultiPoint) return notes_.count(loss::points);
        const bool polygons =
            OGR_GT_IsSubClassOf(type, wkbCurvePolygon) || OGR_GT_IsSubClassOf(type, wkbMultiSurface);
        notes_.count(polygons ? loss::polygons : loss::other_shapes);
    }

    std::vector<section_line> lines;

private:
    void add(const OGRLineString& line) { lines.push_back(line_of(line, northing_first_)); }

    void take_members(const OGRGeometry& collection) {
        const OGRGeometryCollection& members = *collection.toGeometryCollection();
        if (members.getNumGeometries() == 0 && wkbFlatten(members.getGeometryType()) != wkbGeometryCollection)
            lines.emplace_back();  // a line of several parts without any
        for (const OGRGeometry* member : members) take(*member);
    }

    void take_chords(const OGRCurve& curve) {
        const bool bent = curve.hasCurveGeometry(TRUE);
        const OGRGeometryUniquePtr straight(curve.getLinearGeometry());
        if (!straight || wkbFlatten(straight->getGeometryType()) != wkbLineString)
            return notes_.count(loss::other_shapes);
        notes_.count(loss::chords, bent ? 1 : 0);
        if (curve.IsMeasured() && !straight->IsMeasured()) notes_.count(loss::curve_measures);
        add(*straight->toLineString());
    }

    bool northing_first_;
    import_notes& notes_;
};

}  // namespace

std::vector<section_line> line_parts(const OGRGeometry& geometry, bool northing_first, import_notes& notes) {
    collector found(northing_first, notes);
    found.take(geometry);
    return std::move(found.lines);
}

}  // namespace oxhost
