#include "framework/referent.h"

#include <algorithm>

#include "border/call.h"

namespace ox {

objbase::~objbase() {
    if (ended_) *ended_ = true;
}

std::size_t objbase::add_referrer(custom_pointer referrer) {
    if (!ending_) referrers_.push_back(referrer);
    return referrers_.size();
}

void objbase::remove_referrer(custom_pointer referrer) {
    if (const auto found = std::ranges::find(referrers_, referrer); found != referrers_.end()) {
        if (ending_ && next_told_ == found) ++next_told_;
        referrers_.erase(found);
    }
    if (ending_) return;
    // A removal from inside a `holds` answer goes straight on to the end, on purpose.
    if (ended_ != nullptr || !lives_on()) end();
}

bool objbase::lives_on() {
    bool ended = false;
    ended_ = &ended;
    for (const custom_pointer& each : referrers_) {
        const bool held = !each || call<&referrer_impl::holds>(each);
        if (ended) return true;  // of a removal from inside the answer
        if (!held) continue;
        ended_ = nullptr;
        return true;
    }
    ended_ = nullptr;
    return false;
}

void objbase::end() {
    ending_ = true;
    next_told_ = referrers_.begin();
    while (next_told_ != referrers_.end()) call<&referrer_impl::released>(*next_told_++, self());
    delete this;
}

}  // namespace ox
