#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <nlohmann/json.hpp>
#include <optional>

#include "app/command.h"
#include "base/display.h"
#include "base/language.h"
#include "base/memo.h"
#include "geodesy/crs_import.h"
#include "geodesy/description.h"
#include "run/report.h"
#include "run/request.h"

namespace oxhost::app {

namespace {

struct list_options {
    std::filesystem::path project;
    bool json = false;
};

std::size_t vertices(const scene& listed) { return listed.line ? listed.line->vertices : 0; }

/// What is said of a projection: many scenes, few texts.
struct told_projection {
    std::optional<std::string> code;  ///< "EPSG:n"
    std::string words;                ///< code, name, text
};

class projection_teller {
public:
    const told_projection& of(const std::string& proj4) {
        return kept_.of(proj4, [&] {
            if (proj4.empty()) return told_projection{{}, words("нет", "none")};
            told_projection told{epsg_code(proj4), {}};
            if (told.code) told.words = *told.code + ' ';
            told.words += escaped(short_description(proj4, current_language()) + "  " + proj4);
            return told;
        });
    }

private:
    memo<told_projection> kept_{1000};
};

void print_json(const project& opened) {
    projection_teller teller;
    auto rows = nlohmann::ordered_json::array();
    for (const scene& each : opened.scenes()) {
        const auto& code = teller.of(each.proj4).code;
        rows.push_back({{"index", each.index},
                        {"caption", each.caption},
                        {"profile", each.profile},
                        {"proj4", each.proj4},
                        {"vertices", vertices(each)},
                        {"epsg", code ? nlohmann::json(*code) : nlohmann::json()}});
    }
    std::cout << run::json_text(rows) << '\n';
}

/// Columns of a table: index, caption, count of vertices, projection, two blanks between them.
class table {
public:
    /// On a terminal a long caption has half of what the numbers leave, and the projection the rest.
    explicit table(std::size_t widest_caption) : caption_width_(widest_caption) {
        const auto columns = terminal_columns();
        if (!columns) return;
        const std::size_t room = std::max(*columns, numbers_width + 2 * least_width) - numbers_width;
        caption_width_ = std::min(caption_width_, room / 2);
        projection_width_ = room - caption_width_;
    }

    void row(const std::string& index, const std::string& caption, const std::string& count,
             const std::string& projection) const {
        std::cout << right(index, index_width) << "  "
                  << padded(cut_to(caption, caption_width_), caption_width_) << "  "
                  << right(count, count_width) << "  "
                  << (projection_width_ ? cut_to(projection, *projection_width_) : projection) << '\n';
    }

private:
    static constexpr std::size_t index_width = 5;
    static constexpr std::size_t count_width = 9;
    static constexpr std::size_t numbers_width = index_width + count_width + 3 * 2;
    static constexpr std::size_t least_width = 8;  // of a caption, and of a projection

    static std::string right(const std::string& text, std::size_t width) {
        const std::size_t used = std::min(display_width(text), width);
        return std::string(width - used, ' ') + text;
    }

    std::size_t caption_width_;
    std::optional<std::size_t> projection_width_;
};

void print_table(const project& opened) {
    const std::string head = words("Сцена", "Scene");
    std::vector<std::string> captions;
    std::size_t widest = display_width(head);
    for (const scene& each : opened.scenes()) {
        captions.push_back(escaped(each.caption));
        widest = std::max(widest, display_width(captions.back()));
    }
    const table printed(widest);
    printed.row("#", head, words("Вершин", "Vertices"), words("Проекция", "Projection"));
    projection_teller teller;
    for (const scene& each : opened.scenes())
        printed.row(
            std::to_string(each.index), captions[each.index], std::to_string(vertices(each)),
            (each.profile ? "" : words("(не профиль) ", "(no profile) ")) + teller.of(each.proj4).words);
}

exit_code list(const list_options& options) {
    const auto opened = run::open_project(options.project, open_mode::read_only);
    options.json ? print_json(*opened) : print_table(*opened);
    return exit_code::done;
}

}  // namespace

void add_list(CLI::App& app, action& chosen) {
    auto options = std::make_shared<list_options>();
    CLI::App* command =
        app.add_subcommand("list", words("Показать сцены проекта", "List the scenes of a project"));
    command->add_option("project", options->project, words("Проект", "The project"))
        ->type_name("PROJECT.gpkg")
        ->required();
    command->add_flag("--json", options->json,
                      words("В виде JSON: index, caption, profile, proj4, vertices, epsg",
                            "As JSON: index, caption, profile, proj4, vertices, epsg"));
    add_language(*command);
    command->callback([options, &chosen] { chosen = [options] { return list(*options); }; });
}

}  // namespace oxhost::app
