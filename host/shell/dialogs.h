#pragma once
/// The dialogs that a bundle shows, and who acts in them. [ui]

#include <exception>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "border/interfaces/dialogs.h"
#include "shell/node.h"

namespace oxhost::shell {

enum class button_role { accept, reject, help, other };

struct dialog_button {
    std::string caption;
    bool enabled;
    button_role role;  ///< by its caption, one of the host's own strings; of others the default one accepts
};

/// A dialog on display. Its nodes are those of the bundle's elements and end with it, at the latest
/// when the bundle's `show_modal` call returns.
class open_dialog final : private ox::element_view_slots {
public:
    open_dialog(std::string id, ox::custom_pointer docker, ox::custom_pointer button_box);
    ~open_dialog();
    open_dialog(const open_dialog&) = delete;
    open_dialog& operator=(const open_dialog&) = delete;

    const std::string& id() const { return id_; }  ///< of the dialog host it was shown through; may be empty
    std::string caption() const;
    node& root() { return *root_; }
    ox::custom_pointer docker() const { return docker_; }

    /// The standard buttons, as they are now.
    std::vector<dialog_button> buttons() const;
    /// Answers whether that closes the dialog, which its user then leaves.
    bool press(std::size_t index);
    /// Leaves the dialog as its frame's close box does: no button is pressed.
    void dismiss() { accepted_ = false; }
    bool accepted() const { return accepted_; }

    std::function<void()> on_buttons_changed;  ///< a button was enabled or disabled

private:
    void changed() override;

    std::string id_;
    ox::custom_pointer docker_;
    ox::custom_pointer button_box_;
    bool accepted_ = false;
    std::unique_ptr<node> root_;
};

struct file_question {
    bool to_save;
    std::string filter;  ///< pairs of description and pattern, parted by "|"
};

/// Whoever sits before the dialogs: a scripted user, or windows.
class dialog_user {
public:
    virtual ~dialog_user() = default;
    /// Acts until the dialog is to close. May be called again from inside, for a dialog over this one.
    virtual void serve(open_dialog& dialog) = 0;
    /// Nothing cancels.
    virtual std::optional<std::filesystem::path> choose_file(const file_question& question) = 0;
};

/// The dialog hosts of one bundle, one per dialog id. What a user throws is kept, since nothing may be
/// thrown through the bundle; the dialogs under it then close without further acts.
class dialog_desk {
public:
    explicit dialog_desk(dialog_user& user) : user_(user) {}
    dialog_desk(const dialog_desk&) = delete;
    dialog_desk& operator=(const dialog_desk&) = delete;

    ox::custom_pointer host_of(const std::string& dialog_id);
    std::size_t depth() const { return open_.size(); }  ///< dialogs open one over the other
    /// What was kept, once the bundle's call has returned.
    void rethrow();

private:
    class place;
    bool show(const std::string& id, ox::custom_pointer docker, ox::custom_pointer button_box);
    void ask_file(const file_question& question, ox::custom_pointer string_visitor);

    dialog_user& user_;
    std::map<std::string, std::shared_ptr<place>> places_;
    std::vector<open_dialog*> open_;
    std::exception_ptr failure_;
};

}  // namespace oxhost::shell
