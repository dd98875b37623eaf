#pragma once
/// Projections that the geodesy tests share.

#include <string>

#include "testing/case_name.h"
#include "testing/scratch_folder.h"

namespace texts {

inline const std::string wgs84 = "+proj=longlat +datum=WGS84 +no_defs";
inline const std::string utm37 = "+proj=utm +zone=37 +datum=WGS84 +units=m +no_defs";
inline const std::string krass = "+proj=longlat +ellps=krass +no_defs";
/// Zone 7 of Pulkovo 1942 with the parameters of EPSG:5044, as a dialog writes it.
inline const std::string zone7 =
    "+proj=tmerc +lon_0=39 +lat_0=0 +x_0=7500000 +y_0=0 +k_0=1 "
    "+towgs84=23.57,-140.95,-79.8,0,0.35,0.79,-0.22 +ellps=krass +units=m +lon_wrap=45 +no_defs";
inline const std::string zone7_base =
    "+proj=longlat +ellps=krass +towgs84=23.57,-140.95,-79.8,0,0.35,0.79,-0.22 +no_defs";
inline const std::string refused = "+proj=utm +zone=99 +datum=WGS84 +no_defs";

}  // namespace texts
