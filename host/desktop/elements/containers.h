#pragma once
/// What elements stand in: grids, stacks of pages, group boxes.

#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>
#include <QWidget>
#include <vector>

#include "shell/node.h"

namespace oxhost::desktop {

/// The widgets of a node's children, in its order; drawn again when there are other children than before.
class drawn_children {
public:
    drawn_children(shell::node& of, QWidget* parent) : node_(of), parent_(parent) {}

    /// Answers whether they were drawn anew.
    bool update();
    const std::vector<QWidget*>& widgets() const { return widgets_; }

private:
    shell::node& node_;
    QWidget* parent_;
    std::vector<QWidget*> widgets_;
};

class grid_widget final : public QWidget {
public:
    grid_widget(shell::node& grid, QWidget* parent);

private:
    void update_grid();
    void name_controls();  ///< labels lead to the controls beside them

    shell::node& node_;
    drawn_children cells_{node_, this};
    QGridLayout layout_{this};
};

/// Shows one page and is as large as that.
class stack_widget final : public QWidget {
public:
    stack_widget(shell::node& stack, QWidget* parent);

private:
    void update_page();

    shell::node& node_;
    drawn_children pages_{node_, this};
    QVBoxLayout layout_{this};
};

class group_widget final : public QGroupBox {
public:
    group_widget(shell::node& group, QWidget* parent);

private:
    void update_group();

    shell::node& node_;
    drawn_children content_{node_, this};
    QVBoxLayout layout_{this};
};

}  // namespace oxhost::desktop
