// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CFeatureRig.h"
#include "plugins/featuretree/CFeaturePanel.h"
#include "plugins/featuretree/CFeatureView.h"
#include "support/CSettingsSandbox.h"

#include <memory>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

// A feature panel on the screen, with the camera of a `CFeatureRig`, and what a user does with it.
class CPanelRig
{
public:
    CPanelRig();
    ~CPanelRig();

    CFeatureRig features;

    // Makes the panel, shows it, selects the camera and opens it. False if the tree does not show
    // the features in the end.
    bool open();

    // Makes the panel and shows it; with other services in place of those of the rig.
    bool show();
    bool show(const FeatureTree::CFeatureServices &services);

    FeatureTree::CFeaturePanel &panel()
    {
        return *m_panel;
    }
    FeatureTree::CFeatureView &view() const;
    QLineEdit &search() const;
    QComboBox &level() const;

    // What stands in place of the tree; null if the tree is there.
    QString notice() const;

    // The message about what went wrong; null if there is none.
    QString problem() const;

    // The row of the feature, and its value as the tree shows it.
    QModelIndex row(const char *name) const;
    QString value(const char *name) const;

    // Where the check box of the feature is in the viewport.
    QRect checkBox(const char *name) const;

    // Makes the row current, as the arrow keys do, and returns once its value is known.
    bool goTo(const char *name);

    // The editor that is open; null if there is none.
    QWidget *editor() const;

    // Goes to the row, begins to edit, types and presses \a end.
    bool edit(const char *name, const char *typed, Qt::Key end);

private:
    CSettingsSandbox m_settings;
    std::unique_ptr<FeatureTree::CFeaturePanel> m_panel;
};
