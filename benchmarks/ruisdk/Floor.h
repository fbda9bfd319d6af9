// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <string>

namespace rui::benchmarks {

// What a track call cannot beat: one prepared insert of the same row by bare SQLite with the same
// pragmas, committed when it returns. Several of them may stand on one file.
class BareInsert
{
public:
    explicit BareInsert(const std::string &path);
    ~BareInsert();
    BareInsert(const BareInsert &) = delete;
    BareInsert &operator=(const BareInsert &) = delete;

    void run(const std::string &text);

private:
    sqlite3 *m_database = nullptr;
    sqlite3_stmt *m_insert = nullptr;
};

} // namespace rui::benchmarks
