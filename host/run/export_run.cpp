#include "run/export_run.h"

#include <cmath>

#include "base/language.h"
#include "base/text.h"
#include "exchange/exchange.h"
#include "exchange/formats.h"
#include "geodesy/transformation.h"
#include "run/outputs.h"

namespace oxhost::run {

namespace {

/// Brings a scene into the target, or ends the job with the scene's name.
void transform(new_scene& copy, const scene& original, const std::string& target) {
    const auto fail = [&](const std::string& reason) {
        throw failure(trouble::scene,
                      original.owner->path().string() + ": " + name_of(original) + ": " + reason);
    };
    try {
        const auto way = transformation::between(copy.proj4, target);
        if (way->is_needed())
            if (const auto failed = way->apply(copy.line->xy))
                fail(words("вершина ", "vertex ") + std::to_string(failed->vertex) + ": " + failed->reason);
    } catch (const std::invalid_argument& refused) {
        fail(refused.what());
    }
    copy.proj4 = target;
}

/// Has a line go on beyond 180 degrees where it would jump to the other end of the world. Whether it did.
bool unwrap(polyline& line) {
    bool changed = false;
    for (std::size_t i = 1; i < line.size(); ++i) {
        const double turns = std::round((line[i].x - line[i - 1].x) / 360);
        line[i].x -= 360 * turns;
        changed |= turns != 0;
    }
    return changed;
}

/// Reads the scenes of a plan one after the other, in the coordinates that it wants.
class scene_source {
public:
    scene_source(project& opened, const export_plan& plan) : opened_(opened), plan_(plan) {}

    std::optional<layered_scene> next() {
        if (next_ == plan_.scenes.size()) return {};
        const scene& original = *plan_.scenes[next_];
        layered_scene made{
            plan_.layer_of[next_++],
            {original.caption, original.profile, original.proj4, {}, opened_.read_values(original)}};
        if (!original.line) return made;
        made.scene.line = opened_.read_line(original);
        const std::string& target = plan_.layers[made.layer].proj4;
        if (!plan_.transforms || target.empty() || original.line->vertices == 0) return made;
        transform(made.scene, original, target);
        if (plan_.unwraps) unwrapped_ += unwrap(made.scene.line->xy);
        return made;
    }
    std::size_t unwrapped() const { return unwrapped_; }
    double share() const {
        return static_cast<double>(next_) /
               static_cast<double>(std::max<std::size_t>(plan_.scenes.size(), 1));
    }

private:
    project& opened_;
    const export_plan& plan_;
    std::size_t next_ = 0;
    std::size_t unwrapped_ = 0;
};

std::string summary_of(const export_plan& plan) {
    std::string told = std::to_string(plan.scenes.size()) + words(" сцен", " scenes");
    if (plan.layers.size() > 1) {
        std::string layers;
        for (const planned_layer& each : plan.layers)
            append_item(layers, each.written.name + ' ' + std::to_string(each.scenes));
        told += words(", слоёв ", ", layers ") + std::to_string(plan.layers.size()) + ": " + layers;
    } else if (plan.unwraps && !plan.layers.front().proj4.empty()) {
        told += words(", долгота и широта WGS 84", ", longitude and latitude on WGS 84");
    }
    return told;
}

}  // namespace

export_result export_scenes(project& opened, std::vector<scene*> scenes, const export_wish& asked) {
    std::optional<target> goal;
    if (asked.target) goal = read_target(*asked.target);
    if (goal && goal->none())
        throw failure(trouble::refused, words("экспорту нужна проекция, а не \"none\"",
                                              "export needs a projection to transform to, not \"none\""));
    for (const auto& each : files_of(asked.out)) check_output(each, asked.overwrite);
    const export_plan plan = plan_export(std::move(scenes), asked.out, goal);
    scene_source source(opened, plan);
    export_order order{asked.out, asked.overwrite, {}, opened.fields(), plan.prj, plan.companion, [&] {
                           if (asked.progress) asked.progress(source.share());
                           return source.next();
                       }};
    for (const planned_layer& each : plan.layers) order.layers.push_back(each.written);
    export_result told{plan.remarks, {}};
    for (std::string& each : load_exchange().export_lines(order)) told.warnings.push_back(std::move(each));
    if (source.unwrapped())
        told.warnings.push_back(words("линии, пересекающие 180°, с долготами за 180: ",
                                      "lines across 180 degrees, whose longitudes go on beyond 180: ") +
                                std::to_string(source.unwrapped()));
    told.summary = summary_of(plan);
    return told;
}

}  // namespace oxhost::run
