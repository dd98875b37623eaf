#include "border/host_api/oxk_msgs.h"

#include "session/border.h"
#include "session/messages.h"

using namespace oxhost;

void ox_show_wmessage(const wchar_t* text) {
    at_border([&] { messages::instance().inform(to_utf8(text)); });
}

void ox_show_werror(const wchar_t* text) {
    at_border([&] { messages::instance().report_error(to_utf8(text)); });
}

bool ox_yesno_wmessage(const wchar_t* text) {
    return at_border([&] { return messages::instance().ask(to_utf8(text)); });
}

/// There is one look of the indicator, whatever the options.
void* ox_progress_create(int) {
    return at_border([] { return messages::instance().open_progress().release(); });
}

/// Nothing here cancels, so the work always goes on.
bool ox_progress_report(void* progress, double fraction) {
    if (!progress) return true;
    return at_border([&] {
        static_cast<progress_display*>(progress)->report(fraction);
        return true;
    });
}

void ox_progress_destroy(void* progress) { delete static_cast<progress_display*>(progress); }

void ox_border_fault(const char* place, std::uint32_t slot, const char* what) {
    tell_fault({place ? place : "a border", slot, what ? what : ""});
}
