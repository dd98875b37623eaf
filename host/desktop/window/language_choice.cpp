#include "desktop/window/language_choice.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QSettings>
#include <QTranslator>

namespace oxhost::desktop {

namespace {

/// Captions of Qt's own buttons and menus. English ones are built in.
void translate_qt(language wanted) {
    static QTranslator russian;
    QCoreApplication::removeTranslator(&russian);
    if (wanted == language::russian &&
        (!russian.isEmpty() || russian.load("qtbase_ru", QLibraryInfo::path(QLibraryInfo::TranslationsPath))))
        QCoreApplication::installTranslator(&russian);
}

}  // namespace

void begin_language() {
    const QByteArray chosen = QSettings().value("language").toString().toUtf8();
    if (const auto known = parse_language(chosen.toStdString())) choose_language(known);
    translate_qt(current_language());
}

void switch_language(language wanted) {
    choose_language(wanted);
    QSettings().setValue("language", wanted == language::russian ? "ru" : "en");
    translate_qt(wanted);
    QEvent changed(QEvent::LanguageChange);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &changed);
}

}  // namespace oxhost::desktop
