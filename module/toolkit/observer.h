#pragma once
/// Who is called by an event.

#include <cstddef>
#include <functional>
#include <list>
#include <memory>
#include <utility>
#include <vector>

namespace ox::events {

struct observer;

/// The observers of one event, in the order of connection. One that is connected twice stands there twice.
class observer_list : public std::enable_shared_from_this<observer_list> {
public:
    std::size_t size() const { return entries_.size(); }
    void join(const std::shared_ptr<observer>& joining);
    void leave(observer& leaving);
    void call_all();

private:
    friend struct observer;
    struct entry {
        std::weak_ptr<observer> target;
        std::size_t number;  ///< of the connections of this list
    };
    using place = std::list<entry>::iterator;
    /// A firing on its way through the list; entries that leave move it on.
    struct walk {
        place next;
        walk* outer;
    };
    void erase(place leaving);

    std::list<entry> entries_;
    std::size_t joined_ = 0;
    walk* innermost_ = nullptr;
};

/// Owned by the subscriber; the event and its connections refer to it weakly. It leaves its events when it
/// ends.
struct observer {
    observer() = default;
    explicit observer(std::function<void()> called) : callback(std::move(called)) {}
    observer(const observer&) = delete;
    observer& operator=(const observer&) = delete;
    ~observer();

    bool blocked = false;
    std::function<void()> callback;

private:
    friend class observer_list;
    std::vector<std::pair<std::weak_ptr<observer_list>, observer_list::place>> places_;
};

}  // namespace ox::events
