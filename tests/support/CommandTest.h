// Commands of the shell, and what they leave.
#pragma once

#include <gtest/gtest.h>

#include "support/ContentRoot.h"

namespace korvane {

/// A folder of a test's own, whose commands run in it.
struct CommandTest : testing::Test {
    CommandTest() { std::filesystem::create_directories(folder); }
    ~CommandTest() override { std::filesystem::remove_all(folder); }

    struct Answer {
        int status;
        std::string output, errors, calls;

        bool Says(const std::string& part) const { return output.find(part) != std::string::npos; }
        bool Complains(const std::string& part) const { return errors.find(part) != std::string::npos; }
        bool Called(const std::string& part) const { return calls.find(part) != std::string::npos; }
    };
    Answer Shell(const std::string& command) const
    {
        const std::string in = "cd '" + folder.string() + "' && rm -f calls && ", to = " >'" + folder.string() + "/";
        const int status = std::system((in + command + to + "out' 2>'" + folder.string() + "/err' </dev/null").c_str());
        return {WEXITSTATUS(status), Text("out"), Text("err"), Text("calls")};
    }
    std::string Text(const char* name) const { return ReadBytes<std::string>(folder / name); }

    const std::filesystem::path folder =
        std::filesystem::path(testing::TempDir()) / ("korvane commands." + std::to_string(getpid()));
};

} // namespace korvane
