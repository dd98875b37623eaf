#pragma once
/// One bundle at work: loaded, its services created and held, its dialogs served. [ui]
///
///     bundle_host host(file, user);                // `user` acts in the dialogs
///     host.run(host.utilities().front().id);       // returns when the utility's dialog is closed

#include <vector>

#include "border/interfaces/lifetime.h"
#include "border/interfaces/services.h"
#include "border/polymorphic.h"
#include "shell/bundle.h"
#include "shell/dialogs.h"
#include "shell/service_registry.h"
#include "shell/values.h"

namespace oxhost::shell {

/// What a bundle is created with: the way to the registry, and the owner of its objects.
/// Lives as long as its owner keeps it, whoever refers to it: the bundle's objects register here and
/// must be gone before it goes. [ui]
class bundle_context final : public ox::polymorphic<ox::bundle_context_impl>,
                             public ox::polymorphic<ox::referent_impl> {
public:
    bundle_context() = default;
    ~bundle_context();

    void offer(ox::custom_pointer registry) { registry_ = registry; }

    ox::custom_pointer pointer();
    std::size_t referrer_count() const { return referrers_.size(); }

    void visit_registry(ox::custom_pointer registry_visitor) override;
    std::size_t add_referrer(ox::custom_pointer referrer) override;
    void remove_referrer(ox::custom_pointer referrer) override;
    ox::custom_pointer self() override;

private:
    ox::custom_pointer registry_{};
    std::vector<ox::custom_pointer> referrers_;
};

class bundle_host {
public:
    /// `user` outlives the host. Throws bundle_error.
    bundle_host(const std::filesystem::path& file, dialog_user& user);
    bundle_host(const bundle_host&) = delete;
    bundle_host& operator=(const bundle_host&) = delete;

    const std::vector<offered_utility>& utilities() const { return registry_.utilities(); }
    /// Keys of the bundle's factories, in its order.
    const std::vector<std::string>& factory_keys() const { return factory_keys_; }
    std::string caption(const offered_utility& offered) const;
    picture icon(const offered_utility& offered) const;  ///< empty without one

    /// Throws bundle_error when the bundle has no such utility, and what the user threw.
    void run(std::string_view utility_id);

private:
    // In the order of construction; released backwards: the services before the file that their code is
    // in, the context, which owns them, last.
    dialog_desk desk_;
    bundle_context context_;
    bundle bundle_;
    service_registry registry_;
    std::vector<std::string> factory_keys_;
};

}  // namespace oxhost::shell
