#include "exchange/exchange.h"

#include <gdal_priv.h>

#include "exchange/drivers.h"

namespace {

class gdal_exchange final : public oxhost::exchange {
public:
    gdal_exchange() { GDALAllRegister(); }

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
