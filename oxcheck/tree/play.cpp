#include "oxcheck/tree/play.h"

#include <algorithm>

#include "oxcheck/stage/anything.h"
#include "oxcheck/stage/script.h"

namespace oxcheck {

using host_double::host;

namespace {

/// The user at work on one dialog.
class hands {
    template <class I, class Do>
    void for_each(Do&& work) const {
        for (const element& each : dialog_)
            if (each.is<I>()) work(each);
    }

    template <auto Operation, class... A>
    auto perform(const act& done, A... arguments) const {
        using result = decltype(ox::call<Operation>(done.target.pointer, arguments...));
        if constexpr (std::is_void_v<result>) {
            do_around(done, [&] { ox::call<Operation>(done.target.pointer, arguments...); });
        } else {
            result answer{};
            do_around(done, [&] { answer = ox::call<Operation>(done.target.pointer, arguments...); });
            return answer;
        }
    }
    void do_around(const act& done, const std::function<void()>& work) const {
        if (user_.around)
            user_.around(done, work);
        else
            work();
    }

public:
    hands(const user& whose, const std::vector<element>& dialog) : user_(whose), dialog_(dialog) {}

    void fill_in() const {
        for_each<ox::input_impl>([this](const element& input) {
            for (const wchar_t* text : {script::crs_code, L"", script::crs_code, script::crs_code}) {
                perform<&ox::input_impl::set_text>({input, "typing"}, text);
                perform<&ox::input_impl::commit>({input, "committing"});
            }
        });
        for_each<ox::dropdown_impl>([this](const element& list) {
            const std::uint32_t items = ox::call<&ox::dropdown_impl::item_count>(list.pointer);
            for (std::uint32_t i = 0; i < items; ++i)
                perform<&ox::dropdown_impl::select>({list, "choosing item " + std::to_string(i)}, i);
            if (items > 0)
                perform<&ox::dropdown_impl::select>({list, "choosing the last item again"}, items - 1);
        });
        for_each<ox::floating_input_impl>([this](const element& number) {
            if (ox::call<&ox::floating_input_impl::read_only>(number.pointer)) return;
            const double value = ox::call<&ox::floating_input_impl::value>(number.pointer);
            for (const double each : {value, value + 1, value})
                perform<&ox::floating_input_impl::set_value>({number, "entering a number"}, each);
        });
    }

    void choose_rows() const {
        for_each<ox::outline_impl>([this](const element& table) {
            for (std::uint32_t row = 0; row < rows_of(table); ++row) {
                anything item(row);
                perform<&ox::outline_impl::set_current_item>({table, "choosing a row"}, item.pointer());
                perform<&ox::outline_impl::set_selected>({table, "selecting a row"}, item.pointer(), true);
                perform<&ox::outline_impl::set_selected>({table, "unselecting a row"}, item.pointer(), false);
            }
        });
        for_each<ox::string_outline_column_impl>([this](const element& column) {
            using impl = ox::string_outline_column_impl;
            anything first(0);
            if (rows_of(column) > 0 && ox::call<&impl::cell_is_editable>(column.pointer, first.pointer()))
                perform<&impl::set_cell_text>({column, "editing a cell"}, first.pointer(), L"edited");
        });
    }

    void click() const {
        for_each<ox::button_impl>([this](const element& button) {
            perform<&ox::button_impl::click>({button, "clicking"});
        });
        for_each<ox::action_tool_impl>([this](const element& tool) {
            perform<&ox::action_tool_impl::click>({tool, "clicking"});
        });
        for_each<ox::context_menu_impl>([this](const element& menu) {
            menu_tools(menu.pointer);  // opened, and left without a choice
            const open_menu open(menu.pointer);
            if (!open.tools().empty())
                perform<&ox::action_tool_impl::click>({open.tools().front(), "clicking"});
        });
    }

    void check_rows() const {
        for_each<ox::outline_checks_impl>([this](const element& checks) {
            for (std::uint32_t row = 0; row < rows_of(checks); ++row) {
                anything item(row);
                perform<&ox::outline_checks_impl::set_state>({checks, "checking a row"}, item.pointer(),
                                                             true);
            }
        });
    }

    bool close() const {
        bool accepted = false;
        for_each<ox::button_box_impl>([&](const element& box) {
            const std::int32_t buttons = ox::call<&ox::button_box_impl::count>(box.pointer);
            for (std::int32_t i = 0; i < buttons; ++i) {
                if (!ox::call<&ox::button_box_impl::enabled>(box.pointer, i)) continue;
                const act pressing{box, "pressing button " + std::to_string(i), i == 0};
                if (!perform<&ox::button_box_impl::click>(pressing, i)) continue;
                accepted = i == 0;
                return;
            }
        });
        return accepted;
    }

private:
    const user& user_;
    const std::vector<element>& dialog_;
};

}  // namespace

bool user::operate(const std::vector<element>& dialog) const {
    const hands both(*this, dialog);
    both.fill_in();
    both.choose_rows();
    both.click();
    both.check_rows();
    return both.close();
}

phase play::now() const {
    if (!applying_) return phase::elsewhere;
    if (host().live["progress"] > 0) return phase::within;
    const auto since = host().log.begin() + static_cast<std::ptrdiff_t>(log_before_);
    const bool shown = std::any_of(since, host().log.end(),
                                   [](const std::string& line) { return line.starts_with("progress"); });
    return shown ? phase::after : phase::before;
}

void play::run() {
    host().on_refusal = [this] { refused_in_ = now(); };
    session_.dialogs.on_show = [this](custom_pointer docker, custom_pointer box, int depth) {
        const std::vector<element> dialog = walk(docker, box);
        if (on_dialog) on_dialog(dialog, depth);
        user acting;
        acting.around = [this, depth](const act& done, const std::function<void()>& perform) {
            const bool applies = depth == 0 && done.accepts;
            if (applies) log_before_ = host().log.size();
            if (applies) applying_ = true;
            perform();
            if (applies) applying_ = false;
        };
        return acting.operate(dialog);
    };
    session_.run();
    session_.dialogs.on_show = nullptr;
    host().on_refusal = nullptr;
}

}  // namespace oxcheck
