#pragma once
/// Both ends of the lifetime protocol, played by the checker.

#include <algorithm>
#include <functional>
#include <list>
#include <string>
#include <utility>
#include <vector>

#include "border/call.h"
#include "border/interfaces/lifetime.h"

namespace oxcheck {

using ox::custom_pointer;

/// A referrer that writes down when its referent lets go of it.
struct watcher final : ox::referrer_impl {
    explicit watcher(bool holding) : holding_(holding) {}

    bool holds() override {
        if (on_asked) on_asked();
        return holding_;
    }
    void released(custom_pointer referent) override {
        ++releases;
        self_while_released = ox::call<&ox::referent_impl::self>(referent);
        released_by = referent;
        if (on_released) on_released();
    }
    custom_pointer pointer() { return ox::make_pointer<ox::referrer_impl>(*this); }

    int releases = 0;
    custom_pointer released_by{};
    custom_pointer self_while_released{};
    std::function<void()> on_asked,
        on_released;  ///< while it is asked whether it holds, and while it is told

private:
    bool holding_;
};

/// A watcher that outlives whatever it watches, also when a check ends early.
inline watcher& new_watcher(bool holding) {
    static std::list<watcher> all;
    return all.emplace_back(holding);
}

/// An object of the host that a bundle may hold on to. It ends when the checker says so.
class host_referent : public ox::referent_impl {
public:
    void set_owner(custom_pointer owner) { owner_ = owner; }

    std::size_t add_referrer(custom_pointer referrer) override {
        log.push_back(referrer ? "add" : "pin");
        referrers.push_back(referrer);
        return referrers.size();
    }
    void remove_referrer(custom_pointer referrer) override {
        log.push_back(referrer ? "remove" : "unpin");
        if (const auto found = std::ranges::find(referrers, referrer); found != referrers.end())
            referrers.erase(found);
    }
    custom_pointer owner() override { return owner_; }
    custom_pointer self() override { return ox::make_pointer<ox::referent_impl>(*this); }

    /// As if this were being destroyed.
    void release_all() {
        for (const custom_pointer referrer : std::exchange(referrers, {}))
            ox::call<&ox::referrer_impl::released>(referrer, self());
    }

    std::vector<custom_pointer> referrers;  ///< empty ones are pins
    std::vector<std::string> log;           ///< "add", "remove", "pin" and "unpin" in order

private:
    custom_pointer owner_{};
};

}  // namespace oxcheck
