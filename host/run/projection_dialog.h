#pragma once
/// The plug-in's projection dialog, reached as a person reaches it: through the target of its utility.

#include <functional>

#include "run/reprojection_utility.h"

namespace oxhost::app {

class projection_dialog {
public:
    /// Throws bundle_error.
    explicit projection_dialog(const std::filesystem::path& bundle) : host_(bundle, user_) {}

    /// Opens the dialog on a proj4 text, which may be empty, lets `act` do what it wants in it, and
    /// dismisses it. Favourites are stored then.
    void open(const std::string& proj4, const std::function<void(headless::dialog_hands&)>& act);

    // For `act`:
    /// The text that confirming would give now.
    std::string text(headless::dialog_hands& in);
    /// Types an identifier into the dialog behind the EPSG button and confirms.
    void choose_crs(headless::dialog_hands& in, const std::string& identifier);
    void save(headless::dialog_hands& in, const std::filesystem::path& file);
    void load(headless::dialog_hands& in, const std::filesystem::path& file);

private:
    temporary_folder folder_;
    headless::scripted_user user_;
    shell::bundle_host host_;
};

}  // namespace oxhost::app
