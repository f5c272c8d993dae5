// File dialogs, with a script in the place of the desktop's program.
#include <filesystem>
#include <fstream>

#include "platform/window/OpenWindow.h"

namespace korvane {

namespace fs = std::filesystem;

class FileDialogs : public OpenWindow {
protected:
    void SetUp() override
    {
        OpenWindow::SetUp();
        char name[] = "/tmp/korvane-dialog-XXXXXX";
        folder = mkdtemp(name);
        Script("zenity", "exit 1");
        setenv("PATH", (folder.string() + ":" + std::getenv("PATH")).c_str(), 1);
        unsetenv("KORVANE_DIALOG");
        unsetenv("XDG_CURRENT_DESKTOP");
    }
    void TearDown() override { fs::remove_all(folder); }
    /// Writes its words to "asked", a line each, then does what the body says.
    void Script(const char* name, const std::string& body)
    {
        std::ofstream(folder / name) << "#!/bin/sh\ncd '" << folder.string() << "'\nprintf '%s\\n' \"$@\" >>asked\n"
                                     << body << "\n";
        fs::permissions(folder / name, fs::perms::owner_all);
    }
    std::string Asked()
    {
        std::ifstream file(folder / "asked");
        std::string text((std::istreambuf_iterator<char>(file)), {});
        fs::remove(folder / "asked");
        return text;
    }

    fs::path folder;
    FileQuestion question{false, "Pick", "\\music\\mine", "-a.wav", {{"All", {"*"}}, {"Sounds | loud", {"wav", "aif"}}},
                          1};
};

TEST_F(FileDialogs, AnswersAreTakenAsTheyAre)
{
    // clang-format off
    struct Case { const char *what, *body, *answer; };
    const Case cases[] = {
        {"quotes",               "echo \"/m/it's \\\"it\\\".wav\"", "\\m\\it's \"it\".wav"},
        {"a newline at the end", "printf '/m/a\\n\\n'",             "\\m\\a\n"},
        {"another script",       "printf '/m/\\320\\226\\n'",       "\\m\\\xD0\x96"},
        {"cancelled",            "echo /m/a; exit 1",               ""},
        {"nothing",              "exit 0",                          ""},
        {"killed",               "echo /m/a; kill -9 $$",           ""},
        {"a child holds on",     "sleep 5 & echo /m/a",             "\\m\\a"},
    };
    // clang-format on
    ASSERT_TRUE(Open());
    for (const Case& c : cases) {
        Script("zenity", c.body);
        EXPECT_EQ(window.AskForFile(question), c.answer) << c.what;
    }
    setenv("KORVANE_DIALOG", "/nowhere/zenity", 1);
    EXPECT_EQ(window.AskForFile(question), "");
}

TEST_F(FileDialogs, AskInTheProgramsWords)
{
    ASSERT_TRUE(Open());
    window.AskForFile(question);
    const std::string attach = std::string("--attach=").append(std::to_string(host->window)).append("\n");
    EXPECT_EQ(Asked(), attach + "--modal\n--title=Pick\n--file-selection\n--filename=/music/mine/-a.wav\n"
                                "--file-filter=Sounds   loud | *.wav *.WAV *.aif *.AIF\n--file-filter=All | *\n");
    Script("kdialog", "exit 1");
    setenv("KORVANE_DIALOG", "kdialog", 1);
    question.save = true;
    question.folder.clear();
    window.AskForFile(question);
    EXPECT_EQ(Asked(), attach + "--title=Pick\n--getsavefilename\n./-a.wav\n"
                                "Sounds   loud (*.wav *.WAV *.aif *.AIF);;All (*)\n");
}

// A new file gets its extension; one that exists is replaced only after a yes, otherwise the dialog comes again.
TEST_F(FileDialogs, SavesAskBeforeTheyReplace)
{
    question.save = true;
    question.filters[0].extensions = {"aiff"}; // any would do
    std::ofstream(folder / "old.wav") << "x";
    // clang-format off
    struct Case { const char *what, *body, *name; int questions; };
    const Case cases[] = {
        {"new",               "echo $PWD/new",     "new.wav",  1},
        {"with an extension", "echo $PWD/new.AIF", "new.AIF",  1},
        {"with another dot",  "echo $PWD/new.1",   "new.1.wav", 1},
        {"hidden",            "echo $PWD/.new",    ".new.wav", 1},
        {"yes",               "echo $PWD/old",     "old.wav",  2},
        {"yes, unseen", "case \"$*\" in *--question*) ;; *old.wav*) exit 1;; *) echo $PWD/old; esac", "old.wav", 2},
        {"no, another", "case \"$*\" in *--question*) exit 1;; *old.wav*) echo $PWD/new;; *) echo $PWD/old; esac",
                        "new.wav", 3},
        {"no, none",    "case \"$*\" in *--question*) exit 1;; *old.wav*) exit 1;; *) echo $PWD/old; esac", "", 3},
    };
    // clang-format on
    ASSERT_TRUE(Open());
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        Script("zenity", c.body);
        std::signal(SIGCHLD, std::string(c.what) == "yes, unseen" ? SIG_IGN : SIG_DFL); // as hosts do
        const std::string answer = window.AskForFile(question);
        EXPECT_EQ(answer.substr(answer.rfind('\\') + 1), c.name);
        const std::string asked = Asked();
        EXPECT_EQ(std::count(asked.begin(), asked.end(), '\n') / 6, c.questions) << asked;
    }
}

