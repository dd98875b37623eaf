#include "run/import_run.h"

#include <algorithm>
#include <memory>

#include "base/files.h"
#include "base/language.h"
#include "base/memo.h"
#include "geodesy/crs_import.h"
#include "geodesy/projection_files.h"
#include "geodesy/text_difference.h"
#include "project/addition.h"
#include "run/request.h"

namespace oxhost::run {

namespace {

namespace fs = std::filesystem;

/// The project that scenes are added to, made with the first layer that has any. All are kept by `commit`;
/// without it none, and a project that was made for them vanishes.
class destination final : public scene_taker {
public:
    explicit destination(project& opened) { add_to(opened); }
    explicit destination(const fs::path& file) : file_(file) {
        std::error_code ignored;
        fresh_ = !fs::exists(file, ignored);
        if (fresh_)
            check_writable(file);
        else
            own(open_project(file, open_mode::read_write));
    }
    ~destination() override {
        added_.reset();
        if (fresh_ && own_) try {
                own_->discard();
            } catch (const std::exception&) {  // what made the import fail is told
            }
    }
    destination(const destination&) = delete;
    destination& operator=(const destination&) = delete;

    std::vector<std::string> begin_layer(std::span<const field> fields) override {
        if (!added_) own(project::create(file_));
        return added_->take_fields(fields);
    }
    void take(const new_scene& scene) override {
        if (on_scene) on_scene(added_->count());
        added_->add(scene);
    }
    std::function<void(std::size_t scenes)> on_scene;

    std::size_t count() const { return added_ ? added_->count() : 0; }
    void commit() {
        added_->commit();
        fresh_ = false;
        added_.reset();
        if (own_) own_->close();
    }

private:
    void add_to(project& opened) { added_.emplace(opened); }
    void own(std::unique_ptr<project> opened) {
        own_ = std::move(opened);
        add_to(*own_);
    }

    fs::path file_;
    bool fresh_ = false;
    std::unique_ptr<project> own_;
    std::optional<addition> added_;
};

std::string text_of_prj(const fs::path& file) try {
    return load_prj(file.string());
} catch (const file_error&) {
    return {};
}

import_options options_of(const import_order& asked) {
    import_options how;
    if (asked.target) how.proj4 = read_target(*asked.target).proj4;
    how.not_profile = asked.not_profile;
    how.layer = asked.layer;
    how.points = asked.points;
    how.crs_text = [known = std::make_shared<memo<std::string>>(1000)](std::string_view definition) {
        return known->of(definition, [&] { return import_crs(definition).value_or(""); });
    };
    how.crs_difference = [](std::string_view definition, std::string_view proj4) {
        return difference_line(difference_of(definition, proj4, current_language()), current_language());
    };
    how.prj_text = text_of_prj;
    return how;
}

void refuse_itself(const fs::path& project, const import_order& asked) {
    for (const fs::path& source : asked.sources) {
        std::error_code ignored;
        if (fs::equivalent(source, project, ignored))
            throw failure(trouble::refused,
                          source.string() + words(": это сам проект", ": is the project itself"));
    }
}

[[noreturn]] void fail_without_lines(const fs::path& source, const import_report& report) {
    std::string line = source.string() + words(": нет линий", ": no lines");
    if (!report.losses.empty()) line += "; " + report.losses;
    for (const std::string& each : report.remarks) line += "; " + each;
    throw failure(trouble::refused, line);
}

std::vector<std::string> lines_of(const import_order& asked, const std::vector<import_report>& reports) {
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < reports.size(); ++i) {
        const std::string source = asked.sources[i].string() + ": ";
        lines.push_back(source + std::to_string(reports[i].scenes) + words(" сцен", " scenes"));
        if (!reports[i].losses.empty()) lines.back() += "; " + reports[i].losses;
        for (const std::string& each : reports[i].remarks) lines.push_back(source + each);
    }
    return lines;
}

template <class Project>
std::vector<std::string> import_all(Project&& to, const import_order& asked) try {
    const import_options how = options_of(asked);
    std::vector<import_report> reports;
    destination scenes(to);
    for (std::size_t i = 0; i < asked.sources.size(); ++i) {
        if (asked.progress) scenes.on_scene = [&](std::size_t count) { asked.progress(i, count); };
        reports.push_back(load_exchange().import_lines(asked.sources[i], how, scenes));
    }
    if (scenes.count() == 0) fail_without_lines(asked.sources.front(), reports.front());
    scenes.commit();
    return lines_of(asked, reports);
} catch (const exchange_error& e) {
    throw failure(trouble::unreadable, e.what());
} catch (const project_error& e) {
    throw failure(trouble::refused, e.what());
}

}  // namespace

std::vector<std::string> import_into(project& opened, const import_order& asked) {
    refuse_itself(opened.path(), asked);
    return import_all(opened, asked);
}

std::vector<std::string> import_into(const fs::path& file, const import_order& asked) {
    refuse_itself(file, asked);
    return import_all(file, asked);
}

}  // namespace oxhost::run
