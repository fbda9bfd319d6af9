// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace rui::test {

// Reads the database with nothing but SQLite, so that no defect of the library hides another.

using Row = std::vector<std::string>;

// The rows of a query, each column as text; NULL is "(null)".
std::vector<Row> query(const std::string &directory, const std::string &sql);

// The first column of the first row.
std::string queryValue(const std::string &directory, const std::string &sql);

// The texts of all records, oldest first.
std::vector<std::string> storedTexts(const std::string &directory);

// Runs statements that change the database.
void change(const std::string &directory, const std::string &sql);

std::string databasePath(const std::string &directory);

// Renames the database with its journal, as one who sets it aside does.
void moveDatabase(const std::string &directory, const std::string &target);

} // namespace rui::test
