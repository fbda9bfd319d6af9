// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "FeatureTree.h"

#include "plugins/camerapool/CDeviceAccess.h"

#include <QSet>

namespace ParameterCollectionPool {
namespace {

using namespace ParameterCollection;

// The order matters: in Aravis an enumeration is an integer and a string as well, and a register
// that is read as a number is a register too.
InterfaceType typeOf(ArvGcNode *node)
{
    if (ARV_IS_GC_CATEGORY(node)) {
        return InterfaceCategory;
    }
    if (ARV_IS_GC_COMMAND(node)) {
        return InterfaceCommand;
    }
    if (ARV_IS_GC_BOOLEAN(node)) {
        return InterfaceBoolean;
    }
    if (ARV_IS_GC_ENUMERATION(node)) {
        return InterfaceEnumeration;
    }
    if (ARV_IS_GC_INTEGER(node)) {
        return InterfaceInteger;
    }
    if (ARV_IS_GC_FLOAT(node)) {
        return InterfaceFloat;
    }
    if (ARV_IS_GC_STRING(node)) {
        return InterfaceString;
    }
    return ARV_IS_GC_REGISTER(node) ? InterfaceRegister : InterfaceBase;
}

bool hasChild(ArvGcNode *node, const char *name)
{
    ArvDomNode *child = arv_dom_node_get_first_child(ARV_DOM_NODE(node));
    for (; child; child = arv_dom_node_get_next_sibling(child)) {
        if (qstrcmp(arv_dom_node_get_node_name(child), name) == 0) {
            return true;
        }
    }
    return false;
}

CFeature describe(ArvGcNode *node, const QSharedPointer<CameraPool::CDevice> &device,
                  const QByteArray &name, const QString &category)
{
    const InterfaceType type = typeOf(node);
    const ArvGcAccessMode mode =
        arv_gc_feature_node_get_actual_access_mode(ARV_GC_FEATURE_NODE(node));
    CFeature feature;
    feature.device = device;
    feature.node = name;
    feature.text = QString::fromUtf8(name);
    feature.category = category;
    feature.type = type;
    feature.hasReadableValue = type != InterfaceCategory && type != InterfaceCommand
                               && (mode == ARV_GC_ACCESS_MODE_RO || mode == ARV_GC_ACCESS_MODE_RW);
    feature.hasWritableValue = type != InterfaceCategory
                               && (mode == ARV_GC_ACCESS_MODE_WO || mode == ARV_GC_ACCESS_MODE_RW);
    feature.isAlwaysOffered = !hasChild(node, "pIsAvailable") && !hasChild(node, "pIsImplemented");
    feature.isNeverLocked = !hasChild(node, "pIsLocked");
    return feature;
}

class CWalk
{
public:
    CWalk(const QSharedPointer<CameraPool::CDevice> &device, ArvGc *genicam)
        : m_device(device)
        , m_genicam(genicam)
    {}

    void children(ArvGcNode *category, const QString &categoryName)
    {
        const GSList *names = arv_gc_category_get_features(ARV_GC_CATEGORY(category));
        for (; names; names = names->next) {
            feature(static_cast<const char *>(names->data), categoryName);
        }
    }

    QVector<CFeature> features;

private:
    // A name without a node, a feature in a second category, a category inside itself: descriptions
    // have them all.
    void feature(const QByteArray &name, const QString &categoryName)
    {
        ArvGcNode *node = arv_gc_get_node(m_genicam, name.constData());
        if (!ARV_IS_GC_FEATURE_NODE(node) || m_seen.contains(name)) {
            return;
        }
        m_seen.insert(name);
        features.append(describe(node, m_device, name, categoryName));
        if (features.last().type == InterfaceCategory) {
            children(node, features.last().fullName());
        }
    }

    const QSharedPointer<CameraPool::CDevice> m_device;
    ArvGc *const m_genicam;
    QSet<QByteArray> m_seen;
};

} // namespace

QVector<CFeature> walkFeatures(const QSharedPointer<CameraPool::CDevice> &device)
{
    const CameraPool::CDeviceAccess access(*device);
    CWalk walk(device, access.genicam());
    ArvGcNode *root = arv_gc_get_node(access.genicam(), "Root");
    if (ARV_IS_GC_CATEGORY(root)) {
        walk.children(root, QString());
    }
    return walk.features;
}

} // namespace ParameterCollectionPool
