#include "border/host_api/oxk_msgs.h"

#include "testing/host_double/host_double.h"

using host_double::are_given;
using host_double::host;

void ox_show_wmessage(const wchar_t* text) {
    if (are_given(__func__, {text})) host().messages.emplace_back(text);
}
void ox_show_werror(const wchar_t* text) {
    if (are_given(__func__, {text})) host().errors.emplace_back(text);
}
bool ox_yesno_wmessage(const wchar_t* text) {
    if (!are_given(__func__, {text})) return false;
    host().questions.emplace_back(text);
    if (host().on_question) host().on_question();
    return host().answer;
}
void* ox_progress_create(int options) {
    if (host().refuses("progress " + std::to_string(options))) return nullptr;
    ++host().live["progress"];
    return &host().progress;
}
bool ox_progress_report(void* progress, double fraction) {
    if (are_given(__func__, {progress})) host().progress.push_back(fraction);
    return false;
}
void ox_progress_destroy(void* progress) {
    if (are_given(__func__, {progress})) --host().live["progress"];
}

void ox_border_fault(const char* place, std::uint32_t slot, const char* what) {
    host().border_faults.push_back(std::string(place) + ", slot " + std::to_string(slot) + ": " + what);
}
