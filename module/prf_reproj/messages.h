#pragma once
/// Message boxes of the host, by the id of their text. [ui]

#include <cstdint>

namespace ox::prf_reproj {

void show_message(std::int32_t text_id);
void show_error(std::int32_t text_id);
bool ask_yes_no(std::int32_t text_id);  ///< true for yes

}  // namespace ox::prf_reproj
