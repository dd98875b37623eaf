#include "base/display.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>

#include "base/numbers.h"
#include "base/text.h"

namespace oxhost {

namespace {

struct range {
    char32_t first;
    char32_t last;
};

/// Marks of general use (Unicode: Mn, Me, Cf): Latin, Cyrillic, Hebrew, Arabic, symbols; joiners, selectors.
constexpr std::array marks{range{0x0300, 0x036F}, range{0x0483, 0x0489}, range{0x0591, 0x05BD},
                           range{0x0610, 0x061A}, range{0x064B, 0x065F}, range{0x1AB0, 0x1AFF},
                           range{0x1DC0, 0x1DFF}, range{0x200B, 0x200F}, range{0x2060, 0x2064},
                           range{0x20D0, 0x20FF}, range{0xFE00, 0xFE0F}, range{0xFE20, 0xFE2F},
                           range{0xFEFF, 0xFEFF}};

/// East Asian Width W and F in whole blocks.
constexpr std::array wide_blocks{range{0x1100, 0x115F},   range{0x2E80, 0x303E},   range{0x3041, 0xA4CF},
                                 range{0xAC00, 0xD7A3},   range{0xF900, 0xFAFF},   range{0xFE30, 0xFE6F},
                                 range{0xFF00, 0xFF60},   range{0xFFE0, 0xFFE6},   range{0x1F300, 0x1F64F},
                                 range{0x1F680, 0x1F6FF}, range{0x1F900, 0x1F9FF}, range{0x20000, 0x3FFFD}};

/// C0 and C1 controls, line and paragraph separators, bidirectional embeddings and isolates.
constexpr std::array controls{range{0x00, 0x1F}, range{0x7F, 0x9F}, range{0x2028, 0x202E},
                              range{0x2066, 0x2069}};

template <std::size_t Count>
bool is_in(const std::array<range, Count>& ranges, wchar_t character) {
    const auto code = static_cast<char32_t>(character);
    return std::ranges::any_of(ranges, [=](range r) { return r.first <= code && code <= r.last; });
}

std::size_t cells(wchar_t character) {
    if (character < 0x300) return 1;
    return is_in(marks, character) ? 0 : is_in(wide_blocks, character) ? 2 : 1;
}

std::size_t cells(std::wstring_view text) {
    std::size_t sum = 0;
    for (const wchar_t character : text) sum += cells(character);
    return sum;
}

std::string spelled_out(wchar_t character) {
    if (character == L'\t') return "\\t";
    if (character == L'\n') return "\\n";
    if (character == L'\r') return "\\r";
    std::array<char, 16> code{};
    std::snprintf(code.data(), code.size(), character < 0x100 ? "\\x%02x" : "\\u%04x",
                  static_cast<unsigned>(character));
    return code.data();
}

}  // namespace

std::size_t display_width(std::string_view text) { return cells(to_wide(text)); }

std::string cut_to(std::string_view text, std::size_t width) {
    const std::wstring wide = to_wide(text);
    if (cells(wide) <= width) return std::string(text);
    if (width == 0) return {};
    std::size_t used = 0;
    std::size_t kept = 0;
    while (used + cells(wide[kept]) <= width - 1) used += cells(wide[kept++]);
    return to_utf8(std::wstring_view(wide).substr(0, kept)) + "…";
}

std::string padded(std::string text, std::size_t width) {
    const std::size_t used = display_width(text);
    return text.append(used < width ? width - used : 0, ' ');
}

std::vector<std::string> wrapped(std::string_view text, std::size_t width) {
    std::vector<std::string> lines;
    for (;;) {
        const auto end = text.find('\n');
        std::string_view rest = text.substr(0, end);
        std::string line;
        while (!rest.empty()) {
            const auto blank = rest.find(' ');
            const std::string_view word = rest.substr(0, blank);
            if (!line.empty() && display_width(line) + 1 + display_width(word) > width) {
                lines.push_back(std::move(line));
                line.clear();
            }
            append_item(line, word, " ");
            rest.remove_prefix(blank == rest.npos ? rest.size() : blank + 1);
        }
        lines.push_back(std::move(line));
        if (end == text.npos) return lines;
        text.remove_prefix(end + 1);
    }
}

std::string escaped(std::string_view text) {
    std::string shown;
    std::wstring plain;
    for (const wchar_t character : to_wide(text)) {
        if (!is_in(controls, character)) {
            plain += character;
            continue;
        }
        shown += to_utf8(plain) + spelled_out(character);
        plain.clear();
    }
    return shown + to_utf8(plain);
}

std::optional<std::size_t> terminal_columns() {
    if (!isatty(STDOUT_FILENO)) return {};
    if (const char* given = std::getenv("COLUMNS"))
        if (const auto columns = parse_whole_number(given); columns && *columns > 0)
            return static_cast<std::size_t>(*columns);
    winsize size{};
    if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return 80;
    return size.ws_col;
}

}  // namespace oxhost
