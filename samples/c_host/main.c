/// A host in plain C: loads a bundle, runs its utilities over a small project, and tells what it sees and
/// what came of it.

#include <stdio.h>
#include <string.h>

#include "border/c/ox_dialogs.h"
#include "border/c/ox_resources.h"
#include "c_host/basic.h"
#include "c_host/bundle.h"
#include "c_host/dialog_host.h"
#include "c_host/print.h"
#include "c_host/project.h"

static void run_utility(const struct offer* offer) {
    const ox_pointer utility = offer->pointer;
    if (ox_is_empty(utility)) return;
    const struct ox_utility_table* its = OX_TABLE(utility, utility);
    printf("utility ");
    print_quoted(offer->id);
    print_text_of(utility, its->visit_caption);
    putchar('\n');
    if (its->host_request(OX_WORDS(utility))) its->run(OX_WORDS(utility));
}

int main(int count, char** arguments) {
    if (count < 2 || count > 3 || (count == 3 && strcmp(arguments[2], "ru") != 0)) {
        fputs("usage: c_host BUNDLE [ru]\n", stderr);
        return 64;
    }
    if (count == 3) set_language(OX_LANGUAGE_RUSSIAN);

    struct dialog_host dialogs = new_dialog_host();
    struct services services;
    struct bundle bundle;
    open_project();
    begin_services(&services, pointer_to(&dialogs));
    if (!load_bundle(&bundle, arguments[1])) {
        close_project();
        return 66;
    }
    start_bundle(&bundle, &services);
    for (size_t i = 0; i < services.utility_count; ++i) run_utility(&services.utilities[i]);
    leave_services(&services);
    unload_bundle(&bundle);

    print_project();
    close_project();
    printf("left behind by the bundle: %zu\n", services.context.referrers);
    return services.context.referrers == 0 ? 0 : 1;
}
