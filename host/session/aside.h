#pragma once
/// A piece of work within another one: what it says and records stays its own, and the outer one goes on as
/// if nothing had been. [ui]

#include <memory>

#include "session/journal.h"
#include "session/messages.h"

namespace oxhost {

class aside {
public:
    explicit aside(std::unique_ptr<message_policy> policy)
        : messages_(messages::instance().swap({std::move(policy), {}})), journal_(journal::instance()) {}
    ~aside() {
        messages::instance().swap(std::move(messages_));
        journal::instance() = std::move(journal_);
    }
    aside(const aside&) = delete;
    aside& operator=(const aside&) = delete;

private:
    messages::state messages_;
    journal journal_;
};

}  // namespace oxhost
