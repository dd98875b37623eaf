#include <unistd.h>

#include <CLI/CLI.hpp>
#include <iostream>

#include "app/command.h"
#include "app/outputs.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"
#include "geodesy/favourites.h"
#include "geodesy/mended_text.h"
#include "geodesy/projection_files.h"
#include "geodesy/text_difference.h"
#include "run/outputs.h"
#include "run/plug_in.h"
#include "run/plug_in_texts.h"
#include "run/request.h"
#include "session/journal.h"

namespace oxhost::app {

namespace {

namespace fs = std::filesystem;
using headless::dialog_hands;

/// The dialog while the acts of the command line are done in it.
struct editing {
    run::projection_dialog& dialog;
    dialog_hands& hands;
    /// The system that the dialog was last told to show as a whole, as something that `import_crs` takes;
    /// empty when a single control was set since.
    std::string taken;
};

using dialog_act = std::function<void(editing&)>;

struct project_options {
    std::string text;
    std::vector<dialog_act> acts;
    std::vector<std::filesystem::path> outputs;
    bool overwrite = false;
    bool quiet = false;
    bool show = false;
    bool strict = false;
    fs::path bundle;
};

/// What the system in a file is by itself: a `.prj` says more than the proj4 text that it is read as.
std::string definition_in(const std::string& file) {
    if (lower(fs::path(file).extension().string()) == ".pj4") return load_pj4(file);
    std::string text = load_prj(file);
    const std::string companion = file + ".pj4";
    if (std::error_code ignored; fs::exists(companion, ignored) && load_pj4(companion) == text) return text;
    return read_file(file).value_or(text);
}

std::string definition_of(const run::target& given) {
    return given.file ? definition_in(given.file->string()) : given.none() ? std::string() : given.given;
}

dialog_act choosing(const std::string& given) {
    const auto equals = given.find('=');
    if (equals == given.npos || equals == 0)
        throw CLI::ValidationError("--choose", given + words(": не НАЗВАНИЕ=ЗНАЧЕНИЕ",  //
                                                             ": is not CAPTION=VALUE"));
    return [control = given.substr(0, equals), value = given.substr(equals + 1)](editing& edited) {
        edited.hands.set(control, value);
        edited.taken.clear();
    };
}

dialog_act importing(const std::string& code) {
    return [code](editing& edited) {
        edited.dialog.choose_crs(edited.hands, code);
        edited.taken = parse_whole_number(code) ? "EPSG:" + code : code;
    };
}

dialog_act taking_favourite(std::uint32_t number) {
    return [number](editing& edited) {
        edited.dialog.take_favourite(edited.hands, number);
        favourite_list stored;
        stored.load();
        const favourite* taken = stored.at(static_cast<std::int32_t>(number) - 1);
        edited.taken = taken ? taken->proj4 : "";
    };
}

dialog_act saving(const std::string& file) {
    const std::string extension = lower(fs::path(file).extension().string());
    if (extension != ".pj4" && extension != ".prj")
        throw failure(exit_code::nothing_done, file + words(": проекцию хранят файлы .pj4 и .prj",
                                                            ": .pj4 and .prj files hold a projection"));
    return [file](editing& edited) { edited.dialog.save(edited.hands, file); };
}

dialog_act loading(const std::string& file) {
    return [file](editing& edited) {
        const run::target read = run::read_target(file);
        if (!read.file)
            throw failure(exit_code::nothing_done,
                          file + words(": не файл .pj4 или .prj", ": no .pj4 or .prj file"));
        edited.dialog.load(edited.hands, file);
        edited.taken = definition_of(read);
    };
}

/// Says on the error output how the text differs from what was taken over; answers whether it does.
bool tell_difference(const std::string& taken, const std::string& composed) {
    const text_difference difference = difference_of(taken, composed, current_language());
    if (difference.changed())
        std::cerr << "oxhost: " << difference_line(difference, current_language()) << '\n';
    return difference.changed();
}

exit_code edit(const project_options& options) try {
    for (const std::filesystem::path& each : options.outputs) run::check_output(each, options.overwrite);
    // An empty text is what the dialog starts from when nothing is chosen.
    const run::target start = options.text.empty() ? run::target{} : run::read_target(options.text);
    run::projection_dialog dialog(options.bundle);
    const bool shown = options.show || (isatty(STDERR_FILENO) && !options.quiet);
    std::string composed, taken = definition_of(start);
    dialog.open(start.proj4, [&](dialog_hands& hands) {
        editing edited{dialog, hands, taken};
        for (const dialog_act& act : options.acts) act(edited);
        if (shown) std::cerr << headless::dialog_text(hands.dialog()) << '\n';
        composed = mended(dialog.text(hands));
        taken = edited.taken;
    });
    std::cout << composed << std::endl;
    const bool changed = tell_difference(taken, composed);
    const bool unstored =
        journal::instance().take_file_failure().has_value();  // of the favourites; told by then
    return unstored || (changed && options.strict) ? exit_code::nothing_done : exit_code::done;
} catch (const headless::impossible& e) {
    throw failure(exit_code::nothing_done, e.what());
}

}  // namespace

void add_project(CLI::App& app, action& chosen) {
    auto options = std::make_shared<project_options>();
    const auto act = [options](dialog_act what) { options->acts.push_back(std::move(what)); };
    CLI::App* command = app.add_subcommand(
        "project", words("Составить проекцию в диалоге модуля; действия выполняются по порядку, на выводе — "
                         "только получившийся текст",
                         "Compose a projection in the plug-in's dialog; acts go in order, the output is the "
                         "resulting text alone"));
    command->add_option("text", options->text, words("С чего начать: ", "Where to start: ") + target_help)
        ->type_name("TEXT");
    command
        ->add_option_function<std::vector<std::string>>(
            "--choose",
            [act](const std::vector<std::string>& all) {
                for (const std::string& each : all) act(choosing(each));
            },
            words("Задать значение поля или списка; «Группа/Название=Значение», если название не одно",
                  "Set a control, \"Group/Caption=Value\" where the caption fits several"))
        ->type_name("CAPTION=VALUE")
        ->expected(1)
        ->trigger_on_parse();
    // An option whose value makes an act, done when its turn comes.
    const auto add = [&]<class Value>(const char* name, dialog_act (*make)(Value), const char* type,
                                      std::string help) {
        using plain = std::remove_cvref_t<Value>;
        command
            ->add_option_function<plain>(
                name, [act, make](const plain& value) { act(make(value)); }, std::move(help))
            ->type_name(type)
            ->trigger_on_parse();
    };
    add("--epsg", importing, "CODE",
        words("Взять систему координат по её коду", "Import a coordinate system by its code"));
    add("--favourite", taking_favourite, "N",
        words("Взять избранную проекцию, считая с 1", "Take a favourite, counted from 1"));
    add("--save", saving, "FILE", words("Сохранить в файл .pj4 или .prj", "Save to a .pj4 or .prj file"));
    command->get_option("--save")->each([options](const std::string& file) {
        options->outputs.emplace_back(file);
        if (lower(fs::path(file).extension().string()) == ".prj")
            options->outputs.emplace_back(file + ".pj4");  // its companion
    });
    add("--load", loading, "FILE", words("Загрузить файл .pj4 или .prj", "Load a .pj4 or .prj file"));
    command
        ->add_flag_callback(
            "--add-favourite",
            [act] { act([](editing& edited) { edited.hands.click_tool(run::plug_in_text::append_tool); }); },
            words("Добавить проекцию в избранные", "Keep the projection as a favourite"))
        ->trigger_on_parse();
    command->add_flag("--show", options->show,
                      words("Показать диалог на потоке ошибок, даже если это не терминал",
                            "Show the dialog on the error output, even where that is no terminal"));
    command->add_flag("--quiet", options->quiet,
                      words("Не показывать диалог и на терминале", "Show no dialog on a terminal either"));
    command->add_flag("--strict", options->strict,
                      words("Код завершения 2, если текст — не та система, которая была взята",
                            "Exit code 2 when the text is not the system that was taken over"));
    add_overwrite(*command, options->overwrite);
    add_language(*command);
    add_bundle(*command, options->bundle);
    command->callback([options, &chosen] { chosen = [options] { return edit(*options); }; });
}

}  // namespace oxhost::app
