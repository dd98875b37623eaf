#pragma once
/// Host module of 2D scenes and their profile data. [ui] Scenes and profile data are the host's.

#include "border/linkage.h"

OX_HOST_API std::uint32_t ox_scns_2d_get_size(void* collection);
OX_HOST_API void* ox_scns_2d_get(void* collection, std::uint32_t index);

OX_HOST_API void ox_scn_2d_get_wcaption(void* scene, void* adapter);
/// Null when the scene carries no profile data.
OX_HOST_API void* ox_scn_2d_get_prf_data_ptr(void* scene);

OX_HOST_API bool ox_prf_data_get_is_profil(void* data);
OX_HOST_API void ox_prf_data_get_prj4string(void* data, void* adapter);
OX_HOST_API void ox_prf_data_set_prj4string(void* data, const wchar_t* proj4);
/// The section line, lent until it changes or the update bracket ends; null where the profile has none.
OX_HOST_API void* ox_prf_data_get_pv_ptr(void* data);
/// Copies `pv`; the caller keeps its own.
OX_HOST_API void ox_prf_data_set_pv(void* data, void* pv);
