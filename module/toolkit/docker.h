#pragma once
/// What the host asks of a dialog: caption, icon, root element.

#include <cstdint>

#include "border/interfaces/dialogs.h"
#include "border/interfaces/layouts.h"
#include "toolkit/view.h"

namespace ox::toolkit {

class docker_base : public docker_impl {
public:
    /// The caption's id serves as the icon's as well.
    explicit docker_base(std::uint32_t caption) : caption_(caption), icon_(caption) {}
    docker_base(const docker_base&) = delete;
    docker_base& operator=(const docker_base&) = delete;

    void visit_icon(custom_pointer bitmap_visitor) override {
        visit_picture_of(static_cast<std::int32_t>(icon_), bitmap_visitor);
    }
    void visit_caption(custom_pointer string_visitor) override {
        resource::visit_string(static_cast<std::int32_t>(caption_), string_visitor);
    }
    bool flag() override { return flag_; }
    std::uint32_t value() override { return whole_value; }
    void attach(custom_pointer host) override { host_ = host; }

    void set_flag(bool flag) { flag_ = flag; }  ///< read when the dialog is shown

protected:
    ~docker_base() = default;

private:
    std::uint32_t caption_;
    std::uint32_t icon_;
    bool flag_ = true;
    custom_pointer host_{};
};

/// A dialog around a widget that lives as long as the dialog. `W::element()` is its root grid.
template <class W>
class docker final : public docker_base {
public:
    using docker_base::docker_base;
    custom_pointer element() override { return make_pointer<grid_layout_impl>(widget_.element()); }
    W& widget() { return widget_; }

private:
    W widget_;
};

namespace detail {

/// A dialog around a dialog object that its caller owns. `D::caption` is the id of its caption.
template <class D>
class dialog_docker final : public docker_impl {
public:
    explicit dialog_docker(D& dialog) : dialog_(&dialog) {}

    void visit_caption(custom_pointer string_visitor) override {
        resource::visit_string(D::caption, string_visitor);
    }
    custom_pointer element() override { return make_pointer<grid_layout_impl>(dialog_->element()); }
    bool flag() override { return true; }
    std::uint32_t value() override { return whole_value; }

private:
    D* dialog_;
};

}  // namespace detail

}  // namespace ox::toolkit
