// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// What the thread sanitizer reports of Qt's own libraries, whose locks it does not see. A reason
// for each line; none may cover code of ours.

#ifdef __SANITIZE_THREAD__

extern "C" __attribute__((visibility("default"))) const char *__tsan_default_suppressions();

const char *__tsan_default_suppressions()
{
    return
        // Every QtTest program has a thread of Qt's that watches for a test that hangs. This leaves
        // out what the library calls directly, not what the tests do that it calls.
        "called_from_lib:libQt5Test.so.5\n"
        // A QThread that has ended is destroyed together with the condition by which it announced
        // its end. The lock around the announcement is Qt's.
        "race:QWaitCondition::~QWaitCondition\n";
}

#endif
