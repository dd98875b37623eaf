#pragma once
/// Texts between the host, which has UTF-8, and Qt.

#include <QString>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/language.h"

namespace oxhost::desktop {

inline QString to_qt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}
inline QString name_of_file(const std::filesystem::path& file) {
    return QString::fromStdString(file.string());
}
inline std::filesystem::path to_path(const QString& file) { return file.toStdString(); }

/// The one of two texts that the user reads now; read it again at QEvent::LanguageChange.
inline QString say(std::string_view russian, std::string_view english) {
    return to_qt(in_language(russian, english));
}

}  // namespace oxhost::desktop
