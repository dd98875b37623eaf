#pragma once
/// Notifications inside the module; they never cross its border.

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>

#include "toolkit/observer.h"

namespace ox {

template <class Signature>
class event;

namespace events {

/// The subscriber's end of a connection. Does nothing once the observer is gone.
class connection_base {
public:
    virtual ~connection_base() = default;
    virtual bool connected() const = 0;
    /// The observer is never called again.
    virtual void disconnect() = 0;
    /// Marks the observer; the mark is for the owner of the callback to read.
    virtual void block() = 0;
    virtual void unblock() = 0;
};

}  // namespace events

template <>
class event<void()> {
public:
    using observer = events::observer;

    class connection_impl final : public events::connection_base {
    public:
        connection_impl(std::weak_ptr<observer> target, std::weak_ptr<events::observer_list> list)
            : target_(std::move(target)), list_(std::move(list)) {}

        bool connected() const override { return !target_.expired(); }
        void disconnect() override {
            const auto target = target_.lock();
            const auto list = list_.lock();
            if (target && list) list->leave(*target);
        }
        void block() override { mark(true); }
        void unblock() override { mark(false); }

    private:
        void mark(bool blocked) {
            if (const auto target = target_.lock()) target->blocked = blocked;
        }

        std::weak_ptr<observer> target_;
        std::weak_ptr<events::observer_list> list_;
    };

    /// Observers are called in the order of connection.
    std::unique_ptr<events::connection_base> connect(const std::shared_ptr<observer>& target) {
        observers_->join(target);
        return std::make_unique<connection_impl>(target, observers_);
    }

    /// Callbacks may connect and disconnect meanwhile, and end the event: who leaves is not called any more,
    /// who joins is called from the next time on.
    void fire() const {
        const auto live = observers_;
        live->call_all();
    }

    /// Number of connections whose observer lives.
    std::size_t size() const { return observers_->size(); }

private:
    std::shared_ptr<events::observer_list> observers_ = std::make_shared<events::observer_list>();
};

/// An observer together with its connection: calls `callback` on each event while it lives.
class subscription {
public:
    subscription(event<void()>& source, std::function<void()> callback)
        : observer_(std::make_shared<events::observer>(std::move(callback))),
          connection_(source.connect(observer_)) {}
    subscription(const subscription&) = delete;
    subscription& operator=(const subscription&) = delete;
    ~subscription() {
        connection_->disconnect();
    }  // also while its own callback runs, which keeps the observer

    events::connection_base& connection() { return *connection_; }

private:
    std::shared_ptr<events::observer> observer_;
    std::unique_ptr<events::connection_base> connection_;
};

}  // namespace ox
