#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>

#include "oxhost_run.h"

namespace {

using namespace oxhost_test;

std::string last_line(const std::string& text) {
    const auto end = text.find_last_not_of('\n');
    const auto start = text.find_last_of('\n', end);
    return text.substr(start + 1, end - start);
}

/// The zone that EPSG defines, chosen in the dialog and imported by its code, gives the same text, which
/// comes back unchanged from a fresh dialog.
TEST(ProjectionDialog, ComposesWhatItImports) {
    const sandbox box;
    const auto imported = box.oxhost({"project", "--epsg", "28407", "--quiet"});
    ASSERT_EQ(imported.code, 0) << imported.error;
    EXPECT_NE(imported.out.find("+x_0=7500000"), std::string::npos) << imported.out;
    EXPECT_NE(imported.out.find("+towgs84="), std::string::npos) << imported.out;
    const auto again = box.oxhost({"project", last_line(imported.out), "--quiet"});
    EXPECT_EQ(again.out, imported.out);

    const auto chosen = box.oxhost({"project", "--show", "--choose", "Type=Zonal", "--choose",
                                    "Projection/Projection=UTM North", "--choose", "Zone=1"});
    ASSERT_EQ(chosen.code, 0) << chosen.error;
    EXPECT_TRUE(chosen.out.starts_with("+proj=utm +zone=1 ")) << chosen.out;
    EXPECT_EQ(std::ranges::count(chosen.out, '\n'), 1) << chosen.out;
    for (const char* shown : {"Zone: 1N", "1N (CM 177W) | 2N", "| 60N (CM 177E)]"})
        EXPECT_NE(chosen.error.find(shown), std::string::npos) << shown << '\n' << chosen.error;
}

/// The command line that hands the text on, in a shell: the point is that of
/// `echo 0 54 | cs2cs EPSG:4326 EPSG:32640`, latitude first.
TEST(ProjectionDialog, GivesTheTextToAnotherCommand) {
    const sandbox box;
    box.make_project({{"line", wgs84, {{57, 0}, {54, 0}}}});
    const std::string program = "'" OXHOST_PROGRAM "' ";
    const auto run = box.oxhost({}, "en",
                                program + "reproject p.gpkg --all --yes --to \"$(" + program +
                                    "project --epsg 32640)\" >.out 2>.error; exit $?;");
    ASSERT_EQ(run.code, 0) << box.bytes(".error");
    EXPECT_NEAR(box.stored_lines().at(0).at(1).x, 166021.44, 0.01);
}

TEST(ProjectionDialog, FollowsTheOrderOfTheCommandLine) {
    const sandbox box;
    EXPECT_NE(box.oxhost({"project", "--choose", "Type=Geographic", "--epsg", "32637", "--quiet"})
                  .out.find("+proj=utm +zone=37"),
              std::string::npos);
    EXPECT_NE(box.oxhost({"project", "--epsg", "32637", "--choose", "Type=Geographic", "--quiet"})
                  .out.find("+proj=longlat"),
              std::string::npos);
}

TEST(ProjectionDialog, KeepsFavouritesAndFiles) {
    const sandbox box;
    const auto added = box.oxhost({"project", "--epsg", "32640", "--add-favourite", "--save", "kept.prj"});
    ASSERT_EQ(added.code, 0) << added.error;
    const std::string text = last_line(added.out);
    EXPECT_EQ(last_line(box.oxhost({"project", "--favourite", "1", "--quiet"}).out), text);
    EXPECT_EQ(last_line(box.oxhost({"project", "--load", "kept.prj", "--quiet"}).out), text);
    EXPECT_EQ(box.oxhost({"project", "--favourite", "2"}).code, 2);

    const auto in_order = box.oxhost({"project", "--epsg", "32637", "--save", "37.pj4", "--add-favourite",
                                      "--epsg", "32638", "--load", "37.pj4", "--add-favourite"});
    EXPECT_NE(in_order.out.find("+zone=37"), std::string::npos) << in_order.out << in_order.error;
    EXPECT_EQ(box.oxhost({"favourites", "--rename", "2=mine", "--remove", "1"}).code, 0);
    const auto left = nlohmann::json::parse(box.oxhost({"favourites", "--json"}).out);
    ASSERT_EQ(left.size(), 2u);
    EXPECT_EQ(left[0]["caption"], "mine");
    EXPECT_EQ(left[1]["proj4"].get<std::string>() + '\n', in_order.out);
    EXPECT_EQ(box.oxhost({"favourites", "--remove", "3"}).code, 2);
    EXPECT_EQ(box.oxhost({"project", "--save", "kept.txt"}).code, 2);

    const auto unstored =
        box.oxhost({}, "en",
                   "mkdir folder; mkdir folder/favourites.json; OXHOST_CONFIG=folder '" OXHOST_PROGRAM
                   "' project --epsg 32637 --add-favourite 2>.error; exit $?;");
    EXPECT_EQ(unstored.code, 2);
}

/// What the dialog cannot hold of a system is told: EPSG:27572's meridian of Paris.
TEST(ProjectionDialog, TellsWhatItsTextHasLost) {
    const sandbox box;
    const auto kept = box.oxhost({"project", "EPSG:32640", "--strict"});
    EXPECT_EQ(kept.code, 0) << kept.error;
    EXPECT_EQ(kept.error, "");
    for (const auto& arguments : std::vector<std::vector<std::string>>{
             {"project", "EPSG:27572", "--strict"}, {"project", "--epsg", "27572", "--strict"}}) {
        const auto lost = box.oxhost(arguments);
        EXPECT_EQ(lost.code, 2);
        EXPECT_TRUE(lost.out.starts_with("+proj=lcc ")) << lost.out;
        EXPECT_NE(lost.error.find("Paris"), std::string::npos) << lost.error;
    }
    const auto composed = box.oxhost({"project", "EPSG:27572", "--choose", "Type=Geographic", "--strict"});
    EXPECT_EQ(composed.code, 0) << composed.error;
}

TEST(ProjectionDialog, NamesWhatItDoesNotHave) {
    const sandbox box;
    const auto control = box.oxhost({"project", "--choose", "Colour=red"});
    EXPECT_EQ(control.code, 2);
    EXPECT_NE(control.error.find("no control \"Colour\"; it has \"Type\""), std::string::npos)
        << control.error;
    const auto item = box.oxhost({"project", "--choose", "Type=Round"});
    EXPECT_EQ(item.code, 2);
    EXPECT_NE(item.error.find("no item \"Round\"; it has \"Not Defined\""), std::string::npos) << item.error;
    EXPECT_EQ(box.oxhost({"project", "--epsg", "999999"}).code, 2);
}

TEST(Catalogue, ListsWhatTheDialogsOffer) {
    const sandbox box;
    EXPECT_EQ(box.oxhost({"catalogue", "ellipsoids", "--find", "KRASS"}).out,
              "Krassowsky 1940  6378245, 298.3\n");
    EXPECT_NE(box.oxhost({"catalogue", "zones", "--find", "40n"}).out.find("UTM North  40N"),
              std::string::npos);
}

TEST(Catalogue, FindsByFurtherNamesAndCodes) {
    const sandbox box;
    const struct {
        const char *part, *sought, *begins, *ends;
    } cases[] = {
        {"projections", "hotine", "Oblique Mercator  (",
         "Hotine Oblique Mercator variant B; EPSG method 9815]\n"},
        {"projections", "Postel", "Azimuthal Equidistant  (", "  [Postel]\n"},
        {"zones", "СК-63", "SK-63 district A, Pulkovo 1942 (GOST)  A1 (CM 41d32'E)", "  [CS63; СК-63]\n"},
        {"zones", "sk-95", "Gauss-Kruger 6 deg, Pulkovo 1995  4 (", "  [SK-95; СК-95]\n"},
        {"zones", "28407", "Gauss-Kruger 6 deg, Pulkovo 1942 (GOST)  7 (CM 39E)", "  [EPSG:28407]\n"},
        {"zones", "epsg:2935", "SK-63 district A, Pulkovo 1942 (GOST)  A1 (CM 41d32'E)", "  [EPSG:2935]\n"},
        {"datums", "EPSG:4289", "Amersfoort  Bessel 1841  565.4171,",
         "-0.398957388243, 0.343987817378, "
         "-1.87740163998, 4.0725  [EPSG:4289]\n"},
        {"ellipsoids", "7024", "Krassowsky 1940  6378245, 298.3", "  [EPSG:7024]\n"},
    };
    for (const auto& [part, sought, begins, ends] : cases) {
        const auto run = box.oxhost({"catalogue", part, "--find", sought});
        EXPECT_EQ(run.code, 0) << sought << run.error;
        EXPECT_TRUE(run.out.starts_with(begins)) << sought << '\n' << run.out;
        EXPECT_TRUE(run.out.ends_with(ends)) << sought << '\n' << run.out;
    }
    for (const char* sought : {"2840", "EPSG:2840", "EPSG:9840", "Mercatorial"}) {
        const auto run = box.oxhost({"catalogue", "--find", sought});
        EXPECT_EQ(run.code, 2) << sought;
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.error, std::string("oxhost: nothing in the catalogue is called \"") + sought + "\"\n");
    }
}

