// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CFeatureSelectionService.h"

namespace FeatureTree {

CFeatureSelectionService::CFeatureSelectionService(QObject *parent)
    : IFeatureSelectionService(parent)
{}

CFeatureSelectionService::~CFeatureSelectionService() = default;

QSharedPointer<ParameterCollection::IParameter> CFeatureSelectionService::current() const
{
    return m_current;
}

void CFeatureSelectionService::select(
    const QSharedPointer<ParameterCollection::IParameter> &parameter)
{
    if (parameter && parameter != m_current) {
        m_current = parameter;
        Q_EMIT currentChanged(parameter);
    }
}

} // namespace FeatureTree
