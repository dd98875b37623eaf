#include "framework/referent.h"

#include <algorithm>

#include "border/call.h"

namespace ox {

std::size_t objbase::add_referrer(custom_pointer referrer) {
    referrers_.push_back(referrer);
    return referrers_.size();
}

void objbase::remove_referrer(custom_pointer referrer) {
    if (const auto found = std::ranges::find(referrers_, referrer); found != referrers_.end())
        referrers_.erase(found);
    // A removal from inside a `holds` answer goes straight on to the end, on purpose.
    if (!polling_ && is_held()) return;
    for (const custom_pointer& left : referrers_) call<&referrer_impl::released>(left, self());
    delete this;
}

bool objbase::is_held() {
    polling_ = true;
    const bool held = std::ranges::any_of(
        referrers_, [](custom_pointer r) { return !r || call<&referrer_impl::holds>(r); });
    polling_ = false;
    return held;
}

}  // namespace ox
