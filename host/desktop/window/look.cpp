#include "desktop/window/look.h"

#include <QApplication>
#include <QPalette>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>

namespace oxhost::desktop {

namespace {

constexpr auto key = "look";

QPalette palette_of(const QColor& window, const QColor& base, const QColor& text, const QColor& faint,
                    const QColor& highlight) {
    QPalette colours(window);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        colours.setColor(role, text);
    colours.setColor(QPalette::Base, base);
    colours.setColor(QPalette::AlternateBase, window);
    colours.setColor(QPalette::ToolTipBase, base);
    colours.setColor(QPalette::PlaceholderText, faint);
    colours.setColor(QPalette::Highlight, highlight);
    colours.setColor(QPalette::HighlightedText, Qt::white);
    colours.setColor(QPalette::Link, highlight);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colours.setColor(QPalette::Disabled, role, faint);
    return colours;
}

}  // namespace

look_kind remembered_look() {
    const QString word = QSettings().value(key).toString();
    return word == "light" ? look_kind::light : word == "dark" ? look_kind::dark : look_kind::system;
}

void use_look(look_kind wanted) {
    static const QString native = QApplication::style()->name();
    QSettings().setValue(key, wanted == look_kind::light  ? "light"
                              : wanted == look_kind::dark ? "dark"
                                                          : "system");
    // Only this style takes its colours from the palette alone.
    QApplication::setStyle(QStyleFactory::create(wanted == look_kind::system ? native : "Fusion"));
    switch (wanted) {
        case look_kind::system:
            return QApplication::setPalette(QApplication::style()->standardPalette());
        case look_kind::light:
            return QApplication::setPalette(
                palette_of({239, 239, 239}, Qt::white, Qt::black, {120, 120, 120}, {38, 110, 190}));
        case look_kind::dark:
            return QApplication::setPalette(
                palette_of({45, 47, 51}, {30, 31, 34}, {225, 226, 228}, {140, 142, 146}, {56, 116, 190}));
    }
}

}  // namespace oxhost::desktop
