#pragma once
/// The project that the window shows, and what all its views share: the selection, the messages.
///
/// Between changes the project is open for reading only, so that other programs may work on it; their changes
/// are noticed and told. For a change it is opened for writing, and read anew afterwards. Views keep numbers
/// of scenes, never their addresses: those end with every change. GUI thread.

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "project/project.h"
#include "session/messages.h"

namespace oxhost::desktop {

/// One line of the message area.
struct note {
    message_kind kind = message_kind::information;
    QString text;
    std::optional<std::size_t> scene;  ///< number from 0 of the scene that it is about
    std::optional<point> place;        ///< in that scene's coordinates; where a click on it goes
};

class document final : public QObject {
    Q_OBJECT
public:
    document();
    ~document() override;

    /// Null when none is open. Of its functions only those that read may be called outside `change`.
    project* opened() const { return project_.get(); }
    const std::filesystem::path& file() const { return file_; }

    /// In place of what was open before. These throw project_error, and then nothing has changed.
    void open(const std::filesystem::path& file);
    void create(const std::filesystem::path& file);
    void reload() { open(std::filesystem::path(file_)); }  ///< the selection is lost
    void close();

    /// Does work on the project opened for writing and served to the host's modules. Throws project_error
    /// when it is locked elsewhere or read only, and what the work throws; the project is open for reading
    /// again in any case. Refused with project_error from inside another change.
    void change(const std::function<void(project&)>& work);
    bool changing() const { return changing_; }

    /// Numbers of scenes from 0, ascending.
    const std::vector<std::size_t>& selected() const { return selected_; }
    void select(std::vector<std::size_t> scenes);

    void say(const note& told) { Q_EMIT said(told); }

Q_SIGNALS:
    void reset();              ///< another project, none, or the same read anew: all views begin again
    void selection_changed();  ///< also after every reset
    void changed_elsewhere();  ///< by another program, since it was read; told once
    void said(const note& told);

private:
    void take(std::unique_ptr<project> read, const std::filesystem::path& file);
    void begin_again();
    void look_for_changes();

    std::unique_ptr<project> project_;
    std::filesystem::path file_;
    std::vector<std::size_t> selected_;
    bool changing_ = false;
    QFileSystemWatcher watcher_;
    QTimer settled_;  ///< another program's writing comes in many pieces
    std::filesystem::file_time_type seen_{};
};

}  // namespace oxhost::desktop
