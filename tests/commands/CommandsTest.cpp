// play, test and bench, with a stand-in for every command they call: what they install, show and play.
#include <array>

#include "support/CommandTest.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

struct Commands : CommandTest {
    const fs::path house = folder / "house", bin = folder / "bin", elsewhere = folder / "elsewhere";

    /// An ordinary user on a machine that has all packages, neither sudo nor a player.
    Commands()
    {
        for (const fs::path& path : {house / "tools", house / "benches", house / "build/tools", bin, elsewhere})
            fs::create_directories(path);
        for (const char* file : {"play", "test", "bench", "tools/setup.sh"})
            fs::copy_file(fs::path(KORVANE_SOURCE) / file, house / file);
        for (const char* name : {"awk", "basename", "bash", "cat", "dirname", "env", "grep", "mkdir", "nproc",
                                 "realpath", "sh", "stat", "tail", "timeout", "wc", "xargs"})
            fs::create_symlink(fs::path("/usr/bin") / name, bin / name);
        Stand("id", "echo 1000");
        Stand("dpkg-query", "echo install ok installed");
        for (const char* name :
             {"apt-get", "clang-format", "cmake", "ctest", "g++", "git", "make", "pkg-config", "valgrind"})
            Stand(name, "");
        for (const char* script : {"tools/rooms", "fuzz", "benches/report.py"}) Script(house / script, "");
        Script(house / "build/tools/korvane-render", "for last; do :; done; pwd >\"$last\"");
        Script(house / "build/tools/korvane-window", "exit $ENDS");
    }

    void Script(const fs::path& file, const std::string& body) const
    {
        const std::string name = file.filename().string(), log = (folder / "calls").string();
        WriteText(file, "#!/bin/sh\necho " + name + " \"$@\" >>'" + log + "'\n" + body + "\n");
        fs::permissions(file, fs::perms::owner_all);
    }
    void Stand(const char* name, const std::string& body) const { Script(bin / name, body); }

    /// Runs one of the two from another folder.
    /// variables  NAME=value each
    Answer Run(const std::string& command, const std::string& variables = "") const
    {
        return Shell("cd elsewhere && env -i PATH='" + bin.string() + "' " + variables + " ../house/" + command);
    }
};

const std::string kLibraries =
    std::string("libsndfile1-dev libcairo2-dev libxcb1-dev libxcb-shm0-dev ") + "libxcb-xkb-dev fonts-roboto-unhinted";
const std::string kNeeded = "g++ cmake make pkg-config " + kLibraries;
const std::string kAdvice = "korvane: packages are missing; as root: apt-get update && apt-get install ";

TEST_F(Commands, InstallsOnlyWhatIsMissingOrSaysItInOneLine)
{
    Stand("dpkg-query", "exit 1");
    for (const char* tool : {"g++", "cmake", "make", "pkg-config"}) fs::remove(bin / tool);
    for (const auto& [command, more] : {std::pair{"play", ""},
                                        {"test", " libgtest-dev libbenchmark-dev libxcb-xtest0-dev xvfb"},
                                        {"bench", " libbenchmark-dev python3"}}) { // valgrind is there
        const Answer answer = Run(command);
        EXPECT_EQ(std::pair(answer.status, answer.Called("apt-get")), std::pair(1, false));
        EXPECT_EQ(answer.output + answer.errors, kAdvice + kNeeded + more + "\n");
    }
    for (const char* tool : {"g++", "cmake", "make", "pkg-config"}) Stand(tool, "");
    Stand("sudo", "exec \"$@\"");
    for (const char* user : {"0", "1000"}) {
        Stand("id", std::string("echo ") + user);
        const Answer answer = Run("play");
        EXPECT_EQ(answer.status, 0);
        EXPECT_TRUE(answer.Called("apt-get install -y --no-install-recommends libsnd")) << answer.calls;
        EXPECT_EQ(answer.Called("sudo"), user[0] == '1');
    }
    Stand("sudo", "echo sudo: a password is required >&2; exit 1");
    const Answer refused = Run("play");
    EXPECT_EQ(refused.status, 1);
    for (const std::string& part : {std::string("sudo: a password is required\n"), kAdvice + kLibraries + "\n"})
        EXPECT_TRUE(refused.Complains(part)) << part << refused.errors;
    Stand("dpkg-query", "echo install ok installed");
    EXPECT_FALSE(Run("play").Called("apt-get")) << "nothing is missing";
}

