// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/featurefiles/CLoadReport.h"

#include <QDialog>

class QTreeWidget;

namespace FeatureFiles {

/// Lists the features that a camera did not take from a file, with the reasons. GUI thread.
class CLoadReportDialog : public QDialog
{
    Q_OBJECT

public:
    CLoadReportDialog(const QString &cameraName, const CLoadReport &report,
                      QWidget *parent = nullptr);
    ~CLoadReportDialog() override;

private:
    void createList(const CLoadReport &report);
    void createButtons();

    /// Puts the rows that are selected, or all if none is, into the clipboard: name, tab, reason.
    void copy();

    QTreeWidget *m_list;
};

} // namespace FeatureFiles
