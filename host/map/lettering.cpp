#include "map/lettering.h"

#include "base/text.h"

namespace oxhost::map {

namespace {

/// In parts of the size. DejaVu Sans, the first face that pictures name, is the widest of them.
double width_of(wchar_t letter) {
    static constexpr std::wstring_view narrow = L"iIjlftr.,:;'|!()[]/- °", wide = L"mwMW@%жшщюфмыЖШЩЮФМЫЪ→—";
    if (narrow.find(letter) != narrow.npos) return 0.40;
    if (wide.find(letter) != wide.npos || letter >= 0x1100) return 1.0;
    const bool capital = (letter >= L'A' && letter <= L'Z') || (letter >= L'А' && letter <= L'Я');
    return capital ? 0.76 : 0.64;
}

}  // namespace

double width_of(std::string_view text, double size) {
    double width = 0;
    for (const wchar_t letter : to_wide(text)) width += width_of(letter) * size;
    return width;
}

std::string shortened(std::string_view text, double width, double size) {
    if (width_of(text, size) <= width) return std::string(text);
    std::wstring kept = to_wide(text);
    double left = width - width_of(L'…') * size;
    std::size_t letters = 0;
    while (letters < kept.size() && (left -= width_of(kept[letters]) * size) >= 0) ++letters;
    kept.resize(letters);
    return to_utf8(kept) + "…";
}

}  // namespace oxhost::map
