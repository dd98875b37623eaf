#pragma once
/// Lines as GeoPackage geometry blobs: a header ("GP", flags, srs_id, optional envelope) and a
/// well-known-binary LineString, with Z and M where the line has them. Both byte orders are read,
/// little-endian is written.

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <vector>

#include "base/line.h"

namespace oxhost {

/// Says what is wrong with a blob: "cut short", "a Point, not a LineString", ...
struct blob_error : std::runtime_error {
    using runtime_error::runtime_error;
};

/// Undefined cartesian: every scene has a projection of its own, written as text beside the line.
inline constexpr std::int32_t undefined_cartesian_srs = -1;

/// What is kept in memory of a line whose vertices stay in the file.
struct line_summary {
    std::size_t vertices = 0;
    extent bounds;
    bool heights = false;
    bool measures = false;
};

line_summary summarize(const section_line& line);

/// Replaces the content of `blob`. A line without vertices becomes LINESTRING EMPTY.
void encode_line(const section_line& line, std::vector<std::byte>& blob);

/// Replaces the content of `line`. Throws blob_error, and then leaves `line` alone: damaged blobs, other
/// geometry types.
void decode_line(std::span<const std::byte> blob, section_line& line);

/// The same checks without keeping the vertices.
line_summary summarize_blob(std::span<const std::byte> blob);

}  // namespace oxhost
