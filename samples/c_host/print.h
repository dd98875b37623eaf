#pragma once
/// Texts on standard output, in UTF-8 whatever the locale.

#include "border/c/ox_pointer.h"

/// In quotes; a line break is shown as "\n".
void print_quoted(const wchar_t* text);

/// An operation that hands a text of its object to a string visitor.
typedef void (*text_operation)(const void* table, void* object, ox_pointer string_visitor);

/// A blank and the quoted text; nothing when there is none or an empty one.
void print_text_of(ox_pointer object, text_operation visit);

void indent(int depth);
