#include "oxcheck/stage/session.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "oxcheck/check.h"

namespace oxcheck {

bundle::bundle(const std::filesystem::path& file) try : library_(file), entry_(nullptr) {
    entry_ = reinterpret_cast<custom_pointer (*)(void*)>(library_.find(entry_name));
    if (!entry_) throw std::runtime_error(std::string("it lacks ") + entry_name);
} catch (const std::runtime_error& reason) {
    throw no_occasion(std::string("the bundle cannot be loaded: ") + reason.what());
}

void bundle::visit_factories(custom_pointer visitor) const {
    using operation = void (*)(const void*, void*, const custom_pointer&);
    const custom_pointer entered = enter(nullptr);
    static_cast<const operation*>(entered.table)[1](entered.table, entered.object, visitor);
}

std::vector<received> bundle::factories() const {
    lending<factory_sink> sink;
    visit_factories(sink.pointer());
    return sink->all;
}

custom_pointer service::referent() const {
    return what == publication::kind::utility ? ox::call<&ox::utility_service_impl::referent>(pointer)
                                              : ox::call<&ox::modal_dialog_service_impl::referent>(pointer);
}

session::session(const std::filesystem::path& file, session_options options)
    : given(registered, owners_owner.self()), bundle_(std::make_unique<bundle>(file)) {
    if (options.with_localizer) registered.localizers = &localizers_;
    registered.on_published = [this](const publication& published) { hold(published); };
    for (const received& factory : bundle_->factories())
        ox::call<&ox::service_factory_impl::create>(factory.pointer, given.pointer(), registered.pointer());
    registered.on_published = nullptr;
    if (!options.attach_dialog_hosts) return;
    for (const service& each : services_)
        if (each.what == publication::kind::modal_dialog)
            ox::call<&ox::modal_dialog_impl::attach>(each.served, dialogs.pointer());
}

session::~session() {
    if (std::uncaught_exceptions() == 0)
        unload();
    else
        static_cast<void>(bundle_.release());
}

void session::hold(const publication& published) {
    service made{published.what, {}, published.service, {}};
    const auto take = [&made](const std::vector<received>& reported) {
        if (reported.empty()) return;
        made.id = reported.front().id;
        made.served = reported.front().pointer;
    };
    if (published.what == publication::kind::utility) {
        lending<utility_sink> sink;
        ox::call<&ox::utility_service_impl::report>(published.service, sink.pointer());
        take(sink->all);
    } else {
        lending<modal_dialog_sink> sink;
        ox::call<&ox::modal_dialog_service_impl::report>(published.service, sink.pointer());
        take(sink->all);
    }
    services_.push_back(made);
    ox::call<&ox::referent_impl::add_referrer>(made.referent(), holders_.emplace_back().referrer.pointer());
}

custom_pointer session::utility() const {
    for (const service& each : services_)
        if (each.what == publication::kind::utility && each.served) return each.served;
    throw no_occasion("the bundle publishes no utility");
}
bool session::has_utility() const {
    return std::ranges::any_of(services_, [](const service& each) {
        return each.what == publication::kind::utility && each.served;
    });
}
bool session::has_dialog_of_utility() const {
    for (const service& utility : services_)
        for (const service& dialog : services_)
            if (utility.what == publication::kind::utility && dialog.what != utility.what &&
                dialog.id == utility.id)
                return true;
    return false;
}

void session::run() {
    ox::call<&ox::utility_impl::run>(utility());
    dialogs.rethrow();
}

void session::release(const service& which) {
    auto next = holders_.begin();
    for (const service& each : services_) {
        if (&each == &which && std::exchange(next->holds, false)) {
            // As every referrer does: the owner is pinned while its child may end.
            const custom_pointer referent = each.referent();
            const custom_pointer owner = ox::call<&ox::referent_impl::owner>(referent);
            ox::call<&ox::referent_impl::add_referrer>(owner, custom_pointer{});
            ox::call<&ox::referent_impl::remove_referrer>(referent, next->referrer.pointer());
            ox::call<&ox::referent_impl::remove_referrer>(owner, custom_pointer{});
        }
        ++next;
    }
}

void session::release() {
    for (const service& each : services_) release(each);
    services_.clear();
    holders_.clear();
    registered.published.clear();
}

void session::unload() {
    release();
    bundle_.reset();
}

}  // namespace oxcheck
