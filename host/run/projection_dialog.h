#pragma once
/// The plug-in's projection dialog, reached as a person reaches it: through the target of its utility.

#include <filesystem>
#include <functional>
#include <string>

#include "base/files.h"
#include "headless/scripted_user.h"
#include "shell/bundle_host.h"

namespace oxhost::run {

class projection_dialog {
public:
    /// Throws bundle_error.
    explicit projection_dialog(const std::filesystem::path& bundle) : host_(bundle, user_) {}

    /// Opens the dialog on a proj4 text, which may be empty, lets `act` do what it wants in it, and
    /// dismisses it. Favourites are stored then.
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
