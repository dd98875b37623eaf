#include "shell/bundle_host.h"

#include <algorithm>

#include "base/language.h"
#include "border/call.h"
#include "shell/values.h"

namespace oxhost::shell {

bundle_context::~bundle_context() {
    for (const ox::custom_pointer& left : referrers_) ox::call<&ox::referrer_impl::released>(left, self());
}

ox::custom_pointer bundle_context::pointer() { return ox::make_pointer<ox::bundle_context_impl>(*this); }

void bundle_context::visit_registry(ox::custom_pointer registry_visitor) {
    ox::call<&ox::service_registry_visitor_impl::visit_registry>(registry_visitor, registry_);
}

std::size_t bundle_context::add_referrer(ox::custom_pointer referrer) {
    referrers_.push_back(referrer);
    return referrers_.size();
}

void bundle_context::remove_referrer(ox::custom_pointer referrer) {
    if (const auto found = std::ranges::find(referrers_, referrer); found != referrers_.end())
        referrers_.erase(found);
}

ox::custom_pointer bundle_context::self() { return ox::make_pointer<ox::referent_impl>(*this); }

namespace {

struct factory_collector final : ox::factory_visitor_impl {
    void visit(const wchar_t* key, ox::custom_pointer factory) override {
        keys.push_back(to_utf8(key));
        factories.push_back(factory);
    }
    std::vector<std::string> keys;
    std::vector<ox::custom_pointer> factories;
};

}  // namespace

bundle_host::bundle_host(const std::filesystem::path& file, dialog_user& user)
    : desk_(user), bundle_(file), registry_(desk_) {
    context_.offer(registry_.pointer());
    factory_collector found;
    bundle_.visit_factories(ox::make_pointer<ox::factory_visitor_impl>(found));
    for (const ox::custom_pointer& factory : found.factories)
        ox::call<&ox::service_factory_impl::create>(factory, context_.pointer(), registry_.pointer());
    factory_keys_ = std::move(found.keys);
}

std::string bundle_host::caption(const offered_utility& offered) const {
    return read_utf8<&ox::utility_impl::visit_caption>(offered.utility);
}

picture bundle_host::icon(const offered_utility& offered) const {
    return read_picture([&](ox::custom_pointer visitor) {
        ox::call<&ox::utility_impl::visit_icon>(offered.utility, visitor);
    });
}

void bundle_host::run(std::string_view utility_id) {
    const auto found = std::ranges::find(utilities(), utility_id, &offered_utility::id);
    if (found == utilities().end())
        throw bundle_error(bundle_.file().string() + words(": нет утилиты ", ": offers no utility ") +
                           std::string(utility_id));
    ox::call<&ox::utility_impl::run>(found->utility);
    desk_.rethrow();
}

}  // namespace oxhost::shell
