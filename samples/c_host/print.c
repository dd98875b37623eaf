#include "c_host/print.h"

#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>

#include "c_common/text_reader.h"

static void print_character(uint32_t code) {
    const int lead = code < 0x80 ? 0 : code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;  // bytes that follow
    static const uint32_t marks[] = {0, 0xC0, 0xE0, 0xF0};
    putchar((int)(marks[lead] | code >> 6 * lead));
    for (int i = lead - 1; i >= 0; --i) putchar((int)(0x80 | (code >> 6 * i & 0x3F)));
}

void print_quoted(const wchar_t* text) {
    putchar('"');
    for (; text && *text; ++text)
        if (*text == L'\n')
            printf("\\n");
        else
            print_character((uint32_t)*text);
    putchar('"');
}

void print_text_of(ox_pointer object, text_operation visit) {
    struct text_reader reader = new_text_reader();
    visit(OX_WORDS(object), pointer_to(&reader));
    if (reader.text && *reader.text) {
        putchar(' ');
        print_quoted(reader.text);
    }
    free(reader.text);
}

void indent(int depth) { printf("%*s", 2 * depth, ""); }