TEST_F(FileDialogs, AButtonThatComesUpBesideThemIsHeardAfterwards)
{
    Script("zenity", "sleep 0.3; exit 1");
    ear.onMouse = [&](int kind) {
        if (kind != mouse::LeftDown) return;
        window.StartTimer(5);
        window.AskForFile(question);
    };
    ear.onTimer = [&] {
        window.StartTimer(0);
        host->Do("release 1");
    };
    ASSERT_TRUE(Open());
    host->Do("to 5,5 press 1");
    EXPECT_EQ(Heard(100), "move 5,5; L 5,5");
    EXPECT_EQ(Heard(), "l 5,5");
}

// The window ticks on beside a dialog but hears no mouse and no keys, and takes the dialog along when it ends. What
// came up meanwhile is told when the dialog alone ends.
TEST_F(FileDialogs, EndWithTheWindow)
{
    Script("zenity", "echo $$ >pid; sleep 30 & echo $! >>pid; wait");
    pid_t pids[2] = {};
    const std::function<void()> ends[] = {[&] { window.RequestClose(); }, [&] { window.Close(); },
                                          [&] { kill(-pids[0], SIGKILL); }, [&] { host->Destroy(); }};
    host->Do("to 5,5");
    for (const auto& end : ends) {
        ASSERT_TRUE(Open());
        window.TakeFocus();
        window.Grab(false);
        host->Do("down 38");
        EXPECT_EQ(Heard(), "down 41 +0");
        fs::remove(folder / "pid");
        pids[1] = 0;
        ear.onTimer = [&, act = &end] {
            if (pids[1] > 0) return;
            std::ifstream(folder / "pid") >> pids[0] >> pids[1];
            host->Do("up 38 press 1 release 1");
            EXPECT_EQ(window.AskForFile(question), ""); // not two at a time
            EXPECT_TRUE(ear.said.str().empty() && !window.HasGrab());
            if (pids[1] > 0) (*act)();
        };
        window.StartTimer(5);
        EXPECT_EQ(window.AskForFile(question), "");
        EXPECT_EQ(kill(pids[0], 0), -1); // not even a zombie
        const std::string other = std::string("/proc/").append(std::to_string(pids[1])).append("/cmdline");
        EXPECT_TRUE(Soon([&] { return std::ifstream(other).peek() == EOF; }));
        const std::string heard = Heard();
        EXPECT_EQ(heard.empty(), &end == &ends[0] || &end == &ends[3]); // then closing tells
        window.Close();
        EXPECT_EQ(heard + Heard(), "up 41 +0");
    }
}

} // namespace korvane
