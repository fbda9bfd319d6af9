// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <QObject>

namespace Plugin::UsageTracking::Internal {

/// Calls a function each time the application's catalogues change, so that a text can be set anew
/// in the language that is in use from then on. GUI thread; ends with its parent.
class CLanguageListener : public QObject
{
public:
    /// Hears nothing in a program without an application object.
    CLanguageListener(std::function<void()> onLanguageChanged, QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::function<void()> m_onLanguageChanged;
};

} // namespace Plugin::UsageTracking::Internal
