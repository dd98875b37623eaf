#include <chrono>
#include <thread>

#include "border/call.h"
#include "border/linkage.h"
#include "fault.h"
#include "framework/factories.h"
#include "platform/platform.h"

namespace broken {
namespace {

using ox::custom_pointer;
using ox::detail::make_slots;

void query_context(const void*, void* object, const char*, const void** table_out, void** object_out);
constexpr auto context_table = make_slots(&query_context);

void query_context(const void*, void* object, const char*, const void** table_out, void** object_out) {
    *table_out = is(fault::answers_context) ? &context_table : nullptr;
    *object_out = is(fault::answers_context) ? object : nullptr;
}

custom_pointer context(const void*, void* object) { return {&context_table, object}; }

void visit_factories(const void*, void*, const custom_pointer& visitor) {
    using slot = void (*)(const void*, void*, const wchar_t*, custom_pointer);
    if (is(fault::calls_empty_visitor) && visitor.table && !visitor.object)
        static_cast<const slot*>(visitor.table)[1](visitor.table, visitor.object, L"", {});
    static int visits = 0;
    if (++visits == 3 && is(fault::reorders_factories)) ox::module_factories().reverse();
    ox::visit_module_factories(visitor);
}

void reserved() {
    if (is(fault::throws)) throw 1;
    if (is(fault::crashes)) *static_cast<volatile int*>(nullptr) = 0;
    static volatile bool ever = is(fault::hangs) || is(fault::sleeps);
    while (ever)
        if (is(fault::sleeps)) std::this_thread::sleep_for(std::chrono::hours(1));
}

void tell_host(const ox::border_fault& fault) {
    using function = void(const char*, std::uint32_t, const char*);
    if (const auto tell = ox::platform::host_function<function>("oxk_msgs", "ox_border_fault"))
        tell(fault.place, static_cast<std::uint32_t>(fault.slot), fault.what);
}
[[maybe_unused]] const bool listening = (ox::on_border_fault = &tell_host, true);

constexpr auto table = make_slots(&context, &visit_factories, &reserved, &reserved, &reserved, &reserved);
constexpr auto other_table =
    make_slots(&context, &visit_factories, &reserved, &reserved, &reserved, &reserved);

}  // namespace
}  // namespace broken

OX_EXPORT ox::custom_pointer ox_bundle_interface_to_custom_pointer(void* argument) {
    using namespace broken;
    static bool odd = false;
    odd = !odd && is(fault::changing_table);
    return {odd ? static_cast<const void*>(&other_table) : &table,
            is(fault::loses_argument) ? &odd : argument};
}
