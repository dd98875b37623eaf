#include "desktop/window/recent.h"

#include <QSettings>
#include <QStringList>

#include "desktop/text.h"

namespace oxhost::desktop {

namespace {

constexpr auto key = "recent";
constexpr qsizetype most = 10;

}  // namespace

std::vector<std::filesystem::path> recent_files() {
    std::vector<std::filesystem::path> files;
    for (const QString& each : QSettings().value(key).toStringList())
        if (std::error_code ignored; std::filesystem::is_regular_file(to_path(each), ignored))
            files.push_back(to_path(each));
    return files;
}

void remember_recent(const std::filesystem::path& file) {
    const QString name = name_of_file(std::filesystem::absolute(file));
    QStringList all = QSettings().value(key).toStringList();
    all.removeAll(name);
    all.prepend(name);
    QSettings().setValue(key, all.mid(0, most));
}

}  // namespace oxhost::desktop
