#pragma once
/// What a bundle is created with: the way to the registry, and the owner of its objects.

#include <vector>

#include "border/interfaces/lifetime.h"
#include "border/interfaces/services.h"
#include "border/polymorphic.h"

namespace oxhost::shell {

/// Lives as long as its owner keeps it, whoever refers to it: the bundle's objects register here and
/// must be gone before it goes. [ui]
class bundle_context final : public ox::polymorphic<ox::bundle_context_impl>,
                             public ox::polymorphic<ox::referent_impl> {
public:
    bundle_context() = default;
    ~bundle_context();

    void offer(ox::custom_pointer registry) { registry_ = registry; }

    ox::custom_pointer pointer();
    std::size_t referrer_count() const { return referrers_.size(); }

    void visit_registry(ox::custom_pointer registry_visitor) override;
    std::size_t add_referrer(ox::custom_pointer referrer) override;
    void remove_referrer(ox::custom_pointer referrer) override;
    ox::custom_pointer self() override;

private:
    ox::custom_pointer registry_{};
    std::vector<ox::custom_pointer> referrers_;
};

}  // namespace oxhost::shell
