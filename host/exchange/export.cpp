#include "base/files.h"
#include "base/language.h"
#include "exchange/delivery.h"
#include "exchange/formats.h"
#include "exchange/gdal.h"
#include "exchange/writers.h"

namespace oxhost {

namespace {

namespace fs = std::filesystem;

std::unique_ptr<line_writer> open_writer(const export_order& order, export_format format,
                                         const fs::path& file, losses& lost) {
    if (format == export_format::geojson) return write_geojson(order, file, lost);
    return write_layers(order, file, format, lost);
}

/// A log left beside a new database would be applied to it.
void check_logs(const fs::path& out) {
    for (const char* side : {"-wal", "-journal"})
        if (fs::exists(out.string() + side))
            throw exchange_error(out.string() +
                                 words(": открыт в другой программе", ": is open in another program"));
}

void write_beside(const fs::path& file, const char* extension, const std::string& content) {
    if (!content.empty()) replace_file(fs::path(file).replace_extension() += extension, content);
}

}  // namespace

std::vector<std::string> export_to_file(const export_order& order) try {
    const fs::path& out = order.out;
    const export_format format = format_of(out);
    if (format == export_format::geopackage) check_logs(out);
    const temporary_folder workshop(workshop_for(out));
    const fs::path file = workshop / out.filename();
    losses lost;
    const auto writer = open_writer(order, format, file, lost);
    while (const std::optional<layered_scene> placed = order.next()) writer->write(*placed);
    writer->finish();
    write_beside(file, ".prj", order.prj);
    write_beside(file, ".prj.pj4", order.prj_companion);
    deliver(workshop, out, order.overwrite);
    return lost.lines();
} catch (const file_error& e) {
    throw exchange_error(order.out.string() +
                         words(": запись в папку невозможна: ", ": cannot be written into its folder: ") +
                         e.what());
} catch (const fs::filesystem_error& e) {
    throw exchange_error(order.out.string() + words(": запись невозможна: ", ": cannot be written: ") +
                         e.code().message());
}

}  // namespace oxhost
