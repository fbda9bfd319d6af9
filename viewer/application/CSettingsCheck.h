// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>
#include <QString>

namespace Application {

/// Whether what is written to the default settings while this object lives is kept: on a full disk
/// the file stays as it was, and who writes is told only if he asks. GUI thread.
class CSettingsCheck
{
public:
    CSettingsCheck();

    /// After the last that is written; tries once more to write what could not be.
    /// @return what is wrong, for the user; null if nothing is, or if the settings could not be
    /// written from the beginning, which the user was told then.
    QString problem();

    /// Puts that into the user's present language; the translations are gone at the end.
    void translate();

private:
    // What is not written yet is known only as long as somebody uses the file.
    QSettings m_settings;
    QString m_problem;
    bool m_wasWritable;
};

} // namespace Application
