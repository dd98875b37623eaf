#include "headless/dialog_hands.h"

#include "base/language.h"
#include "base/numbers.h"
#include "base/text.h"

namespace oxhost::headless {

using shell::node;
using shell::node_kind;

namespace {

class writer {
public:
    void write(node& shown) {
        switch (shown.kind()) {
            case node_kind::groupbox:
                line(shown.state().caption);
                ++depth_;
                write_children(shown);
                --depth_;
                break;
            case node_kind::dropdown:
                write_choice(shown);
                break;
            case node_kind::floating_input:
                line(shown.name() + ": " + number_text(shown.state().value),
                     shown.state().read_only || !shown.state().enabled
                         ? in_language("  (показано)", "  (shown)")
                         : "");
                break;
            case node_kind::input:
                line(shown.name() + ": " + shown.state().text);
                break;
            case node_kind::multiline_output:
                write_lines(shown.state().text);
                break;
            case node_kind::button:
            case node_kind::action_tool:
                line('<' + shown.state().caption + '>',
                     shown.state().enabled ? "" : in_language("  (выключено)", "  (off)"));
                break;
            case node_kind::outline:
                write_rows(*shown.rows());
                break;
            case node_kind::label:
                if (!captions_a_control(shown)) line(shown.state().caption);
                break;
            default:
                write_children(shown);
        }
    }
    const std::string& text() const { return text_; }

private:
    void line(const std::string& content, std::string_view remark = {}) {
        text_.append(2 * depth_, ' ').append(content).append(remark) += '\n';
    }

    void write_children(node& shown) {
        for (const auto& child : shown.children())
            if (child->shown()) write(*child);
    }

    void write_choice(node& shown) {
        const auto& state = shown.state();
        line(shown.name() + ": " + state.text);
        std::string items;
        for (const std::string& item : state.items) append_item(items, item, " | ");
        ++depth_;
        if (!items.empty()) line("[" + items + "]");
        --depth_;
    }

    void write_lines(const std::string& content) {
        for (std::size_t at = 0; at < content.size();) {
            const auto end = std::min(content.find('\n', at), content.size());
            line(content.substr(at, end - at));
            at = end + 1;
        }
    }

    void write_rows(shell::table_model& rows) {
        const auto current = rows.current();
        for (std::size_t c = 0; c < rows.columns().size(); ++c)
            if (!rows.columns()[c].caption.empty()) line(rows.columns()[c].caption + ':');
        for (std::uint32_t r = 0; r < rows.row_count(); ++r) {
            std::string cells = (current == r ? "* " : "  ") + std::to_string(r + 1) + ".";
            for (std::size_t c = 0; c < rows.columns().size(); ++c)
                if (!rows.columns()[c].pictures) cells += ' ' + rows.text(r, c);
            line(cells);
        }
    }

    /// Such a label is written with its control. Headings of columns are part of their controls' names.
    static bool captions_a_control(node& label) {
        if (!label.parent() || label.parent()->kind() != node_kind::grid_layout) return false;
        for (const auto& each : label.parent()->children()) {
            const bool beside = each->row() == label.row() && each->column() > label.column();
            const bool below =
                each->column() == label.column() && each->row() > label.row() && label.row() == 0;
            if ((beside || below) && each->kind() != node_kind::label && each->kind() != node_kind::button &&
                each->kind() != node_kind::grid_layout)
                return true;
        }
        return false;
    }

    std::size_t depth_ = 1;
    std::string text_;
};

}  // namespace

std::string dialog_text(shell::open_dialog& dialog) {
    writer out;
    out.write(dialog.root());
    return dialog.caption() + '\n' + out.text();
}

}  // namespace oxhost::headless
