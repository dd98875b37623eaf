#pragma once
/// The tables of a project file: GeoPackage's own and the layer of scenes.

#include <string>
#include <string_view>

#include "project/line_blob.h"
#include "project/sqlite.h"

namespace oxhost {

/// Fills an empty database, in one transaction.
void create_schema(sqlite::connection& db);

/// Why the database is no project ("is no GeoPackage", ...); empty when it is one.
std::string reason_to_refuse(sqlite::connection& db);

/// GeoPackage's spatial index, where another program has added one, works through triggers that call
/// ST_IsEmpty, ST_MinX, ...: without them no line could be changed.
void register_envelope_functions(sqlite::connection& db);

/// From now on lines may have heights, or measures; what was allowed before stays so.
void allow_dimensions(sqlite::connection& db, bool heights, bool measures);

/// Has the file say that a table is the host's own, so that other programs leave it out of their layers.
void register_own_table(sqlite::connection& db, std::string_view table);

/// Records the layer's extent and the time of its last change.
void refresh_layer(sqlite::connection& db, const extent& bounds);

}  // namespace oxhost
