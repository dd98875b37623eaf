#pragma once
/// The views that the host attaches to what it shows, to be told of changes.

#include "c_common/object.h"

enum { most_watched = 256 };

/// Slot of an element by which a view is attached.
typedef void (*attach_operation)(const void* table, void* object, ox_pointer view);

/// One view of each kind serves a whole dialog: it only notes that something has changed.
struct views {
    struct object element_view;  ///< first: the tables of both views act on all of this
    bool told;
    struct {
        ox_pointer element;
        attach_operation attach;
    } watched[most_watched];
    size_t count;
};

struct views new_views(void);
void watch(struct views* views, ox_pointer element, attach_operation attach);
void watch_outline(struct views* views, ox_pointer outline);
/// Detaches all of them. What was watched must still be there.
void end_watching(struct views* views);
