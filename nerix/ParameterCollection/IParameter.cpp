// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <ParameterCollection/IParameter.h>

namespace ParameterCollection {

IParameter::IParameter(QObject *parent)
    : QObject(parent)
{}

IParameter::~IParameter() = default;

AccessMode IParameter::accessMode() const
{
    if (isNull()) {
        return AccessNotImplemented;
    }
    if (isUnavailable()) {
        return AccessNotAvailable;
    }
    if (!isReadable()) {
        return isUserSettable() ? AccessWriteOnly : AccessNotAvailable;
    }
    return isUserSettable() ? AccessReadWrite : AccessReadOnly;
}

QString IParameter::displayName() const
{
    return name();
}

QString IParameter::toolTip() const
{
    return {};
}

QString IParameter::unit() const
{
    return {};
}

Visibility IParameter::visibility() const
{
    return VisibilityBeginner;
}

QString IParameter::category() const
{
    return {};
}

} // namespace ParameterCollection
