#pragma once
/// The whole border between a host and its bundles, in plain C (C99, and C++). Start with ox_pointer.h and
/// ox_bundle.h.

#include "ox_bundle.h"
#include "ox_controls.h"
#include "ox_dialogs.h"
#include "ox_host_functions.h"
#include "ox_layouts.h"
#include "ox_lifetime.h"
#include "ox_linkage.h"
#include "ox_outlines.h"
#include "ox_pointer.h"
#include "ox_resources.h"
#include "ox_services.h"
#include "ox_tools.h"
#include "ox_values.h"
