#pragma once
/// Turns a widget into something that the host can list and start.

#include "border/host_api/oxk_basic.h"
#include "toolkit/docker.h"
#include "toolkit/modal_dialog.h"

namespace ox::toolkit {

/// Ids of a utility's texts and help topic; 0 means none.
struct utility_texts {
    std::uint32_t caption = 0;
    std::uint32_t icon = 0;
    std::uint32_t dialog_caption = 0;
    std::uint32_t help = 0;
};

/// `W` is built afresh for every run: `element()` is its root, `apply()` its action, which answers
/// whether the dialog may close.
template <class W, const wchar_t* Id, int = 0>
class utility : public utility_impl {
public:
    static constexpr const wchar_t* id = Id;

    explicit utility(const utility_texts& texts) : texts_(texts) {}
    utility(const utility&) = delete;
    utility& operator=(const utility&) = delete;

    void visit_caption(custom_pointer string_visitor) override {
        visit_text_of(static_cast<std::int32_t>(texts_.caption), string_visitor);
    }
    void visit_icon(custom_pointer bitmap_visitor) override {
        visit_picture_of(static_cast<std::int32_t>(texts_.icon), bitmap_visitor);
    }
    void attach(custom_pointer window) override { window_ = window; }
    bool host_request() override { return !on_host_request || on_host_request(window_); }
    void run() override {
        docker<W> dialog(texts_.dialog_caption);
        on_widget(dialog.widget());
        show(dialog);
    }
    void set_host_data(custom_pointer data) override { host_data_ = data; }

    callback<void(W&)> on_widget;                           ///< before the dialog is shown
    callback<bool(custom_pointer window)> on_host_request;  ///< the host asks before it starts the utility

protected:
    ~utility() = default;

private:
    void show(docker<W>& dialog) {
        button_box buttons(texts_.help ? commands(command::apply, command::close, command::help)
                                       : commands(command::apply, command::close));
        buttons.on_apply = [&dialog] { return dialog.widget().apply(); };
        if (texts_.help)
            buttons.on_help = [this] { ox_help_mngr_show_help(1, ox_help_mngr_find_help_id(texts_.help)); };
        util::show_modal<Id>(dialog, buttons);
    }

    utility_texts texts_;
    custom_pointer window_{};
    custom_pointer host_data_{};
};

}  // namespace ox::toolkit
