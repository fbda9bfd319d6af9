// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <FeatureTree/IFeatureTreeStatusService.h>

namespace FeatureTree {

/// What the viewer's own windows and scripts do with the current feature. GUI thread.
class IFeatureSelectionService : public IFeatureTreeStatusService
{
    Q_OBJECT

public:
    /// Null until the first feature is selected.
    virtual QSharedPointer<ParameterCollection::IParameter> current() const = 0;

    /// Makes \a parameter the current one. Emits `currentChanged` if that is a change. Null is
    /// ignored.
    virtual void select(const QSharedPointer<ParameterCollection::IParameter> &parameter) = 0;

protected:
    using IFeatureTreeStatusService::IFeatureTreeStatusService;
};

} // namespace FeatureTree
