#pragma once
/// The open project: three profile scenes in memory.

#include <stdbool.h>
#include <stddef.h>

/// x is easting or longitude, y northing or latitude.
struct vertex {
    double x, y;
};

struct polyline {
    size_t count;
    struct vertex* vertices;
};

/// Its profile data is the scene itself.
struct scene {
    const wchar_t* caption;
    wchar_t* proj4;
    struct polyline line;
    bool changing;  ///< within its update bracket
};

void open_project(void);
void close_project(void);
void print_project(void);

void copy_line(struct polyline* to, const struct polyline* from);