TEST(Catalogue, NamesTheIndexThatIsMissing) {
    const sandbox box;
    const fs::path program = OXHOST_PROGRAM;
    fs::copy_file(program, box.path("alone"));
    const auto run = box.oxhost({}, "en",
                                "LD_LIBRARY_PATH='" + program.parent_path().string() +
                                    "' ./alone catalogue --find UTM 2>alone.error; exit $?;");
    EXPECT_EQ(run.code, 66);
    EXPECT_TRUE(box.bytes("alone.error").starts_with("oxhost: " + box.path("prj_def/pj_").string()))
        << box.bytes("alone.error");
}

/// The program and what lies beside it, started from a folder whose name is Cyrillic in the bytes of one
/// character set or another.
TEST(Catalogue, IsFoundInACyrillicFolder) {
    constexpr auto locale = "ru_RU.CP1251";
    if (!std::setlocale(LC_CTYPE, locale)) GTEST_SKIP() << "no locale " << locale;
    std::setlocale(LC_CTYPE, "C");
    for (const char* name : {"\xCF\xE0\xEF\xEA\xE0", "Папка"}) {
        const sandbox box;
        const fs::path program(OXHOST_PROGRAM), folder = box.path(name);
        fs::create_directory(folder);
        for (const auto& entry : fs::directory_iterator(program.parent_path()))
            fs::create_symlink(entry.path(), folder / entry.path().filename());
        fs::remove(folder / program.filename());
        fs::copy(program, folder / program.filename());
        const std::string run = std::string("LC_ALL=") + locale + " '" +
                                (folder / program.filename()).string() +
                                "' catalogue ellipsoids --find KRASS >.out 2>.error; exit 0;";
        box.oxhost({}, "en", run);
        EXPECT_TRUE(box.bytes(".out").starts_with("Krassowsky 1940")) << box.bytes(".error");
    }
}

