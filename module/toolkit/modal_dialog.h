#pragma once
/// Where the host attaches the dialog host that shows this module's dialogs, one place per dialog id.

#include "border/call.h"
#include "border/interfaces/dialogs.h"
#include "border/ref.h"
#include "framework/factories.h"
#include "framework/publish.h"
#include "framework/referent.h"
#include "toolkit/button_box.h"

namespace ox::util {

namespace detail {

template <const wchar_t* Id>
inline constexpr const wchar_t* id_text = Id;
template <>
inline constexpr const wchar_t* id_text<nullptr> = L"";

/// The place itself. `Id` null stands for the dialogs without an id of their own.
template <const wchar_t* Id>
class modal_dialog final : public modal_dialog_impl {
public:
    modal_dialog() = default;
    modal_dialog(const modal_dialog&) = delete;
    modal_dialog& operator=(const modal_dialog&) = delete;

    void attach(custom_pointer dialog_host) override { dialog_host_ = dialog_host; }
    custom_pointer dialog_host() const { return dialog_host_; }

    /// That of the service created last.
    static inline modal_dialog* current = nullptr;

private:
    custom_pointer dialog_host_{};
};

template <const wchar_t* Id>
class modal_dialog_service final : public util::referent<modal_dialog_service_impl> {
public:
    explicit modal_dialog_service(custom_pointer owner) : obj(owner) { modal_dialog<Id>::current = &dialog_; }
    ~modal_dialog_service() override {
        if (modal_dialog<Id>::current == &dialog_) modal_dialog<Id>::current = nullptr;
    }

    void report(custom_pointer modal_dialog_visitor) override {
        call<&modal_dialog_visitor_impl::visit>(modal_dialog_visitor, id_text<Id>,
                                                make_pointer<modal_dialog_impl>(dialog_));
    }

private:
    modal_dialog<Id> dialog_;
};

template <const wchar_t* Id>
class modal_dialog_service_factory final : public custom_service_factory_impl {
public:
    modal_dialog_service_factory() : custom_service_factory_impl(nullptr) {}

    void create(custom_pointer context, custom_pointer registry) override {
        const custom_pointer visitor = publisher<modal_dialog_service_visitor>(registry);
        if (!visitor) return;
        ref<ox::modal_dialog_service, 0> service(service_.get());
        if (!service)
            service.reset(make_pointer<modal_dialog_service_impl>(
                *new modal_dialog_service<Id>(owner_from(context))));  // ends when the host lets go
        publish(visitor, service.get());
        service_.reset(service.get());
    }

private:
    ref<ox::modal_dialog_service, 1> service_;
};

}  // namespace detail

/// The dialog host for an id; empty while none is attached, which counts as a cancelled dialog.
template <const wchar_t* Id>
custom_pointer dialog_host() {
    const auto* place = detail::modal_dialog<Id>::current;
    return place ? place->dialog_host() : custom_pointer{};
}

/// Shows a dialog and returns when it is closed: true when an accepting button closed it.
template <const wchar_t* Id>
bool show_modal(docker_impl& docker, toolkit::button_box& buttons) {
    return call<&dialog_host_impl::show_modal>(dialog_host<Id>(), make_pointer<docker_impl>(docker),
                                               make_pointer<button_box_impl>(buttons));
}

}  // namespace ox::util
