#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>

#include "oxhost_run.h"
#include "testing/case_name.h"

namespace {

using namespace oxhost_test;

constexpr int page = 4096;

/// A pipe that holds one page.
struct small_pipe {
    small_pipe() {
        EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
        EXPECT_EQ(fcntl(ends[1], F_SETPIPE_SZ, page), page);
    }
    ~small_pipe() {
        close_reader();
        close(ends[1]);
    }
    small_pipe(const small_pipe&) = delete;
    small_pipe& operator=(const small_pipe&) = delete;

    void leave_room_for(std::size_t bytes) const {
        const std::string filling(page - bytes, '.');
        EXPECT_EQ(write(ends[1], filling.data(), filling.size()), static_cast<ssize_t>(filling.size()));
    }
    bool is_full() const {
        int held = 0;
        return ioctl(ends[0], FIONREAD, &held) == 0 && held == page;
    }
    void close_reader() {
        if (ends[0] >= 0) close(std::exchange(ends[0], -1));
    }

    std::array<int, 2> ends{-1, -1};
};

/// Starts the program in the sandbox's folder, with temporary files in its `tmp`; no shell stands between.
pid_t start(const sandbox& box, const std::vector<std::string>& arguments, int out) {
    fs::create_directory(box.path("tmp"));
    const pid_t child = fork();
    if (child != 0) return child;
    const int error = open(box.path(".error").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    const int in = open("/dev/null", O_RDONLY);
    for (const int each : {SIGINT, SIGTERM, SIGPIPE}) signal(each, SIG_DFL);
    if (dup2(in, 0) < 0 || dup2(out, 1) < 0 || dup2(error, 2) < 0 || chdir(box.path("").c_str()) != 0)
        _exit(127);
    for (const auto& [name, value] :
         {std::pair{"TMPDIR", "tmp"}, {"OXHOST_CONFIG", "config"}, {"LC_ALL", "C"}})
        setenv(name, value, 1);
    std::vector<char*> raw{const_cast<char*>(OXHOST_PROGRAM)};
    for (const std::string& each : arguments) raw.push_back(const_cast<char*>(each.c_str()));
    raw.push_back(nullptr);
    execv(OXHOST_PROGRAM, raw.data());
    _exit(127);
}

int status_of(pid_t child) {
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return status;
}

constexpr int scene_count = 3000;

void make_large_project(const sandbox& box, const std::string& text) {
    std::vector<source_line> lines;
    for (int i = 0; i < scene_count; ++i) {
        const double shift = i;
        lines.push_back({"s", text, {{10400000 + shift, 6200000}, {10450000, 6250000 + shift}}});
    }
    box.make_project(lines);
}

struct signal_case {
    const char* name;
    int signal;
    std::string source;
    const char* policy;
    const char* outcome;  ///< of the scenes that were attempted
    bool keeps_changes;
};

class Signal : public testing::TestWithParam<signal_case> {};

/// The program stands still in printing "20 %" when the signal comes.
TEST_P(Signal, EndsAfterTheSceneInHand) {
    const signal_case& of = GetParam();
    const sandbox box;
    make_large_project(box, of.source);
    std::vector<std::string> command{"reproject",  "p.gpkg",  "--to",     utm40,    "--all",      "--yes",
                                     "--on-error", of.policy, "--report", "r.json", "--overwrite"};
    auto dry = command;
    dry.push_back("--dry-run");
    const std::string told = box.oxhost(dry).out;
    const auto tenth = told.find("10 %\n");
    ASSERT_NE(tenth, told.npos) << told;

    small_pipe out;
    out.leave_room_for(tenth + 5);
    const pid_t child = start(box, command, out.ends[1]);
    while (!out.is_full() && waitpid(child, nullptr, WNOHANG) == 0) usleep(500);
    ASSERT_EQ(kill(child, of.signal), 0);
    std::array<char, page> taken{};
    EXPECT_EQ(read(out.ends[0], taken.data(), taken.size()), page);
    const int status = status_of(child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == of.signal) << status;

    const auto counts = box.json("r.json").at("counts");
    const int attempted = counts.at(of.outcome);
    EXPECT_GE(attempted, scene_count / 10);
    EXPECT_LE(attempted, scene_count / 5 + 1);
    EXPECT_EQ(counts.at("not attempted"), scene_count - attempted);
    const auto texts = box.listed("proj4");
    const int changed = of.keeps_changes ? attempted : 0;
    EXPECT_EQ(std::ranges::count(texts, utm40), changed);
    EXPECT_EQ(std::ranges::count(texts, of.source), scene_count - changed);
    EXPECT_EQ(box.bytes(".error").find("rror"), std::string::npos) << "the module's verdict is none";
    EXPECT_EQ(box.files(), (std::vector<std::string>{"lines.geojson", "p.gpkg", "r.json", "tmp"}));
    EXPECT_TRUE(fs::is_empty(box.path("tmp")));
}

INSTANTIATE_TEST_SUITE_P(Ends, Signal,
                         testing::Values(signal_case{"Interrupt", SIGINT, gauss_kruger_10, "skip",
                                                     "reprojected", true},
                                         signal_case{"TerminateAndRollBack", SIGTERM, gauss_kruger_10,
                                                     "rollback", "unchanged", false},
                                         signal_case{"WhileAssigning", SIGINT, "", "stop", "assigned", true}),
                         case_name);

TEST(ClosedPipe, EndsThePrintingAndNotTheRun) {
    const sandbox box;
    const std::string bad = "+proj=longlat +datum=WGS84 +no_defs";
    std::vector<source_line> lines(50, {"good", gauss_kruger_10, {{10400000, 6200000}, {10450000, 6250000}}});
    lines.push_back({"bad", bad, {{57, 95}, {57, 55}}});
    box.make_project(lines);
    const auto run = [&](const char* policy) {
        small_pipe out;
        out.close_reader();
        const int status = status_of(
            start(box, {"reproject", "p.gpkg", "--to", utm40, "--all", "--on-error", policy}, out.ends[1]));
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    };
    EXPECT_EQ(run("rollback"), 1);
    EXPECT_EQ(std::ranges::count(box.listed("proj4"), utm40), 0);
    EXPECT_EQ(run("skip"), 1);
    EXPECT_EQ(std::ranges::count(box.listed("proj4"), utm40), 50);
}

}  // namespace
