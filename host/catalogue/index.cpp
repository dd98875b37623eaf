#include "catalogue/index.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "base/language.h"

namespace oxhost {
namespace {

void append_name(std::string& names, const std::string& name) {
    if (!names.empty() && !name.empty()) names += "; ";
    names += name;
}

/// One line: part, name, zone, further names, codes.
std::string line_of(const std::string& part, const std::string& name, const catalogue_record& record) {
    std::string names = record.text("PRJ_ALIAS");
    append_name(names, record.also);
    std::string codes;
    if (record.source.starts_with("EPSG:")) codes = record.source;
    if (record.source.starts_with("EPSG method ")) append_name(names, record.source);
    for (const auto& system : record.systems) codes += (codes.empty() ? "" : " ") + system;
    return part + '\t' + record.text(name) + '\t' + record.text("ZONE_N") + '\t' + names + '\t' + codes;
}

}  // namespace

catalogue_index::catalogue_index(const std::filesystem::path& file) {
    for (const auto& row : read_tsv(file)) {
        index_entry& entry = entries_[{row["part"], row["name"], row["zone"]}];
        entry.also = row["also"];
        std::istringstream codes(row["codes"]);
        for (std::string code; codes >> code;) entry.codes.push_back(code);
    }
}

const index_entry* catalogue_index::find(const std::string& part, const std::string& name,
                                         const std::string& zone) const {
    const auto entry = entries_.find({part, name, zone});
    return entry == entries_.end() ? nullptr : &entry->second;
}

std::vector<std::string> catalogue_index::zones_of(const std::string& code) const {
    std::vector<std::string> zones;
    for (const auto& [key, entry] : entries_)
        if (key[0] == "zones" && std::ranges::find(entry.codes, code) != entry.codes.end())
            zones.push_back(key[1] + ", " + key[2]);
    return zones;
}

void write_index(const std::filesystem::path& file, const catalogue_records& records) {
    std::ofstream out(file);
    out << "part\tname\tzone\talso\tcodes\n";
    for (const auto& record : records.ellipsoids) out << line_of("ellipsoids", "ELLPS_NAME", record) << '\n';
    for (const auto& record : records.datums) out << line_of("datums", "DATUM_NAME", record) << '\n';
    for (const auto& record : records.usual) out << line_of("projections", "PRJ_NAME", record) << '\n';
    for (const auto& record : records.zonal) out << line_of("zones", "PRJ_NAME", record) << '\n';
    out.close();
    if (!out) throw std::runtime_error(file.string() + words(": не записывается", ": cannot be written"));
}

}  // namespace oxhost
