#pragma once
/// The standard buttons at the foot of a dialog; their captions are the host's.

#include <vector>

#include "border/interfaces/dialogs.h"
#include "toolkit/button_layout.h"

namespace ox::toolkit {

class button_box final : public button_box_impl {
public:
    button_box() = default;
    button_box(const button_box&) = delete;
    button_box& operator=(const button_box&) = delete;
    /// One button per `command` bit of the mask, in ascending order.
    explicit button_box(std::uint32_t mask);

    void attach_first_view(custom_pointer view) override { first_view_ = view; }
    void attach_second_view(custom_pointer view) override { second_view_ = view; }
    std::int32_t count() override { return static_cast<std::int32_t>(entries_.size()); }
    void visit_caption(std::int32_t index, custom_pointer string_visitor) override;
    bool enabled(std::int32_t index) override;
    /// Does the dialog close? Accepting kinds ask `on_apply`, closing kinds always do.
    bool click(std::int32_t index) override;
    std::int32_t default_index() override { return default_index_; }

    void append(std::int32_t caption, std::uint32_t kind);
    /// Enables or greys the buttons of a kind.
    void set_enabled(command kind, bool enabled);
    void set_default_index(std::int32_t index);  ///< -1 for none

    callback<bool(std::uint32_t kind)> on_command;
    callback<bool()> on_apply;
    callback<void()> on_help;

private:
    struct entry {
        bool enabled;
        std::int32_t caption;
        std::uint32_t kind;
    };
    const entry* at(std::int32_t index) const;
    void changed();

    std::vector<entry> entries_;  ///< in display order
    std::int32_t default_index_ = -1;
    custom_pointer first_view_{};
    custom_pointer second_view_{};
    life life_;
};

}  // namespace ox::toolkit
