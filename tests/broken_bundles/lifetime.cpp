#include "lifetime.h"

#include <algorithm>

#include "border/call.h"
#include "border/interfaces/lifetime.h"
#include "fault.h"

namespace broken {

using ox::custom_pointer;

std::size_t lifetime::add(custom_pointer referrer) {
    if (is(fault::forgets_pins) && !referrer) return 0;
    auto& referrers = state_->referrers;
    if (!state_->ending) referrers.push_back(referrer);
    return is(fault::miscounts) ? 1 : referrers.size();
}

bool lifetime::remove(custom_pointer referrer, custom_pointer self) {
    const auto kept = state_;
    auto& referrers = kept->referrers;
    if (const auto found = std::ranges::find(referrers, referrer); found != referrers.end())
        referrers.erase(found);
    if (kept->ending || (!kept->polling && kept->is_held())) return false;
    if (std::exchange(kept->ending, true)) return false;  // it ended while it asked
    kept->tell(self);
    return true;
}

bool lifetime::state::has(custom_pointer referrer) const {
    return std::ranges::find(referrers, referrer) != referrers.end();
}

bool lifetime::state::is_held() {
    polling = true;
    bool held = false;
    const auto asked = referrers;
    for (const custom_pointer& each : asked) {
        if (ending) break;
        if (!has(each)) continue;
        const bool holds = !each || ox::call<&ox::referrer_impl::holds>(each);
        held = held || (holds && (!is(fault::believes_the_first) || !each || &each == &asked.front()));
    }
    polling = false;
    return held;
}

void lifetime::state::tell(custom_pointer self) {
    const auto told = referrers;
    for (const custom_pointer& each : told)
        if (is(fault::tells_unlinked) || has(each))
            ox::call<&ox::referrer_impl::released>(each,
                                                   is(fault::misnames_itself) ? custom_pointer{} : self);
}

}  // namespace broken
