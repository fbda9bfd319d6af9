// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/featuretree/CFeatureController.h"
#include "plugins/featuretree/CFeatureFilter.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QShortcut;
class QStackedWidget;
class QToolButton;

namespace Windows {
class CPlainLabel;
}

namespace FeatureTree {

class CFeatureView;

/// The panel with the features of the selected camera: a search field, the level of what is shown,
/// the tree, the explanation of the current feature and the last refusal. GUI thread.
class CFeaturePanel : public QWidget
{
    Q_OBJECT

public:
    explicit CFeaturePanel(const CFeatureServices &services, QWidget *parent = nullptr);
    ~CFeaturePanel() override;

    /// What the panel shows, for who wants to know without looking.
    CFeatureController &controller()
    {
        return m_controller;
    }

private:
    void createWidgets();
    QWidget *createSearchRow();
    QWidget *createProblemRow();
    void connectWidgets();
    void setTexts();
    void restoreLevel();
    void setLevel(int level);
    void search(const QString &text);
    void showNotice();
    void showProblem();
    void explain(int feature);
    void onSelected(int feature);

    CFeatureController m_controller;
    CFeatureFilter m_filter;
    QLineEdit *m_search = nullptr;
    QComboBox *m_level = nullptr;
    QStackedWidget *m_stack = nullptr;
    CFeatureView *m_view = nullptr;
    Windows::CPlainLabel *m_notice = nullptr;
    QLabel *m_explanation = nullptr;
    QWidget *m_problemRow = nullptr;
    Windows::CPlainLabel *m_problem = nullptr;
    QToolButton *m_dismiss = nullptr;
    QShortcut *m_escape = nullptr; // ends the problem
    int m_explained = -1;          // the feature that is explained; -1 for none
};

} // namespace FeatureTree
