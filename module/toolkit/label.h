#pragma once

#include "border/interfaces/controls.h"
#include "toolkit/view.h"

namespace ox::toolkit {

class label final : public with_enabled<label_impl> {
public:
    explicit label(std::int32_t caption = 0) : caption_(caption) {}

    void visit_caption(custom_pointer string_visitor) override { visit_text_of(caption_, string_visitor); }

private:
    std::int32_t caption_;
};

}  // namespace ox::toolkit
