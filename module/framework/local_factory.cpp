#include "framework/local_factory.h"

#include "border/call.h"

namespace ox {

namespace {
detail::local_factory_impl* instance = nullptr;
}

custom_pointer current_localizer() { return instance ? instance->localizer() : custom_pointer{}; }

namespace detail {

local_factory_impl::local_factory_impl() : custom_client_factory_impl(nullptr) { instance = this; }

local_factory_impl::~local_factory_impl() { instance = nullptr; }

void local_factory_impl::create(custom_pointer context, custom_pointer) {
    if (context_) return;
    context_ = context;
    call<&bundle_context_impl::visit_registry>(context_, make_pointer<service_registry_visitor_impl>(*this));
}

void local_factory_impl::visit_registry(custom_pointer registry) {
    call<&service_registry_impl::visit>(registry, category_key(localizer_category).c_str(),
                                        make_pointer<service_visitor_impl>(*this));
}

void local_factory_impl::visit_service(custom_pointer localizer_service) {
    call<&localizer_service_impl::visit_localizer>(localizer_service,
                                                   make_pointer<localizer_visitor_impl>(*this), context_);
}

void local_factory_impl::visit_localizer(custom_pointer localizer) { localizer_.reset(localizer); }

}  // namespace detail

}  // namespace ox
