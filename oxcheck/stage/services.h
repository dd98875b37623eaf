#pragma once
/// The services that a bundle meets in its host: context, registry, localizers and dialog host.

#include <exception>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "border/interfaces/dialogs.h"
#include "border/interfaces/services.h"
#include "border/polymorphic.h"
#include "oxcheck/stage/watchers.h"

namespace oxcheck {

/// How the host answers where it is asked for a text.
enum class answer { text, empty, null, none };

/// Answers for every text its mark and the id.
class localizer final : public ox::localizer_impl {
public:
    custom_pointer referent() override { return referent_.self(); }
    bool visit_string(std::uint32_t id, custom_pointer string_visitor) override;
    void visit_bitmap(std::uint32_t id, custom_pointer) override { asked.push_back(id); }
    void visit_masked_bitmap(std::uint32_t id, custom_pointer) override { asked.push_back(id); }

    std::wstring text_of(std::uint32_t id) const { return mark + std::to_wstring(id); }
    custom_pointer pointer() { return ox::make_pointer<ox::localizer_impl>(*this); }

    answer gives = answer::text;
    std::wstring mark = L"text ";
    std::vector<std::uint32_t> asked;  ///< ids
    host_referent referent_;
};

class localizer_service final : public ox::localizer_service_impl {
public:
    explicit localizer_service(localizer& served) : served_(served) {}
    void visit_localizer(custom_pointer localizer_visitor, custom_pointer context) override {
        context_asked = context;
        ox::call<&ox::localizer_visitor_impl::visit_localizer>(localizer_visitor, served_.pointer());
    }
    custom_pointer context_asked{};

private:
    localizer& served_;
};

/// A service that the bundle published, in the order in which it did.
struct publication {
    enum class kind { utility, modal_dialog } what;
    custom_pointer service;

    bool operator==(const publication&) const = default;
};

namespace detail {
struct utility_receiver : ox::utility_service_visitor_impl {
    std::function<void(custom_pointer)> receive;
    void visit(custom_pointer service) override { receive(service); }
};
struct modal_dialog_receiver : ox::modal_dialog_service_visitor_impl {
    std::function<void(custom_pointer)> receive;
    void visit(custom_pointer service) override { receive(service); }
};
}  // namespace detail

class registry final : public ox::polymorphic<ox::service_registry_impl>,
                       public ox::polymorphic<detail::utility_receiver>,
                       public ox::polymorphic<detail::modal_dialog_receiver> {
public:
    registry();
    void visit(const wchar_t* key, custom_pointer service_visitor) override;
    custom_pointer pointer() { return ox::make_pointer<ox::service_registry_impl>(*this); }

    std::vector<publication> published;
    /// Takes hold of what is published; what nobody holds ends when its factory returns.
    std::function<void(const publication&)> on_published;
    std::vector<std::wstring> keys_asked;
    localizer_service* localizers = nullptr;  ///< served under the localizer key; may be absent

private:
    void publish(publication::kind what, custom_pointer service);
};

class context final : public ox::polymorphic<ox::bundle_context_impl>, public ox::polymorphic<host_referent> {
public:
    explicit context(registry& registered, custom_pointer owner);
    void visit_registry(custom_pointer registry_visitor) override {
        ox::call<&ox::service_registry_visitor_impl::visit_registry>(registry_visitor, registry_.pointer());
    }
    custom_pointer pointer() { return ox::make_pointer<ox::bundle_context_impl>(*this); }

private:
    registry& registry_;
};

/// Plays the user of one dialog, and answers file dialogs. A file dialog is one of the calls that may refuse.
class dialog_host final : public ox::dialog_host_impl {
public:
    void ask_file(std::int32_t mode, const wchar_t* filter, custom_pointer string_visitor) override;
    bool show_modal(custom_pointer docker, custom_pointer button_box) override;
    custom_pointer pointer() { return ox::make_pointer<ox::dialog_host_impl>(*this); }

    /// What was thrown while a dialog was shown; it is kept, as nothing may be thrown through the bundle.
    void rethrow();

    /// Unset: every dialog is cancelled.
    std::function<bool(custom_pointer docker, custom_pointer button_box, int depth)> on_show;
    int shown = 0;
    answer gives = answer::text;  ///< where a file is asked for

private:
    int depth_ = 0;
    std::exception_ptr thrown_;
};

}  // namespace oxcheck
