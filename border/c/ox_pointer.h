#pragma once
/// The form in which objects cross the border between a host and its bundles, and how an object is asked
/// for its other interfaces.
///
/// - An interface is a table of plain functions. Slot 0 of every table is `polymorphic`, the operations
///   follow in the order of the struct that describes the table. Every function takes the table's address,
///   then the object word, then its own arguments; an `ox_pointer` is passed and returned by value.
/// - Host and bundle each have tables of their own for the same interface. A table is constant and lives
///   until its module is unloaded. Slots without a meaning between today's hosts and bundles are called
///   `reserved_<slot>`, in visitors `other_<slot>`: they take no arguments, do nothing, and answer 0, false
///   or what their comment says. They must be there.
/// - An interface is known by its name, "ox_" + words + "_interface_" + version, compared byte for byte.
///   Another version is another interface.
/// - There is one thread, the host's user interface thread. Either side may call the other back from inside
///   a call: copy what you will call, unlink before you tell, touch nothing after the last call out.
/// - No exception and no library object crosses. A null text or an empty pointer that is handed over counts
///   as an empty one and is accepted everywhere.
///
/// The words of the comments in these headers:
///   [host implements] [bundle implements]   whose objects have this table
///   [lent for the call]                     valid until the called function returns; copy what must stay
///   [kept until replaced]                   stored by the callee until another, or an empty one, is given
/// A visitor is always [lent for the call] and may be empty, which means: do not tell.

#include <stdbool.h>
#include <stddef.h>

/// A table and the object its functions act on. Two words, copied freely, owns nothing (ox_lifetime.h says
/// who keeps objects alive). Empty when either word is null, and an empty pointer is never called through.
typedef struct ox_pointer {
    const void* table;
    void* object;
} ox_pointer;

/// The table of the pointers that slot 0 of every other table answers. [host implements] [bundle implements]
struct ox_polymorphic_table {
    /// Any side may ask at any time. First sets both outputs to null; then, when the object has the interface
    /// `name` (8-bit text, lent for the call), to its table and object word. Unknown names, and known ones
    /// with another version, leave the outputs null. An object with several interfaces answers all their
    /// names through each of its polymorphic pointers; it must at least answer the name of the interface it
    /// was asked through.
    void (*query)(const void* table, void* object, const char* name, const void** table_out,
                  void** object_out);
};

/// The beginning of every other table: what can be called without knowing the interface.
struct ox_any_table {
    /// The polymorphic pointer of the same object.
    ox_pointer (*polymorphic)(const void* table, void* object);
};

/// A call through a pointer that is not empty: OX_TABLE(label, p)->visit_caption(OX_WORDS(p), visitor).
#define OX_TABLE(interface_words, pointer) ((const struct ox_##interface_words##_table*)(pointer).table)
#define OX_WORDS(pointer) (pointer).table, (pointer).object

static inline bool ox_is_empty(ox_pointer p) { return !p.table || !p.object; }

static inline bool ox_is_same(ox_pointer a, ox_pointer b) {
    return a.table == b.table && a.object == b.object;
}

// NOLINTBEGIN(modernize-use-nullptr): this is C
/// The interface `name` of the object behind a pointer of any interface; empty when it has none of that name.
static inline ox_pointer ox_cast(ox_pointer any, const char* name) {
    ox_pointer polymorphic = {NULL, NULL}, found = {NULL, NULL};
    if (!ox_is_empty(any)) polymorphic = OX_TABLE(any, any)->polymorphic(OX_WORDS(any));
    if (!ox_is_empty(polymorphic))
        OX_TABLE(polymorphic, polymorphic)->query(OX_WORDS(polymorphic), name, &found.table, &found.object);
    if (ox_is_empty(found)) found.table = found.object = NULL;
    return found;
}
// NOLINTEND(modernize-use-nullptr)
