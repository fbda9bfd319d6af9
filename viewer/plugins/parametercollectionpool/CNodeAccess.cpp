// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CNodeAccess.h"

#include <ParameterCollection/CParameterException.h>

namespace ParameterCollectionPool {

CNodeAccess::CNodeAccess(const CFeature &feature, const CameraPool::CDeviceAccess &access)
    : m_feature(feature)
    , m_access(access)
    , m_node(ARV_GC_FEATURE_NODE(arv_gc_get_node(m_access.genicam(), feature.node.constData())))
{}

void CNodeAccess::refuse(const QString &reason) const
{
    throw ParameterCollection::CParameterException(
        QStringLiteral("%1: %2").arg(m_feature.fullName(), reason));
}

void CNodeAccess::refuseValue(const QString &problem, const QString &remedy) const
{
    refuse(QStringLiteral("%1: %2").arg(
        problem, m_feature.hasWritableValue
                     ? remedy
                     : QStringLiteral("only the camera can change it, so read it again later")));
}

const CNodeAccess &CNodeAccess::offered() const
{
    if (!isOffered()) {
        refuse(QStringLiteral("the camera does not offer it now"));
    }
    return *this;
}

bool CNodeAccess::isOffered() const
{
    if (m_feature.isAlwaysOffered) {
        return true;
    }
    return call(
               [this](GError **error) { return arv_gc_feature_node_is_implemented(m_node, error); })
           && call(
               [this](GError **error) { return arv_gc_feature_node_is_available(m_node, error); });
}

bool CNodeAccess::isLocked() const
{
    return !m_feature.isNeverLocked
           && call([this](GError **error) { return arv_gc_feature_node_is_locked(m_node, error); });
}

} // namespace ParameterCollectionPool
