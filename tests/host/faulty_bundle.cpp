/// A bundle over border/ alone. While it is loaded and listed, an exception ends at each of the borders: of
/// the host's shell, of a host function, and its own, which it reports.

#include <cstdint>
#include <stdexcept>

#include "border/call.h"
#include "border/host_api/oxk_basic.h"
#include "border/host_api/oxk_msgs.h"
#include "border/interfaces/dialogs.h"
#include "border/interfaces/services.h"
#include "border/linkage.h"

namespace {

using ox::call;
using ox::custom_pointer;
using ox::make_pointer;

struct faulty_utility final : ox::utility_impl {
    void visit_caption(custom_pointer) override { throw std::runtime_error("no caption\ntoday"); }
} utility;

struct utility_service final : ox::utility_service_impl {
    void report(custom_pointer visitor) override {
        call<&ox::utility_visitor_impl::visit>(visitor, L"faulty", make_pointer<ox::utility_impl>(utility));
    }
} service;

/// A visitor that a careless author wrote by hand: what it throws goes through the caller.
custom_pointer nothing(const void*, void*) { return {}; }
void throwing_visit(const void*, void*, custom_pointer) { throw std::runtime_error("no registry wanted"); }
constexpr auto careless_table = ox::detail::make_slots(&nothing, &throwing_visit);

struct factory final : ox::service_factory_impl {
    void create(custom_pointer context, custom_pointer registry) override {
        call<&ox::utility_service_visitor_impl::visit>(ox::cast_from<ox::utility_service_visitor>(registry),
                                                       make_pointer<ox::utility_service_impl>(service));
        call<&ox::bundle_context_impl::visit_registry>(context, custom_pointer{&careless_table, this});
        void* adapter = ox_string_adp_create(
            nullptr, [](const wchar_t*, void*) { throw std::length_error("too long a path"); }, nullptr);
        ox_options_get_main_module_path(adapter);
        ox_string_adp_destroy(adapter);
    }
} only_factory;

custom_pointer context(const void*, void* object) { return {&careless_table, object}; }
void visit_factories(const void*, void*, const custom_pointer& visitor) {
    call<&ox::factory_visitor_impl::visit>(visitor, L"",
                                           make_pointer<ox::service_factory_impl>(only_factory));
}
constexpr auto table = ox::detail::make_slots(&context, &visit_factories);

void tell_host(const ox::border_fault& fault) {
    ox_border_fault(fault.place, static_cast<std::uint32_t>(fault.slot), fault.what);
}
[[maybe_unused]] const bool listening = (ox::on_border_fault = &tell_host, true);

}  // namespace

OX_EXPORT custom_pointer ox_bundle_interface_to_custom_pointer(void* argument) { return {&table, argument}; }
OX_EXPORT void scary_vcl_bug_crashes_everything_on_unloading() {}
