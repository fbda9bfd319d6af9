// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/Folders.h"

#include <QCoreApplication>
#include <QDir>

namespace Application {

namespace {

QString besideProgram(const QString &folder)
{
    return QDir::cleanPath(QDir(QCoreApplication::applicationDirPath()).filePath(folder));
}

} // namespace

QString pluginFolder()
{
    return besideProgram(QStringLiteral("../lib/nerix/plugins"));
}

QString documentFolder()
{
    return besideProgram(QStringLiteral("../share/doc/nerix-viewer"));
}

QString eventsTool()
{
    return besideProgram(QStringLiteral("rui-events"));
}

} // namespace Application
