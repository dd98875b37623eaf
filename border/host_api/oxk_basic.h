#pragma once
/// Host module of basic services. [ui]

#include "border/linkage.h"

/// A string adapter: the host functions that produce a text deliver it through one of the two
/// callbacks, valid for the call. The caller owns the adapter.
OX_HOST_API void* ox_string_adp_create(void (*narrow)(const char* text, void* context),
                                       void (*wide)(const wchar_t* text, void* context), void* context);
OX_HOST_API void ox_string_adp_destroy(void* adapter);

/// Offset of the user's language in string tables: 0 Russian, 50000 English.
OX_HOST_API int ox_res_get_lng(void);

OX_HOST_API int ox_help_mngr_find_help_id(std::uint32_t help_id);
OX_HOST_API void ox_help_mngr_show_help(int mode, int found_help_id);

/// Delivers the path of the host's executable file.
OX_HOST_API void ox_options_get_main_module_path(void* adapter);

OX_HOST_API void ox_fnt_type_assign(void* destination_font, const void* source_font);
OX_HOST_API void ox_fnt_type_destroy(void* font);
