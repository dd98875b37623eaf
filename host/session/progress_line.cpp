#include "session/progress_line.h"

#include <algorithm>
#include <cmath>
#include <ostream>

namespace oxhost {
namespace {

constexpr int bar_width = 40;

/// Whole parts of `of` that are done; a fraction that is no number counts as nothing. A hair is added
/// so that 3 / 10 of the work are three tenths.
int parts_done(double fraction, int of) {
    if (!(fraction > 0)) return 0;
    return static_cast<int>(std::floor(std::min(fraction, 1.0) * of + 1e-9));
}

}  // namespace

progress_bar::~progress_bar() {
    if (percent_ >= 0) out_ << "\r\x1b[K" << std::flush;
}

void progress_bar::report(double fraction) {
    const int percent = parts_done(fraction, 100);
    if (percent == percent_) return;
    percent_ = percent;
    const int filled = percent * bar_width / 100;
    out_ << "\r[" << std::string(static_cast<std::size_t>(filled), '#')
         << std::string(static_cast<std::size_t>(bar_width - filled), '.') << "] " << percent << " %"
         << std::flush;
}

void progress_lines::report(double fraction) {
    const int tenths = parts_done(fraction, 10);
    if (tenths <= tenths_) return;
    tenths_ = tenths;
    out_ << tenths * 10 << " %" << std::endl;
}

}  // namespace oxhost
