#include "session/messages.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "session/console_messages.h"

namespace oxhost {

messages::messages() : policy_(std::make_unique<console_messages>(console::standard(), console_options{})) {}

messages& messages::instance() {
    static messages only;
    return only;
}

void messages::use(std::unique_ptr<message_policy> policy) {
    if (!policy) throw std::invalid_argument("messages need a policy");
    policy_ = std::move(policy);
}

messages::state messages::swap(state next) {
    if (!next.policy) throw std::invalid_argument("messages need a policy");
    return {std::exchange(policy_, std::move(next.policy)), std::exchange(shown_, std::move(next.shown))};
}

void messages::show(message_kind kind, const std::string& text) {
    shown_.push_back({kind, text});
    policy_->show(kind, text);
}

bool messages::ask(const std::string& text) {
    const auto answer = policy_->ask(text);
    shown_.push_back({message_kind::question, text, answer});
    return answer.value_or(false);
}

bool messages::declined() const {
    return std::any_of(shown_.begin(), shown_.end(), [](const shown_message& message) {
        return message.kind == message_kind::question && !message.answer.value_or(false);
    });
}

}  // namespace oxhost
