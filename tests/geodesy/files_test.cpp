#include "geodesy/projection_files.h"

#include "base/files.h"
#include "geodesy/crs.h"
#include "geodesy/crs_import.h"
#include "texts.h"

namespace oxhost {
namespace {

class ProjectionFiles : public testing::Test {
protected:
    scratch_folder folder_;
    const std::string prj_ = folder_ / "линия.prj";
    const std::string pj4_ = folder_ / "линия.pj4";
};

std::string refusal(const auto& load) {
    try {
        load();
    } catch (const file_error& error) {
        return error.what();
    }
    return "no error";
}

TEST_F(ProjectionFiles, SavedAndLoadedLosesNothing) {
    for (const std::string& text : std::initializer_list<std::string>{
             texts::zone7, texts::wgs84, texts::utm37, texts::krass,
             "+proj=tmerc +lon_0=38.5 +ellps=krass +towgs84=23.92,-141.27,-80.9,0,0.35,0.82,-0.12",
             "+proj=longlat +ellps=GRS80 +towgs84=0,0,0", "+proj=longlat +datum=potsdam",
             "+proj=lcc +lat_1=50 +lat_2=60 +lat_0=55 +lon_0=40 +ellps=krass +units=km",
             "+proj=merc +a=6378137 +b=6378137 +nadgrids=@null +no_defs"}) {
        save_prj(prj_, text);
        const auto loaded = load_prj(prj_);
        EXPECT_TRUE(equal(loaded, text)) << text << '\n' << loaded << '\n' << bytes_of(prj_);
        EXPECT_TRUE(loaded == text || !proj4_text(text).has("towgs84")) << loaded;
        save_pj4(pj4_, text);
        EXPECT_EQ(load_pj4(pj4_), text);
    }
}

TEST_F(ProjectionFiles, CompanionCountsOnlyForItsPrj) {
    save_prj(prj_, texts::zone7);
    EXPECT_EQ(bytes_of(prj_).find("TOWGS84"), std::string::npos) << "not ESRI's word";
    EXPECT_NE(bytes_of(prj_).find("D_Pulkovo_1942"), std::string::npos) << bytes_of(prj_);
    save_prj(folder_ / "other.prj", texts::utm37);
    std::filesystem::rename(folder_ / "other.prj", prj_);
    EXPECT_TRUE(equal(load_prj(prj_), texts::utm37));
    save_prj(prj_, texts::utm37);
    EXPECT_FALSE(std::filesystem::exists(prj_ + ".pj4"));
}

TEST_F(ProjectionFiles, ForeignPrjKeepsItsDatum) {
    const auto zone7 = import_crs("EPSG:28407");
    for (const PJ_WKT_TYPE dialect : {PJ_WKT1_ESRI, PJ_WKT1_GDAL, PJ_WKT2_2019}) {
        const pj_ptr system(proj_create(proj_context(), "EPSG:28407"));
        write_bytes(
            prj_, "\xEF\xBB\xBF" + std::string(proj_as_wkt(proj_context(), system.get(), dialect, nullptr)));
        EXPECT_EQ(load_prj(prj_), zone7) << bytes_of(prj_);
    }
    // the names of its makers are not needed where the file brings a shift of its own
    write_bytes(prj_, R"(GEOGCS["x",DATUM["y",SPHEROID["z",6378245,298.3],TOWGS84[28,-130,-95,0,0,0,0]],)"
                      R"(PRIMEM["Greenwich",0],UNIT["degree",0.0174532925199433]])");
    EXPECT_TRUE(equal(load_prj(prj_), "+proj=longlat +ellps=krass +towgs84=28,-130,-95"));
}

TEST_F(ProjectionFiles, OtherContentIsNoProjection) {
    using namespace std::string_literals;
    for (const std::string& content :
         {""s, "hello"s, "PROJCS[\""s, "{\"a\": [1]}"s, "\0\1\2+proj=longlat"s, std::string(2 << 20, 'x')}) {
        write_bytes(prj_, content);
        write_bytes(pj4_, content);
        EXPECT_TRUE(refusal([&] { load_prj(prj_); }).starts_with(prj_ + ": ")) << content.substr(0, 40);
        EXPECT_TRUE(refusal([&] { load_pj4(pj4_); }).starts_with(pj4_ + ": ")) << content.substr(0, 40);
    }
    EXPECT_EQ(refusal([&] { load_pj4(folder_ / "missing.pj4"); }), folder_ / "missing.pj4: no such file");
    EXPECT_THROW(load_prj(folder_.path()), file_error);
    write_bytes(
        pj4_,
        "\xEF\xBB\xBF  # a comment\r\n+proj=utm +zone=37 # another\r\n+datum=WGS84\n\n+units=m +no_defs\r\n");
    EXPECT_EQ(load_pj4(pj4_), texts::utm37);
}

TEST_F(ProjectionFiles, FailedSaveLeavesTheOldFile) {
    save_prj(prj_, texts::utm37);
    const std::string before = bytes_of(prj_);
    EXPECT_THROW(save_prj(prj_, texts::refused), file_error);
    EXPECT_THROW(save_prj(prj_, ""), file_error);
    EXPECT_EQ(bytes_of(prj_), before);
    EXPECT_THROW(save_pj4(folder_ / "no/such/folder.pj4", texts::utm37), file_error);
    EXPECT_THROW(save_pj4(folder_.path(), texts::utm37), file_error);
    EXPECT_EQ(folder_.files(), 1) << "a temporary file was left";
}

}  // namespace
}  // namespace oxhost
