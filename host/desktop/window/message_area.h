#pragma once
/// Keeps what was said: the newest line at the end, with its time.

#include <QListWidget>
#include <vector>

#include "desktop/document.h"

namespace oxhost::desktop {

class message_area final : public QListWidget {
    Q_OBJECT
public:
    explicit message_area(document& shown, QWidget* parent = nullptr);

    void add(const note& said);

Q_SIGNALS:
    /// A line about a scene was clicked, or Enter pressed on it.
    void asked_for(const note& said);

protected:
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void name_texts();
    void ask(const QListWidgetItem* line);
    void copy() const;

    std::vector<note> notes_;  ///< one a line
};

}  // namespace oxhost::desktop
