#include "run/preview.h"

#include <algorithm>

#include "session/aside.h"

namespace oxhost::run {

namespace {

/// Says yes to everything and shows nothing.
class consenting final : public message_policy {
public:
    explicit consenting(const std::function<void(double)>& progress) : progress_(progress) {}
    void show(message_kind, const std::string&) override {}
    std::optional<bool> ask(const std::string&) override { return true; }
    std::unique_ptr<progress_display> open_progress() override {
        return progress_ ? std::make_unique<display>(progress_) : nullptr;
    }

private:
    struct display final : progress_display {
        explicit display(const std::function<void(double)>& progress) : tell(progress) {}
        void report(double fraction) override { tell(fraction); }
        const std::function<void(double)>& tell;
    };
    const std::function<void(double)>& progress_;
};

order order_of(project& opened, const preview_order& asked) {
    order wanted;
    wanted.project = opened.path();
    wanted.target = asked.target.empty() ? "none" : asked.target;
    wanted.scenes.emplace();
    for (const std::size_t each : asked.scenes) wanted.scenes->push_back(std::to_string(each));
    wanted.dry_run = true;
    wanted.policy = on_error::skip;
    wanted.keep_lines = true;
    wanted.bundle = asked.bundle;
    return wanted;
}

foreseen_scene foreseen_of(const record& told, std::size_t i) {
    const scene_result& result = told.results[i];
    foreseen_scene seen{.index = result.subject->index,
                        .caption = result.subject->caption,
                        .comes_to = result.came_to,
                        .failure = result.failure,
                        .judged = judge(told, i),
                        .way = shift_on_map(told, i),
                        .warnings = {},
                        .before = placed(told.before[i], result.source),
                        .after = placed(told.after[i], result.subject->proj4)};
    const std::string own = name_of(*result.subject) + ": ";
    for (const std::string& each : told.warnings)
        if (each.starts_with(own)) seen.warnings.push_back(each.substr(own.size()));
    return seen;
}

}  // namespace

foreseen foresee(project& opened, const preview_order& asked, const std::function<void(double)>& progress) {
    const aside within(std::make_unique<consenting>(progress));
    reprojection work(order_of(opened, asked), opened.scratch_copy());
    foreseen all;
    all.warnings = work.warnings();
    all.operations = work.operations();
    work.perform();
    all.will_ask = std::ranges::any_of(messages::instance().shown(), [](const shown_message& each) {
        return each.kind == message_kind::question;
    });
    const record told = work.told();
    for (std::size_t i = 0; i < told.results.size(); ++i) all.scenes.push_back(foreseen_of(told, i));
    all.summary = summary(told.results);
    return all;
}

}  // namespace oxhost::run
