#pragma once
/// How messages, questions and progress reach the user. The host modules speak through
/// `messages::instance()`; whoever runs the host installs the policy that does the showing. [ui]

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace oxhost {

enum class message_kind { information, error, question };

/// One text that was put to the user (UTF-8, lines parted by \n).
struct shown_message {
    message_kind kind;
    std::string text;
    std::optional<bool> answer = {};  ///< of a question; nothing when there was nobody to ask
};

/// An indicator on display; it disappears with its object.
class progress_display {
public:
    virtual ~progress_display() = default;
    virtual void report(double fraction) = 0;  ///< of the work done, 0 to 1
};

/// Does the showing. Called by `messages` only.
class message_policy {
public:
    virtual ~message_policy() = default;
    virtual void show(message_kind kind, const std::string& text) = 0;
    /// Yes, no, or nothing when there is nobody to ask.
    virtual std::optional<bool> ask(const std::string& text) = 0;
    /// Null for no indicator.
    virtual std::unique_ptr<progress_display> open_progress() = 0;
};

class messages {
public:
    static messages& instance();

    /// Replaces the policy (at first: a console that asks). Null is refused with std::invalid_argument.
    void use(std::unique_ptr<message_policy> policy);

    /// A policy and what was shown through it.
    struct state {
        std::unique_ptr<message_policy> policy;
        std::vector<shown_message> shown;
    };
    /// Puts another in the place of this one, which is handed out. A state without policy is refused.
    state swap(state next);

    void inform(const std::string& text) { show(message_kind::information, text); }
    void report_error(const std::string& text) { show(message_kind::error, text); }
    /// True for yes; no and nobody to ask are both false, and told apart in the record.
    bool ask(const std::string& text);
    std::unique_ptr<progress_display> open_progress() { return policy_->open_progress(); }

    /// What was shown since the last `forget`, in order.
    const std::vector<shown_message>& shown() const { return shown_; }
    /// Was a question refused or answered no?
    bool declined() const;
    void forget() { shown_.clear(); }

private:
    messages();
    void show(message_kind kind, const std::string& text);

    std::unique_ptr<message_policy> policy_;
    std::vector<shown_message> shown_;
};

}  // namespace oxhost
