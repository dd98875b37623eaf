#pragma once
/// What the other host functions need of the basic ones.

#include <stddef.h>

/// Delivers a text to a string adapter, if there is one.
void deliver_to_adapter(const wchar_t* text, void* adapter);

/// The language of the user: one of the offsets that ox_res_get_lng answers.
void set_language(int offset);
