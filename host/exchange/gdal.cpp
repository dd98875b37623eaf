#include "exchange/gdal.h"

#include <cpl_error.h>
#include <gdal_priv.h>

#include <algorithm>

#include "exchange/import_notes.h"

namespace oxhost {

namespace {

void CPL_STDCALL keep_first(CPLErr severity, CPLErrorNum, const char* text) {
    auto& kept = *static_cast<gdal_guard::reports*>(CPLGetErrorHandlerUserData());
    if (severity >= CE_Failure && kept.failure.empty()) kept.failure = text;
    if (severity == CE_Warning && kept.warnings++ == 0) kept.warning = text;
}

std::string in_one_line(std::string text) {
    std::ranges::replace(text, '\n', ' ');
    return text;
}

}  // namespace

gdal_guard::gdal_guard() { CPLPushErrorHandlerEx(keep_first, &kept_); }
gdal_guard::~gdal_guard() { CPLPopErrorHandler(); }

void gdal_guard::refuse(const std::filesystem::path& file, const std::string& what) const {
    const std::string reason = failed() ? " (" + in_one_line(kept_.failure) + ")" : "";
    throw exchange_error(file.string() + ": " + what + reason);
}

std::string gdal_guard::warnings() const {
    if (kept_.warnings < 2) return in_one_line(kept_.warning);
    return in_one_line(kept_.warning) + words(" (и ещё ", " (and ") + std::to_string(kept_.warnings - 1) +
           words(")", " more)");
}

}  // namespace oxhost

namespace {

class gdal_exchange final : public oxhost::exchange {
public:
    gdal_exchange() { GDALAllRegister(); }

    std::string version() const override { return GDALVersionInfo("RELEASE_NAME"); }

    oxhost::import_report import_lines(const std::filesystem::path& source,
                                       const oxhost::import_options& options,
                                       oxhost::scene_taker& taker) override {
        return oxhost::import_file(source, options, taker);
    }
    std::vector<std::string> export_lines(const oxhost::export_order& order) override {
        return oxhost::export_to_file(order);
    }
};

}  // namespace

extern "C" __attribute__((visibility("default"))) oxhost::exchange* oxhost_exchange();

oxhost::exchange* oxhost_exchange() {
    static gdal_exchange only;
    return &only;
}
