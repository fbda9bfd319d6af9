// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
//
// Withdraws consent as a program does, and reports each result on standard output, as "optOut 6":
//
//     rui-test-withdrawer DIRECTORY [HOST]
#include "Session.h"

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc < 2) {
        return 98;
    }
    rui::test::Session session;
    std::printf("config %d\n", session.config(argv[1], argc > 2 ? argv[2] : ""));
    std::printf("product %d\n", session.product());
    std::printf("optOut %d\n", session.optOut());
    std::printf("start %d\n", session.start());
    std::printf("track %d\n", session.track("after the withdrawal"));
    std::printf("stop %d\n", session.stop());
    return 0;
}
