#pragma once
/// How modules publish services and find those of the host. [ui]

#include <cstdint>
#include <string>

#include "border/binding.h"

namespace ox {

/// Key of a category of services: the domain-style namespace of this build's host, then one of the suffixes.
inline std::wstring category_key(const wchar_t* suffix) { return std::wstring(OX_HOST_NAMESPACE) + suffix; }
inline constexpr const wchar_t* utility_category = L"/utility";
inline constexpr const wchar_t* localizer_category = L"/localizer";

/// Called by the host once per factory that the module reported. [module implements]
struct service_factory_impl : binding<service_factory_impl, service_factory> {
    virtual void create(custom_pointer /*context*/, custom_pointer /*registry*/) {}
    using table = operations<&service_factory_impl::create>;
};

/// The module's context: answers the registry; its referent owns what the module creates.
/// [host implements]
struct bundle_context_impl : binding<bundle_context_impl, bundle_context> {
    virtual std::size_t reserved() { return 0; }
    virtual void visit_registry(custom_pointer /*registry_visitor*/) {}
    using table = operations<&bundle_context_impl::reserved, &bundle_context_impl::visit_registry>;
};

/// Services by category. Its polymorphic also answers the service visitors through which a module
/// publishes. [host implements]
struct service_registry_impl : binding<service_registry_impl, service_registry> {
    virtual void visit(const wchar_t* /*key*/, custom_pointer /*service_visitor*/) {}
    using table = operations<&service_registry_impl::visit>;
};

struct service_registry_visitor_impl : binding<service_registry_visitor_impl, service_registry_visitor> {
    virtual void visit_registry(custom_pointer /*registry*/) {}
    using table = operations<&service_registry_visitor_impl::visit_registry>;
};

/// Marker: the registry casts it to the visitors of the kinds of service that it holds.
struct service_visitor_impl : binding<service_visitor_impl, service_visitor> {
    using table = operations<>;
};

/// Reports the factories of a bundle. [host implements]
struct factory_visitor_impl : binding<factory_visitor_impl> {
    static constexpr const char* label = "factory visitor";
    virtual void visit(const wchar_t* /*key*/, custom_pointer /*factory*/) {}
    using table = operations<&factory_visitor_impl::visit>;
};

// ---- Localizer -----------------------------------------------------------------------------------

/// Takes over the lookup of a module's own texts and pictures, ids above 0. [host implements]
struct localizer_impl : binding<localizer_impl, localizer> {
    virtual custom_pointer referent() { return {}; }
    virtual bool visit_string(std::uint32_t /*id*/, custom_pointer /*string_visitor*/) { return false; }
    virtual void visit_bitmap(std::uint32_t /*id*/, custom_pointer /*bytes_visitor*/) {}
    virtual void visit_masked_bitmap(std::uint32_t /*id*/, custom_pointer /*masked_bitmap_visitor*/) {}
    using table = operations<&localizer_impl::referent, &localizer_impl::visit_string,
                             &localizer_impl::visit_bitmap, &localizer_impl::visit_masked_bitmap>;
};

/// Hands out the localizer of the module that the context identifies. [host implements]
struct localizer_service_impl : binding<localizer_service_impl, localizer_service> {
    virtual void visit_localizer(custom_pointer /*localizer_visitor*/, custom_pointer /*context*/) {}
    using table = operations<&localizer_service_impl::visit_localizer>;
};

struct localizer_service_visitor_impl : binding<localizer_service_visitor_impl, localizer_service_visitor> {
    virtual void visit_service(custom_pointer /*localizer_service*/) {}
    using table = operations<&localizer_service_visitor_impl::visit_service>;
};

struct localizer_visitor_impl : binding<localizer_visitor_impl, localizer_visitor> {
    virtual void visit_localizer(custom_pointer /*localizer*/) {}
    using table = operations<&localizer_visitor_impl::visit_localizer>;
};

/// Told when the host's language changes. This module looks every text up anew and keeps the default.
struct localizer_client_impl : binding<localizer_client_impl, localizer_client> {
    virtual void notify() {}
    using table = operations<&localizer_client_impl::notify>;
};

}  // namespace ox
