#include "desktop/elements/draw.h"

#include <QImage>
#include <QPixmap>

#include "desktop/elements/containers.h"
#include "desktop/elements/controls.h"
#include "desktop/elements/table_view.h"
#include "desktop/elements/tools.h"

namespace oxhost::desktop {

QWidget* draw(shell::node& root, QWidget* parent) {
    using enum shell::node_kind;
    switch (root.kind()) {
        case grid_layout:
            return new grid_widget(root, parent);
        case stack_layout:
            return new stack_widget(root, parent);
        case groupbox:
            return new group_widget(root, parent);
        case label:
            return draw_label(root, parent);
        case button:
            return draw_button(root, parent);
        case input:
            return draw_input(root, parent);
        case floating_input:
            return draw_number(root, parent);
        case dropdown:
            return new choice_widget(root, parent);
        case multiline_output:
            return draw_output(root, parent);
        case outline:
            return new table_view(root, parent);
        case toolbar:
            return draw_toolbar(root, parent);
        case context_menu:
        case tool_set:
        case action_tool:
            break;  // drawn by the menu or toolbar that they stand in
    }
    return new QWidget(parent);
}

QIcon icon_of(const shell::picture& image) {
    if (image.empty()) return {};
    const QImage drawn(image.rgba.data(), image.width, image.height, image.width * 4,
                       QImage::Format_RGBA8888);
    return QIcon(QPixmap::fromImage(drawn.copy()));
}

}  // namespace oxhost::desktop
