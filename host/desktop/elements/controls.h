#pragma once
/// Labels, buttons, inputs, choices, outputs.

#include <QComboBox>
#include <QWidget>

#include "shell/node.h"

namespace oxhost::desktop {

QWidget* draw_label(shell::node& label, QWidget* parent);
QWidget* draw_button(shell::node& button, QWidget* parent);
QWidget* draw_input(shell::node& input, QWidget* parent);
QWidget* draw_number(shell::node& number, QWidget* parent);
QWidget* draw_output(shell::node& output, QWidget* parent);

/// A drop-down; one of many items is searched by typing a part of their captions.
class choice_widget final : public QComboBox {
public:
    choice_widget(shell::node& choice, QWidget* parent);

private:
    void update_items();
    void take_typed();

    shell::node& node_;
    std::vector<std::string> items_;
};

}  // namespace oxhost::desktop
