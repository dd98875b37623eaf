#include "oxcheck/tree/play.h"

#include <algorithm>

#include "oxcheck/stage/script.h"
#include "oxcheck/tree/user.h"

namespace oxcheck {

using host_double::host;

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
        if (on_dialog) on_dialog(walk(docker, box), depth);
        user acting;
        if (depth == 0) {
            acting.before_accepting = [this] {
                applying_ = applied_ = true;
                log_before_ = host().log.size();
            };
            acting.after_accepting = [this] { applying_ = false; };
        }
        return acting.operate(docker, box);
    };
    session_.run();
    session_.dialogs.on_show = nullptr;
    host().on_refusal = nullptr;
}

}  // namespace oxcheck
