#pragma once
/// The projection library's context, shared by everything in this folder: one per process. [ui]
/// It reads no grids from the network and prints nothing; what it complains of is kept instead.

#include <proj.h>

#include <memory>
#include <string>

namespace oxhost {

struct pj_deleter {
    void operator()(PJ* object) const { proj_destroy(object); }
    void operator()(PJ_OBJ_LIST* list) const { proj_list_destroy(list); }
    void operator()(PJ_OPERATION_FACTORY_CONTEXT* factory) const {
        proj_operation_factory_context_destroy(factory);
    }
};
using pj_ptr = std::unique_ptr<PJ, pj_deleter>;
using pj_list_ptr = std::unique_ptr<PJ_OBJ_LIST, pj_deleter>;
using pj_factory_ptr = std::unique_ptr<PJ_OPERATION_FACTORY_CONTEXT, pj_deleter>;

PJ_CONTEXT* proj_context();

/// Finds operations whose area touches the one that is asked for, also those whose grids are not here.
pj_factory_ptr operation_factory();

/// The most telling of the complaints since the last call; empty when there was none.
std::string take_proj_complaint();

/// For reports: what computed, and the EPSG data set it computed with.
struct proj_versions {
    std::string library;   ///< such as "9.1.1"
    std::string database;  ///< such as "EPSG v10.076", empty without a database
};
proj_versions versions_of_proj();

}  // namespace oxhost
