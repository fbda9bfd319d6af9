// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "policy/CUsagePolicy.h"

#include <QDialog>
#include <QTimer>

class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTableView;

namespace Windows {
class CPlainLabel;
}

namespace Plugin {
namespace UsageDataLog {

class CConsentWatch;
class CEventFilter;
class CEventStore;

/// Help > "Usage Data Log": everything that is kept of how the viewer is used, as it comes, and
/// what can be done with it. GUI thread. It watches the store while it is shown.
class CUsageDataLogWindow : public QDialog
{
    Q_OBJECT

public:
    /// \a store and \a consent must outlive the window.
    CUsageDataLogWindow(CEventStore &store, CConsentWatch &consent,
                        Policy::CUsagePolicy policy = {}, QWidget *parent = nullptr);
    ~CUsageDataLogWindow() override;

    /// Writes all events to \a file, as the Export button does once a file is chosen: a name that
    /// ends with ".csv" means CSV, any other JSON lines.
    void exportTo(const QString &file);

    /// Hands the waiting events over in the new \a file, as the button does once it is chosen.
    void handOverTo(const QString &file);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void makeTable();
    void makeButtons();
    void layOut();
    void setTexts();
    void updateConsent();
    void updateState();
    void updateRecord();
    void chooseExport();
    void chooseHandOver();
    QString identityText() const;
    void askToDelete();
    QString stateText() const;
    void say(const QString &text);

    CEventStore &m_store;
    CConsentWatch &m_consent;
    const Policy::CUsagePolicy m_policy;
    CEventFilter *m_filter;
    Windows::CPlainLabel *m_consentText;
    QPushButton *m_consentButton;
    Windows::CPlainLabel *m_identityText;
    QLineEdit *m_search;
    QTableView *m_table;
    QPlainTextEdit *m_record;
    Windows::CPlainLabel *m_stateText;
    Windows::CPlainLabel *m_notice;
    QPushButton *m_exportButton;
    QPushButton *m_handOverButton;
    QPushButton *m_deleteButton;
    QPushButton *m_closeButton;
    QTimer m_stateTimer;  // many events that come at once are counted once
    QTimer m_searchTimer; // the store may hold megabytes
};

} // namespace UsageDataLog
} // namespace Plugin
