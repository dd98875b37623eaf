#include <CLI/CLI.hpp>
#include <cwctype>
#include <iostream>

#include "app/command.h"
#include "base/numbers.h"
#include "base/utf8.h"
#include "run/plug_in_texts.h"
#include "run/projection_dialog.h"

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

/// The shown controls in the group of that caption.
void collect(node& from, node_kind kind, std::string_view group, bool inside, std::vector<node*>& found) {
    inside = inside || (from.kind() == node_kind::groupbox && from.state().caption == group);
    if (inside && from.kind() == kind) found.push_back(&from);
    for (const auto& child : from.children())
        if (child->shown()) collect(*child, kind, group, inside, found);
}

std::vector<node*> in_group(dialog_hands& in, node_kind kind, std::string_view group) {
    std::vector<node*> found;
    collect(in.dialog().root(), kind, group, false, found);
    return found;
}

/// The first drop-down list of a group.
node& list_of(dialog_hands& in, std::string_view group) {
    const auto found = in_group(in, node_kind::dropdown, group);
    if (found.empty()) throw failure(exit_code::internal, "no list of " + std::string(group));
    return *found.front();
}

std::string numbers_of(dialog_hands& in, std::string_view group) {
    std::string line;
    for (node* each : in_group(in, node_kind::floating_input, group))
        line += (line.empty() ? "" : ", ") + number_text(each->state().value);
    return line;
}

/// Chooses every item of a list in turn and prints what the dialog shows of it.
class listing {
public:
    explicit listing(const catalogue_options& options) : options_(options) {}

    /// `lines` gives the lines of the item that is chosen.
    template <class Lines>
    void part(std::string_view name, dialog_hands& in, std::string_view group, Lines&& lines) {
        if (!options_.part.empty() && options_.part != name) return;
        if (options_.part.empty()) std::cout << name << '\n';
        const auto items = list_of(in, group).state().items;
        for (std::uint32_t i = 0; i < items.size(); ++i) {
            list_of(in, group).choose(i);
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

std::string asked_parameters(dialog_hands& in) {
    std::string line;
    for (node* each : in_group(in, node_kind::floating_input, plug_in_text::projection()))
        line += (line.empty() ? "(" : ", ") + each->name();
    return line.empty() ? line : line + ')';
}

exit_code list_catalogue(const catalogue_options& options) try {
    namespace text = plug_in_text;
    projection_dialog dialog(options.bundle);
    dialog.open("", [&](dialog_hands& in) {
        listing list(options);
        in.choose(text::type(), text::usual());
        list.part("ellipsoids", in, text::spheroid(),
                  [&] { return lines{numbers_of(in, text::spheroid())}; });
        list.part("datums", in, text::datum(), [&] {
            return lines{list_of(in, text::spheroid()).state().text + "  " +
                         numbers_of(in, text::datum_parameters())};
        });
        list.part("projections", in, text::projection(), [&] { return lines{asked_parameters(in)}; });
        in.choose(text::type(), text::zonal());
        list.part("zones", in, text::projection(), [&] { return in.control(text::zone()).state().items; });
    });
    return exit_code::done;
} catch (const shell::bundle_error& e) {
    throw failure(exit_code::unreadable, e.what());
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
