#pragma once
/// The utilities of all loaded bundles, to be run on the window's project. [ui]

#include <QIcon>
#include <QObject>
#include <QString>
#include <memory>
#include <string>
#include <vector>

#include "desktop/dialogs/window_user.h"
#include "desktop/document.h"
#include "run/outcome.h"
#include "shell/bundle_host.h"

namespace oxhost::desktop {

class utilities final : public QObject {
    Q_OBJECT
public:
    /// Loads the bundle beside the program and those of the setting "bundles", a list of files; one that
    /// cannot be loaded is told in the document's notes. Document and user outlive it.
    utilities(document& shown, window_user& user);

    struct offer {
        QString caption;  ///< the bundle's own, in the language of now
        QIcon icon;
    };
    std::vector<offer> offered() const;
    /// The place among them of the utility of that id. Throws bundle_error when no bundle has it.
    std::size_t place_of(const std::string& id) const;

    /// Returns when the utility's dialog is closed. Failures of scenes are told as notes with their places.
    /// Throws project_error, bundle_error; a second run from inside the first one is refused.
    void run(std::size_t which);

Q_SIGNALS:
    /// Of a run that has changed scenes, while they can still be read as they are now.
    void ended(const std::vector<oxhost::run::scene_result>& results);

private:
    struct entry {
        shell::bundle_host* bundle;
        std::string id;
    };
    void load(const std::filesystem::path& file, window_user& user);
    void tell(const std::vector<oxhost::run::scene_result>& results);

    document& document_;
    std::vector<std::unique_ptr<shell::bundle_host>> bundles_;
    std::vector<entry> entries_;
    bool running_ = false;
};

}  // namespace oxhost::desktop
