// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// What the window asks before it writes or deletes.

#include "plugins/usagedatalog/CEventModel.h"
#include "plugins/usagedatalog/CEventStore.h"
#include "plugins/usagedatalog/CUsageDataLogWindow.h"
#include "windows/MessageBox.h"

#include <QFileDialog>
#include <QPushButton>

namespace Plugin {
namespace UsageDataLog {

void CUsageDataLogWindow::chooseExport()
{
    auto *dialog = new QFileDialog(this, tr("Export All Events"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({tr("JSON lines (*.jsonl)"), tr("CSV for spreadsheets (*.csv)")});
    dialog->setDefaultSuffix(QStringLiteral("jsonl"));
    connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString &filter) {
        dialog->setDefaultSuffix(filter.contains(QLatin1String(".csv")) ? QStringLiteral("csv")
                                                                        : QStringLiteral("jsonl"));
    });
    connect(dialog, &QFileDialog::fileSelected, this, &CUsageDataLogWindow::exportTo);
    dialog->open();
}

void CUsageDataLogWindow::chooseHandOver()
{
    auto *dialog = new QFileDialog(this, tr("Hand Over the Waiting Events"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({tr("Events for the service (*.jsonl)")});
    dialog->setDefaultSuffix(QStringLiteral("jsonl"));
    // Another file with events is never replaced; who chooses one is told.
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    connect(dialog, &QFileDialog::fileSelected, this, &CUsageDataLogWindow::handOverTo);
    dialog->open();
}

void CUsageDataLogWindow::askToDelete()
{
    auto *question = Windows::newMessageBox(
        QMessageBox::Question, tr("Delete All Events"),
        tr("Delete all %1 events? Those that wait will never be delivered. If you have agreed to "
           "recording, it goes on.")
            .arg(m_store.model().rowCount()),
        QMessageBox::NoButton, this);
    const auto *yes = question->addButton(tr("&Delete"), QMessageBox::DestructiveRole);
    question->setDefaultButton(question->addButton(QMessageBox::Cancel));
    connect(yes, &QAbstractButton::clicked, &m_store, &CEventStore::deleteAll);
    question->open();
}

} // namespace UsageDataLog
} // namespace Plugin
