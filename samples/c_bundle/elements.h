#pragma once
/// The elements of the dialog, as the host walks them.

#include "c_bundle/texts.h"
#include "c_common/object.h"

struct label {
    struct object object;
    enum text_id caption;
    ox_pointer view;
};

struct input {
    struct object object;
    wchar_t* text;  ///< null is the empty text
    ox_pointer view;
};

/// A grid of one row: a label and the input beside it, which takes the free width.
struct labelled_input {
    struct object object;
    struct label label;
    struct input input;
    ox_pointer view;
};

/// The element must stay where it is, and `end_` frees what it holds.
void make_labelled_input(struct labelled_input* element, enum text_id caption);
void end_labelled_input(struct labelled_input* element);

const wchar_t* input_text(const struct input* input);
