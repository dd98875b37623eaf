#include "desktop/decide/preview.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/decide/preview_map.h"
#include "desktop/decide/preview_table.h"
#include "desktop/text.h"
#include "geodesy/description.h"
#include "run/plug_in.h"
#include "run/plug_in_texts.h"
#include "run/preview.h"

namespace oxhost::desktop {

namespace {

using oxhost::run::foreseen;

foreseen look_ahead(document& shown, const oxhost::run::preview_order& asked) {
    const auto bar = messages::instance().open_progress();
    return oxhost::run::foresee(*shown.opened(), asked, [&](double share) {
        if (bar) bar->report(share);
    });
}

QString target_text(const std::string& target) {
    return target.empty() ? say("проекция сбрасывается", "the projection is reset")
                          : to_qt(short_description(target, current_language()));
}

/// All that is said of the run as a whole, a line each.
QString lines_of(const foreseen& told) {
    QStringList lines;
    for (const std::string& each : told.warnings) lines << say("Предупреждение: ", "Warning: ") + to_qt(each);
    for (const std::string& each : told.operations) lines << to_qt(each);
    return lines.join('\n');
}

/// Its texts stay in the language it was opened with: it holds what was said of the run then.
class preview_window final : public QDialog {
public:
    preview_window(const foreseen& told, const std::string& target, QWidget* over) : QDialog(over) {
        setWindowTitle(say("Предварительный просмотр", "Preview"));
        auto* summary =
            new QLabel(say("Цель: ", "Target: ") + target_text(target) + '\n' + to_qt(told.summary) + '\n' +
                       say("Проект ещё не изменён.", "The project is not changed yet."));
        summary->setWordWrap(true);
        summary->setTextFormat(Qt::PlainText);
        auto* table = new preview_table(told);
        auto* map = new preview_map(told);
        connect(table, &QTableWidget::itemSelectionChanged, map, [table, map] {
            auto places = table->selected();
            std::ranges::sort(places);
            map->emphasise(std::move(places));
        });
        auto* said = new QPlainTextEdit(lines_of(told));
        said->setReadOnly(true);
        said->setTabChangesFocus(true);
        said->setAccessibleName(say("Предупреждения и операции", "Warnings and operations"));
        auto* below = new QSplitter(Qt::Horizontal);
        below->addWidget(said);
        below->addWidget(map);
        auto* all = new QSplitter(Qt::Vertical);
        all->addWidget(table);
        all->addWidget(below);
        auto* buttons = new QDialogButtonBox;
        buttons->addButton(say("Закрыть", "Close"), QDialogButtonBox::RejectRole);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        auto* rows = new QVBoxLayout(this);
        rows->addWidget(summary);
        rows->addWidget(all, 1);
        rows->addWidget(buttons);
        table->setFocus();
        const int em = fontMetrics().height();
        resize(84 * em, 46 * em);
    }
};

}  // namespace

void preview(document& shown, std::vector<std::size_t> scenes, const std::string& target, QWidget* over,
             const std::filesystem::path& bundle) {
    if (!shown.opened()) return;
    const auto beside =
        oxhost::run::catalogue_folder().parent_path() / oxhost::run::plug_in_text::bundle_file;
    const foreseen told = look_ahead(shown, {std::move(scenes), target, bundle.empty() ? beside : bundle});
    preview_window(told, target, over).exec();
}

void add_preview_button(document& shown, window_user& user, shell::open_dialog& dialog,
                        QDialogButtonBox& buttons, const std::filesystem::path& bundle) {
    if (dialog.id() != oxhost::run::plug_in_text::utility || !shown.opened()) return;
    auto* button = buttons.addButton(say("Просмотр…", "Preview…"), QDialogButtonBox::ActionRole);
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button, [&shown, &user, &dialog, bundle] {
        try {
            const auto scenes = oxhost::run::checked_scenes(dialog, *shown.opened());
            if (scenes.empty())
                throw oxhost::run::failure(oxhost::run::trouble::refused,
                                           words("не отмечена ни одна сцена", "no scene is checked"));
            const auto target =
                oxhost::run::target_of(dialog, [&user](const auto& file) { user.answer_file(file); });
            preview(shown, scenes, target, user.top(), bundle);
        } catch (const std::exception& refused) {
            messages::instance().report_error(refused.what());
        }
    });
}

}  // namespace oxhost::desktop
