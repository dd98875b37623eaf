#include "project/line_blob.h"

#include <algorithm>
#include <array>
#include <bit>
#include <vector>

#include "testing/case_name.h"

namespace {

using namespace oxhost;
using blob = std::vector<std::byte>;

void put(blob& to, auto value, bool little) {
    auto bytes = std::bit_cast<std::array<std::byte, sizeof(value)>>(value);
    if (!little) std::reverse(bytes.begin(), bytes.end());
    to.insert(to.end(), bytes.begin(), bytes.end());
}

/// A blob written by hand; what a case changes is what is wrong, or unusual, about it.
struct builder {
    char second_letter = 'P';
    unsigned version = 0, flags = 0, envelope = 1;
    bool little = true;
    unsigned order = 2;  // 2: as `little` says
    std::uint32_t type = 2, count = 2;
    std::size_t cut = 0, extra = 0;

    blob build() const {
        constexpr std::array<std::size_t, 8> doubles{0, 4, 6, 6, 8, 0, 0, 0};
        blob made;
        for (unsigned byte : {unsigned{'G'}, static_cast<unsigned>(second_letter), version,
                              flags | envelope << 1 | unsigned{little}})
            made.push_back(static_cast<std::byte>(byte));
        put(made, std::int32_t{-1}, little);
        for (std::size_t i = 0; i < doubles[envelope]; ++i) put(made, 0.0, little);
        made.push_back(static_cast<std::byte>(order == 2 ? unsigned{little} : order));
        put(made, type, little);
        put(made, count, little);
        for (double value : {1.5, -2.5, 1e300, 5e-324}) put(made, value, little);
        made.resize(made.size() - cut);
        made.resize(made.size() + extra);
        return made;
    }
};

// A complaint is expected, or none where the two vertices above are read.
using blob_case = case_of<builder, const char*>;

TEST_CASES(LineBlob, ReadsOrNames, blob_case, {"LittleEndian", {}, ""}, {"BigEndian", {.little = false}, ""},
           {"NoEnvelope", {.envelope = 0}, ""}, {"EnvelopeXyz", {.envelope = 2}, ""},
           {"EnvelopeXym", {.envelope = 3}, ""}, {"EnvelopeXyzm", {.envelope = 4, .little = false}, ""},
           {"EnvelopeUnknown", {.envelope = 5}, "geometry has an unknown kind of envelope"},
           {"Magic", {.second_letter = 'Q'}, "geometry is no GeoPackage blob"},
           {"Version", {.version = 1}, "geometry has an unknown blob version"},
           {"Extended", {.flags = 0x20}, "geometry is of an extended type"},
           {"ByteOrder", {.order = 7}, "geometry has an unknown byte order"},
           {"Point", {.type = 1}, "geometry is a Point, not a LineString"},
           {"MultiZ", {.type = 1005}, "geometry is a MultiLineString, not a LineString"},
           {"UnknownDimensions", {.type = 4002}, "geometry is a geometry of type 4002, not a LineString"},
           {"HeightsWithoutRoom", {.type = 1002}, "geometry is cut short"},
           {"CountTooLarge", {.count = 0xFFFFFFFF}, "geometry is cut short"},
           {"CountTooSmall", {.count = 1}, "geometry has bytes after its end"},
           {"Trailing", {.extra = 1}, "geometry has bytes after its end"}) {
    const blob bytes = c.given.build();
    section_line line(polyline{{7, 7}});
    try {
        decode_line(bytes, line);
        EXPECT_STREQ(c.expected, "");
        EXPECT_EQ(line, (polyline{{1.5, -2.5}, {1e300, 5e-324}}));
        EXPECT_EQ(summarize_blob(bytes).vertices, 2U);
    } catch (const blob_error& e) {
        EXPECT_STREQ(c.expected, e.what());
        EXPECT_EQ(line, (polyline{{7, 7}})) << "a refused blob must not change the line";
        EXPECT_THROW(summarize_blob(bytes), blob_error);
    }
}

/// Two doubles a vertex as heights and measures: the four numbers above are one vertex.
struct dimension_case {
    const char* name;
    std::uint32_t type;
};

TEST_CASES(LineBlobDimensions, ComeAndGo, dimension_case, {"Iso", 3002}, {"Ewkb", 0xC0000002}) {
    section_line line;
    decode_line(builder{.type = c.type, .count = 1}.build(), line);
    EXPECT_EQ(line, section_line({{1.5, -2.5}}, {1e300}, {5e-324}));
    for (const section_line& one : {line, section_line(line.xy, line.z), section_line(line.xy, {}, line.m)}) {
        blob encoded;
        section_line again;
        encode_line(one, encoded);
        decode_line(encoded, again);
        EXPECT_EQ(again, one);
        const line_summary told = summarize_blob(encoded);
        EXPECT_TRUE(told.heights == !one.z.empty() && told.measures == !one.m.empty() && told.vertices == 1);
    }
}

TEST(LineBlob, EveryShorterPieceIsCutShort) {
    const std::size_t size = builder{}.build().size();
    for (std::size_t cut = 1; cut <= size; ++cut) {
        blob piece = builder{.cut = cut}.build();
        piece.shrink_to_fit();  // so that a sanitizer sees a read behind the end
        EXPECT_THROW(summarize_blob(piece), blob_error) << "cut by " << cut;
    }
}

}  // namespace
