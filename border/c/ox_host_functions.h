#pragma once
/// The C functions that a bundle imports from the host. It binds to them by name when it is loaded: on
/// Windows from the DLL of the host module that heads each section, elsewhere from lib<module>.so or from the
/// executable. A host that implements them defines OX_HOST_IMPLEMENTS. All are called on the user interface
/// thread.
///
/// Handles are opaque. Scenes, profile data, projects and collections are the host's and never freed by a
/// bundle; what a `_create` function answers, its caller gives to the matching `_destroy`. A `_create` may
/// answer null.
///
/// Texts end with a NUL and are [lent for the call]. Functions that produce a text deliver it to a string
/// adapter, before they return; one that calls neither callback has no text to give.
/// In texts and lines x is easting or longitude, y is northing or latitude. A proj4 text defines a coordinate
/// system; an empty one means that none is set.

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include "ox_linkage.h"

#if defined(OX_HOST_IMPLEMENTS)
#define OX_HOST_FUNCTION OX_C_EXPORT
#else
#define OX_HOST_FUNCTION OX_C_IMPORT
#endif

// ---- oxk_basic: basic services ----------------------------------------------------------------------------

/// A string adapter: where a host function delivers a text, through one of the callbacks, whichever form it
/// has. A null text is an empty one; narrow texts are in the system's ANSI code page (elsewhere than on
/// Windows, in the locale's character set). `context` is handed to the callbacks; each further call replaces
/// the text.
OX_HOST_FUNCTION void* ox_string_adp_create(void (*narrow)(const char* text, void* context),
                                            void (*wide)(const wchar_t* text, void* context), void* context);
OX_HOST_FUNCTION void ox_string_adp_destroy(void* adapter);

/// The user's language as an offset of text ids (ox_resources.h).
OX_HOST_FUNCTION int ox_res_get_lng(void);

OX_HOST_FUNCTION int ox_help_mngr_find_help_id(uint32_t help_id);
/// `mode` 1 shows the topic that was found.
OX_HOST_FUNCTION void ox_help_mngr_show_help(int mode, int found_help_id);

/// Path of the host's executable file.
OX_HOST_FUNCTION void ox_options_get_main_module_path(void* adapter);

/// Copies a font object; frees one.
OX_HOST_FUNCTION void ox_fnt_type_assign(void* destination_font, const void* source_font);
OX_HOST_FUNCTION void ox_fnt_type_destroy(void* font);

// ---- oxk_prj: the open project ----------------------------------------------------------------------------

/// Null when no project is open: then there are no scenes.
OX_HOST_FUNCTION void* ox_prj_get_instance(void);
OX_HOST_FUNCTION void* ox_prj_get_scns_2d_ptr(void* project);

// ---- oxk_scn_2d: 2D scenes and their profile data ---------------------------------------------------------

OX_HOST_FUNCTION uint32_t ox_scns_2d_get_size(void* collection);
/// `index` counts from 0.
OX_HOST_FUNCTION void* ox_scns_2d_get(void* collection, uint32_t index);
OX_HOST_FUNCTION void ox_scn_2d_get_wcaption(void* scene, void* adapter);
/// Null when the scene has no profile data.
OX_HOST_FUNCTION void* ox_scn_2d_get_prf_data_ptr(void* scene);
/// Is the scene a profile, that is, a cross-section?
OX_HOST_FUNCTION bool ox_prf_data_get_is_profil(void* data);
/// In which coordinate system the section line is given.
OX_HOST_FUNCTION void ox_prf_data_get_prj4string(void* data, void* adapter);
OX_HOST_FUNCTION void ox_prf_data_set_prj4string(void* data, const wchar_t* proj4);
/// The section line, lent until it is set or the scene's update bracket ends; null when there is none.
OX_HOST_FUNCTION void* ox_prf_data_get_pv_ptr(void* data);
/// Copies `pv`; the caller keeps its own.
OX_HOST_FUNCTION void ox_prf_data_set_pv(void* data, void* pv);

// ---- oxk_entity: the bracket around the changes to one scene ----------------------------------------------

/// Hosts may lack both: look them up by name (dlsym, GetProcAddress), do not link to them.
OX_HOST_FUNCTION void ox_scn_begin_update(void* scene);
OX_HOST_FUNCTION void ox_scn_end_update(void* scene);

// ---- oxk_prg: 2D polylines ("pv") -------------------------------------------------------------------------

