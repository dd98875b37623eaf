#include <gtest/gtest.h>

#include "oxhost_run.h"

namespace {

using namespace oxhost_test;

constexpr auto own_utility = "oxk_scn2d_prf_reproj";

TEST(Utilities, AreListedInTheUsersLanguage) {
    const sandbox box;
    EXPECT_EQ(box.oxhost({"utilities"}).out, std::string(own_utility) + "  Batch Project Sections\n");
    EXPECT_EQ(box.oxhost({"utilities", "--lang", "ru"}).out,
              std::string(own_utility) + "  Перепроецирование сцен разрезов\n");
}

TEST(Utilities, RunAsTheyStandOnAProject) {
    const sandbox box;
    box.make_project({{"profile 9", utm40, {{400000, 6200000}, {410000, 6210000}}}});
    const std::string project = box.bytes("p.gpkg");
    for (const auto& arguments : {std::vector<std::string>{"utilities", "p.gpkg", "--run", own_utility},
                                  std::vector<std::string>{"utilities", "--run", own_utility}}) {
        const auto run = box.oxhost(arguments);
        EXPECT_EQ(run.code, 2);
        EXPECT_TRUE(run.out.starts_with("Batch Project Sections\n")) << run.out;
        EXPECT_EQ(run.out.find("profile 9") != run.out.npos, arguments[1] == "p.gpkg") << run.out;
        EXPECT_EQ(run.error, "Incorrect reprojection settings\n") << "its button was pressed";
    }
    EXPECT_TRUE(box.bytes("p.gpkg") == project);
}

/// A copy of the program that has no window beside it, and one that has: here a script, which tells how it
/// was called.
TEST(Open, StartsTheProgramBesideIt) {
    const sandbox box;
    const fs::path program = OXHOST_PROGRAM;
    fs::copy_file(program, box.path("alone"));
    box.write("-p.gpkg", "");
    const std::string start = "LD_LIBRARY_PATH='" + program.parent_path().string() + "' ./alone open ";
    const auto exit_of = [&](const std::string& project) {
        return box.oxhost({}, "en", start + project + " >.out 2>.error; exit $?;").code;
    };
    EXPECT_EQ(exit_of("-- -p.gpkg"), 66);
    EXPECT_NE(box.bytes(".error").find("oxhost-window: there is no window"), std::string::npos);

    box.write("oxhost-window", "#!/bin/sh\necho \"$@\"\nexit 7\n");
    fs::permissions(box.path("oxhost-window"), fs::perms::owner_all);
    EXPECT_EQ(exit_of("-- -p.gpkg"), 7);
    EXPECT_EQ(box.bytes(".out"), box.path("-p.gpkg").string() + '\n');
    EXPECT_EQ(exit_of("nowhere.gpkg"), 66);
}

/// An exception that ends at a border of the shell, of a host module and of a bundle: each is one line with
/// --verbose, wherever that stands, and silence without it.
TEST(Faults, AreToldWhenAskedFor) {
    const sandbox box;
    const std::vector<std::string> list{"utilities", "--bundle", FAULTY_BUNDLE};
    const auto silent = box.oxhost(list);
    EXPECT_EQ(silent.code, 0);
    EXPECT_EQ(silent.out, "faulty  \n");
    EXPECT_EQ(silent.error, "");

    const std::string begin = "oxhost: an exception ended at ";
    const std::string told = begin + "ox_bundle_context_interface_1, slot 2: no registry wanted\n" + begin +
                             "ox_options_get_main_module_path: too long a path\n" + begin +
                             "ox_utility_interface_4, slot 1: no caption today\n";
    for (const std::size_t place : {std::size_t{0}, list.size()}) {
        auto verbose = list;
        verbose.insert(verbose.begin() + static_cast<std::ptrdiff_t>(place), "--verbose");
        EXPECT_EQ(box.oxhost(verbose).error, told);
    }
}

}  // namespace
