#pragma once
/// The module as a client of the host's localizers.

#include "border/polymorphic.h"
#include "border/ref.h"
#include "framework/factories.h"

namespace ox {

/// The host's localizer for this module, or empty. It answers lookups of the module's own texts and
/// pictures while it lives.
custom_pointer current_localizer();

namespace detail {

/// Fetches the localizer when the host calls `create`: context -> registry -> the services of the
/// localizer category -> the localizer of this module. The first context wins; among several
/// localizers the last one visited stays.
class local_factory_impl final : public custom_client_factory_impl,
                                 public service_registry_visitor_impl,
                                 public polymorphic<service_visitor_impl>,
                                 public polymorphic<localizer_service_visitor_impl>,
                                 public localizer_visitor_impl,
                                 public localizer_client_impl {
public:
    local_factory_impl();
    ~local_factory_impl();

    custom_pointer localizer() const { return localizer_.get(); }

    void create(custom_pointer context, custom_pointer registry) override;
    void visit_registry(custom_pointer registry) override;
    void visit_service(custom_pointer localizer_service) override;
    void visit_localizer(custom_pointer localizer) override;

private:
    custom_pointer context_{};
    ref<ox::localizer, 1> localizer_;
};

}  // namespace detail

}  // namespace ox
