#include "shell/bundle_context.h"

#include <algorithm>

#include "border/call.h"

namespace oxhost::shell {

bundle_context::~bundle_context() {
    for (const ox::custom_pointer& left : referrers_) ox::call<&ox::referrer_impl::released>(left, self());
}

ox::custom_pointer bundle_context::pointer() { return ox::make_pointer<ox::bundle_context_impl>(*this); }

void bundle_context::visit_registry(ox::custom_pointer registry_visitor) {
    ox::call<&ox::service_registry_visitor_impl::visit_registry>(registry_visitor, registry_);
}

std::size_t bundle_context::add_referrer(ox::custom_pointer referrer) {
    referrers_.push_back(referrer);
    return referrers_.size();
}

void bundle_context::remove_referrer(ox::custom_pointer referrer) {
    if (const auto found = std::ranges::find(referrers_, referrer); found != referrers_.end())
        referrers_.erase(found);
}

ox::custom_pointer bundle_context::self() { return ox::make_pointer<ox::referent_impl>(*this); }

}  // namespace oxhost::shell
