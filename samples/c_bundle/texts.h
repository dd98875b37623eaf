#pragma once
/// The texts of this bundle, by resource id.

#include "border/c/ox_pointer.h"

enum text_id {
    text_profile_projections = 1,
    text_compare_with,
    text_apply,
    text_close,
    text_profiles,
    text_without_projection,
    text_in_that_projection
};

/// Hands the text to a string visitor: the localizer's, or else this bundle's own in the user's language.
void visit_text(enum text_id id, ox_pointer string_visitor);

/// The same as a text on the heap, which the caller frees; null when there is none.
wchar_t* read_text(enum text_id id);
