#pragma once
/// Inside the library that needs GDAL: the two directions behind the exchange interface, and its reports.

#include <filesystem>
#include <string>
#include <vector>

#include "exchange/exchange.h"

namespace oxhost {

import_counts import_file(const std::filesystem::path& source, const import_options& options,
                          const std::function<void(new_scene&&)>& sink);
std::vector<std::string> export_to_file(const export_order& order);

/// GDAL reports through a handler of the process; while a guard lives, it keeps the reports to itself.
class gdal_guard {
public:
    gdal_guard();
    ~gdal_guard();
    gdal_guard(const gdal_guard&) = delete;
    gdal_guard& operator=(const gdal_guard&) = delete;

    /// Whether GDAL reported an error, not just a warning, since the guard was made.
    bool failed() const { return !failure_.empty(); }
    /// Throws exchange_error: file, what we say, what GDAL said first.
    [[noreturn]] void refuse(const std::filesystem::path& file, const std::string& what) const;

private:
    std::string failure_;  ///< the first one: later ones follow from it
};

}  // namespace oxhost
