// Interface pointers: slot 0, queries by name, and the tables behind them.

#include <cctype>
#include <map>
#include <set>

#include "oxcheck/check.h"
#include "oxcheck/stage/script.h"
#include "oxcheck/stage/session.h"
#include "oxcheck/tree/element.h"

namespace oxcheck {

namespace {

std::vector<element> services_and_factories(const session& started) {
    std::vector<element> found;
    for (const received& factory : started.loaded().factories())
        found.push_back(make_element<ox::service_factory_impl>(factory.pointer));
    for (const service& each : started.services()) {
        const bool utility = each.what == publication::kind::utility;
        found.push_back(utility ? make_element<ox::utility_service_impl>(each.pointer)
                                : make_element<ox::modal_dialog_service_impl>(each.pointer));
        if (each.served)
            found.push_back(utility ? make_element<ox::utility_impl>(each.served)
                                    : make_element<ox::modal_dialog_impl>(each.served));
        if (each.referent()) found.push_back(make_element<ox::referent_impl>(each.referent()));
    }
    return found;
}

/// Calls `look` with everything that the bundle hands out: at start, and behind each dialog while it is open.
template <class Look>
void look_at_all(session& started, Look look) {
    for (const element& each : services_and_factories(started)) look(each);
    started.dialogs.on_show = [&](custom_pointer docker, custom_pointer box, int) {
        const std::vector<element> elements = walk(docker, box);
        for (const element& each : elements) look(each);
        for (const element& each : elements) {
            if (each.is<ox::button_impl>()) ox::call<&ox::button_impl::click>(each.pointer);
            if (!each.is<ox::context_menu_impl>()) continue;
            const open_menu open(each.pointer);
            for (const element& tool : open.tools()) look(tool);
        }
        return false;
    };
    started.run();
}

template <class Look>
void look_at_all(const subject& given, Look look) {
    script::set_stage();
    session started(given.bundle);
    look_at_all(started, look);
}

/// Asks by name; both outputs hold rubbish beforehand.
custom_pointer ask(custom_pointer polymorphic, const char* name) {
    static int rubbish = 0;
    custom_pointer answer{&rubbish, &rubbish};
    using query = void (*)(const void*, void*, const char*, const void**, void**);
    ox::detail::function_at<query>(polymorphic, 0)(polymorphic.table, polymorphic.object, name, &answer.table,
                                                   &answer.object);
    return answer;
}

void lead_to_polymorphic(const subject& given) {
    look_at_all(given, [](const element& each) {
        note(std::string("at ") + each.interface);
        require(static_cast<bool>(each.pointer), std::string("a pointer to ") + each.interface,
                "an empty one");
        require(static_cast<bool>(ox::polymorphic_of(each.pointer)),
                std::string("slot 0 of ") + each.interface + " answers a polymorphic pointer",
                "an empty one");
    });
}

void find_their_own_name(const subject& given) {
    look_at_all(given, [](const element& each) {
        note(std::string("at ") + each.interface);
        if (const custom_pointer polymorphic = ox::polymorphic_of(each.pointer))
            require(ask(polymorphic, each.interface) == each.pointer,
                    std::string("the pointer itself for \"") + each.interface + "\"", "another answer");
    });
}

/// The name with another version number.
std::string other_version(const std::string& name, int difference) {
    std::size_t digits = name.size();
    while (std::isdigit(static_cast<unsigned char>(name[digits - 1]))) --digits;
    return name.substr(0, digits) + std::to_string(std::stoi(name.substr(digits)) + difference);
}

void know_no_other_name(const subject& given) {
    look_at_all(given, [](const element& each) {
        note(std::string("at ") + each.interface);
        const custom_pointer polymorphic = ox::polymorphic_of(each.pointer);
        if (!polymorphic) return;
        const std::string own = each.interface;
        for (const std::string& name :
             {other_version(own, 1), other_version(own, -1), other_version(own, 1000), own + " ",
              std::string("ox_nothing_interface_0"), std::string()}) {
            const custom_pointer answer = ask(polymorphic, name.c_str());
            require(!answer.table && !answer.object, "nothing for \"" + name + "\" from " + own,
                    "an answer or an untouched output");
        }
    });
}

void stay_put(const subject& given) {
    using slots = std::vector<const void*>;
    std::map<std::string, std::set<const void*>> tables;
    std::map<std::string, slots> contents;
    script::set_stage();
    session started(given.bundle);
    const auto look = [&](const element& each) {
        with_kind_of(each, [&]<class I>() {
            const auto* first = static_cast<const void* const*>(each.pointer.table);
            const slots now(first, first + I::table::count + 1);
            tables[each.interface].insert(each.pointer.table);
            require_equal(tables[each.interface].size(), std::size_t{1},
                          std::string("tables of ") + each.interface + ":");
            const slots& before = contents.try_emplace(each.interface, now).first->second;
            require(before == now, std::string("the slots of ") + each.interface + " never change",
                    "they changed");
        });
    };
    look_at_all(started, look);
    look_at_all(started, look);
}

constexpr check checks[] = {
    {"pointers.polymorphic", "slot 0 of every pointer answers a polymorphic pointer", lead_to_polymorphic},
    {"pointers.own_name", "every object is found by its own name", find_their_own_name},
    {"pointers.other_names", "other versions and unknown names are answered with nothing",
     know_no_other_name},
    {"pointers.tables", "there is one table per interface, and it stays as it is", stay_put},
};

}  // namespace

std::span<const check> pointer_checks() { return checks; }

}  // namespace oxcheck