OX_HOST_FUNCTION void* ox_pv_d2_create(void);
OX_HOST_FUNCTION void ox_pv_d2_assign(void* destination, const void* source);
OX_HOST_FUNCTION void ox_pv_d2_destroy(void* pv);

// ---- oxk_proj4_d2: coordinate systems ---------------------------------------------------------------------

/// Do both texts define the same coordinate system?
OX_HOST_FUNCTION bool ox_pj4_equal_w(const wchar_t* a, const wchar_t* b);
/// A description in words, possibly of several lines; the short one fits a list row.
OX_HOST_FUNCTION void ox_pj4_get_text_w(const wchar_t* proj4, void* adapter);
OX_HOST_FUNCTION void ox_pj4_get_short_text_w(const wchar_t* proj4, void* adapter);
/// The proj4 text of an identifier such as "EPSG:4326"; no text when it is unknown.
OX_HOST_FUNCTION void ox_pj4_import_crs(const wchar_t* identifier, void* adapter);

/// Projection files: the simple form (.pj4) and ESRI's (.prj). No text when a file cannot be read.
OX_HOST_FUNCTION void ox_pj4_load_simple_w(const wchar_t* path, void* adapter);
OX_HOST_FUNCTION void ox_pj4_import_esri(const wchar_t* path, void* adapter);
OX_HOST_FUNCTION void ox_pj4_save_simple_w(const wchar_t* path, const wchar_t* proj4);
/// Here the path comes last.
OX_HOST_FUNCTION void ox_pj4_export_esri_prj(const wchar_t* proj4, const wchar_t* path);

/// A list of favourite projections, filled from the host's store and written to it on request. Indexes count
/// from 0; those outside the list are ignored.
OX_HOST_FUNCTION void* ox_pj4_fav_list_create(void);
OX_HOST_FUNCTION void ox_pj4_fav_list_deserialize(void* list);
OX_HOST_FUNCTION void ox_pj4_fav_list_serialize(void* list);
OX_HOST_FUNCTION void ox_pj4_fav_list_destroy(void* list);
OX_HOST_FUNCTION int32_t ox_pj4_fav_list_get_count(void* list);
/// Appends.
OX_HOST_FUNCTION void ox_pj4_fav_add_item(void* list, const wchar_t* caption, const wchar_t* proj4);
OX_HOST_FUNCTION void ox_pj4_fav_del_item(void* list, int32_t index);
OX_HOST_FUNCTION void ox_pj4_fav_get_caption(void* list, int32_t index, void* adapter);
OX_HOST_FUNCTION void ox_pj4_fav_set_caption(void* list, int32_t index, const wchar_t* caption);
OX_HOST_FUNCTION void ox_pj4_fav_get_pj4str(void* list, int32_t index, void* adapter);

/// The reprojector. `init` answers false when there is no way from `source` to `target`; `is_needed` false
/// when both are the same coordinate system, so that nothing is to be done.
OX_HOST_FUNCTION void* ox_rpj_d2_create(void);
OX_HOST_FUNCTION bool ox_rpj_d2_init_w(void* rpj, const wchar_t* source, const wchar_t* target);
OX_HOST_FUNCTION bool ox_rpj_d2_rpj_is_needed(void* rpj);
/// Transforms `pv` in place. False when a vertex cannot be transformed: `pv` is then not to be used.
OX_HOST_FUNCTION bool ox_rpj_d2_apply_pv(void* rpj, void* pv);
OX_HOST_FUNCTION void ox_rpj_d2_destroy(void* rpj);

// ---- oxk_msgs: messages to the user -----------------------------------------------------------------------

/// Both return when the user has read the text.
OX_HOST_FUNCTION void ox_show_wmessage(const wchar_t* text);
OX_HOST_FUNCTION void ox_show_werror(const wchar_t* text);
/// True for yes.
OX_HOST_FUNCTION bool ox_yesno_wmessage(const wchar_t* text);

/// A progress indicator; pass 0 for `options`. Null means that there is none: work on without it.
OX_HOST_FUNCTION void* ox_progress_create(int options);
/// `fraction` of the work that is done, 0 to 1. The answer may be ignored.
OX_HOST_FUNCTION bool ox_progress_report(void* progress, double fraction);
OX_HOST_FUNCTION void ox_progress_destroy(void* progress);

/// Optional; look it up by name. Tells the host of an exception that ended at the border of a bundle: which
/// interface, which slot of its table, and the exception's words.
OX_HOST_FUNCTION void ox_border_fault(const char* place, uint32_t slot, const char* what);
