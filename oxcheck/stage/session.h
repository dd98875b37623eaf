#pragma once
/// One bundle, loaded and started as a host does it.

#include <list>
#include <memory>
#include <string>
#include <vector>

#include "border/ref.h"
#include "oxcheck/stage/lent.h"
#include "oxcheck/stage/services.h"
#include "oxcheck/system/system.h"

namespace oxcheck {

inline constexpr const char* entry_name = "ox_bundle_interface_to_custom_pointer";
inline constexpr const char* unload_guard_name = "scary_vcl_bug_crashes_everything_on_unloading";

/// A loaded bundle.
class bundle {
public:
    /// Throws `no_occasion` when it cannot be loaded or has no entry.
    explicit bundle(const std::filesystem::path& file);

    /// Calls the bundle entry.
    custom_pointer enter(void* argument) const { return entry_(argument); }
    /// Calls operation 1 of the bundle's table with any visitor.
    void visit_factories(custom_pointer visitor) const;
    std::vector<received> factories() const;

private:
    system::library library_;
    custom_pointer (*entry_)(void*);
};

/// A bundle's services, held by the host.
struct service {
    publication::kind what;
    std::wstring id;
    custom_pointer pointer;  ///< the service
    custom_pointer served;   ///< the utility or modal dialog behind it
    custom_pointer referent() const;
};

struct session_options {
    bool with_localizer = false;
    bool attach_dialog_hosts = true;
};

/// A host with one bundle: calls the factories in order, holds what they publish and attaches a dialog host
/// to each modal dialog. Ends all of it and unloads the bundle at its end, unless a check has failed: nobody
/// knows what the bundle would do then.
class session {
public:
    explicit session(const std::filesystem::path& file, session_options options = {});
    ~session();
    session(const session&) = delete;
    session& operator=(const session&) = delete;

    const bundle& loaded() const { return *bundle_; }
    const std::vector<service>& services() const { return services_; }
    /// The utility of the bundle; throws `no_occasion` when it has none.
    custom_pointer utility() const;
    bool has_utility() const;
    /// Whether there is a modal dialog of the utility's id.
    bool has_dialog_of_utility() const;
    /// Starts the utility; throws what was thrown while its dialogs were shown.
    void run();

    /// Lets go of the services; the bundle stays loaded.
    void release();
    /// Lets go of one of them.
    void release(const service& which);
    /// Releases, then unloads.
    void unload();

    localizer localized;
    host_referent owners_owner;
    registry registered;
    context given;  ///< its owner is `owners_owner`
    dialog_host dialogs;

private:
    void hold(const publication& published);

    localizer_service localizers_{localized};
    struct holder {
        watcher referrer{true};
        bool holds = true;
    };

    std::unique_ptr<bundle> bundle_;
    std::vector<service> services_;
    std::list<holder> holders_;  ///< of the services, in their order
};

}  // namespace oxcheck
