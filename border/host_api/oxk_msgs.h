#pragma once
/// Host module of messages to the user. [ui]

#include "border/linkage.h"

OX_HOST_API void ox_show_wmessage(const wchar_t* text);
OX_HOST_API void ox_show_werror(const wchar_t* text);
/// True for yes.
OX_HOST_API bool ox_yesno_wmessage(const wchar_t* text);

/// May answer null: then there is no indicator. The creator destroys.
OX_HOST_API void* ox_progress_create(int options);
/// `fraction` of the work done, 0 to 1.
OX_HOST_API bool ox_progress_report(void* progress, double fraction);
OX_HOST_API void ox_progress_destroy(void* progress);

/// Told of an exception that a module kept from crossing the border: the interface, the slot of its table and
/// the exception's words. A host need not have it, so it is looked up by name and never linked.
OX_HOST_API void ox_border_fault(const char* place, std::uint32_t slot, const char* what);
