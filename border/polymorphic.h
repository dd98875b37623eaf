#pragma once
/// Composite objects: one object that offers several interfaces, each findable through any other.

#include "border/binding.h"

namespace ox {

/// A link in the chain of interfaces of one composite.
struct polymorphic_next {
    polymorphic_next* next = nullptr;
    /// The query of this link's interface alone.
    virtual void query_own(const char* /*name*/, const void** /*table_out*/, void** /*object_out*/) {}

protected:
    ~polymorphic_next() = default;
};

/// Shared head of the chain. Names are unique per object, so the walk does not stop at a match.
struct polymorphic_base {
    polymorphic_next* head = nullptr;

    void query(const char* name, const void** table_out, void** object_out) {
        for (auto* node = head; node; node = node->next) node->query_own(name, table_out, object_out);
    }

protected:
    ~polymorphic_base() = default;
};

template <class T>
struct polymorphic;

/// The link of one binding class `T`; joins the chain at its head when it is constructed.
template <class T>
struct polymorphic_impl : polymorphic_next, virtual polymorphic_base {
    polymorphic_impl() {
        this->next = this->head;
        this->head = this;
    }
    polymorphic_impl(const polymorphic_impl&) = delete;
    polymorphic_impl& operator=(const polymorphic_impl&) = delete;

    void query_own(const char* name, const void** table_out, void** object_out) override {
        static_cast<polymorphic<T>*>(this)->T::query(name, table_out, object_out);
    }

protected:
    ~polymorphic_impl() = default;
};

/// One interface of a composite: `struct both : polymorphic<a_impl>, polymorphic<b_impl> {}`.
template <class T>
struct polymorphic : T, polymorphic_impl<T> {
    void query(const char* name, const void** table_out, void** object_out) override {
        polymorphic_base::query(name, table_out, object_out);
    }

protected:
    ~polymorphic() = default;
};

}  // namespace ox
