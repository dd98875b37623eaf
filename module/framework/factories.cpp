#include "framework/factories.h"

#include "border/call.h"

namespace ox {

std::list<basic_service_factory_impl*>& module_factories() {
    // Constructed before the first static factory, so destroyed after the last one.
    static std::list<basic_service_factory_impl*> factories;
    return factories;
}

void visit_module_factories(custom_pointer factory_visitor) {
    for (basic_service_factory_impl* factory : module_factories())
        call<&factory_visitor_impl::visit>(factory_visitor, factory->key().c_str(),
                                           make_pointer<service_factory_impl>(*factory));
}

custom_service_factory_impl::custom_service_factory_impl(const wchar_t* key)
    : basic_service_factory_impl(key) {
    module_factories().push_back(this);
}

custom_service_factory_impl::~custom_service_factory_impl() { module_factories().remove(this); }

}  // namespace ox
