#pragma once
/// The factory of a service object that several kinds of service may be published from.

#include <memory>
#include <vector>

#include "border/ref.h"
#include "framework/factories.h"
#include "framework/publish.h"

namespace ox::util {

namespace detail {

/// One kind of service that an object of type `U` is published as.
template <class U>
class service_holder {
public:
    virtual ~service_holder() = default;
    /// Takes the registry for the exchange that follows; false for an empty one.
    virtual bool offer(custom_pointer registry) = 0;
    /// Takes hold again of the service that was published before, if it still lives.
    virtual void refresh() = 0;
    virtual bool holds() const = 0;
    virtual void take(U& object) = 0;
    /// Publishes what is held, then keeps only an eye on it.
    virtual void complete() = 0;
};

template <class U, class Service, class ServiceImpl, class ServiceVisitor>
class ref_service_holder final : public service_holder<U> {
public:
    bool offer(custom_pointer registry) override {
        registry_ = registry;
        return static_cast<bool>(registry);
    }
    void refresh() override { held_.reset(published_.get()); }
    bool holds() const override { return static_cast<bool>(held_); }
    void take(U& object) override { held_.reset(make_pointer<ServiceImpl>(object)); }
    void complete() override {
        if (held_) publish(publisher<ServiceVisitor>(registry_), held_.get());
        published_.reset(held_.get());
        held_.reset();
        registry_ = {};
    }

private:
    ref<Service, 1> published_;
    ref<Service, 0> held_;
    custom_pointer registry_{};
};

}  // namespace detail

/// Creates one `U` for the life of the module and publishes it each time the host asks.
template <class U>
class service_factory final : public custom_service_factory_impl {
public:
    using holder = std::unique_ptr<detail::service_holder<U>>;

    service_factory(const wchar_t* key, std::vector<holder> holders)
        : custom_service_factory_impl(key), holders_(std::move(holders)) {}

    void create(custom_pointer context, custom_pointer registry) override {
        bool accepted = false;
        for (const holder& h : holders_) accepted |= h->offer(registry);
        if (!accepted) return;
        bool alive = false;
        for (const holder& h : holders_) {
            h->refresh();
            alive |= h->holds();
        }
        if (!alive) {
            auto* object = new U(owner_from(context));  // ends when the last holder lets go
            for (const holder& h : holders_) h->take(*object);
        }
        for (const holder& h : holders_) h->complete();
    }

private:
    std::vector<holder> holders_;
};

}  // namespace ox::util
