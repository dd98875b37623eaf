#pragma once

#include "border/interfaces/controls.h"
#include "toolkit/view.h"

namespace ox::toolkit {

class label final : public with_view<label_impl> {
public:
    explicit label(std::int32_t caption = 0) : caption_(caption) {}

    bool enabled() override { return enabled_; }
    void visit_caption(custom_pointer string_visitor) override { visit_text_of(caption_, string_visitor); }

    void set_enabled(bool enabled) { update(enabled_, enabled); }

private:
    std::int32_t caption_;
    bool enabled_ = true;
};

}  // namespace ox::toolkit
