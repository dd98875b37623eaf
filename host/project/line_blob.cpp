#include "project/line_blob.h"

#include <array>
#include <string>

#include "base/byte_view.h"
#include "base/language.h"

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
constexpr std::uint32_t iso_heights = 1000, iso_measures = 2000;  // added to the type
constexpr std::uint32_t ewkb_heights = 0x80000000, ewkb_measures = 0x40000000;

std::size_t vertex_size(bool heights, bool measures) {
    return (2 + std::size_t{heights} + std::size_t{measures}) * sizeof(double);
}

/// The vertices of a blob that passed all checks.
struct vertex_block {
    std::endian order;
    std::size_t count;
    bool heights, measures;
    byte_view bytes;

    double number() { return bytes.read<double>(order); }
    point place() { return {.x = number(), .y = number()}; }
};

/// What the type of a well-known-binary geometry says, in either spelling of its dimensions.
struct geometry_type {
    std::uint32_t plain;
    bool heights, measures;

    explicit geometry_type(std::uint32_t code) {
        const std::uint32_t flags = code & (ewkb_heights | ewkb_measures);
        const std::uint32_t iso = code & ~flags;
        const std::uint32_t dimensions = iso / 1000;
        heights = (flags & ewkb_heights) || dimensions == 1 || dimensions == 3;
        measures = (flags & ewkb_measures) || dimensions == 2 || dimensions == 3;
        plain = dimensions > 3 || (flags && dimensions) ? code : iso % 1000;
    }
};

std::string name_of_type(std::uint32_t code) {
    constexpr std::array names{"Geometry",   "Point",           "LineString",   "Polygon",
                               "MultiPoint", "MultiLineString", "MultiPolygon", "GeometryCollection"};
    return code < names.size() ? names[code] : words("типа ", "geometry of type ") + std::to_string(code);
}

[[noreturn]] void refuse(std::string_view russian, std::string_view english) {
    throw blob_error(words(russian, english));
}

vertex_block open_blob(std::span<const std::byte> blob) try {
    byte_view view(blob);
    const auto magic = view.take(3);
    if (magic[0] != letter_g || magic[1] != letter_p)
        refuse("геометрия не в записи GeoPackage", "geometry is no GeoPackage blob");
    if (magic[2] != std::byte{0})
        refuse("неизвестная версия записи геометрии", "geometry has an unknown blob version");
    const unsigned flags = view.read_byte();
    if (flags & flag_extended) refuse("геометрия расширенного типа", "geometry is of an extended type");
    const unsigned envelope = (flags >> 1) & 7;
    if (envelope >= envelope_sizes.size())
        refuse("неизвестный вид охвата геометрии", "geometry has an unknown kind of envelope");
    view.take(4);  // srs_id: the scene's projection is the text beside the line
    view.take(envelope_sizes[envelope]);

    const unsigned order_mark = view.read_byte();
    if (order_mark > 1) refuse("неизвестный порядок байтов геометрии", "geometry has an unknown byte order");
    const std::endian order = order_mark == 1 ? std::endian::little : std::endian::big;
    const geometry_type type(view.read<std::uint32_t>(order));
    if (type.plain != wkb_line_string)
        throw blob_error(words("геометрия ", "geometry is a ") + name_of_type(type.plain) +
                         words(", а не LineString", ", not a LineString"));
    const std::size_t count = view.read<std::uint32_t>(order);
    const std::size_t size = vertex_size(type.heights, type.measures);
    if (view.rest().size() / size < count) throw cut_short();
    if (view.rest().size() != count * size)
        refuse("лишние байты после геометрии", "geometry has bytes after its end");
    return {order, count, type.heights, type.measures, view};
} catch (const cut_short&) {
    refuse("геометрия обрезана", "geometry is cut short");
}

template <class T>
std::byte* put(std::byte* place, T value) {
    value = little_endian(value);
    std::memcpy(place, &value, sizeof(T));
    return place + sizeof(T);
}

}  // namespace

line_summary summarize(const section_line& line) {
    line_summary summary{
        .vertices = line.xy.size(), .bounds = {}, .heights = !line.z.empty(), .measures = !line.m.empty()};
    for (const point& p : line.xy) summary.bounds.add(p);
    return summary;
}

void encode_line(const section_line& line, std::vector<std::byte>& blob) {
    const auto [vertices, bounds, heights, measures] = summarize(line);
    const unsigned envelope = bounds.empty() ? 0 : envelope_xy;
    blob.resize(8 + envelope_sizes[envelope] + 9 + vertices * vertex_size(heights, measures));
    std::byte* place = put(blob.data(), letter_g);
    place = put(place, letter_p);
    place = put(place, std::byte{0});
    const unsigned flags = flag_little_endian | envelope << 1 | (vertices == 0 ? flag_empty : 0);
    place = put(place, static_cast<std::uint8_t>(flags));
    place = put(place, undefined_cartesian_srs);
    if (envelope == envelope_xy)
        for (double edge : {bounds.min_x, bounds.max_x, bounds.min_y, bounds.max_y}) place = put(place, edge);
    place = put(place, std::uint8_t{1});
    place = put(place, wkb_line_string + (heights ? iso_heights : 0) + (measures ? iso_measures : 0));
    place = put(place, static_cast<std::uint32_t>(vertices));
    for (std::size_t i = 0; i < vertices; ++i) {
        place = put(put(place, line.xy[i].x), line.xy[i].y);
        if (heights) place = put(place, line.z[i]);
        if (measures) place = put(place, line.m[i]);
    }
}

void decode_line(std::span<const std::byte> blob, section_line& line) {
    vertex_block vertices = open_blob(blob);
    line.xy.resize(vertices.count);
    line.z.resize(vertices.heights ? vertices.count : 0);
    line.m.resize(vertices.measures ? vertices.count : 0);
    for (std::size_t i = 0; i < vertices.count; ++i) {
        line.xy[i] = vertices.place();
        if (vertices.heights) line.z[i] = vertices.number();
        if (vertices.measures) line.m[i] = vertices.number();
    }
}

line_summary summarize_blob(std::span<const std::byte> blob) {
    vertex_block vertices = open_blob(blob);
    line_summary summary{
        .vertices = vertices.count, .bounds = {}, .heights = vertices.heights, .measures = vertices.measures};
    const int carried = int{vertices.heights} + int{vertices.measures};
    for (std::size_t i = 0; i < vertices.count; ++i) {
        summary.bounds.add(vertices.place());
        for (int skipped = 0; skipped < carried; ++skipped) vertices.number();
    }
    return summary;
}

}  // namespace oxhost
