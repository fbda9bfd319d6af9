// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <ParameterCollection/InterfaceType.h>
#include <ParameterCollection/Visibility.h>

#include <QMetaType>
#include <QString>

namespace FeatureTree {

/// What the description of a device says of a feature for good. A value.
struct CFeatureDescription
{
    QString fullName;    ///< with the tree, for example "@CameraDevice/ExposureTime"
    QString name;        ///< without it
    QString displayName; ///< for people
    QString toolTip;     ///< a sentence or so; may be empty
    QString unit;        ///< may be empty
    QString category;    ///< the full name of the category that it is in; empty at the top
    ParameterCollection::InterfaceType type = ParameterCollection::InterfaceBase;
    ParameterCollection::Visibility visibility = ParameterCollection::VisibilityBeginner;

    bool isCategory() const
    {
        return type == ParameterCollection::InterfaceCategory;
    }
};

} // namespace FeatureTree

Q_DECLARE_METATYPE(FeatureTree::CFeatureDescription)
