#include <CLI/CLI.hpp>
#include <cwctype>
#include <iostream>

#include "app/command.h"
#include "base/numbers.h"
#include "base/text.h"
#include "run/plug_in.h"
#include "run/plug_in_texts.h"

namespace oxhost::app {

namespace {

using headless::dialog_hands;
using shell::node;
using shell::node_kind;

struct catalogue_options {
    std::string part;
    std::string find;
    std::filesystem::path bundle;
};

std::wstring folded(const std::string& text) {
    std::wstring wide = to_wide(text);
    for (wchar_t& c : wide) c = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c)));
    return wide;
}

/// The first drop-down list of a group.
node& list_of(dialog_hands& hands, std::string_view group) {
    const auto found = hands.all_in_group(node_kind::dropdown, group);
    if (found.empty()) throw failure(exit_code::internal, "no list of " + std::string(group));
    return *found.front();
}

std::string numbers_of(dialog_hands& hands, std::string_view group) {
    std::string line;
    for (node* each : hands.all_in_group(node_kind::floating_input, group))
        line += (line.empty() ? "" : ", ") + number_text(each->state().value);
    return line;
}

/// Chooses every item of a list in turn and prints what the dialog shows of it.
class listing {
public:
    explicit listing(const catalogue_options& options) : options_(options) {}

    /// `lines` gives the lines of the item that is chosen.
    template <class Lines>
    void part(std::string_view name, dialog_hands& hands, std::string_view group, Lines&& lines) {
        if (!options_.part.empty() && options_.part != name) return;
        if (options_.part.empty()) std::cout << name << '\n';
        const auto items = list_of(hands, group).state().items;
        for (std::uint32_t i = 0; i < items.size(); ++i) {
            list_of(hands, group).choose(i);
            for (const std::string& line : lines()) print(items[i] + "  " + line);
        }
    }

private:
    void print(const std::string& line) const {
        if (folded(line).find(folded(options_.find)) != std::wstring::npos)
            std::cout << (options_.part.empty() ? "  " : "") << line << '\n';
    }

    const catalogue_options& options_;
};

using lines = std::vector<std::string>;

std::string asked_parameters(dialog_hands& hands) {
    std::string line;
    for (node* each : hands.all_in_group(node_kind::floating_input, run::plug_in_text::projection()))
        line += (line.empty() ? "(" : ", ") + each->name();
    return line.empty() ? line : line + ')';
}

exit_code list_catalogue(const catalogue_options& options) {
    namespace text = run::plug_in_text;
    run::projection_dialog dialog(options.bundle);
    dialog.open("", [&](dialog_hands& hands) {
        listing list(options);
        hands.choose(text::type(), text::usual());
        list.part("ellipsoids", hands, text::spheroid(),
                  [&] { return lines{numbers_of(hands, text::spheroid())}; });
        list.part("datums", hands, text::datum(), [&] {
            return lines{list_of(hands, text::spheroid()).state().text + "  " +
                         numbers_of(hands, text::datum_parameters())};
        });
        list.part("projections", hands, text::projection(), [&] { return lines{asked_parameters(hands)}; });
        hands.choose(text::type(), text::zonal());
        list.part("zones", hands, text::projection(),
                  [&] { return hands.control(text::zone()).state().items; });
    });
    return exit_code::done;
}

}  // namespace

void add_catalogue(CLI::App& app, action& chosen) {
    auto options = std::make_shared<catalogue_options>();
    CLI::App* command = app.add_subcommand(
        "catalogue",
        "List what the projection dialog offers: ellipsoids (axis, inverse flattening), datums (ellipsoid, "
        "seven parameters), projections (what they ask for), zones");
    command->add_option("part", options->part, "ellipsoids, datums, projections or zones (default: all)")
        ->check(CLI::IsMember({"ellipsoids", "datums", "projections", "zones"}));
    command->add_option("--find", options->find, "Only entries that contain this, in either case")
        ->type_name("TEXT");
    add_language(*command);
    add_bundle(*command, options->bundle);
    command->callback([options, &chosen] { chosen = [options] { return list_catalogue(*options); }; });
}

}  // namespace oxhost::app
