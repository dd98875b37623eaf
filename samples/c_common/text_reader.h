#pragma once
/// A string visitor that keeps what it is given.

#include "border/c/ox_values.h"
#include "c_common/object.h"

struct text_reader {
    struct object object;
    wchar_t* text;  ///< null until a text came; whoever made the reader frees it
};

struct text_reader new_text_reader(void);

/// A copy on the heap; a null text is copied as an empty one. Null without memory.
wchar_t* copy_text(const wchar_t* text);

/// Hands a text to a string visitor, if there is one.
void deliver_text(const wchar_t* text, ox_pointer string_visitor);
