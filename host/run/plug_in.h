#pragma once
/// The plug-in's dialogs, worked as a person would.

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "base/files.h"
#include "headless/scripted_user.h"
#include "project/project.h"
#include "run/request.h"
#include "shell/bundle_host.h"

namespace oxhost::run {

/// Its reprojection utility.
class reprojection_utility {
public:
    /// Throws bundle_error.
    explicit reprojection_utility(const std::filesystem::path& bundle) : host_(bundle, user_) {}

    /// Opens the utility's dialog over the current project, sets the target, checks the scenes' rows and
    /// presses apply; then checks and applies what `again` answers, until that is nothing, and closes the
    /// dialog. Messages and questions go through `messages`, changes to scenes through `journal`.
    /// `listed` are the scenes that the dialog must show, in its order.
    void run(const target& goal, const std::vector<scene*>& listed, std::vector<scene*> wanted,
             const std::function<std::vector<scene*>()>& again);

private:
    headless::scripted_user user_;
    shell::bundle_host host_;
};

/// The target that is chosen in the utility's open dialog, read as its Save button writes it; empty where
/// none is chosen or it is "not defined". `answer_file` has the next file question of the dialog's user
/// answered. Throws headless::impossible, failure.
std::string target_of(shell::open_dialog& utility,
                      const std::function<void(const std::filesystem::path&)>& answer_file);
/// Chooses a target and checks the scenes of those numbers in the utility's open dialog over the project, by
/// its own Load button and check boxes. Throws headless::impossible, failure.
void prepare(shell::open_dialog& utility, project& opened, const std::vector<std::size_t>& scenes,
             const std::string& proj4, const std::function<void(const std::filesystem::path&)>& answer_file);
/// Numbers of the scenes that are checked in the utility's open dialog over the project.
std::vector<std::size_t> checked_scenes(shell::open_dialog& utility, project& opened);

/// The folder of the projection catalogue: beside the program, where the plug-in looks for it.
std::filesystem::path catalogue_folder();

/// Its projection dialog, reached as a person reaches it: through the target of the utility.
class projection_dialog {
public:
    /// Throws bundle_error, and `failure` (unreadable) where a table of the catalogue is missing: the dialog
    /// would open all the same and offer next to nothing.
    explicit projection_dialog(const std::filesystem::path& bundle);

    /// Opens the dialog on a proj4 text, which may be empty, lets `act` do what it wants in it, and
    /// dismisses it. Favourites are stored then; the journal's file failure tells when that fails.
    void open(const std::string& proj4, const std::function<void(headless::dialog_hands&)>& act);

    // For `act`, which hands on its hands. They throw `failure`.
    /// The text that confirming would give now.
    std::string text(headless::dialog_hands& hands);
    /// Types an identifier into the dialog behind the EPSG button and confirms.
    void choose_crs(headless::dialog_hands& hands, const std::string& identifier);
    /// Takes a favourite, counted from 1.
    void take_favourite(headless::dialog_hands& hands, std::uint32_t number);
    void save(headless::dialog_hands& hands, const std::filesystem::path& file);
    void load(headless::dialog_hands& hands, const std::filesystem::path& file);

private:
    temporary_folder folder_;
    headless::scripted_user user_;
    shell::bundle_host host_;
};

}  // namespace oxhost::run
