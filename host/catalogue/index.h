#pragma once
/// The index of the catalogue: under which further names and EPSG codes its rows are found. A text table
/// beside the dBase tables, for what these cannot hold and the dialogs do not show.

#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "catalogue/records.h"

namespace oxhost {

/// In the folder of the tables.
inline constexpr auto catalogue_index_file = "pj_index.tsv";

struct index_entry {
    std::string also;                ///< further names, "; " between them
    std::vector<std::string> codes;  ///< such as "EPSG:28407"
};

class catalogue_index {
public:
    /// Throws std::runtime_error that names the file.
    explicit catalogue_index(const std::filesystem::path& file);

    /// `part`: ellipsoids, datums, projections or zones. `zone`: a zone as the dialog names it, else empty.
    /// Null for a row that is not there.
    const index_entry* find(const std::string& part, const std::string& name, const std::string& zone) const;
    /// The zones of an EPSG code, as "name, zone".
    std::vector<std::string> zones_of(const std::string& code) const;

private:
    std::map<std::array<std::string, 3>, index_entry> entries_;
};

/// Throws std::runtime_error that names the file.
void write_index(const std::filesystem::path& file, const catalogue_records& records);

}  // namespace oxhost
