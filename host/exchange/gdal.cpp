#include "exchange/gdal.h"

#include <cpl_error.h>
#include <gdal_priv.h>

#include <algorithm>

namespace oxhost {

namespace {

void CPL_STDCALL keep_first(CPLErr severity, CPLErrorNum, const char* text) {
    auto* kept = static_cast<std::string*>(CPLGetErrorHandlerUserData());
    if (severity >= CE_Failure && kept->empty()) *kept = text;
}

}  // namespace

gdal_guard::gdal_guard() { CPLPushErrorHandlerEx(keep_first, &failure_); }
gdal_guard::~gdal_guard() { CPLPopErrorHandler(); }

void gdal_guard::refuse(const std::filesystem::path& file, const std::string& what) const {
    std::string reason = failure_.empty() ? "" : " (" + failure_ + ")";
    std::replace(reason.begin(), reason.end(), '\n', ' ');
    throw exchange_error(file.string() + ": " + what + reason);
}

}  // namespace oxhost

namespace {

class gdal_exchange final : public oxhost::exchange {
public:
    gdal_exchange() { GDALAllRegister(); }

    std::string version() const override { return GDALVersionInfo("RELEASE_NAME"); }

    oxhost::import_counts import_lines(const std::filesystem::path& source,
                                       const oxhost::import_options& options,
                                       const std::function<void(oxhost::new_scene&&)>& sink) override {
        return oxhost::import_file(source, options, sink);
    }
    void export_lines(const std::filesystem::path& out, const std::filesystem::path& project_file,
                      const std::string& crs,
                      const std::function<std::optional<oxhost::new_scene>()>& next) override {
        oxhost::export_to_file(out, project_file, crs, next);
    }
};

}  // namespace

extern "C" __attribute__((visibility("default"))) oxhost::exchange* oxhost_exchange();

oxhost::exchange* oxhost_exchange() {
    static gdal_exchange only;
    return &only;
}
