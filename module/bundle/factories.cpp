/// The factories of this module. They register while it is loaded, in the order of this file, which is
/// the order in which the host sees them, and leave in the reverse order when it is unloaded.

#include "bundle/scn2d_prf_reproj_utility.h"
#include "framework/local_factory.h"
#include "framework/service_factory.h"
#include "projection/crs_dialog.h"
#include "projection/projection_dialog.h"
#include "toolkit/modal_dialog.h"

namespace ox {

namespace {

using util::detail::modal_dialog_service_factory;

auto utility_holders() {
    using holder = util::detail::ref_service_holder<scn2d_prf_reproj_utility, utility_service,
                                                    utility_service_impl, utility_service_visitor>;
    std::vector<util::service_factory<scn2d_prf_reproj_utility>::holder> holders;
    holders.push_back(std::make_unique<holder>());
    return holders;
}

modal_dialog_service_factory<nullptr> plain_dialogs;
util::service_factory<scn2d_prf_reproj_utility> utilities(category_key(utility_category).c_str(),
                                                          utility_holders());
modal_dialog_service_factory<scn2d_prf_reproj_utility::id> utility_dialogs;
detail::local_factory_impl local_client;
modal_dialog_service_factory<dialog::projection::id> projection_dialogs;
modal_dialog_service_factory<dialog::projection_crs::id> crs_dialogs;

}  // namespace

}  // namespace ox
