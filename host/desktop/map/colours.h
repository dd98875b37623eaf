#pragma once
/// The map's colours, for light and dark palettes.

#include <QColor>
#include <QPalette>
#include <array>

namespace oxhost::desktop {

struct map_colours {
    explicit map_colours(const QPalette& palette) : dark(palette.color(QPalette::Base).lightness() < 128) {}

    bool dark;
    QColor sea = dark ? QColor(28, 34, 42) : QColor(231, 240, 247);
    QColor land = dark ? QColor(48, 50, 48) : QColor(247, 245, 238);
    QColor coast = dark ? QColor(95, 105, 110) : QColor(165, 175, 180);
    QColor graticule = dark ? QColor(90, 96, 104) : QColor(180, 186, 192);
    QColor faint_text = dark ? QColor(150, 156, 164) : QColor(105, 110, 116);
    QColor before = dark ? QColor(150, 150, 150, 150) : QColor(120, 120, 120, 120);
    QColor mark = dark ? QColor(255, 120, 90) : QColor(214, 40, 20);

    /// Told apart also by people who see red and green alike: the colours of Okabe and Ito (2008), darkened
    /// for a light ground where they are too pale for lines.
    QColor of_projection(int number) const {
        static const std::array<QColor, 8> light{
            QColor(0, 114, 178), QColor(213, 94, 0),   QColor(0, 138, 100), QColor(177, 80, 140),
            QColor(160, 110, 0), QColor(40, 150, 205), QColor(90, 90, 90),  QColor(110, 60, 160)};
        const QColor chosen = light[static_cast<std::size_t>(number < 0 ? 6 : number) % light.size()];
        return dark ? chosen.lighter(155) : chosen;
    }
};

}  // namespace oxhost::desktop
