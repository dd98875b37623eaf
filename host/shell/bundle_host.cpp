#include "shell/bundle_host.h"

#include <algorithm>

#include "shell/read_utf8.h"

namespace oxhost::shell {

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

std::string bundle_host::caption(const offered_utility& of) const {
    return read_utf8<&ox::utility_impl::visit_caption>(of.utility);
}

void bundle_host::run(std::string_view utility_id) {
    const auto found = std::ranges::find(utilities(), utility_id, &offered_utility::id);
    if (found == utilities().end())
        throw bundle_error(bundle_.file().string() + ": offers no utility " + std::string(utility_id));
    ox::call<&ox::utility_impl::run>(found->utility);
    desk_.rethrow();
}

}  // namespace oxhost::shell