TEST(Describe, TellsCodeEllipsoidDatumAndWarnings) {
    const sandbox box;
    const auto code = box.oxhost({"describe", "EPSG:28407"});
    EXPECT_EQ(code.code, 0);
    for (const char* part : {"EPSG: EPSG:28407", "Krass", "+towgs84="})
        EXPECT_NE(code.out.find(part), std::string::npos) << code.out;
    const auto warned = box.oxhost({"describe", "+proj=tmerc +lon_0=39 +ellps=krass +colour=red"});
    EXPECT_NE(warned.out.find("\"+colour\""), std::string::npos) << warned.out;
    EXPECT_NE(warned.out.find("no datum shift"), std::string::npos) << warned.out;
}

/// Names, areas and shifts as `projinfo` gives them.
TEST(Describe, TellsWhatIsPublished) {
    const sandbox box;
    const struct {
        const char* target;
        std::vector<const char*> parts;
    } cases[] = {
        {"EPSG:28407",
         {"Name: Pulkovo 1942 / Gauss-Kruger zone 7", "Area of use: Georgia - onshore west of 36",
          "36..42°"}},
        {"EPSG:4284", {"EPSG:5044, Pulkovo 1942 to WGS 84 (20): 23.57,-140.95,-79.8,", "accuracy 3 m"}},
        {utm40, {"Name: WGS 84 / UTM zone 40N"}},
        {"EPSG:4978", {"Kind: geocentric"}},
        {"EPSG:5773", {"Kind: vertical", "Name: EGM96 height"}}};
    for (const auto& [target, parts] : cases) {
        const auto run = box.oxhost({"describe", target});
        EXPECT_EQ(run.code, 0) << run.error;
        for (const char* part : parts)
            EXPECT_NE(run.out.find(part), std::string::npos) << part << '\n' << run.out;
    }
}

}  // namespace
