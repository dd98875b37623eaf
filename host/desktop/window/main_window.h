#pragma once
/// The window that everything else of the program opens from.

#include <QMainWindow>

#include "desktop/document.h"

namespace oxhost::desktop {

class main_window final : public QMainWindow {
    Q_OBJECT
public:
    main_window();

    document& shown() { return document_; }

private:
    document document_;
};

}  // namespace oxhost::desktop
