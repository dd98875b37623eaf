#pragma once
/// GDAL reports through a handler of the process; while a guard lives, it keeps the reports to itself.

#include <filesystem>
#include <string>

namespace oxhost {

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
