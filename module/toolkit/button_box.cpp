#include "toolkit/button_box.h"

#include <utility>

#include "resources/text.h"

namespace ox::toolkit {

namespace {

struct standard_button {
    command kind;
    std::int32_t caption;
};

constexpr standard_button standard_buttons[] = {
    {command::accept, basic_text::accept}, {command::apply, basic_text::accept},
    {command::reject, basic_text::close},  {command::close, basic_text::close},
    {command::help, basic_text::help},     {command::yes, basic_text::yes},
    {command::no, basic_text::no},
};

}  // namespace

button_box::button_box(std::uint32_t mask) {
    for (const auto& [kind, caption] : standard_buttons)
        if (const auto bit = static_cast<std::uint32_t>(kind); mask & bit) append(caption, bit);
}

const button_box::entry* button_box::at(std::int32_t index) const {
    return index >= 0 && static_cast<std::size_t>(index) < entries_.size()
               ? &entries_[static_cast<std::size_t>(index)]
               : nullptr;
}

void button_box::visit_caption(std::int32_t index, custom_pointer string_visitor) {
    if (const entry* e = at(index)) visit_text_of(e->caption, string_visitor);
}

bool button_box::enabled(std::int32_t index) {
    const entry* e = at(index);
    return !e || e->enabled;
}

bool button_box::click(std::int32_t index) {
    if (index < 0) return true;
    const entry* e = at(index);
    if (!e) return false;
    switch (static_cast<command>(e->kind)) {
        case command::reject:
        case command::close:
        case command::no:
            return true;
        case command::accept:
        case command::apply:
        case command::yes:
            if (on_apply) return on_apply();
            break;
        case command::help:
            if (!on_help) break;
            on_help();
            return false;
    }
    return on_command(e->kind);
}

void button_box::append(std::int32_t caption, std::uint32_t kind) {
    entries_.push_back({true, caption, kind});
    changed();
}

void button_box::set_enabled(command kind, bool enabled) {
    bool differs = false;
    for (entry& e : entries_)
        if (e.kind == static_cast<std::uint32_t>(kind) && e.enabled != enabled) {
            e.enabled = enabled;
            differs = true;
        }
    if (differs) changed();
}

void button_box::set_default_index(std::int32_t index) {
    if (std::exchange(default_index_, index) != index) changed();
}

void button_box::changed() {
    const life::watch alive(life_);
    call<&element_view_slots::changed>(first_view_);
    if (alive) call<&element_view_slots::changed>(second_view_);
}

}  // namespace ox::toolkit
