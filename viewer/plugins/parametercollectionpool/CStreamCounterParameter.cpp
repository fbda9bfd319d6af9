// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CStreamCounterParameter.h"

#include <ParameterCollection/CParameterException.h>

#include <utility>

namespace ParameterCollectionPool {

using namespace ParameterCollection;

CStreamCounterParameter::CStreamCounterParameter(QSharedPointer<CameraPool::CDevice> device,
                                                 int index)
    : m_device(std::move(device))
    , m_index(index)
{}

CStreamCounterParameter::~CStreamCounterParameter() = default;

QString CStreamCounterParameter::treePrefix()
{
    return QStringLiteral("@StreamGrabber0/");
}

QString CStreamCounterParameter::name() const
{
    return QString::fromLatin1(CameraPool::CStreamCounters::name(m_index));
}

QString CStreamCounterParameter::fullName() const
{
    return treePrefix() + name();
}

InterfaceType CStreamCounterParameter::interfaceType() const
{
    return InterfaceInteger;
}

bool CStreamCounterParameter::isUnavailable() const
{
    return !isReadable();
}

bool CStreamCounterParameter::isReadable() const
{
    return m_device->counters().at(m_index).has_value();
}

QString CStreamCounterParameter::valueText() const
{
    return QString::number(value());
}

void CStreamCounterParameter::setValueText(const QString &)
{
    throw CParameterException(QStringLiteral("%1: it can only be read").arg(fullName()));
}

qint64 CStreamCounterParameter::value() const
{
    const std::optional<qint64> counted = m_device->counters().at(m_index);
    if (!counted) {
        throw CParameterException(
            QStringLiteral("%1: the stream does not count it").arg(fullName()));
    }
    return *counted;
}

} // namespace ParameterCollectionPool
