#include "desktop/document.h"

#include <algorithm>

#include "base/language.h"
#include "desktop/text.h"

namespace oxhost::desktop {

document::document() {
    settled_.setSingleShot(true);
    settled_.setInterval(300);
    connect(&settled_, &QTimer::timeout, this, &document::look_for_changes);
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, [this] { settled_.start(); });
}

document::~document() = default;

void document::take(std::unique_ptr<project> read, const std::filesystem::path& file) {
    project_ = std::move(read);
    file_ = file;
    std::error_code ignored;
    seen_ = std::filesystem::last_write_time(file, ignored);
    watcher_.addPath(name_of_file(file));
}

void document::begin_again() {
    std::erase_if(selected_, [&](std::size_t each) { return !project_ || each >= project_->size(); });
    Q_EMIT reset();
    Q_EMIT selection_changed();
}

void document::open(const std::filesystem::path& file) {
    auto next = project::open(file, open_mode::scratch);
    close();
    take(std::move(next), file);
    begin_again();
}

void document::create(const std::filesystem::path& file) {
    project::create(file)->close();
    open(file);
}

void document::close() {
    if (!file_.empty()) watcher_.removePath(name_of_file(file_));
    project_.reset();
    file_.clear();
    selected_.clear();
    begin_again();
}

void document::change(const std::function<void(project&)>& work) {
    if (changing_ || !project_)
        throw project_error(file_.string() +
                            words(": проект уже изменяется", ": the project is being changed already"));
    auto writable = project::open(file_, open_mode::read_write);
    struct reopening {
        document& all;
        ~reopening() {
            all.project_.reset();
            all.changing_ = false;
            try {
                all.take(project::open(all.file_, open_mode::scratch), std::filesystem::path(all.file_));
            } catch (const project_error& gone) {
                all.say({message_kind::error, to_qt(gone.what()), {}, {}});
                all.file_.clear();
            }
            all.begin_again();
        }
    } ends{*this};
    changing_ = true;
    watcher_.removePath(name_of_file(file_));
    project_ = std::move(writable);
    const served_project serving(project_.get());
    work(*project_);
    project_->close();
}

void document::select(std::vector<std::size_t> scenes) {
    std::ranges::sort(scenes);
    if (scenes == selected_) return;
    selected_ = std::move(scenes);
    Q_EMIT selection_changed();
}

void document::look_for_changes() {
    if (changing_ || file_.empty()) return;
    watcher_.addPath(name_of_file(file_));  // a file that was replaced is watched no more
    std::error_code gone;
    const auto written = std::filesystem::last_write_time(file_, gone);
    if (!gone && written == seen_) return;
    seen_ = written;
    Q_EMIT changed_elsewhere();
}

}  // namespace oxhost::desktop
