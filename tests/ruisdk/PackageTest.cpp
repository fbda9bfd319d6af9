// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// The installed library as another project finds it.
#include "Child.h"
#include "StoredRecords.h"
#include "TemporaryDirectory.h"

#include <gtest/gtest.h>

namespace {

using namespace rui::test;

void mustRun(const std::vector<std::string> &command)
{
    const Outcome outcome = runProgram(command);
    ASSERT_EQ(outcome.status, 0) << outcome.output << outcome.errors;
}

TEST(Package, IsFoundAndUsedByAnOutsideProject)
{
    const TemporaryDirectory directory;
    const std::string prefix = directory.path("prefix");
    const std::string build = directory.path("build");
    mustRun({RUI_CMAKE, "--install", RUI_SDK_BUILD_DIR, "--prefix", prefix});
    mustRun({RUI_CMAKE, "-S", RUI_OUTSIDE_PROJECT, "-B", build, "-G", "Ninja",
             "-DCMAKE_PREFIX_PATH=" + prefix, std::string("-DCMAKE_C_FLAGS=") + RUI_C_FLAGS});
    mustRun({RUI_CMAKE, "--build", build});
    mustRun({build + "/outside", directory.path("data")});
    EXPECT_EQ(storedTexts(directory.path("data")), std::vector<std::string>{"text"});
    const Outcome listed =
        runProgram({prefix + "/bin/rui-events", "--raw", directory.path("data")});
    EXPECT_EQ(listed.output, "Outside\tRan\ttext\n") << listed.errors;
}

// What stands after the licence and the comment.
std::string withoutHead(const std::string &file, const std::string &firstWord)
{
    const std::string text = readFile(file);
    return text.substr(text.find(firstWord));
}

TEST(Package, DocumentShowsThatProject)
{
    const std::string document = readFile(RUI_DOCUMENT);
    const std::string project = RUI_OUTSIDE_PROJECT;
    EXPECT_NE(document.find("```c\n" + withoutHead(project + "/main.c", "#include") + "```\n"),
              std::string::npos);
    EXPECT_NE(document.find("```cmake\n"
                            + withoutHead(project + "/CMakeLists.txt", "cmake_minimum_required")
                            + "```\n"),
              std::string::npos);
}

} // namespace
