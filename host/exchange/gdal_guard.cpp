#include "exchange/gdal_guard.h"

#include <cpl_error.h>

#include <algorithm>

#include "exchange/exchange.h"

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
