// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/featuretree/IFeatureSelectionService.h"

namespace FeatureTree {

/// Holds the current feature. GUI thread.
class CFeatureSelectionService : public IFeatureSelectionService
{
    Q_OBJECT

public:
    explicit CFeatureSelectionService(QObject *parent = nullptr);
    ~CFeatureSelectionService() override;

    QSharedPointer<ParameterCollection::IParameter> current() const override;
    void select(const QSharedPointer<ParameterCollection::IParameter> &parameter) override;

private:
    QSharedPointer<ParameterCollection::IParameter> m_current;
};

} // namespace FeatureTree