TEST_F(Commands, ALaneIsBuiltAndTestedInItsOwnFolder)
{
    const std::string root = house.string();
    // clang-format off
    const std::array<std::string, 3> cases[] = { // what is asked for, its preset, its folder
        {"", "release", "/build"}, {"release", "release", "/build"}, {"debug", "debug", "/build-debug"},
        {"clang", "clang", "/build-clang"}};
    // clang-format on
    for (const auto& [lane, preset, build] : cases) {
        const Answer answer = Run("test " + lane + " -R Word");
        EXPECT_EQ(std::pair(answer.status, answer.errors), std::pair(0, std::string())) << lane;
        for (const std::string& call :
             {"cmake -S " + root + " --preset " + preset + " -DKORVANE_TESTS=ON\n",
              "cmake --build " + root + build + " ", "ctest --test-dir " + root + build + " "})
            EXPECT_TRUE(answer.Called(call)) << call << answer.calls;
        EXPECT_TRUE(answer.Called(" -LE stress -R Word\n")) << answer.calls;
    }
    EXPECT_FALSE(Run("test -L stress").Called("-LE"));
    for (const std::string wrong : {"debugg", "memcheck -R Word", "format -R Word", "all -R Word"}) {
        const Answer answer = Run("test " + wrong);
        EXPECT_EQ(std::pair(answer.status, answer.calls), std::pair(2, std::string())) << wrong;
        EXPECT_TRUE(answer.Complains(wrong == "debugg" ? "LANE" : wrong.substr(0, wrong.find(' ')))) << answer.errors;
    }
}

TEST_F(Commands, AllLanesAreTriedAndThoseThatFailAreNamed)
{
    Stand("ctest", "case $2 in *-debug) exit 8 ;; esac");
    for (const Answer& all : {Run("test all"), Shell("cd house && env -i PATH='" + bin.string() + "' bash test all")}) {
        EXPECT_EQ(all.status, 1);
        for (const char* row : {"release    passed", "debug      FAILED", "fuzz       passed", "format     passed"})
            EXPECT_TRUE(all.Says(row) && all.Called("fuzz 20\n")) << row << '\n' << all.output << all.calls;
    }
    Stand("ctest", "");
    EXPECT_EQ(Run("test all").status, 0);
}

TEST_F(Commands, WhatIsMeasuredIsBuiltBefore)
{
    WriteText(folder / "elsewhere/old.so", "");
    const Answer answer = Run("bench --accept --counts old.so");
    EXPECT_EQ(std::pair(answer.status, answer.errors), std::pair(0, std::string()));
    const std::string built = " --target korvane-loads korvane_bench\n";
    const std::string measured = "report.py counts --accept " + (elsewhere / "old.so").string() + "\n";
    EXPECT_NE(answer.calls.find(measured), std::string::npos) << answer.calls;
    EXPECT_LT(answer.calls.find(built), answer.calls.find(measured)) << answer.calls;
    EXPECT_TRUE(Run("bench").Called("report.py all\n"));
    Script(house / "benches/report.py", "exit 1");
    EXPECT_EQ(std::pair(Run("bench").status, Run("bench --fast").status), std::pair(1, 2));
}

TEST_F(Commands, AFailedBuildShowsItsReasonAndItsLog)
{
    Stand("cmake",
          "[ \"$1\" = -S ] && echo error: not this && exit; echo compiling; echo 'a.cpp:1:2: error: broken'; exit 2");
    const Answer answer = Run("play");
    EXPECT_NE(answer.status, 0);
    EXPECT_EQ(answer.errors.rfind("a.cpp:1:2: error: broken\n", 0), 0u) << answer.errors;
    EXPECT_TRUE(answer.Complains((house / "build/play.log").string())) << answer.errors;
    EXPECT_NE(Text("house/build/play.log").find("error: not this\ncompiling\n"), std::string::npos) << "every stage";
    EXPECT_FALSE(answer.Called("korvane-render --"));
}

