// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QPair>
#include <QString>
#include <QVector>

namespace ParameterCollectionPool {

/// The values of a tree as text that can be loaded again.
///
/// The first line is "# nerix feature stream 1: 37 features, 2 not readable": the version of the
/// format, the number of the lines that follow, and how many features were left out because they
/// could not be read. Then a line a feature in tree order: name, tab, value. In a value, backslash,
/// tab, line feed and carriage return are written as \\, \t, \n and \r.
namespace FeatureStream {

/// A feature's name without the tree, and its value.
using Line = QPair<QString, QString>;

QString format(const QVector<Line> &lines, int notReadable);

/// The lines of \a stream.
/// @throws ParameterCollection::CParameterException if it is no feature stream of version 1, or a
/// line is damaged; the message names the line.
QVector<Line> parse(const QString &stream);

} // namespace FeatureStream
} // namespace ParameterCollectionPool
