#pragma once
/// Runs the program `oxhost` in a folder of the test's own.

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "base/line.h"

namespace oxhost_test {

namespace fs = std::filesystem;

struct outcome_of_run {
    int code;
    std::string out;
    std::string error;
};

/// A scene of a GeoJSON source.
struct source_line {
    std::string caption;
    std::string proj4;
    oxhost::polyline line;
    bool profile = true;
};

/// An empty folder that ends with the test; the program sees it as its current folder and keeps its
/// configuration there.
class sandbox {
public:
    sandbox();
    ~sandbox();
    sandbox(const sandbox&) = delete;
    sandbox& operator=(const sandbox&) = delete;

    /// `shell`: commands that go before, ended by a semicolon.
    outcome_of_run oxhost(const std::vector<std::string>& arguments, const std::string& language = "en",
                          const std::string& shell = {}) const;
    /// Makes `p.gpkg` of the lines.
    void make_project(const std::vector<source_line>& lines) const;

    fs::path path(const std::string& name) const { return folder_ / name; }
    void write(const std::string& name, const std::string& content) const;
    std::string bytes(const std::string& name) const;
    nlohmann::json json(const std::string& name) const { return nlohmann::json::parse(bytes(name)); }
    std::vector<std::string> files() const;

    /// All lines of p.gpkg.
    std::vector<oxhost::polyline> stored_lines() const;
    /// "proj4" or another field of all scenes of p.gpkg.
    std::vector<std::string> listed(const std::string& field) const;

private:
    fs::path folder_;
};

inline constexpr auto utm40 = "+proj=utm +zone=40 +datum=WGS84 +units=m +no_defs";
inline constexpr auto wgs84 = "+proj=longlat +datum=WGS84 +no_defs";
/// Gauss-Krueger zone 10, Pulkovo 1942 with the seven parameters of GOST R 51794-2001.
inline constexpr auto gauss_kruger_10 =
    "+proj=tmerc +lat_0=0 +lon_0=57 +k=1 +x_0=10500000 +y_0=0 +ellps=krass "
    "+towgs84=23.92,-141.27,-80.9,0,0.35,0.82,-0.12 +units=m +no_defs";

}  // namespace oxhost_test
