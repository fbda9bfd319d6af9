// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "application/CSettingsCheck.h"

#include <QCoreApplication>
#include <QDir>

namespace Application {

CSettingsCheck::CSettingsCheck()
    : m_wasWritable(m_settings.isWritable())
{
    translate();
}

QString CSettingsCheck::problem()
{
    m_settings.sync();
    const bool isKept = m_settings.status() != QSettings::AccessError;
    return isKept || !m_wasWritable ? QString() : m_problem;
}

void CSettingsCheck::translate()
{
    m_problem = QCoreApplication::translate(
                    "Application::Settings",
                    "The settings could not be kept in %1, so the next start has those of before, "
                    "with your earlier answer about usage data: make room on the disk, or make the "
                    "file writable.")
                    .arg(QDir::toNativeSeparators(m_settings.fileName()));
}

} // namespace Application
