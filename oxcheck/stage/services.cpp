#include "oxcheck/stage/services.h"

#include <utility>

#include "border/call.h"
#include "border/interfaces/services.h"
#include "border/interfaces/values.h"
#include "oxcheck/stage/script.h"
#include "testing/host_double/host_double.h"

namespace oxcheck {

namespace {

bool deliver(answer gives, const std::wstring& text, custom_pointer string_visitor) {
    constexpr auto visit = &ox::string_visitor_impl::visit;
    if (gives == answer::text) ox::call<visit>(string_visitor, text.c_str());
    if (gives == answer::empty) ox::call<visit>(string_visitor, L"");
    if (gives == answer::null) ox::call<visit>(string_visitor, static_cast<const wchar_t*>(nullptr));
    return gives != answer::none;
}

}  // namespace

bool localizer::visit_string(std::uint32_t id, custom_pointer string_visitor) {
    asked.push_back(id);
    return deliver(gives, text_of(id), string_visitor);
}

registry::registry() {
    utility_receiver::receive = [this](custom_pointer service) {
        publish(publication::kind::utility, service);
    };
    modal_dialog_receiver::receive = [this](custom_pointer service) {
        publish(publication::kind::modal_dialog, service);
    };
}

void registry::publish(publication::kind what, custom_pointer service) {
    published.push_back({what, service});
    if (on_published) on_published(published.back());
}

void registry::visit(const wchar_t* key, custom_pointer service_visitor) {
    keys_asked.emplace_back(key ? key : L"(null)");
    if (!localizers || keys_asked.back() != ox::category_key(ox::localizer_category)) return;
    ox::call<&ox::localizer_service_visitor_impl::visit_service>(
        ox::cast_from<ox::localizer_service_visitor>(service_visitor),
        ox::make_pointer<ox::localizer_service_impl>(*localizers));
}

context::context(registry& registered, custom_pointer owner) : registry_(registered) {
    host_referent::set_owner(owner);
}

void dialog_host::ask_file(std::int32_t mode, const wchar_t*, custom_pointer string_visitor) {
    if (host_double::host().refuses("file dialog")) return;
    deliver(gives, mode == open_file ? script::opened_file : script::saved_file, string_visitor);
}

bool dialog_host::show_modal(custom_pointer docker, custom_pointer button_box) {
    ++shown;
    constexpr int deepest = 4;
    if (!on_show || thrown_ || depth_ == deepest) return false;
    struct level {
        int& depth;
        ~level() { --depth; }
    } one_deeper{++depth_};
    try {
        return on_show(docker, button_box, depth_ - 1);
    } catch (...) {
        if (!thrown_) thrown_ = std::current_exception();
        return false;
    }
}

void dialog_host::rethrow() {
    if (thrown_) std::rethrow_exception(std::exchange(thrown_, nullptr));
}

}  // namespace oxcheck
