#pragma once
/// The one utility of this module.

#include "framework/referent.h"
#include "prf_reproj/widget.h"
#include "resources/text.h"
#include "toolkit/utility.h"

namespace ox {

inline constexpr wchar_t utility_id[] = L"oxk_scn2d_prf_reproj";

class scn2d_prf_reproj_utility final : public util::referent<utility_service_impl>,
                                       public toolkit::utility<scn2d_prf_reproj_widget, utility_id, 0> {
public:
    explicit scn2d_prf_reproj_utility(custom_pointer owner)
        : obj(owner),
          utility({.caption = text::batch_project_sections, .dialog_caption = text::batch_project_sections}) {
    }

    void report(custom_pointer utility_visitor) override {
        call<&utility_visitor_impl::visit>(utility_visitor, id, make_pointer<utility_impl>(*this));
    }
};

}  // namespace ox