TEST_F(Commands, TheGrooveIsFoundFromWhereTheCallerStands)
{
    const Answer answer = Run("play 'my groove.kvprj'");
    EXPECT_TRUE(answer.Called("korvane-render --bars 8 my groove.kvprj " + (house / "korvane.wav").string()))
        << answer.calls;
    EXPECT_EQ(Text("house/korvane.wav"), elsewhere.string() + "\n");
    Script(house / "build/tools/korvane-render", "echo there is no such groove >&2; exit 1");
    const Answer mistyped = Run("play mistyped");
    EXPECT_EQ(std::pair(mistyped.status, mistyped.errors), std::pair(1, std::string("there is no such groove\n")));
    EXPECT_EQ(std::pair(Run("play two words").status, Run("play --help").status), std::pair(2, 0));
    fs::remove(house / "build/play.log");
    fs::create_directory(house / "build/play.log");
    EXPECT_TRUE(Run("play").Complains("korvane: cannot write to " + (house / "build/play.log").string()));
}

TEST_F(Commands, ShowsTheWindowWhereThereIsADisplay)
{
    // clang-format off
    struct Case { const char *variables, *command; bool shows, plays; int status; };
    const Case cases[] = {
        {"DISPLAY=:0 ENDS=0", "play mine",         true,  false, 0},
        {"DISPLAY=:0 ENDS=1", "play mine",         true,  false, 1}, // there is no such groove
        {"DISPLAY=:0 ENDS=3", "play mine",         true,  true,  0}, // the display does not answer
        {"DISPLAY=",          "play mine",         false, true,  0},
        {"DISPLAY=:0",        "play --sound mine", false, true,  0},
        {"DISPLAY=:0",        "play --loud",       false, false, 2},
    };
    // clang-format on
    for (const Case& c : cases) {
        const Answer answer = Run(c.command, c.variables);
        EXPECT_EQ(std::tuple(answer.Called("korvane-window mine\n"), answer.Called("korvane-render --bars 8 mine "),
                             answer.status),
                  std::tuple(c.shows, c.plays, c.status))
            << c.variables << ' ' << c.command << '\n'
            << answer.calls << answer.errors;
        EXPECT_EQ(answer.Says("VST_PATH"), c.status == 0) << "how to load it";
    }
}

// A server that only has its stand-in for a device would take the sound and nobody would hear it.
TEST_F(Commands, PlaysWithTheFirstPlayerThatHasADevice)
{
    // clang-format off
    struct Case { const char *what, *pipewire, *pulse, *cards, *failing, *played; };
    const Case cases[] = {
        {"a dummy is none",     "auto_null", "speaker",   "card 0: x", "",        "paplay"},
        {"no server",           "",          "",          "card 0: x", "",        "aplay"},
        {"the first one fails", "speaker",   "speaker",   "card 0: x", "pw-play", "paplay"},
        {"no device",           "auto_null", "auto_null", "no card",   "",        ""},
    };
    // clang-format on
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const std::string node = "node.name = \"" + std::string(c.pipewire) + "\"\nmedia.class = \"Audio/Sink\"";
        Stand("pw-cli", *c.pipewire ? "echo '" + node + "'" : "exit 1");
        Stand("pactl", *c.pulse ? "echo '0\t" + std::string(c.pulse) + "\tmodule'" : "exit 1");
        Stand("aplay", "[ \"$1\" != -l ] || echo '" + std::string(c.cards) + "'");
        for (const std::string player : {"pw-play", "paplay"})
            Stand(player.c_str(), player == c.failing ? "exit 1" : "");
        const Answer answer = Run("play");
        EXPECT_EQ(std::pair(answer.status, answer.errors), std::pair(0, std::string()));
        const std::string sound = (house / "korvane.wav").string();
        for (const std::string player : {"pw-play", "paplay", "aplay"})
            EXPECT_EQ(answer.Called("\n" + player + " " + sound), player == c.played || player == c.failing);
        EXPECT_EQ(answer.Says("the sound is in " + sound), *c.played == '\0');
        EXPECT_TRUE(answer.Says((house / "build/Korvane").string()));
    }
}

} // namespace
} // namespace korvane
