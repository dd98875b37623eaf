#pragma once
/// From one coordinate system to another. Lines are 2D: no height enters or leaves, also not between the
/// two datum shifts of a pair. [ui]

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/line.h"
#include "geodesy/crs.h"

namespace oxhost {

/// For reports.
struct operation_info {
    std::string name;
    std::string definition;          ///< a PROJ pipeline
    std::optional<double> accuracy;  ///< metres; PROJ's, else the sum of the published shifts' accuracies
    std::string source_shift;  ///< published shift that the source's towgs84 is, with its code, or empty
    std::string target_shift;
};

class transformation {
public:
    /// Prepared once per pair of texts and kept. Throws std::invalid_argument, with PROJ's reason, for
    /// an empty or refused text or a pair without a way between.
    static std::shared_ptr<const transformation> between(std::string_view source, std::string_view target);

    /// False when both texts define the same coordinate system.
    bool is_needed() const { return needed_; }
    /// In place, all or nothing: when a vertex cannot be transformed or comes out non-finite, the line
    /// is as it was and the answer names the first such vertex.
    std::optional<vertex_failure> apply(polyline& line) const;
    /// The same, where PROJ's work is done: `image` is what a lane made of the line.
    std::optional<vertex_failure> accept(polyline& line, polyline image) const;
    /// May other threads take a share, through lanes, without a difference in any bit or report? Not where
    /// more than one operation serves the pair, since PROJ remembers which it used.
    bool can_share() const { return single_operation_ && !target_->lon_wrap; }
    /// Is there a way back at all?
    bool has_return() const { return has_return_; }
    /// Backwards, in place: vertices that cannot be brought back become infinite.
    void bring_back(polyline& line) const;
    const crs& source() const { return *source_; }
    const crs& target() const { return *target_; }
    /// Where more than one operation serves the pair (NAD27), the one last used.
    operation_info operation() const;
    /// Does one operation serve all places of the pair?
    bool is_single() const { return single_operation_; }

    /// PROJ's objects for one pair, for one thread.
    class lane {
    public:
        /// While no other thread works with `way`; empty when PROJ cannot copy its objects.
        static std::optional<lane> of(const transformation& way);
        void transform(std::span<point> line) const;  ///< vertices without a place become infinite
        void bring_back(std::span<point> line) const;

    private:
        struct context_deleter {
            void operator()(PJ_CONTEXT* context) const { proj_context_destroy(context); }
        };
        std::unique_ptr<PJ_CONTEXT, context_deleter> context_;
        pj_ptr pipeline_;
    };

private:
    transformation() = default;
    static std::shared_ptr<const transformation> prepare(std::string_view source, std::string_view target);
    std::optional<vertex_failure> first_failure(const polyline& before, const polyline& after) const;

    operation_info describe() const;

    std::shared_ptr<const crs> source_;
    std::shared_ptr<const crs> target_;
    bool needed_ = true;
    bool has_return_ = true;
    bool single_operation_ = true;
    mutable std::optional<operation_info> described_;  ///< once asked for, where it stays the same
    pj_ptr pipeline_;
};

/// Can PROJ find the longitude and latitude of places in the projection? Also true for a text it refuses.
bool has_inverse(std::string_view proj4);

}  // namespace oxhost
