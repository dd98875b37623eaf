#include "project/line_blob.h"

#include <array>
#include <string>

#include "base/byte_view.h"

namespace oxhost {

namespace {

constexpr std::byte letter_g{'G'};
constexpr std::byte letter_p{'P'};
constexpr unsigned flag_little_endian = 0x01;
constexpr unsigned flag_empty = 0x10;
constexpr unsigned flag_extended = 0x20;
constexpr unsigned envelope_xy = 1;
constexpr std::array<std::size_t, 5> envelope_sizes{0, 32, 48, 48, 64};  // none, xy, xyz, xym, xyzm
constexpr std::uint32_t wkb_line_string = 2;
constexpr std::size_t vertex_size = 2 * sizeof(double);

/// The vertices of a blob that passed all checks.
struct vertex_block {
    std::endian order;
    std::size_t count;
    byte_view bytes;
    point next() { return {.x = bytes.read<double>(order), .y = bytes.read<double>(order)}; }
};

std::string name_of_type(std::uint32_t code) {
    constexpr std::array names{"Geometry",   "Point",           "LineString",   "Polygon",
                               "MultiPoint", "MultiLineString", "MultiPolygon", "GeometryCollection"};
    return code < names.size() ? names[code] : "geometry of type " + std::to_string(code);
}

vertex_block open_blob(std::span<const std::byte> blob) try {
    byte_view view(blob);
    const auto magic = view.take(3);
    if (magic[0] != letter_g || magic[1] != letter_p) throw blob_error("geometry is no GeoPackage blob");
    if (magic[2] != std::byte{0}) throw blob_error("geometry has an unknown blob version");
    const unsigned flags = view.read_byte();
    if (flags & flag_extended) throw blob_error("geometry is of an extended type");
    const unsigned envelope = (flags >> 1) & 7;
    if (envelope >= envelope_sizes.size()) throw blob_error("geometry has an unknown kind of envelope");
    view.take(4);  // srs_id: the scene's projection is the text beside the line
    view.take(envelope_sizes[envelope]);

    const unsigned order_mark = view.read_byte();
    if (order_mark > 1) throw blob_error("geometry has an unknown byte order");
    const std::endian order = order_mark == 1 ? std::endian::little : std::endian::big;
    const auto type = view.read<std::uint32_t>(order);
    const bool heights = type >= 1000 || (type & 0xC0000000U) != 0;  // ISO thousands, or the EWKB high bits
    const auto plain = (type & 0x0FFFFFFFU) % 1000;
    if (plain != wkb_line_string)
        throw blob_error("geometry is a " + name_of_type(plain) + ", not a LineString");
    if (heights) throw blob_error("geometry has heights or measures (lines are 2D)");
    if (type != wkb_line_string) throw blob_error("geometry has an unknown type");
    const std::size_t count = view.read<std::uint32_t>(order);
    if (view.rest().size() / vertex_size < count) throw cut_short();
    if (view.rest().size() != count * vertex_size) throw blob_error("geometry has bytes after its end");
    return {.order = order, .count = count, .bytes = view};
} catch (const cut_short&) {
    throw blob_error("geometry is cut short");
}

template <class T>
std::byte* put(std::byte* place, T value) {
    value = little_endian(value);
    std::memcpy(place, &value, sizeof(T));
    return place + sizeof(T);
}

}  // namespace

line_summary summarize(std::span<const point> line) {
    line_summary summary{.vertices = line.size(), .bounds = {}};
    for (const point& p : line) summary.bounds.add(p);
    return summary;
}

void encode_line(std::span<const point> line, std::vector<std::byte>& blob) {
    const extent bounds = summarize(line).bounds;
    const unsigned envelope = bounds.empty() ? 0 : envelope_xy;
    blob.resize(8 + envelope_sizes[envelope] + 9 + line.size() * vertex_size);
    std::byte* place = put(blob.data(), letter_g);
    place = put(place, letter_p);
    place = put(place, std::byte{0});
    const unsigned flags = flag_little_endian | envelope << 1 | (line.empty() ? flag_empty : 0);
    place = put(place, static_cast<std::uint8_t>(flags));
    place = put(place, undefined_cartesian_srs);
    if (envelope == envelope_xy)
        for (double edge : {bounds.min_x, bounds.max_x, bounds.min_y, bounds.max_y}) place = put(place, edge);
    place = put(place, std::uint8_t{1});
    place = put(place, wkb_line_string);
    place = put(place, static_cast<std::uint32_t>(line.size()));
    for (const point& p : line) place = put(put(place, p.x), p.y);
}

void decode_line(std::span<const std::byte> blob, polyline& line) {
    vertex_block vertices = open_blob(blob);
    line.resize(vertices.count);
    for (point& p : line) p = vertices.next();
}

line_summary summarize_blob(std::span<const std::byte> blob) {
    vertex_block vertices = open_blob(blob);
    line_summary summary{.vertices = vertices.count, .bounds = {}};
    for (std::size_t i = 0; i < vertices.count; ++i) summary.bounds.add(vertices.next());
    return summary;
}

}  // namespace oxhost
