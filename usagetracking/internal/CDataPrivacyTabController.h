// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

namespace Plugin::UsageTracking::Internal {

/// The consent as the page shows it and as it is applied. The page binds to the properties by name;
/// what the user picks there changes nothing for tracking until Apply is pressed. GUI thread; a
/// child of the tab.
class CDataPrivacyTabController : public QObject
{
    Q_OBJECT

    /// The user has applied an answer at least once. Never falls back to false.
    Q_PROPERTY(bool dataPrivacyOptInSelected READ dataPrivacyOptInSelected WRITE
                   setDataPrivacyOptInSelected NOTIFY dataPrivacyOptInSelectedChanged)
    /// The answer to show: the one picked on the page, or the applied one if none is pending.
    Q_PROPERTY(bool dataPrivacyOptInEnabled READ dataPrivacyOptInEnabled WRITE
                   setDataPrivacyOptInEnabled NOTIFY dataPrivacyOptInEnabledChanged)
    /// The page holds an answer that is not applied. Falls on Apply only.
    Q_PROPERTY(bool dataPrivacyApplyEnabled READ dataPrivacyApplyEnabled NOTIFY
                   dataPrivacyApplyEnabledChanged)

public:
    explicit CDataPrivacyTabController(QObject *parent);

    bool dataPrivacyOptInSelected() const;
    void setDataPrivacyOptInSelected(bool value);

    bool dataPrivacyOptInEnabled() const;

    /// \a byUser tells a click on the page, which waits for Apply, from the stored answer, which is
    /// applied at once.
    void setDataPrivacyOptInEnabled(bool value, bool byUser = true);

    bool dataPrivacyApplyEnabled() const;

    /// The answer in force: true = participate.
    bool appliedOptInEnabled() const;

Q_SIGNALS:
    void dataPrivacyOptInSelectedChanged();
    void dataPrivacyOptInEnabledChanged();
    void dataPrivacyApplyEnabledChanged();

    /// An answer was applied; everything above tells the new state already.
    void dataPrivacyApplyClicked();

public Q_SLOTS:
    /// The page's Apply button.
    void onDataPrivacyApplyClicked();

    /// A link on the page: the privacy statement is shown by the viewer's help, any other address
    /// by the browser.
    void onDataPrivacyLinkClicked(QString url);

private:
    bool optInSelected = false;
    bool optInEnabled = false;
    bool pendingOptInEnabled = false;
    bool applyEnabled = false;
};

} // namespace Plugin::UsageTracking::Internal
