#include <CLI/CLI.hpp>
#include <cwctype>
#include <iostream>
#include <optional>

#include "app/command.h"
#include "base/numbers.h"
#include "base/text.h"
#include "catalogue/index.h"
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
    if (found.empty())
        throw failure(exit_code::internal, words("нет списка ", "no list of ") + std::string(group));
    return *found.front();
}

std::string numbers_of(dialog_hands& hands, std::string_view group) {
    std::string line;
    for (node* each : hands.all_in_group(node_kind::floating_input, group))
        line += (line.empty() ? "" : ", ") + number_text(each->state().value);
    return line;
}

bool contains(const std::string& text, const std::string& sought) {
    return folded(text).find(folded(sought)) != std::wstring::npos;
}

/// What --find looks for: a part of a line or of a further name, or a whole EPSG code, bare or after "EPSG:".
class search {
public:
    explicit search(std::string text) : text_(std::move(text)) {
        if (!text_.empty()) index_.emplace(index_beside_program());
    }

    /// The line of an entry, and in brackets what it is found by beside its words; nothing when it is not.
    std::optional<std::string> found(const std::string& part, const std::string& name,
                                     const std::string& zone, const std::string& line) const {
        if (contains(line, text_)) return line;
        const index_entry* entry = index_->find(part, name, zone);
        if (!entry) return {};
        for (const std::string& code : entry->codes)
            if (folded(code) == folded(text_) || code == "EPSG:" + text_) return line + "  [" + code + ']';
        if (contains(entry->also, text_)) return line + "  [" + entry->also + ']';
        return {};
    }

private:
    static catalogue_index index_beside_program() try {
        const auto program = std::filesystem::read_symlink("/proc/self/exe");
        return catalogue_index(program.parent_path() / "prj_def" / catalogue_index_file);
    } catch (const std::runtime_error& e) {
        throw failure(exit_code::unreadable, e.what());
    }

    std::string text_;
    std::optional<catalogue_index> index_;  ///< while anything is sought
};

/// Chooses every item of a list in turn and prints what the dialog shows of it.
class listing {
public:
    explicit listing(const catalogue_options& options) : only_part_(options.part), search_(options.find) {}

    /// `lines` gives the lines of the item that is chosen; in the list of zones, a line is a zone.
    template <class Lines>
    void part(const std::string& name, dialog_hands& hands, std::string_view group, Lines&& lines) {
        if (!only_part_.empty() && only_part_ != name) return;
        bool headed = !only_part_.empty();
        const auto items = list_of(hands, group).state().items;
        for (std::uint32_t i = 0; i < items.size(); ++i) {
            list_of(hands, group).choose(i);
            for (const std::string& line : lines()) {
                const std::string zone = name == "zones" ? line : "";
                const auto found = search_.found(name, items[i], zone, items[i] + "  " + line);
                if (!found) continue;
                if (!headed) std::cout << name << '\n';
                headed = true;
                std::cout << (only_part_.empty() ? "  " : "") << *found << '\n';
                ++count_;
            }
        }
    }

    std::size_t count() const { return count_; }

private:
    const std::string only_part_;
    const search search_;
    std::size_t count_ = 0;
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
    listing list(options);
    run::projection_dialog dialog(options.bundle);
    dialog.open("", [&](dialog_hands& hands) {
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
    if (list.count() == 0 && !options.find.empty())
        throw failure(exit_code::nothing_done,
                      words("в каталоге нет ничего с названием ", "nothing in the catalogue is called ") +
                          '"' + options.find + '"');
    return exit_code::done;
}

}  // namespace

void add_catalogue(CLI::App& app, action& chosen) {
    auto options = std::make_shared<catalogue_options>();
    CLI::App* command = app.add_subcommand(
        "catalogue", words("Показать, что предлагает диалог проекции: эллипсоиды (полуось, обратное сжатие), "
                           "датумы (эллипсоид, семь параметров), проекции (их параметры), зоны",
                           "List what the projection dialog offers: ellipsoids (axis, inverse flattening), "
                           "datums (ellipsoid, seven parameters), projections (what they ask for), zones"));
    command
        ->add_option(
            "part", options->part,
            words("Только эллипсоиды, датумы, проекции или зоны", "Only one of these (default: all)"))
        ->type_name("ellipsoids|datums|projections|zones")
        ->check(CLI::IsMember({"ellipsoids", "datums", "projections", "zones"}).description(""));
    command
        ->add_option("--find", options->find,
                     words("Только строки, в которых, как и в других названиях («SK-42»), есть этот текст, "
                           "независимо от регистра, или с этим кодом EPSG",
                           "Only entries with this in their line or in a further name (\"SK-42\"), in either "
                           "case, or of this EPSG code"))
        ->type_name("TEXT|CODE");
    add_language(*command);
    add_bundle(*command, options->bundle);
    command->callback([options, &chosen] { chosen = [options] { return list_catalogue(*options); }; });
}

}  // namespace oxhost::app
