#pragma once
/// Walks an element tree and prints it as indented text.

#include "c_host/views.h"

enum { most_parts = 64 };

struct pointer_list {
    ox_pointer pointers[most_parts];
    size_t count;
};

/// What a walk has come across that a user can work on.
struct parts {
    struct pointer_list menus, outlines, inputs;
};

struct tree_walk {
    struct object object;  ///< the element visitor
    int depth;
    struct views* views;  ///< attached to every element; null in a walk that only prints
    struct parts* parts;  ///< likewise
};

/// `root` is a grid layout.
void walk_tree(ox_pointer root, int depth, struct views* views, struct parts* parts);

// For the parts of the walk:
void note_part(struct pointer_list* list, ox_pointer part);
void walk_toolbar(const struct tree_walk* walk, ox_pointer toolbar);
void walk_menu(const struct tree_walk* walk, ox_pointer button);
void walk_outline(const struct tree_walk* walk, ox_pointer outline);
