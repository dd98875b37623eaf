// The bundle entry and its table.

#include "border/call.h"
#include "oxcheck/check.h"
#include "oxcheck/stage/anything.h"
#include "oxcheck/stage/session.h"

namespace oxcheck {

namespace {

constexpr std::size_t first_reserved = 2, last_reserved = 5;

void answers_one_table(const subject& given) {
    const bundle loaded(given.bundle);
    int first = 0, second = 0;
    const void* const table = loaded.enter(&first).table;
    require(table != nullptr, "a table", "null");
    require(loaded.enter(&second).table == table && loaded.enter(nullptr).table == table,
            "the same table at every call", "another table");
}

void returns_its_argument(const subject& given) {
    const bundle loaded(given.bundle);
    int first = 0, second = 0;
    for (void* const argument :
         {static_cast<void*>(&first), static_cast<void*>(&second), static_cast<void*>(nullptr)})
        require(loaded.enter(argument).object == argument, "the argument as the object", "another address");
}

void leaves_empty_visitors_alone(const subject& given) {
    const bundle loaded(given.bundle);
    anything visitor;
    loaded.visit_factories({visitor.pointer().table, nullptr});
    loaded.visit_factories({nullptr, visitor.pointer().object});
    loaded.visit_factories({nullptr, nullptr});
    require_equal(visitor.calls() + anything::calls_without_object(), std::size_t{0},
                  "calls of visitors with an empty word:");
}

void has_harmless_reserved_entries(const subject& given) {
    const bundle loaded(given.bundle);
    int argument = 0;
    const custom_pointer entered = loaded.enter(&argument);
    const std::size_t factories = loaded.factories().size();
    anything neighbour;
    // "Any arguments": none but the two words, and more of them than any operation takes.
    using plain = void (*)(const void*, void*);
    using laden = void (*)(const void*, void*, custom_pointer, const wchar_t*, std::int32_t, double, void*);
    for (std::size_t slot = first_reserved; slot <= last_reserved; ++slot) {
        note("calling reserved entry " + std::to_string(slot));
        static_cast<const plain*>(entered.table)[slot](entered.table, entered.object);
        static_cast<const plain*>(entered.table)[slot](nullptr, nullptr);
        static_cast<const laden*>(entered.table)[slot](entered.table, entered.object, neighbour.pointer(),
                                                       L"text", -1, 0.5, &argument);
    }
    require_equal(neighbour.calls(), std::size_t{0}, "calls of the arguments:");
    require_equal(argument, 0, "the object:");
    require_equal(loaded.factories().size(), factories, "factories afterwards:");
}

void answers_no_context_request(const subject& given) {
    const bundle loaded(given.bundle);
    int argument = 0;
    const void* table = loaded.enter(&argument).table;
    const custom_pointer context = ox::detail::function_at<custom_pointer (*)(const void*, void*)>(
        {table, &argument}, 0)(table, &argument);
    require(context.table != nullptr, "a context table", "null");
    require(context.object == &argument, "the context of the given object", "another object");
    using query = void (*)(const void*, void*, const char*, const void**, void**);
    for (const char* name :
         {"ox_bundle_context_interface_1", "ox_bundle_interface_1", "ox_referent_interface_1", ""}) {
        custom_pointer answer{&argument, &argument};
        static_cast<const query*>(context.table)[0](context.table, context.object, name, &answer.table,
                                                    &answer.object);
        require(!answer.table && !answer.object, std::string("nothing for \"") + name + "\"", "an answer");
    }
}

constexpr check checks[] = {
    {"entry.same_table", "every call of the entry answers the same table", answers_one_table},
    {"entry.argument", "the entry returns its argument as the object", returns_its_argument},
    {"entry.empty_visitor", "a factory visitor with an empty word is not called",
     leaves_empty_visitors_alone},
    {"entry.reserved", "the reserved entries do nothing", has_harmless_reserved_entries},
    {"entry.context", "the bundle's context answers every request with nothing", answers_no_context_request},
};

}  // namespace

std::span<const check> entry_checks() { return checks; }

}  // namespace oxcheck
