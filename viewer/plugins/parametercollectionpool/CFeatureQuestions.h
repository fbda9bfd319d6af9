// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "FeatureTree.h"

#include <ParameterCollection/AccessMode.h>
#include <ParameterCollection/Visibility.h>

#include <QString>

namespace ParameterCollectionPool {

/// What can be asked of every feature, whatever its kind. The device is asked only for what
/// changes; what the description says for good costs next to nothing. Callable in any thread.
class CFeatureQuestions
{
public:
    explicit CFeatureQuestions(CFeature feature);

    const CFeature &feature() const
    {
        return m_feature;
    }

    /// @name Never throw; of a device that is gone everything is denied
    /// @{
    bool isUnavailable() const;
    bool isReadable() const;
    bool isUserSettable() const;
    ParameterCollection::AccessMode accessMode() const;
    QString displayName() const;
    QString toolTip() const;
    QString unit() const;
    ParameterCollection::Visibility visibility() const;
    /// @}

    /// @throws ParameterCollection::CParameterException
    QString readText() const;

    /// Checks \a text as something that could be set now. @return it in the notation of `readText`.
    /// @throws ParameterCollection::CParameterException with the reason and the limits.
    QString checkText(const QString &text) const;

    /// Sets what `checkText` gave.
    /// @throws ParameterCollection::CParameterException
    void writeText(const QString &value) const;

private:
    const CFeature m_feature;
};

} // namespace ParameterCollectionPool
