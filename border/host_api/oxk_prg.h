#pragma once
/// Host module of 2D polylines ("pv"). [ui] The creator destroys.

#include "border/linkage.h"

OX_HOST_API void* ox_pv_d2_create(void);
OX_HOST_API void ox_pv_d2_assign(void* destination, const void* source);
OX_HOST_API void ox_pv_d2_destroy(void* pv);
