#pragma once
/// The referrers of a service, as the contract has them; and wrong in one point or other.

#include <list>
#include <memory>

#include "border/custom_pointer.h"

namespace broken {

class lifetime {
public:
    /// Number of referrers after the addition.
    std::size_t add(ox::custom_pointer referrer);
    /// True when the service ends now: nobody holds it, and everybody was told that `self` ends. Referrers
    /// may come and go meanwhile, and the service itself may be gone afterwards.
    bool remove(ox::custom_pointer referrer, ox::custom_pointer self);

private:
    struct state {
        std::list<ox::custom_pointer> referrers;
        bool polling = false;
        bool ending = false;

        bool has(ox::custom_pointer referrer) const;
        bool is_held();
        void tell(ox::custom_pointer self);
    };
    std::shared_ptr<state> state_ = std::make_shared<state>();
};

}  // namespace broken
