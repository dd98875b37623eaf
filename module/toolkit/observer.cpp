#include "toolkit/observer.h"

namespace ox::events {

observer::~observer() {
    for (const auto& [list, place] : places_)
        if (const auto live = list.lock()) live->erase(place);
}

void observer_list::join(const std::shared_ptr<observer>& joining) {
    entries_.push_back({joining, joined_++});
    joining->places_.emplace_back(weak_from_this(), std::prev(entries_.end()));
}

void observer_list::leave(observer& leaving) {
    std::erase_if(leaving.places_, [this](const auto& each) {
        const bool here = each.first.lock().get() == this;
        if (here) erase(each.second);
        return here;
    });
}

void observer_list::erase(place leaving) {
    for (walk* each = innermost_; each; each = each->outer)
        if (each->next == leaving) ++each->next;
    entries_.erase(leaving);
}

void observer_list::call_all() {
    walk here{entries_.begin(), innermost_};
    innermost_ = &here;
    const auto arrive = [this](walk* over) { innermost_ = over->outer; };
    const std::unique_ptr<walk, decltype(arrive)> arrival(&here, arrive);
    const std::size_t end = joined_;
    while (here.next != entries_.end() && here.next->number < end)
        if (const auto target = (here.next++)->target.lock()) target->callback();
}

}  // namespace ox::events
