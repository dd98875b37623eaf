// The factories, in the order of the contract: a dialog without id, the utility, its dialog, the client.

#include <cstdio>
#include <optional>

#include "fault.h"
#include "framework/local_factory.h"
#include "framework/service_factory.h"
#include "lifetime.h"
#include "testing/processor_time.h"
#include "toolkit/utility.h"
#include "widget.h"

#if defined(_WIN32)
#include <windows.h>
#endif

namespace broken {

namespace {

constexpr wchar_t utility_id[] = L"oxk_broken_bundle";

/// As a library stays that registers the end of something with the thread.
void stay_mapped() {
#if defined(_WIN32)
    HMODULE own = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                       reinterpret_cast<const wchar_t*>(&stay_mapped), &own);
#else
    thread_local std::wstring mark;
    mark = L"mark";
#endif
}

class utility final : public ox::util::referent<ox::utility_service_impl>,
                      public ox::toolkit::utility<widget, utility_id, 0> {
public:
    explicit utility(custom_pointer owner)
        : obj(owner),
          ox::toolkit::utility<widget, utility_id, 0>({.caption = ox::text::batch_project_sections,
                                                       .dialog_caption = ox::text::batch_project_sections}) {
        static ox::ref<ox::referent, 1> forgotten;
        if (is(fault::leaks_referrer))
            ox::call<&ox::referent_impl::add_referrer>(owner, ox::make_pointer<ox::referrer_impl>(forgotten));
    }

    void report(custom_pointer utility_visitor) override {
        ox::call<&ox::utility_visitor_impl::visit>(utility_visitor, utility_id,
                                                   ox::make_pointer<ox::utility_impl>(*this));
    }
    std::size_t add_referrer(custom_pointer referrer) override { return lifetime_.add(referrer); }
    void remove_referrer(custom_pointer referrer) override {
        if (lifetime_.remove(referrer, self())) delete this;
    }

    void visit_caption(custom_pointer string_visitor) override {
        const custom_pointer now = ox::current_localizer();
        if (now) localizer_ = now;
        if (is(fault::asks_ended_localizer) && !now && localizer_)
            ox::call<&ox::localizer_impl::visit_string>(
                localizer_, std::uint32_t{ox::text::batch_project_sections}, string_visitor);
        else
            ox::toolkit::utility<widget, utility_id, 0>::visit_caption(string_visitor);
    }
    void run() override {
        if (is(fault::stays_mapped)) stay_mapped();
        if (is(fault::acts_unseen) && !ox::util::dialog_host<utility_id>()) widget().apply();
        ox::toolkit::utility<widget, utility_id, 0>::run();
    }
    void reserved() override {
        if (is(fault::shows_unasked)) run();
    }

private:
    lifetime lifetime_;
    custom_pointer localizer_{};  ///< the last one that there was
};

auto holders() {
    using holder =
        ox::util::detail::ref_service_holder<utility, ox::utility_service, ox::utility_service_impl,
                                             ox::utility_service_visitor>;
    std::vector<ox::util::service_factory<utility>::holder> made;
    made.push_back(std::make_unique<holder>());
    return made;
}

struct loading {
    loading() {
        const auto start = processor_time();
        while (is(fault::slow_load) && processor_time() - start < std::chrono::milliseconds(120)) continue;
        if (is(fault::noisy_load)) std::fputs("broken bundle: hello\n", stderr);
        if (is(fault::leaks_memory)) {
            char* volatile lost = new char[2000];
            static_cast<void>(lost);
        }
    }
} loaded;

using ox::util::detail::modal_dialog_service_factory;
using utility_factory = ox::util::service_factory<utility>;

utility_factory make_utilities() { return {ox::category_key(ox::utility_category).c_str(), holders()}; }

struct in_order {
    modal_dialog_service_factory<nullptr> plain_dialogs;
    utility_factory utilities = make_utilities();
    modal_dialog_service_factory<utility_id> utility_dialogs;
};
struct out_of_order {
    utility_factory utilities = make_utilities();
    modal_dialog_service_factory<nullptr> plain_dialogs;
    modal_dialog_service_factory<utility_id> utility_dialogs;
};

struct registration {
    registration() {
        if (is(fault::wrong_order))
            wrong.emplace();
        else
            right.emplace();
    }
    std::optional<in_order> right;
    std::optional<out_of_order> wrong;
} factories;
ox::detail::local_factory_impl local_client;

/// A factory after those of the contract, which publishes nothing of its own.
class late_factory final : public ox::custom_client_factory_impl {
public:
    late_factory() : custom_client_factory_impl(nullptr) {}
    void create(custom_pointer context, custom_pointer registry) override {
        using slot = custom_pointer (*)(const void*, void*);
        if (is(fault::trusts_context))
            static_cast<const slot*>(context.table)[0](context.table, context.object);
        if (is(fault::publishes_anew) && ++creations_ > 1)
            factories.right->plain_dialogs.create(context, registry);
    }

private:
    int creations_ = 0;
} late;

}  // namespace

}  // namespace broken
