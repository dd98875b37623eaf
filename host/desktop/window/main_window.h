#pragma once
/// The window that everything else of the program opens from: scenes and map, messages, menus.

#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "desktop/decide/guess_dialog.h"
#include "desktop/dialogs/utilities.h"
#include "desktop/dialogs/window_user.h"
#include "desktop/document.h"
#include "desktop/map/map_view.h"
#include "desktop/scenes/scene_table.h"
#include "desktop/window/action_book.h"
#include "desktop/window/message_area.h"
#include "desktop/window/notice_bar.h"

namespace oxhost::desktop {

class main_window final : public QMainWindow {
    Q_OBJECT
public:
    main_window();
    ~main_window() override;

    /// What goes wrong is told in the window.
    void open(const std::filesystem::path& file);

    document& shown() { return document_; }
    map_view& map() { return *map_; }
    scene_table& scenes() { return *scenes_; }
    message_area& said() { return *messages_; }

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;  ///< projects are opened, others imported

private:
    void lay_out();
    void restore_state();
    void name_texts();
    void show_state();  ///< of the project, in title, status bar and menus
    void go_to(const note& said);

    void build_menus();
    void build_project_menu();
    void build_view_menu();
    void build_utilities_menu();
    void build_language_menu();
    void build_help_menu();
    void create_project();
    void choose_project();
    void import(const std::vector<std::filesystem::path>& files);
    void list_recent(QMenu* menu);
    void list_systems(QMenu* menu);    ///< of the map
    void list_utilities(QMenu* menu);  ///< captions and pictures are the bundles' own, in the language of now

    void run(std::size_t utility);
    void show_changes(const std::vector<oxhost::run::scene_result>& results);
    void undo();
    void guess();  ///< a projection for each line that has none, as long as the person goes on
    /// Opens the reprojection utility with a scene checked and its projection chosen, and applies it.
    void assign(const guessed& chosen);
    void prepare(shell::open_dialog& dialog, QDialogButtonBox& buttons);

    document document_;
    action_book actions_{document_, this};
    scene_table* scenes_ = nullptr;
    map_view* map_ = nullptr;
    message_area* messages_ = nullptr;
    notice_bar* notices_ = nullptr;
    QLabel* state_ = nullptr;
    QLabel* pointer_ = nullptr;
    QDockWidget* message_dock_ = nullptr;
    std::vector<QAction*> of_a_project_;  ///< for nothing without one
    window_user user_{this};
    std::unique_ptr<utilities> utilities_;
    std::optional<guessed> to_assign_;                    ///< in the next dialog of the reprojection utility
    std::vector<std::pair<std::string, polyline>> kept_;  ///< projections and lines before the last run
};

}  // namespace oxhost::desktop
