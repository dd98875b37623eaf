#pragma once
/// The two directions behind the exchange interface.

#include "exchange/exchange.h"

namespace oxhost {

import_counts import_file(const std::filesystem::path& source, const import_options& options,
                          const std::function<void(new_scene&&)>& sink);
void export_to_file(const std::filesystem::path& out, const std::filesystem::path& project_file,
                    const std::string& crs, const std::function<std::optional<new_scene>()>& next);

}  // namespace oxhost
