#include "app/command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>

#include "base/files.h"
#include "base/language.h"
#include "project/project.h"
#include "run/plug_in_texts.h"
#include "run/request.h"
#include "session/border.h"
#include "shell/bundle.h"

namespace oxhost::app {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view default_bundle = run::plug_in_text::bundle_file;

void print_fault(const ox::border_fault& fault) {
    std::string line =
        words("oxhost: исключение перехвачено в ", "oxhost: an exception ended at ") + fault.place;
    if (fault.slot) line += words(", операция ", ", slot ") + std::to_string(fault.slot);
    line.append(": ").append(fault.what);
    std::ranges::replace(line, '\n', ' ');
    std::cerr << line << std::endl;
}

}  // namespace

exit_code code_of_current_exception() try { throw; } catch (const failure& error) {
    return error.code;
} catch (const run::failure& error) {
    switch (error.kind) {
        case run::trouble::unreadable:
            return exit_code::unreadable;
        case run::trouble::scene:
            return exit_code::scene_failed;
        case run::trouble::refused:
            break;
    }
    return exit_code::nothing_done;
} catch (const shell::bundle_error&) {
    return exit_code::unreadable;
} catch (const project_error&) {
    return exit_code::nothing_done;
} catch (const file_error&) {
    return exit_code::nothing_done;
} catch (const std::exception&) {
    return exit_code::internal;
}

void add_verbose(CLI::App& app) {
    app.add_flag_callback(
        "--verbose", [] { listen_to_faults(print_fault); },
        words("Сообщать об исключениях, перехваченных на границе модуля и программы",
              "Tell of exceptions that end at the border of plug-in and host"));
}

void add_language(CLI::App& subcommand) {
    add_verbose(subcommand);
    subcommand
        .add_option_function<std::string>(
            "--lang", [](const std::string& code) { choose_language(parse_language(code)); },
            words("Язык текстов и сообщений (по умолчанию язык системы)",
                  "Language of texts and messages (default: the locale's)"))
        ->type_name("ru|en")
        ->check(CLI::IsMember({"ru", "en"}).description(""));
}

void add_answers(CLI::App& subcommand, console_options& result) {
    auto* yes = subcommand.add_flag_callback(
        "--yes", [&result] { result.questions = answering::yes; },
        words("На вопросы отвечать «да»", "Answer questions with yes"));
    subcommand
        .add_flag_callback(
            "--no", [&result] { result.questions = answering::no; },
            words("На вопросы отвечать «нет»", "Answer questions with no"))
        ->excludes(yes);
}

void add_bundle(CLI::App& subcommand, fs::path& result) {
    result = fs::read_symlink("/proc/self/exe").parent_path() / default_bundle;
    subcommand
        .add_option("--bundle", result,
                    words("Модуль (по умолчанию ", "The plug-in (default: ") + std::string(default_bundle) +
                        words(" рядом с программой)", " beside this program)"))
        ->type_name("FILE");
}

}  // namespace oxhost::app
