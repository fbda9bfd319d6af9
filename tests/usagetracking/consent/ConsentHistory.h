// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "ConsentModel.h"
#include "PluginFixture.h"

#include <functional>
#include <memory>

#include <QTemporaryDir>

/// One history of steps, played on the real plug-in and on the model side by side.
///
/// Histories run beside each other, each with settings and a tracking thread of its own, since
/// every request takes 100 ms of real time.
class ConsentHistory
{
public:
    /// \a letters, one a step: 'y' and 'n' click, 'a' applies, 'r' shuts down and starts again.
    ConsentHistory(bool storedEnabled, bool storedSelected, const QString &letters);

    void start();
    void step(int index);
    void shutDown();

    /// Calls \a done in the tracking thread when everything scheduled so far has run there.
    void whenSettled(const std::function<void()> &done) const;

    /// What differs between plug-in and model, or was done without consent; empty if all is well.
    /// To be asked once after every step.
    QString fault();

private:
    void useOwnSettings() const;
    void listen();
    QStringList calls() const;
    QString withoutConsent();

    const QString m_letters;
    QString m_played;
    ConsentModel m_model;
    QTemporaryDir m_settings;
    std::unique_ptr<PluginFixture> m_viewer;
    QStringList m_notifications;
    QStringList m_callsOfEarlierRuns;
    bool m_hadConsent = false;
    int m_callsSoFar = 0;
};
