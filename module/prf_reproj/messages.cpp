#include "prf_reproj/messages.h"

#include "border/host_api/oxk_msgs.h"
#include "toolkit/resource_lookup.h"

namespace ox::prf_reproj {

void show_message(std::int32_t text_id) { ox_show_wmessage(resource::string(text_id).c_str()); }
void show_error(std::int32_t text_id) { ox_show_werror(resource::string(text_id).c_str()); }
bool ask_yes_no(std::int32_t text_id) { return ox_yesno_wmessage(resource::string(text_id).c_str()); }

}  // namespace ox::prf_reproj
