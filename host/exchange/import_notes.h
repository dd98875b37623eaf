#pragma once
/// What an import drops or changes, told in the user's language.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/language.h"

namespace oxhost {

enum class loss {
    points,
    polygons,
    other_shapes,
    no_geometry,
    not_finite,
    rows,
    chords,
    curve_measures,
    out_of_collection,
    empty_lines,
    single_vertex,
    missing_heights,
    times_in_utc,
    times_without_zone,
    unreadable_text,
    styles,
    reasons  ///< their number
};

class import_notes {
public:
    void count(loss reason, std::size_t how_many = 1) { at(reason).number += how_many; }
    /// Counts one that the user will look for; the first few are named.
    void count(loss reason, std::string_view name);
    void remark(std::string line) { remarks_.push_back(std::move(line)); }

    /// `points skipped: 3, curves made into chords: 2`.
    std::string losses() const;
    const std::vector<std::string>& remarks() const { return remarks_; }

private:
    struct counted {
        std::size_t number = 0;
        std::string names;
        std::size_t named = 0;
    };
    counted& at(loss reason) { return counts_[static_cast<std::size_t>(reason)]; }

    std::array<counted, static_cast<std::size_t>(loss::reasons)> counts_{};
    std::vector<std::string> remarks_;
};

/// `"a", "b"` or, of many, the first ten and how many more.
std::string quoted_list(const std::vector<std::string>& names);

}  // namespace oxhost
