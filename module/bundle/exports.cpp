/// The two functions by which the host knows this module.

#include "border/call.h"
#include "border/linkage.h"
#include "framework/factories.h"
#include "platform/platform.h"

namespace ox {

namespace {

/// The module answers no request of the host's context.
void no_context(const void*, void*, const char*, const void** table_out, void** object_out) noexcept {
    *table_out = nullptr;
    *object_out = nullptr;
}

constexpr detail::slots<detail::query_function> context_table{&no_context};

custom_pointer context(const void*, void* object) noexcept { return {&context_table, object}; }

void visit_factories(const void*, void*, const custom_pointer& visitor) noexcept {
    at_border("bundle", 1, [&] { visit_module_factories(visitor); });
}

void reserved() noexcept {}

void tell_host(const border_fault& fault) {
    using function = void(const char*, std::uint32_t, const char*);
    if (const auto tell = platform::host_function<function>("oxk_msgs", "ox_border_fault"))
        tell(fault.place, static_cast<std::uint32_t>(fault.slot), fault.what);
}
[[maybe_unused]] const bool listening = (on_border_fault = &tell_host, true);

constexpr auto bundle_table =
    detail::make_slots(&context, &visit_factories, &reserved, &reserved, &reserved, &reserved);

}  // namespace

}  // namespace ox

/// The bundle's table, with the host's argument as its object.
OX_EXPORT ox::custom_pointer ox_bundle_interface_to_custom_pointer(void* argument) {
    return {&ox::bundle_table, argument};
}

/// Its mere presence is what the host asks for.
OX_EXPORT void scary_vcl_bug_crashes_everything_on_unloading() {}
