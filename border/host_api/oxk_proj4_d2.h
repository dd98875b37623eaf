#pragma once
/// Host module of projections: proj4 texts, projection files, favourites, the 2D reprojector. [ui]
/// In every text and line x is easting or longitude, y is northing or latitude.

#include "border/linkage.h"

/// Do both texts define the same coordinate system?
OX_HOST_API bool ox_pj4_equal_w(const wchar_t* a, const wchar_t* b);
/// A readable description, possibly of several lines; the short form fits a list row.
OX_HOST_API void ox_pj4_get_text_w(const wchar_t* proj4, void* adapter);
OX_HOST_API void ox_pj4_get_short_text_w(const wchar_t* proj4, void* adapter);

/// The proj4 text of a CRS such as "EPSG:4326"; an unknown identifier leaves the adapter untouched.
OX_HOST_API void ox_pj4_import_crs(const wchar_t* identifier, void* adapter);
OX_HOST_API void ox_pj4_load_simple_w(const wchar_t* path, void* adapter);
OX_HOST_API void ox_pj4_import_esri(const wchar_t* path, void* adapter);
OX_HOST_API void ox_pj4_save_simple_w(const wchar_t* path, const wchar_t* proj4);
OX_HOST_API void ox_pj4_export_esri_prj(const wchar_t* proj4, const wchar_t* path);

/// Favourites: a list owned by its creator, filled from and written to the host's store on request.
/// Item indexes outside the list are ignored.
OX_HOST_API void* ox_pj4_fav_list_create(void);
OX_HOST_API void ox_pj4_fav_list_deserialize(void* list);
OX_HOST_API void ox_pj4_fav_list_serialize(void* list);
OX_HOST_API void ox_pj4_fav_list_destroy(void* list);
OX_HOST_API std::int32_t ox_pj4_fav_list_get_count(void* list);
OX_HOST_API void ox_pj4_fav_add_item(void* list, const wchar_t* caption, const wchar_t* proj4);
OX_HOST_API void ox_pj4_fav_del_item(void* list, std::int32_t index);
OX_HOST_API void ox_pj4_fav_get_caption(void* list, std::int32_t index, void* adapter);
OX_HOST_API void ox_pj4_fav_set_caption(void* list, std::int32_t index, const wchar_t* caption);
OX_HOST_API void ox_pj4_fav_get_pj4str(void* list, std::int32_t index, void* adapter);

/// The reprojector; its creator destroys it. `apply_pv` transforms in place and answers false when a
/// vertex cannot be transformed, the line then being as it was.
OX_HOST_API void* ox_rpj_d2_create(void);
OX_HOST_API bool ox_rpj_d2_init_w(void* rpj, const wchar_t* source, const wchar_t* target);
OX_HOST_API bool ox_rpj_d2_rpj_is_needed(void* rpj);
OX_HOST_API bool ox_rpj_d2_apply_pv(void* rpj, void* pv);
OX_HOST_API void ox_rpj_d2_destroy(void* rpj);
