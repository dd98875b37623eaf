/// The imported C functions as both listings declare them. A function of C linkage is one function in
/// whatever namespace it is declared: two declarations that differ do not compile, and each pin asks for both
/// of them.

#include <type_traits>

#include "border/c/ox_linkage.h"
#include "border/host_api/oxk_basic.h"
#include "border/host_api/oxk_entity.h"
#include "border/host_api/oxk_msgs.h"
#include "border/host_api/oxk_prg.h"
#include "border/host_api/oxk_prj.h"
#include "border/host_api/oxk_proj4_d2.h"
#include "border/host_api/oxk_scn_2d.h"

// What the C header includes, before it is declared within a namespace.
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

// NOLINTBEGIN(readability-redundant-declaration): the second declaration is the point
namespace in_c {
#include "border/c/ox_host_functions.h"
}
// NOLINTEND(readability-redundant-declaration)

#define OX_PIN_FUNCTION(name) static_assert(std::is_same_v<decltype(in_c::name), decltype(::name)>)

OX_PIN_FUNCTION(ox_string_adp_create);
OX_PIN_FUNCTION(ox_string_adp_destroy);
OX_PIN_FUNCTION(ox_res_get_lng);
OX_PIN_FUNCTION(ox_help_mngr_find_help_id);
OX_PIN_FUNCTION(ox_help_mngr_show_help);
OX_PIN_FUNCTION(ox_options_get_main_module_path);
OX_PIN_FUNCTION(ox_fnt_type_assign);
OX_PIN_FUNCTION(ox_fnt_type_destroy);

OX_PIN_FUNCTION(ox_prj_get_instance);
OX_PIN_FUNCTION(ox_prj_get_scns_2d_ptr);

OX_PIN_FUNCTION(ox_scns_2d_get_size);
OX_PIN_FUNCTION(ox_scns_2d_get);
OX_PIN_FUNCTION(ox_scn_2d_get_wcaption);
OX_PIN_FUNCTION(ox_scn_2d_get_prf_data_ptr);
OX_PIN_FUNCTION(ox_prf_data_get_is_profil);
OX_PIN_FUNCTION(ox_prf_data_get_prj4string);
OX_PIN_FUNCTION(ox_prf_data_set_prj4string);
OX_PIN_FUNCTION(ox_prf_data_get_pv_ptr);
OX_PIN_FUNCTION(ox_prf_data_set_pv);

OX_PIN_FUNCTION(ox_scn_begin_update);
OX_PIN_FUNCTION(ox_scn_end_update);

OX_PIN_FUNCTION(ox_pv_d2_create);
OX_PIN_FUNCTION(ox_pv_d2_assign);
OX_PIN_FUNCTION(ox_pv_d2_destroy);

OX_PIN_FUNCTION(ox_pj4_equal_w);
OX_PIN_FUNCTION(ox_pj4_get_text_w);
OX_PIN_FUNCTION(ox_pj4_get_short_text_w);
OX_PIN_FUNCTION(ox_pj4_import_crs);
OX_PIN_FUNCTION(ox_pj4_load_simple_w);
OX_PIN_FUNCTION(ox_pj4_import_esri);
OX_PIN_FUNCTION(ox_pj4_save_simple_w);
OX_PIN_FUNCTION(ox_pj4_export_esri_prj);
OX_PIN_FUNCTION(ox_pj4_fav_list_create);
OX_PIN_FUNCTION(ox_pj4_fav_list_deserialize);
OX_PIN_FUNCTION(ox_pj4_fav_list_serialize);
OX_PIN_FUNCTION(ox_pj4_fav_list_destroy);
OX_PIN_FUNCTION(ox_pj4_fav_list_get_count);
OX_PIN_FUNCTION(ox_pj4_fav_add_item);
OX_PIN_FUNCTION(ox_pj4_fav_del_item);
OX_PIN_FUNCTION(ox_pj4_fav_get_caption);
OX_PIN_FUNCTION(ox_pj4_fav_set_caption);
OX_PIN_FUNCTION(ox_pj4_fav_get_pj4str);
OX_PIN_FUNCTION(ox_rpj_d2_create);
OX_PIN_FUNCTION(ox_rpj_d2_init_w);
OX_PIN_FUNCTION(ox_rpj_d2_rpj_is_needed);
OX_PIN_FUNCTION(ox_rpj_d2_apply_pv);
OX_PIN_FUNCTION(ox_rpj_d2_destroy);

OX_PIN_FUNCTION(ox_show_wmessage);
OX_PIN_FUNCTION(ox_show_werror);
OX_PIN_FUNCTION(ox_yesno_wmessage);
OX_PIN_FUNCTION(ox_progress_create);
OX_PIN_FUNCTION(ox_progress_report);
OX_PIN_FUNCTION(ox_progress_destroy);
OX_PIN_FUNCTION(ox_border_fault);
