#include "c_bundle/adapted_text.h"

#include <stdlib.h>

#include "border/c/ox_host_functions.h"
#include "c_common/text_reader.h"

#if defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#endif

static void take_wide(const wchar_t* text, void* context) {
    wchar_t** taken = context;
    free(*taken);
    *taken = copy_text(text);
}

/// Number of wide characters with the terminating zero; 0 when the text cannot be converted.
static size_t widen(const char* text, wchar_t* to, size_t room) {
#if defined(_WIN32)
    const int written = MultiByteToWideChar(CP_ACP, 0, text, -1, to, (int)room);
    return written > 0 ? (size_t)written : 0;
#else
    const size_t written = mbstowcs(to, text, room);
    return written == (size_t)-1 ? 0 : written + 1;
#endif
}

static void take_narrow(const char* text, void* context) {
    const size_t room = widen(text ? text : "", NULL, 0);
    wchar_t* wide = room ? malloc(room * sizeof *wide) : NULL;
    if (wide && !widen(text ? text : "", wide, room)) *wide = L'\0';
    take_wide(wide, context);
    free(wide);
}

wchar_t* adapted_text(void (*get)(void* handle, void* adapter), void* handle) {
    wchar_t* text = NULL;
    void* adapter = ox_string_adp_create(take_narrow, take_wide, &text);
    if (!adapter) return NULL;
    get(handle, adapter);
    ox_string_adp_destroy(adapter);
    return text;
}
