#pragma once
/// What other GIS programs see of the scenes; only project's own sources include this.
///
/// When all lines share a projection, the layer `scenes` has that coordinate system. Otherwise it is
/// undefined cartesian, and each projection has a view `scenes EPSG 32640` or `scenes 2` with its scenes. A
/// change of scenes withdraws both in its own transaction, so that no line is ever shown in a system that is
/// not its own; closing the project publishes anew. `ox_systems` remembers which text is which system.

#include <deque>
#include <filesystem>

#include "project/project.h"
#include "project/sqlite.h"

namespace oxhost {

class gis_layers {
public:
    explicit gis_layers(sqlite::connection& db) : db_(db) {}  // `db` outlives the layers

    /// Sees what the file says.
    void load();
    /// The file says something that a change of scenes has to withdraw.
    bool published() const { return published_; }
    /// Inside the transaction of the change.
    void withdraw();
    /// That transaction is committed.
    void withdrawn() { published_ = false; }

    /// Says what is true of the scenes, in one transaction; where `changed` is false and the file says that
    /// already, not a byte is written.
    void publish(const std::deque<scene>& scenes, bool changed, const std::filesystem::path& file);

private:
    sqlite::connection& db_;
    bool published_ = false;
};

}  // namespace oxhost
