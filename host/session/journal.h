#pragma once
/// What the host's own functions saw while a module worked: the source of reports.
/// The modules of the host write it, whoever runs the host reads it; one per process. [ui]

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "base/line.h"

namespace oxhost {

/// One update bracket of one scene.
struct scene_update {
    std::size_t scene;  ///< index in the project
    bool line_stored = false;
    bool text_stored = false;
    std::optional<std::string> setup_failure;  ///< the pair of projections was refused
    std::optional<vertex_failure> transform_failure;
    std::optional<std::string> store_failure;  ///< the project file refused the change
    std::optional<double> return_error;        ///< metres, of the transformed line
    std::size_t added_vertices = 0;
    bool declined = false;  ///< the run is to end: the scene was not attempted

    bool failed() const { return setup_failure || transform_failure || store_failure; }
};

class journal {
public:
    static journal& instance();

    void clear();
    void begin(std::size_t scene);  ///< opens the record of a scene's update
    void end() { open_ = false; }
    /// The record being written, or null outside a bracket.
    scene_update* current() { return open_ ? &updates_.back() : nullptr; }
    const std::vector<scene_update>& updates() const { return updates_; }
    /// Is the last record that of a failure, which reports name?
    bool last_failed() const;

    /// How the last function that reads or writes a file ended: what went wrong, in one line, or nothing.
    void file_function_ended(std::optional<std::string> failure);
    /// What is to be said of it, once.
    std::optional<std::string> take_file_failure();

private:
    std::vector<scene_update> updates_;
    bool open_ = false;
    std::optional<std::string> file_failure_;
};

}  // namespace oxhost
