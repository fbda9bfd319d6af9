// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

// Sends the default `QSettings` to a folder that disappears with this object, so that a test
// neither reads nor writes the settings of whoever runs it.
class CSettingsSandbox
{
public:
    CSettingsSandbox()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("Ostrand"));
        QCoreApplication::setApplicationName(QStringLiteral("nerix-viewer"));
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
    }

    QString path() const
    {
        return m_folder.path();
    }

private:
    QTemporaryDir m_folder;
};
