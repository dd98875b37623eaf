#!/usr/bin/env bash
# Makes rings.inc anew: make_land.sh RNATURALEARTHDATA, the unpacked folder of the R package of that name, in Debian
# `apt-get download r-cran-rnaturalearthdata && dpkg -x r-cran-*.deb . ` and then usr/lib/R/site-library/rnaturalearthdata.
# Needs Rscript with the package sp, ogr2ogr with SpatiaLite, python3.
#
# The countries of Natural Earth 1:50m, joined to land, thinned to about a kilometre. Borders vanish in the union, and
# the Caspian Sea stays as a hole between its countries; holes of single countries are other countries.
set -euo pipefail
package=$(realpath "$1")
cd "$(dirname "${BASH_SOURCE[0]}")"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cat >"$work/rings.R" <<'END'
given <- commandArgs(trailingOnly = TRUE)
data <- new.env()
invisible(lazyLoad(file.path(given[1], "data", "Rdata"), envir = data))
cat("id,WKT\n", file = given[2])
for (country in attr(data$countries50, "polygons")) for (ring in attr(country, "Polygons"))
    if (!attr(ring, "hole"))
        cat('1,"POLYGON((', paste(apply(attr(ring, "coords"), 1, function(p) sprintf("%.8f %.8f", p[1], p[2])),
            collapse = ","), '))"\n', sep = "", file = given[2], append = TRUE)
END
Rscript "$work/rings.R" "$package" "$work/countries.csv"
ogr2ogr -q "$work/land.geojson" "$work/countries.csv" -dialect sqlite \
    -sql 'SELECT ST_SimplifyPreserveTopology(ST_Union(geometry), 0.012) FROM countries'
python3 encode.py "$work/land.geojson" >rings.inc
