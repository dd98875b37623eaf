// Factories, their list, and how the module finds its localizer.

#include <gtest/gtest.h>

#include "border/call.h"
#include "framework/local_factory.h"
#include "framework/referent.h"

namespace ox {
namespace {

struct test_localizer final : util::referent<localizer_impl> {
    test_localizer() : obj(custom_pointer{}) {}
};

/// A host with one localizer service in one category.
struct test_host : bundle_context_impl {
    struct registry_part : service_registry_impl {
        test_host* host = nullptr;
        void visit(const wchar_t* key, custom_pointer visitor) override {
            host->asked_key = key;
            const custom_pointer kind = cast_from<localizer_service_visitor>(visitor);
            call<&localizer_service_visitor_impl::visit_service>(
                kind, make_pointer<localizer_service_impl>(host->service));
        }
    } registry;
    struct service_part : localizer_service_impl {
        test_host* host = nullptr;
        void visit_localizer(custom_pointer visitor, custom_pointer context) override {
            host->asked_context = context;
            call<&localizer_visitor_impl::visit_localizer>(visitor, host->localizer.get());
        }
    } service;
    ref<ox::localizer, 0> localizer{make_pointer<localizer_impl>(*new test_localizer)};
    std::wstring asked_key;
    custom_pointer asked_context{};

    test_host() { registry.host = service.host = this; }
    void visit_registry(custom_pointer visitor) override {
        call<&service_registry_visitor_impl::visit_registry>(visitor,
                                                             make_pointer<service_registry_impl>(registry));
    }
};

TEST(LocalFactory, FetchesTheLocalizerOnceAndLosesItWithTheHost) {
    detail::local_factory_impl factory;
    EXPECT_EQ(factory.key(), L"");
    test_host first, second;
    factory.create({}, {});
    EXPECT_FALSE(current_localizer());
    factory.create(make_pointer<bundle_context_impl>(first), {});
    EXPECT_EQ(first.asked_key, L"ox.host/localizer");
    EXPECT_EQ(first.asked_context, make_pointer<bundle_context_impl>(first));
    EXPECT_EQ(current_localizer(), first.localizer.get());
    factory.create(make_pointer<bundle_context_impl>(second), {});  // the first context stays
    EXPECT_EQ(current_localizer(), first.localizer.get());
    first.localizer.reset();
    EXPECT_FALSE(current_localizer());
}

struct plain_factory final : custom_service_factory_impl {
    using custom_service_factory_impl::custom_service_factory_impl;
};

TEST(FactoryList, KeepsTheOrderAndForgetsTheDead) {
    const auto before = module_factories().size();
    plain_factory first(L"a");
    {
        plain_factory second(nullptr);
        module_factories().push_back(&second);  // registered twice
        EXPECT_EQ(module_factories().size(), before + 3);
        EXPECT_EQ(second.key(), L"");
    }
    EXPECT_EQ(module_factories().size(), before + 1);
    EXPECT_EQ(module_factories().back(), &first);
}

}  // namespace
}  // namespace ox
