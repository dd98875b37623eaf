#include "desktop/window/main_window.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>

#include "desktop/decide/preview.h"
#include "desktop/dialogs/window_messages.h"
#include "desktop/text.h"
#include "desktop/window/recent.h"
#include "geodesy/measure.h"
#include "project/recognise.h"
#include "session/console_messages.h"
#include "session/messages.h"

namespace oxhost::desktop {

main_window::main_window() {
    setObjectName("main");
    setAcceptDrops(true);
    lay_out();
    messages::instance().use(std::make_unique<window_messages>(document_, user_));
    user_.on_opened = [this](shell::open_dialog& dialog, QDialogButtonBox& buttons) {
        add_preview_button(document_, user_, dialog, buttons);
        prepare(dialog, buttons);
    };
    utilities_ = std::make_unique<utilities>(document_, user_);
    connect(utilities_.get(), &utilities::ended, this, &main_window::show_changes);
    build_menus();
    name_texts();
    restore_state();
    connect(&document_, &document::reset, this, &main_window::show_state);
    connect(&document_, &document::selection_changed, this, &main_window::show_state);
    connect(&document_, &document::changed_elsewhere, this, [this] {
        notices_->offer(
            say("Проект изменён другой программой.", "The project was changed by another program."),
            say("Прочитать заново", "Reload"), [this] { actions_.attempt([this] { document_.reload(); }); });
    });
    connect(messages_, &message_area::asked_for, this, &main_window::go_to);
    show_state();
}

/// The views refer to the document, which ends before a window's children otherwise would.
main_window::~main_window() {
    messages::instance().use(std::make_unique<console_messages>(console::standard(), console_options{}));
    delete takeCentralWidget();
    delete message_dock_;
}

void main_window::lay_out() {
    auto* middle = new QWidget(this);
    auto* column = new QVBoxLayout(middle);
    column->setContentsMargins(0, 0, 0, 0);
    notices_ = new notice_bar(middle);
    column->addWidget(notices_);
    auto* views = new QSplitter(Qt::Horizontal, middle);
    views->setObjectName("views");
    scenes_ = new scene_table(document_, views);
    map_ = new map_view(document_, views);
    views->setSizes({480, 720});
    column->addWidget(views, 1);
    setCentralWidget(middle);

    message_dock_ = new QDockWidget(this);
    message_dock_->setObjectName("messages");
    messages_ = new message_area(document_, message_dock_);
    message_dock_->setWidget(messages_);
    addDockWidget(Qt::BottomDockWidgetArea, message_dock_);
    resizeDocks({message_dock_}, {130}, Qt::Vertical);

    state_ = new QLabel(this);
    pointer_ = new QLabel(this);
    statusBar()->addWidget(state_, 1);
    statusBar()->addPermanentWidget(pointer_);
    connect(map_, &map_view::pointed, pointer_, &QLabel::setText);
}

void main_window::restore_state() {
    const QSettings kept;
    if (!restoreGeometry(kept.value("window/geometry").toByteArray())) resize(1200, 760);
    restoreState(kept.value("window/state").toByteArray());
    findChild<QSplitter*>("views")->restoreState(kept.value("window/views").toByteArray());
}

void main_window::open(const std::filesystem::path& file) {
    actions_.attempt([&] {
        document_.open(file);
        remember_recent(file);
    });
}

/// Title, status bar, and what there is to do without a project.
void main_window::show_state() {
    const project* opened = document_.opened();
    const QString name = opened ? to_qt(document_.file().filename().string()) : QString();
    setWindowTitle(opened ? name + " - oxhost" : QString("oxhost"));
    setWindowFilePath(opened ? name_of_file(document_.file()) : QString());
    for (QAction* each : of_a_project_) each->setEnabled(opened != nullptr);
    if (!opened) return state_->setText(say("Проект не открыт", "No project is open"));
    state_->setText(name_of_file(document_.file()));
}

void main_window::go_to(const note& said) {
    const scene* subject = document_.opened() ? document_.opened()->at(*said.scene) : nullptr;
    if (!subject) return;
    document_.select({*said.scene});
    if (!said.place) return;
    if (const auto place = to_wgs84({*said.place}, subject->proj4)) map_->go_to(place->front());
}

void main_window::name_texts() {
    actions_.name_texts();
    message_dock_->setWindowTitle(say("Сообщения", "Messages"));
    show_state();
}

void main_window::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) name_texts();
    QMainWindow::changeEvent(event);
}

void main_window::closeEvent(QCloseEvent* event) {
    if (document_.changing()) return event->ignore();  // a run is under way
    QSettings kept;
    kept.setValue("window/geometry", saveGeometry());
    kept.setValue("window/state", saveState());
    kept.setValue("window/views", findChild<QSplitter*>("views")->saveState());
    QMainWindow::closeEvent(event);
}

void main_window::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void main_window::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    std::vector<std::filesystem::path> sources;
    for (const QUrl& each : event->mimeData()->urls()) {
        if (!each.isLocalFile()) continue;
        const auto file = to_path(each.toLocalFile());
        if (is_project(file)) return open(file);
        sources.push_back(file);
    }
    // Not from within the event: the program that the files come from waits for its end.
    if (!sources.empty())
        QMetaObject::invokeMethod(
            this, [=, this] { actions_.attempt([&] { import(sources); }); }, Qt::QueuedConnection);
}

}  // namespace oxhost::desktop
