#include "c_common/text_reader.h"

#include <stdlib.h>
#include <string.h>
#include <wchar.h>

static void visit(const void* table, void* object, const wchar_t* text) {
    struct text_reader* self = object;
    (void)table;
    free(self->text);
    self->text = copy_text(text);
}

static const struct ox_string_visitor_table visitor_table = {object_polymorphic, visit};

static const struct offered_interface interfaces[] = {{OX_STRING_VISITOR_INTERFACE, &visitor_table},
                                                      {NULL, NULL}};

struct text_reader new_text_reader(void) {
    const struct text_reader reader = {{interfaces}, NULL};
    return reader;
}

wchar_t* copy_text(const wchar_t* text) {
    const size_t size = ((text ? wcslen(text) : 0) + 1) * sizeof(wchar_t);
    wchar_t* copy = malloc(size);
    if (copy) memcpy(copy, text ? text : L"", size);
    return copy;
}

void deliver_text(const wchar_t* text, ox_pointer string_visitor) {
    if (!ox_is_empty(string_visitor))
        OX_TABLE(string_visitor, string_visitor)->visit(OX_WORDS(string_visitor), text);
}
