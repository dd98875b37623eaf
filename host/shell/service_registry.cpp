#include "shell/service_registry.h"

#include <algorithm>

#include "base/text.h"
#include "border/call.h"

namespace oxhost::shell {

namespace {

struct utility_collector final : ox::utility_visitor_impl {
    explicit utility_collector(std::vector<offered_utility>& found_utilities) : found(found_utilities) {}
    void visit(const wchar_t* id, ox::custom_pointer utility) override {
        found.push_back({to_utf8(id), utility});
    }
    std::vector<offered_utility>& found;
};

struct dialog_collector final : ox::modal_dialog_visitor_impl {
    dialog_collector(dialog_desk& used, std::vector<ox::custom_pointer>& found_dialogs)
        : desk(used), found(found_dialogs) {}
    void visit(const wchar_t* id, ox::custom_pointer dialog) override {
        found.push_back(dialog);
        ox::call<&ox::modal_dialog_impl::attach>(dialog, desk.host_of(to_utf8(id)));
    }
    dialog_desk& desk;
    std::vector<ox::custom_pointer>& found;
};

/// False when the service is held already: factories publish the same one each time they are asked.
template <class Services>
bool hold(Services& services, ox::custom_pointer service) {
    const auto same = [&](const auto& held) { return held.get() == service; };
    if (!service || std::ranges::any_of(services, same)) return false;
    services.emplace_back(service);
    return true;
}

}  // namespace

void utility_intake::visit(ox::custom_pointer service) {
    if (!hold(services_, service)) return;
    utility_collector collector(utilities_);
    ox::call<&ox::utility_service_impl::report>(service,
                                                ox::make_pointer<ox::utility_visitor_impl>(collector));
}

void utility_intake::release_utilities() {
    utilities_.clear();
    services_.clear();
}

void dialog_intake::visit(ox::custom_pointer service) {
    if (!hold(services_, service)) return;
    dialog_collector collector(desk_, dialogs_);
    ox::call<&ox::modal_dialog_service_impl::report>(
        service, ox::make_pointer<ox::modal_dialog_visitor_impl>(collector));
}

void dialog_intake::release_dialogs() {
    for (const ox::custom_pointer& dialog : dialogs_)
        ox::call<&ox::modal_dialog_impl::attach>(dialog, ox::custom_pointer{});
    dialogs_.clear();
    services_.clear();
}

service_registry::~service_registry() {
    release_utilities();
    release_dialogs();
}

}  // namespace oxhost::shell
