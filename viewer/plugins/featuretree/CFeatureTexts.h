// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/featuretree/CFeatureDescription.h"
#include "plugins/featuretree/CFeatureState.h"

#include <QCoreApplication>
#include <QString>

namespace FeatureTree {
/// The words for what a window shows of a feature.
class CFeatureTexts
{
    Q_DECLARE_TR_FUNCTIONS(FeatureTree::CFeatureTexts)

public:
    /// The value as the tree shows it: with the unit, for example "5000 us", or a word on why there
    /// is none. Empty for a boolean and a category.
    static QString value(const CFeatureDescription &description, const CFeatureState &state);

    /// What may be given, for example "16 to 2048 in steps of 4"; empty if nothing limits it.
    static QString limits(const CFeatureDescription &description, const CFeatureState &state);

    /// The explanation as rich text: the description of the device, the limits, whether it is
    /// locked or can only be read, and the GenICam name.
    static QString toolTip(const CFeatureDescription &description, const CFeatureState &state);

    /// What stands for the value of a command that was just executed.
    static QString executed();

    /// The value for a screen reader, for example "on, locked".
    static QString spoken(const CFeatureDescription &description, const CFeatureState &state);

    /// Why \a typed cannot be taken as a number for the feature, with what can; one line.
    static QString noNumber(const CFeatureDescription &description, const CFeatureState &state,
                            const QString &typed);

    /// \a message, which names a feature of the camera with its tree, without the tree.
    static QString withoutTree(QString message);
};

} // namespace FeatureTree
