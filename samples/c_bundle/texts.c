#include "c_bundle/texts.h"

#include "border/c/ox_host_functions.h"
#include "border/c/ox_resources.h"
#include "border/c/ox_services.h"
#include "c_bundle/localizer.h"
#include "c_common/text_reader.h"

struct text {
    const wchar_t* russian;
    const wchar_t* english;
};

/// The buttons are called as those of the host's basic module, from which hosts know what they are for.
static const struct text texts[] = {
    [text_profile_projections] = {L"Проекции профилей", L"Profile Projections"},
    [text_compare_with] = {L"Сравнить с проекцией", L"Compare with projection"},
    [text_apply] = {L"Применить", L"Apply"},
    [text_close] = {L"Закрыть", L"Close"},
    [text_profiles] = {L"Сцен профилей", L"Profile scenes"},
    [text_without_projection] = {L"Без проекции", L"Without a projection"},
    [text_in_that_projection] = {L"В этой проекции", L"In that projection"},
};

void visit_text(enum text_id id, ox_pointer string_visitor) {
    const ox_pointer localizer = current_localizer();
    if (!ox_is_empty(localizer)) {
        OX_TABLE(localizer, localizer)->visit_string(OX_WORDS(localizer), (uint32_t)id, string_visitor);
        return;
    }
    const struct text* text = &texts[id];
    deliver_text(ox_res_get_lng() == OX_LANGUAGE_ENGLISH ? text->english : text->russian, string_visitor);
}

wchar_t* read_text(enum text_id id) {
    struct text_reader reader = new_text_reader();
    visit_text(id, pointer_to(&reader));
    return reader.text;
}
