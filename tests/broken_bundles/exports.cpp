#include <chrono>
#include <thread>

#include "border/call.h"
#include "fault.h"
#include "framework/factories.h"

#if defined(_WIN32)
#define BUNDLE_EXPORT extern "C" __declspec(dllexport)
#else
#define BUNDLE_EXPORT extern "C" __attribute__((visibility("default")))
#endif

namespace broken {
namespace {

using ox::custom_pointer;
using ox::detail::make_slots;

void no_context(const void*, void*, const char*, const void** table_out, void** object_out) {
    *table_out = nullptr;
    *object_out = nullptr;
}
constexpr auto context_table = make_slots(&no_context);

custom_pointer context(const void*, void* object) { return {&context_table, object}; }

void visit_factories(const void*, void*, const custom_pointer& visitor) {
    using slot = void (*)(const void*, void*, const wchar_t*, custom_pointer);
    if (is(fault::calls_empty_visitor) && visitor.table && !visitor.object)
        static_cast<const slot*>(visitor.table)[1](visitor.table, visitor.object, L"", {});
    ox::visit_module_factories(visitor);
}

void reserved() {
    if (is(fault::throws)) throw 1;
    if (is(fault::crashes)) *static_cast<volatile int*>(nullptr) = 0;
    static volatile bool ever = is(fault::hangs) || is(fault::sleeps);
    while (ever)
        if (is(fault::sleeps)) std::this_thread::sleep_for(std::chrono::hours(1));
}

constexpr auto table = make_slots(&context, &visit_factories, &reserved, &reserved, &reserved, &reserved);
constexpr auto other_table =
    make_slots(&context, &visit_factories, &reserved, &reserved, &reserved, &reserved);

}  // namespace
}  // namespace broken

BUNDLE_EXPORT ox::custom_pointer ox_bundle_interface_to_custom_pointer(void* argument) {
    static bool odd = false;
    odd = !odd && broken::is(broken::fault::changing_table);
    return {odd ? static_cast<const void*>(&broken::other_table) : &broken::table, argument};
}
