#pragma once
/// Factories that the module registers while it loads, and the list that the host enumerates.

#include <list>
#include <string>

#include "border/interfaces/services.h"

namespace ox {

/// A factory with the key of the service category it serves; a null key reads as the empty text.
class basic_service_factory_impl : public service_factory_impl {
public:
    explicit basic_service_factory_impl(const wchar_t* key) : key_(key ? key : L"") {}
    const std::wstring& key() const { return key_; }

protected:
    ~basic_service_factory_impl() = default;

private:
    std::wstring key_;
};

/// The factories of this module, in order of registration.
std::list<basic_service_factory_impl*>& module_factories();

/// Hands every factory with its key to a factory visitor.
void visit_module_factories(custom_pointer factory_visitor);

/// Registered in the module's list for as long as it lives.
class custom_service_factory_impl : public basic_service_factory_impl {
public:
    explicit custom_service_factory_impl(const wchar_t* key);
    custom_service_factory_impl(const custom_service_factory_impl&) = delete;
    custom_service_factory_impl& operator=(const custom_service_factory_impl&) = delete;

protected:
    ~custom_service_factory_impl();
};

/// The same for factories that publish nothing and only consume services of the host.
class custom_client_factory_impl : public custom_service_factory_impl {
public:
    using custom_service_factory_impl::custom_service_factory_impl;

protected:
    ~custom_client_factory_impl() = default;
};

}  // namespace ox
