#pragma once
/// Progress of work that keeps nothing when it is cancelled.

#include <QElapsedTimer>
#include <QProgressDialog>

namespace oxhost::desktop {

/// What ends the work: thrown by `tell`, caught by who began it.
struct cancelled {};

class cancellable_bar {
public:
    explicit cancellable_bar(QWidget* over);
    /// Shows now and then how far the work is; `share` < 0 where nobody knows. Throws cancelled.
    void tell(const QString& text, double share = -1);

private:
    QProgressDialog window_;
    QElapsedTimer since_;
};

}  // namespace oxhost::desktop
