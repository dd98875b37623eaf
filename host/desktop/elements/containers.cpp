#include "desktop/elements/containers.h"

#include <QLabel>
#include <algorithm>

#include "desktop/elements/draw.h"
#include "desktop/text.h"

namespace oxhost::desktop {

using shell::grid_line;
using shell::node_kind;
using shell::node_state;

/// A node that nobody listens to is a new one: those that stayed are listened to by their widgets.
bool drawn_children::update() {
    const auto& children = node_.children();
    const bool as_before =
        children.size() == widgets_.size() &&
        std::ranges::all_of(children, [](const auto& each) { return bool(each->on_changed); });
    if (as_before) return false;
    for (QWidget* gone : widgets_) {
        gone->hide();
        gone->deleteLater();  // it may be the one whose click led here
    }
    widgets_.clear();
    for (const auto& each : children) {
        widgets_.push_back(draw(*each, parent_));
        if (!each->on_changed) each->on_changed = [] {};
    }
    return true;
}

// ---- grids

grid_widget::grid_widget(shell::node& grid, QWidget* parent) : QWidget(parent), node_(grid) {
    layout_.setContentsMargins(0, 0, 0, 0);
    node_.on_changed = [this] { update_grid(); };
    update_grid();
}

void grid_widget::update_grid() {
    const bool anew = cells_.update();
    const node_state& state = node_.state();
    const auto& children = node_.children();
    for (std::size_t i = 0; i < children.size(); ++i) {
        const shell::node& cell = *children[i];
        QWidget* drawn = cells_.widgets()[i];
        if (anew)
            layout_.addWidget(drawn, static_cast<int>(cell.row()), static_cast<int>(cell.column()),
                              cell.kind() == node_kind::label || cell.kind() == node_kind::button
                                  ? Qt::AlignVCenter
                                  : Qt::Alignment());
        // A row without a visible widget takes no room, and no gap.
        drawn->setVisible(state.rows[cell.row()].shown && state.columns[cell.column()].shown);
    }
    int widest = 0;  // of the columns of equal size
    for (std::size_t i = 0; i < children.size(); ++i)
        if (state.columns[children[i]->column()].value == 1)
            widest = std::max(widest, cells_.widgets()[i]->sizeHint().width());
    for (std::size_t c = 0; c < state.columns.size(); ++c) {
        const grid_line& line = state.columns[c];
        layout_.setColumnStretch(static_cast<int>(c), line.shown && line.expands ? 1 : 0);
        layout_.setColumnMinimumWidth(static_cast<int>(c), line.shown && line.value == 1 ? widest : 0);
    }
    for (std::size_t r = 0; r < state.rows.size(); ++r)
        layout_.setRowStretch(static_cast<int>(r), state.rows[r].shown && state.rows[r].expands ? 1 : 0);
    if (anew) name_controls();
}

void grid_widget::name_controls() {
    const auto& children = node_.children();
    for (std::size_t i = 0; i < children.size(); ++i) {
        QWidget* drawn = cells_.widgets()[i];
        if (children[i]->kind() != node_kind::label) drawn->setAccessibleName(to_qt(children[i]->name()));
        const shell::node* label = children[i]->label();
        const auto at = std::ranges::find(children, label, [](const auto& each) { return each.get(); });
        if (!label || at == children.end()) continue;
        if (auto* text =
                qobject_cast<QLabel*>(cells_.widgets()[static_cast<std::size_t>(at - children.begin())]))
            text->setBuddy(drawn);
    }
}

// ---- stacks

stack_widget::stack_widget(shell::node& stack, QWidget* parent) : QWidget(parent), node_(stack) {
    layout_.setContentsMargins(0, 0, 0, 0);
    node_.on_changed = [this] { update_page(); };
    update_page();
}

void stack_widget::update_page() {
    const bool anew = pages_.update();
    for (std::size_t i = 0; i < pages_.widgets().size(); ++i) {
        QWidget* page = pages_.widgets()[i];
        if (anew) layout_.addWidget(page);
        page->setVisible(node_.state().current == node_.children()[i]->row());
    }
}

// ---- group boxes

group_widget::group_widget(shell::node& group, QWidget* parent) : QGroupBox(parent), node_(group) {
    node_.on_changed = [this] { update_group(); };
    update_group();
}

void group_widget::update_group() {
    setTitle(to_qt(node_.state().caption));
    if (content_.update())
        for (QWidget* each : content_.widgets()) layout_.addWidget(each);
}

}  // namespace oxhost::desktop
