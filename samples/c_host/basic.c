// The host functions of oxk_basic and oxk_msgs.

#include "c_host/basic.h"

#include <stdio.h>
#include <stdlib.h>

#include "border/c/ox_host_functions.h"
#include "border/c/ox_resources.h"
#include "c_host/print.h"

// ---- String adapters ------------------------------------------------------------------------------------

struct adapter {
    void (*narrow)(const char* text, void* context);
    void (*wide)(const wchar_t* text, void* context);
    void* context;
};

void* ox_string_adp_create(void (*narrow)(const char* text, void* context),
                           void (*wide)(const wchar_t* text, void* context), void* context) {
    struct adapter* made = malloc(sizeof *made);
    if (!made) return NULL;
    made->narrow = narrow;
    made->wide = wide;
    made->context = context;
    return made;
}

void ox_string_adp_destroy(void* adapter) { free(adapter); }

void deliver_to_adapter(const wchar_t* text, void* adapter) {
    const struct adapter* to = adapter;
    if (to && to->wide) to->wide(text, to->context);
}

// ---- Language, help, paths, fonts -----------------------------------------------------------------------

static int language = OX_LANGUAGE_ENGLISH;

void set_language(int offset) { language = offset; }
int ox_res_get_lng(void) { return language; }

int ox_help_mngr_find_help_id(uint32_t help_id) { return (int)help_id; }
void ox_help_mngr_show_help(int mode, int found_help_id) {
    printf("help: topic %d (mode %d)\n", found_help_id, mode);
}

/// This host has no files beside its executable.
void ox_options_get_main_module_path(void* adapter) { deliver_to_adapter(L"", adapter); }

/// Nor has it font objects.
void ox_fnt_type_assign(void* destination_font, const void* source_font) {
    (void)destination_font, (void)source_font;
}
void ox_fnt_type_destroy(void* font) { (void)font; }

// ---- Messages -------------------------------------------------------------------------------------------

static void say(const char* what, const wchar_t* text) {
    printf("%s: ", what);
    print_quoted(text);
    putchar('\n');
}

void ox_show_wmessage(const wchar_t* text) { say("message", text); }
void ox_show_werror(const wchar_t* text) { say("error", text); }

bool ox_yesno_wmessage(const wchar_t* text) {
    say("question, answered yes", text);
    return true;
}

/// Hears of exceptions that a bundle of C++ has caught at its border.
void ox_border_fault(const char* place, uint32_t slot, const char* what) {
    printf("fault in %s, slot %u: %s\n", place, (unsigned)slot, what);
}

static int progress;

void* ox_progress_create(int options) {
    (void)options;
    return &progress;
}

bool ox_progress_report(void* indicator, double fraction) {
    (void)indicator;
    printf("progress: %.0f%%\n", 100 * fraction);
    return true;
}

void ox_progress_destroy(void* indicator) { (void)indicator; }
