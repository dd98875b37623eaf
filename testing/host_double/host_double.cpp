#include "testing/host_double/host_double.h"

#include <algorithm>

namespace host_double {

namespace {
state the_host;
}

state& host() { return the_host; }
void reset() { the_host = state(); }

bool are_given(const char* function, std::initializer_list<const void*> arguments) {
    if (std::ranges::find(arguments, nullptr) == arguments.end()) return true;
    host().given_null.emplace_back(function);
    return false;
}

bool state::refuses(const std::string& call) {
    log.push_back(call);
    return counts_as_refused(call);
}

bool state::scene_refuses(const std::string& call) { return scenes_refuse && counts_as_refused(call); }

bool state::counts_as_refused(const std::string& call) {
    if (++asked != refuse) return false;
    refused = call;
    if (on_refusal) on_refusal();
    return true;
}

scene& state::add(std::wstring caption, std::wstring pj4, line pv) {
    scenes.push_back(std::make_unique<scene>());
    scene& added = *scenes.back();
    added.caption = std::move(caption);
    added.pj4 = std::move(pj4);
    added.pv = std::move(pv);
    return added;
}

void state::deliver(void* adapter_handle, const std::wstring& text) {
    if (!are_given("deliver", {adapter_handle})) return;
    const auto* to = static_cast<const adapter*>(adapter_handle);
    to->wide(null_for_empty && text.empty() ? nullptr : text.c_str(), to->context);
}

int state::alive() const {
    int count = 0;
    for (const auto& [kind, number] : live) count += number;
    return count;
}

bool state::logged(const std::string& call) const { return std::ranges::find(log, call) != log.end(); }

}  // namespace host_double
