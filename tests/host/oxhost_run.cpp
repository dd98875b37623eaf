#include "oxhost_run.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/wait.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "project/project.h"

namespace oxhost_test {

namespace {

std::string quoted(const std::string& argument) {
    std::string quoted = "'";
    for (const char c : argument) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

}  // namespace

sandbox::sandbox() {
    std::string name = (fs::temp_directory_path() / "oxhost-test-XXXXXX").string();
    folder_ = mkdtemp(name.data());
}

sandbox::~sandbox() { fs::remove_all(folder_); }

outcome_of_run sandbox::oxhost(const std::vector<std::string>& arguments, const std::string& language,
                               const std::string& shell) const {
    std::string command = "cd " + quoted(folder_.string()) + " && " + shell +
                          " LC_ALL= LANG=" + (language == "ru" ? "ru_RU.UTF-8" : "C.UTF-8") +
                          " OXHOST_CONFIG=config " OXHOST_PROGRAM;
    for (const std::string& each : arguments) command += ' ' + quoted(each);
    command += " <&- >.out 2>.error";
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, bytes(".out"), bytes(".error")};
}

void sandbox::make_project(const std::vector<source_line>& lines) const {
    nlohmann::json features = nlohmann::json::array();
    for (const source_line& each : lines) {
        nlohmann::json coordinates = nlohmann::json::array();
        for (const auto& [x, y] : each.line) coordinates.push_back({x, y});
        features.push_back(
            {{"type", "Feature"},
             {"properties", {{"caption", each.caption}, {"proj4", each.proj4}, {"profile", each.profile}}},
             {"geometry", {{"type", "LineString"}, {"coordinates", coordinates}}}});
    }
    write("lines.geojson", nlohmann::json{{"type", "FeatureCollection"}, {"features", features}}.dump());
    const auto run = oxhost({"import", "p.gpkg", "lines.geojson", "--quiet"});
    ASSERT_EQ(run.code, 0) << run.error;
}

void sandbox::write(const std::string& name, const std::string& content) const {
    std::ofstream(path(name), std::ios::binary) << content;
}

std::string sandbox::bytes(const std::string& name) const {
    std::ostringstream content;
    content << std::ifstream(path(name), std::ios::binary).rdbuf();
    return content.str();
}

std::vector<std::string> sandbox::files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_))
        if (entry.path().filename().string().front() != '.') names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
}

std::vector<oxhost::polyline> sandbox::stored_lines() const {
    const auto opened = oxhost::project::open(path("p.gpkg"), oxhost::open_mode::read_only);
    std::vector<oxhost::polyline> lines;
    for (const auto& each : opened->scenes()) lines.push_back(opened->read_line(each).xy);
    return lines;
}

std::vector<std::string> sandbox::listed(const std::string& field) const {
    const auto run = oxhost({"list", "p.gpkg", "--json"});
    EXPECT_EQ(run.code, 0) << run.error;
    std::vector<std::string> values;
    for (const auto& scene : nlohmann::json::parse(run.out)) values.push_back(scene.at(field));
    return values;
}

}  // namespace oxhost_test
