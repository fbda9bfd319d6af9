// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CNodeAccess.h"

#include <ParameterCollection/CParameterException.h>

namespace ParameterCollectionPool {

CNodeAccess::CNodeAccess(const CFeature &feature)
    : m_feature(feature)
    , m_access(*feature.device)
    , m_node(ARV_GC_FEATURE_NODE(arv_gc_get_node(m_access.genicam(), feature.node.constData())))
{}

void CNodeAccess::refuse(const QString &reason) const
{
    throw ParameterCollection::CParameterException(
        QStringLiteral("%1: %2").arg(m_feature.fullName(), reason));
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
    return call(
               [this](GError **error) { return arv_gc_feature_node_is_implemented(m_node, error); })
           && call(
               [this](GError **error) { return arv_gc_feature_node_is_available(m_node, error); });
}

bool CNodeAccess::isLocked() const
{
    return call([this](GError **error) { return arv_gc_feature_node_is_locked(m_node, error); });
}

bool CNodeAccess::mayRead() const
{
    const ArvGcAccessMode mode = arv_gc_feature_node_get_actual_access_mode(m_node);
    return mode == ARV_GC_ACCESS_MODE_RO || mode == ARV_GC_ACCESS_MODE_RW;
}

bool CNodeAccess::mayWrite() const
{
    const ArvGcAccessMode mode = arv_gc_feature_node_get_actual_access_mode(m_node);
    return mode == ARV_GC_ACCESS_MODE_WO || mode == ARV_GC_ACCESS_MODE_RW;
}

} // namespace ParameterCollectionPool
