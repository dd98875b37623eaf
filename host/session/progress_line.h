#pragma once
/// Progress as text.

#include <iosfwd>

#include "session/messages.h"

namespace oxhost {

/// One line of a terminal, drawn over itself and wiped at the end.
class progress_bar final : public progress_display {
public:
    explicit progress_bar(std::ostream& out) : out_(out) {}  ///< `out` outlives the bar
    ~progress_bar() override;
    progress_bar(const progress_bar&) = delete;
    progress_bar& operator=(const progress_bar&) = delete;

    void report(double fraction) override;

private:
    std::ostream& out_;
    int percent_ = -1;  ///< on display
};

/// A line whenever another tenth of the work is done.
class progress_lines final : public progress_display {
public:
    explicit progress_lines(std::ostream& out) : out_(out) {}  ///< `out` outlives the lines

    void report(double fraction) override;

private:
    std::ostream& out_;
    int tenths_ = 0;  ///< reported
};

}  // namespace oxhost
