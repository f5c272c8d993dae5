// Where the instrument looks for its content.
#include <gtest/gtest.h>

#include "content/ContentFolders.h"
#include "platform/Files.h"
#include "platform/ModulePath.h"
#include "platform/Registry.h"
#include "shell/CPluginDefinition.h"
#include "support/ContentRoot.h"

namespace korvane {
namespace {

// The user's setting, then the machine's, then the folder of the plug-in; under the native host only that.
TEST(ContentFolders, AreFoundByTheSettingOfUserThenMachine)
{
    const std::string module = std::filesystem::read_symlink("/proc/self/exe").parent_path();
    const std::string longest(1023, 'x');
    // clang-format off
    struct Case { const char* what; std::string user, home, machine, other; int kind; std::string root; }; // lines of the settings
    const Case cases[] = {
        {"the user's",        "rootFolder=/u", "",               "rootFolder=/m", "",              host::Vst2,    "/u"},
        {"under nobody",      "rootFolder=/u", "",               "",              "",              host::Unknown, "/u"},
        {"native host",       "rootFolder=/u", "",               "rootFolder=/m", "",              host::Native,  module},
        {"the machine's",     "rootfolder=/u", "",               "rootFolder=/m", "rootFolder=/o", host::Vst2,    "/m"},
        {"its second folder", "",              "",               "skin=1",        "rootFolder=/o", host::Vst2,    "/o"},
        {"nobody's",          "rootFolder",    "",               "",              "",              host::Vst2,    module},
        {"of the home",       "-",             "rootFolder=/h",  "rootFolder=/m", "",              host::Vst2,    "/h"},
        {"blanks, a comment", "# x=y\n rootFolder =  /u v\t\r\nrootFolder=/w", "", "", "",         host::Vst2,    "/u v"},
        {"too long",          std::string("rootFolder=/") + longest, "",      "",              "",              host::Vst2,    std::string("/") + longest.substr(1)},
    };
    // clang-format on
    const ContentRoot root;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const auto path = [&root](const char* name) { return (root.path / name).string(); };
        for (const auto& [folder, lines] :
             {std::pair{"u", c.user}, {"h/.config", c.home}, {"m", c.machine}, {"o", c.other}})
            WriteText(root.path / folder / "Brassmoor/Korvane.conf", lines);
        setenv("XDG_CONFIG_HOME", c.home.empty() ? path("u").c_str() : "", 1);
        setenv("HOME", path("h").c_str(), 1);
        setenv("XDG_CONFIG_DIRS", ("relative:" + path("m") + ":" + path("o")).c_str(), 1);
        EXPECT_EQ(ContentFolders::Find(c.kind).root, EnginePath(c.root.c_str()));
    }
    char text[4] = "";
    setenv("XDG_CONFIG_HOME", (root.path / "u").c_str(), 1);
    EXPECT_TRUE(ReadRegistryText("Brassmoor\\Korvane", "rootFolder", text, sizeof text));
    EXPECT_STREQ(text, "/xx") << "as many bytes as there is room for";
}

} // namespace
} // namespace korvane
