#pragma once
/// Where a bundle publishes what it offers. [ui]

#include <list>
#include <string>
#include <vector>

#include "border/interfaces/dialogs.h"
#include "border/interfaces/services.h"
#include "border/polymorphic.h"
#include "border/ref.h"
#include "shell/dialogs.h"

namespace oxhost::shell {

/// A utility that a bundle offers. The pointer is valid while the registry holds its service.
struct offered_utility {
    std::string id;
    ox::custom_pointer utility;
};

/// Takes utility services.
class utility_intake : public ox::polymorphic<ox::utility_service_visitor_impl> {
public:
    void visit(ox::custom_pointer service) override;
    const std::vector<offered_utility>& utilities() const { return utilities_; }

protected:
    ~utility_intake() = default;
    void release_utilities();

private:
    std::vector<offered_utility> utilities_;
    std::list<ox::ref<ox::utility_service, 0>> services_;
};

/// Takes modal dialog services and gives each dialog id its dialog host.
class dialog_intake : public ox::polymorphic<ox::modal_dialog_service_visitor_impl> {
public:
    explicit dialog_intake(dialog_desk& desk) : desk_(desk) {}
    void visit(ox::custom_pointer service) override;

protected:
    ~dialog_intake() = default;
    void release_dialogs();

private:
    dialog_desk& desk_;
    std::vector<ox::custom_pointer> dialogs_;
    std::list<ox::ref<ox::modal_dialog_service, 0>> services_;
};

/// Holds every service until its own end. No category offers services of the host, localizers included:
/// a bundle then reads its own texts.
class service_registry final : public ox::polymorphic<ox::service_registry_impl>,
                               public utility_intake,
                               public dialog_intake {
public:
    explicit service_registry(dialog_desk& desk) : dialog_intake(desk) {}
    ~service_registry();

    ox::custom_pointer pointer() { return ox::make_pointer<ox::service_registry_impl>(*this); }
};

}  // namespace oxhost::shell
