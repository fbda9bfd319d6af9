// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "FeatureParameters.h"

namespace ParameterCollectionPool {

using namespace ParameterCollection;

QSharedPointer<IParameter> createParameter(const CFeature &feature)
{
    switch (feature.type) {
    case InterfaceInteger:
        return QSharedPointer<CIntegerFeature>::create(feature);
    case InterfaceFloat:
        return QSharedPointer<CFloatFeature>::create(feature);
    case InterfaceBoolean:
        return QSharedPointer<CBooleanFeature>::create(feature);
    case InterfaceEnumeration:
        return QSharedPointer<CEnumerationFeature>::create(feature);
    default:
        return QSharedPointer<CPlainFeature>::create(feature);
    }
}

} // namespace ParameterCollectionPool
