#include "geodesy/description_words.h"

#include <proj.h>

#include <algorithm>
#include <array>

namespace oxhost {
namespace {

constexpr std::array projections{
    term{"longlat", "Longitude/latitude", "Долгота и широта"},
    term{"latlong", "Longitude/latitude", "Долгота и широта"},
    term{"utm", "UTM", "UTM"},
    term{"tmerc", "Transverse Mercator", "Поперечная Меркатора"},
    term{"etmerc", "Transverse Mercator", "Поперечная Меркатора"},
    term{"merc", "Mercator", "Меркатора"},
    term{"webmerc", "Web Mercator", "Веб-Меркатор"},
    term{"omerc", "Oblique Mercator", "Косая Меркатора"},
    term{"somerc", "Swiss Oblique Mercator", "Швейцарская косая Меркатора"},
    term{"lcc", "Lambert Conformal Conic", "Равноугольная коническая Ламберта"},
    term{"aea", "Albers Equal Area Conic", "Равновеликая коническая Альберса"},
    term{"laea", "Lambert Azimuthal Equal Area", "Равновеликая азимутальная Ламберта"},
    term{"eqdc", "Equidistant Conic", "Равнопромежуточная коническая"},
    term{"aeqd", "Azimuthal Equidistant", "Равнопромежуточная азимутальная"},
    term{"stere", "Stereographic", "Стереографическая"},
    term{"sterea", "Oblique Stereographic", "Косая стереографическая"},
    term{"cass", "Cassini-Soldner", "Кассини – Зольднера"},
    term{"poly", "Polyconic", "Поликоническая"},
    term{"krovak", "Krovak", "Кровака"},
    term{"gnom", "Gnomonic", "Гномоническая"},
    term{"ortho", "Orthographic", "Ортографическая"},
    term{"mill", "Miller Cylindrical", "Цилиндрическая Миллера"},
    term{"robin", "Robinson", "Робинсона"},
    term{"moll", "Mollweide", "Мольвейде"},
    term{"sinu", "Sinusoidal", "Синусоидальная"},
    term{"eqc", "Equidistant Cylindrical", "Равнопромежуточная цилиндрическая"},
    term{"cea", "Equal Area Cylindrical", "Равновеликая цилиндрическая"},
    term{"bonne", "Bonne", "Бонне"},
    term{"nzmg", "New Zealand Map Grid", "Картографическая сетка Новой Зеландии"},
};

constexpr std::array ellipsoids{
    term{"WGS84", "WGS 84", "WGS 84"},
    term{"GRS80", "GRS 80", "GRS 80"},
    term{"krass", "Krassowsky 1940", "Красовского 1940"},
    term{"bessel", "Bessel 1841", "Бесселя 1841"},
    term{"intl", "International 1924 (Hayford)", "Международный 1924 (Хейфорда)"},
    term{"clrk66", "Clarke 1866", "Кларка 1866"},
    term{"clrk80", "Clarke 1880", "Кларка 1880"},
    term{"clrk80ign", "Clarke 1880 (IGN)", "Кларка 1880 (IGN)"},
    term{"airy", "Airy 1830", "Эйри 1830"},
    term{"mod_airy", "Modified Airy", "Эйри, изменённый"},
    term{"evrst30", "Everest 1830", "Эвереста 1830"},
    term{"helmert", "Helmert 1906", "Гельмерта 1906"},
    term{"PZ90", "PZ-90", "ПЗ-90"},
    term{"sphere", "Sphere", "Сфера"},
};

constexpr std::array units{
    term{"m", "metres", "метры"},
    term{"km", "kilometres", "километры"},
    term{"ft", "international feet", "международные футы"},
    term{"us-ft", "US survey feet", "геодезические футы США"},
};

constexpr std::array parameters{
    parameter_term{{"lon_0", "central meridian", "центральный меридиан"}, true, false},
    parameter_term{{"lonc", "longitude of the centre", "меридиан центра проекции"}, true, false},
    parameter_term{{"lat_0", "latitude of origin", "широта начала координат"}, true, false},
    parameter_term{{"lat_1", "1st standard parallel", "1-я стандартная параллель"}, true, false},
    parameter_term{{"lat_2", "2nd standard parallel", "2-я стандартная параллель"}, true, false},
    parameter_term{{"lat_ts", "latitude of true scale", "1-я стандартная параллель"}, true, false},
    parameter_term{{"alpha", "azimuth", "азимут альфа"}, true, false},
    parameter_term{{"gamma", "rotation of the grid", "поворот сетки"}, true, false},
    parameter_term{{"k_0", "scale factor", "масштабный коэффициент"}, false, false},
    parameter_term{{"k", "scale factor", "масштабный коэффициент"}, false, false},
    parameter_term{{"x_0", "false easting", "сдвиг к востоку"}, false, true},
    parameter_term{{"y_0", "false northing", "сдвиг к северу"}, false, true},
};

const term* find(std::span<const term> terms, std::string_view key) {
    const auto found = std::ranges::find(terms, key, &term::key);
    return found == terms.end() ? nullptr : &*found;
}

}  // namespace

const term* projection_term(std::string_view key) { return find(projections, key); }
const term* ellipsoid_term(std::string_view key) { return find(ellipsoids, key); }
const term* unit_term(std::string_view key) { return find(units, key); }
std::span<const parameter_term> parameter_terms() { return parameters; }

std::string projection_name(std::string_view key, language wanted) {
    if (const term* known = projection_term(key)) return std::string(word(*known, wanted));
    for (const PJ_OPERATIONS* operation = proj_list_operations(); operation->id; ++operation) {
        if (key != operation->id) continue;
        const std::string_view text = *operation->descr;
        return std::string(text.substr(0, text.find('\n')));
    }
    return std::string(key);
}

}  // namespace oxhost
