// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

namespace PluginSystem {

/// The shared libraries directly in \a folder as absolute paths, by file name. If \a folder cannot
/// be read, none, and \a error gets a line that says why.
QStringList librariesIn(const QString &folder, QString &error);

} // namespace PluginSystem
