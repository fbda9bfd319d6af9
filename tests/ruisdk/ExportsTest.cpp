// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "Child.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

namespace {

TEST(Exports, AreTheFunctionsOfTheHeaderAndNothingElse)
{
    const auto outcome = rui::test::runProgram(
        {"nm", "-D", "--defined-only", "--format=just-symbols", RUI_SDK_LIBRARY});
    ASSERT_EQ(outcome.status, 0) << outcome.errors;
    std::istringstream lines(outcome.output);
    std::set<std::string> names;
    for (std::string line; lines >> line;) {
        names.insert(line);
    }
    EXPECT_EQ(
        names,
        (std::set<std::string>{
            "ruiCreateConfig",  "ruiCreateInstance", "ruiDestroyInstance",  "ruiFlush",
            "ruiGetClientId",   "ruiGetPolicy",      "ruiIsDeliveryPaused", "ruiOptOut",
            "ruiPauseDelivery", "ruiResultText",     "ruiResumeDelivery",   "ruiSetCaFile",
            "ruiSetLogHook",    "ruiSetProductData", "ruiSetProxy",         "ruiSetRequestHeader",
            "ruiStartSDK",      "ruiStopSDK",        "ruiTrackEvent",       "ruiTrackEventText",
            "ruiVersion"}));
}

TEST(Exports, AreBoundToTheMajorVersionByTheNameThatProgramsLoad)
{
    const auto outcome = rui::test::runProgram({"objdump", "-p", RUI_SDK_LIBRARY});
    ASSERT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_NE(outcome.output.find("SONAME               libruiSDK.so.7\n"), std::string::npos)
        << outcome.output;
}

} // namespace
