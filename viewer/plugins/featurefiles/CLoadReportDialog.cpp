// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featurefiles/CLoadReportDialog.h"

#include "windows/CPlainLabel.h"
#include "windows/ShownText.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace FeatureFiles {

namespace {

// In widths of an average letter and heights of a line, so that it grows with the font.
constexpr int widthInLetters = 90;
constexpr int heightInLines = 20;

QString summaryOf(const CLoadReport &report)
{
    QStringList lines{report.summary(), report.leftAloneHint(), report.connectionHint()};
    lines.removeAll(QString());
    return lines.join(QLatin1Char('\n'));
}

} // namespace

CLoadReportDialog::CLoadReportDialog(const QString &cameraName, const CLoadReport &report,
                                     QWidget *parent)
    : QDialog(parent)
    , m_list(new QTreeWidget)
{
    setWindowTitle(tr("Load Features"));
    auto *summary = new Windows::CPlainLabel(
        tr("Some features of %1 do not have the value of the file.").arg(cameraName)
        + QLatin1Char('\n') + summaryOf(report));
    summary->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(summary);
    layout->addWidget(m_list, 1);
    createList(report);
    createButtons();
    resize(fontMetrics().averageCharWidth() * widthInLetters,
           fontMetrics().lineSpacing() * heightInLines);
}

CLoadReportDialog::~CLoadReportDialog() = default;

void CLoadReportDialog::createList(const CLoadReport &report)
{
    m_list->setObjectName(QStringLiteral("FeatureFiles.Refused"));
    m_list->setAccessibleName(tr("Features that were not set"));
    m_list->setHeaderLabels({tr("Feature"), tr("Reason")});
    m_list->setRootIsDecorated(false);
    m_list->setAlternatingRowColors(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (const CLoadReport::Refused &refused : report.refused) {
        auto *row = new QTreeWidgetItem(
            m_list, {Windows::shownLine(refused.name), Windows::shownLine(refused.reason)});
        row->setToolTip(1, Windows::toolTipText(refused.reason));
    }
    m_list->resizeColumnToContents(0);
    m_list->setCurrentItem(m_list->topLevelItem(0), 0, QItemSelectionModel::NoUpdate);
}

void CLoadReportDialog::createButtons()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto *copyButton = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    connect(copyButton, &QPushButton::clicked, this, &CLoadReportDialog::copy);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(new QShortcut(QKeySequence::Copy, m_list), &QShortcut::activated, this,
            &CLoadReportDialog::copy);
    layout()->addWidget(buttons);
    m_list->setFocus();
}

void CLoadReportDialog::copy()
{
    const bool isAll = m_list->selectedItems().isEmpty();
    QString text;
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *row = m_list->topLevelItem(i);
        if (isAll || row->isSelected()) {
            text += row->text(0) + QLatin1Char('\t') + row->text(1) + QLatin1Char('\n');
        }
    }
    QGuiApplication::clipboard()->setText(text);
}

} // namespace FeatureFiles
