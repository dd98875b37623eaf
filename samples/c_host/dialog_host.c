#include "c_host/dialog_host.h"

#include <stdio.h>
#include <stdlib.h>

#include "border/c/ox_controls.h"
#include "border/c/ox_dialogs.h"
#include "c_common/text_reader.h"
#include "c_host/outline.h"
#include "c_host/print.h"
#include "c_host/tools.h"

/// Every file dialog is cancelled.
static void ask_file(const void* table, void* object, int32_t mode, const wchar_t* filter,
                     ox_pointer visitor) {
    (void)table, (void)object, (void)visitor;
    printf("> a file to %s, of ", mode == OX_ASK_FILE_SAVE ? "save" : "open");
    print_quoted(filter);
    puts(": cancelled");
}

static void print_button(ox_pointer buttons, int32_t index) {
    const struct ox_button_box_table* its = OX_TABLE(button_box, buttons);
    struct text_reader caption = new_text_reader();
    its->visit_caption(OX_WORDS(buttons), index, pointer_to(&caption));
    putchar(' ');
    print_quoted(caption.text);
    free(caption.text);
    if (!its->enabled(OX_WORDS(buttons), index)) printf(" (disabled)");
}

/// Does the dialog close?
static bool press(ox_pointer buttons, int32_t index) {
    const struct ox_button_box_table* its = OX_TABLE(button_box, buttons);
    if (index >= its->count(OX_WORDS(buttons)) || !its->enabled(OX_WORDS(buttons), index)) return false;
    printf("> press");
    print_button(buttons, index);
    putchar('\n');
    return its->click(OX_WORDS(buttons), index);
}

/// Fills in every input, chooses the second entry of every menu, checks all rows.
static void work_on(const struct parts* parts) {
    for (size_t i = 0; i < parts->inputs.count; ++i) {
        const ox_pointer input = parts->inputs.pointers[i];
        puts("> type a projection");
        OX_TABLE(input, input)->set_text(OX_WORDS(input), L"+proj=longlat +datum=WGS84");
        OX_TABLE(input, input)->commit(OX_WORDS(input));
    }
    for (size_t i = 0; i < parts->menus.count; ++i) {
        puts("> open the menu and choose its second entry");
        choose_from_menu(parts->menus.pointers[i], 1);
    }
    for (size_t i = 0; i < parts->outlines.count; ++i) {
        puts("> check all rows");
        check_all_rows(parts->outlines.pointers[i]);
    }
}

static void print_dialog(ox_pointer docker, ox_pointer buttons, struct views* views, struct parts* parts) {
    const struct ox_docker_table* its = OX_TABLE(docker, docker);
    printf("dialog");
    print_text_of(docker, its->visit_caption);
    putchar('\n');
    walk_tree(its->element(OX_WORDS(docker)), 1, views, parts);
    printf("  buttons");
    for (int32_t i = 0; i < OX_TABLE(button_box, buttons)->count(OX_WORDS(buttons)); ++i)
        print_button(buttons, i);
    putchar('\n');
}

/// The buttons come in the order of their kinds: the first accepts, the last closes.
static bool show_modal(const void* table, void* object, ox_pointer docker, ox_pointer buttons) {
    struct views views = new_views();
    struct parts parts = {.menus = {.count = 0}};
    (void)table, (void)object;
    if (ox_is_empty(docker) || ox_is_empty(buttons)) return false;
    print_dialog(docker, buttons, &views, &parts);
    watch(&views, buttons, OX_TABLE(button_box, buttons)->attach_first_view);
    work_on(&parts);
    if (views.told) print_dialog(docker, buttons, NULL, NULL);
    views.told = false;
    const bool accepted = press(buttons, 0);
    if (!accepted && views.told) print_dialog(docker, buttons, NULL, NULL);
    if (!accepted) press(buttons, OX_TABLE(button_box, buttons)->count(OX_WORDS(buttons)) - 1);
    end_watching(&views);
    return accepted;
}

static const struct ox_dialog_host_table host_table = {object_polymorphic, ask_file, show_modal};
static const struct offered_interface interfaces[] = {{NULL, &host_table}, {NULL, NULL}};

struct dialog_host new_dialog_host(void) {
    const struct dialog_host made = {{interfaces}};
    return made;
}
