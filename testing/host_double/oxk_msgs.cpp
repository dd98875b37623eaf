#include "border/host_api/oxk_msgs.h"

#include "testing/host_double/host_double.h"

using host_double::host;

void ox_show_wmessage(const wchar_t* text) { host().messages.emplace_back(text); }
void ox_show_werror(const wchar_t* text) { host().errors.emplace_back(text); }
bool ox_yesno_wmessage(const wchar_t* text) {
    host().questions.emplace_back(text);
    if (host().on_question) host().on_question();
    return host().answer;
}
void* ox_progress_create(int options) {
    if (host().refuses("progress " + std::to_string(options))) return nullptr;
    ++host().live["progress"];
    return &host().progress;
}
bool ox_progress_report(void*, double fraction) {
    host().progress.push_back(fraction);
    return false;
}
void ox_progress_destroy(void*) { --host().live["progress"]; }
