// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CFeatureQuestions.h"

#include "CNodeAccess.h"
#include "CValueCodec.h"

#include <ParameterCollection/CParameterException.h>

#include <utility>

namespace ParameterCollectionPool {

using namespace ParameterCollection;

namespace {

// Gives what \a question gives, and \a ifNot if the device cannot be asked.
template <class Answer, class Question>
Answer ask(Answer ifNot, Question question)
{
    try {
        return question();
    } catch (const CParameterException &) {
        return ifNot;
    }
}

// Looks something up in the description, here and now.
template <class Look>
QString lookUp(const CFeature &feature, Look look)
{
    return ask(QString(), [&] {
        const CameraPool::CDeviceAccess access(*feature.device);
        return QString::fromUtf8(look(CNodeAccess(feature, access)));
    });
}

const char *unitOf(const CNodeAccess &access)
{
    switch (access.feature().type) {
    case InterfaceInteger:
        return arv_gc_integer_get_unit(ARV_GC_INTEGER(access.node()));
    case InterfaceFloat:
        return arv_gc_float_get_unit(ARV_GC_FLOAT(access.node()));
    default:
        return nullptr;
    }
}

Visibility fromAravis(ArvGcVisibility visibility)
{
    switch (visibility) {
    case ARV_GC_VISIBILITY_INVISIBLE:
        return VisibilityInvisible;
    case ARV_GC_VISIBILITY_GURU:
        return VisibilityGuru;
    case ARV_GC_VISIBILITY_EXPERT:
        return VisibilityExpert;
    default:
        return VisibilityBeginner;
    }
}

AccessMode modeOf(const CNodeAccess &access)
{
    const CFeature &feature = access.feature();
    if (!access.isOffered()) {
        return AccessNotAvailable;
    }
    const bool canWrite = feature.hasWritableValue && !access.isLocked();
    if (feature.hasReadableValue) {
        return canWrite ? AccessReadWrite : AccessReadOnly;
    }
    return canWrite ? AccessWriteOnly : AccessNotAvailable;
}

} // namespace

CFeatureQuestions::CFeatureQuestions(CFeature feature)
    : m_feature(std::move(feature))
{}

bool CFeatureQuestions::isUnavailable() const
{
    if (m_feature.isAlwaysOffered) {
        return !m_feature.device->isOpen();
    }
    return ask(true, [this] {
        return callFeature(m_feature,
                           [](const CNodeAccess &access) { return !access.isOffered(); });
    });
}

bool CFeatureQuestions::isReadable() const
{
    return m_feature.hasReadableValue && !isUnavailable();
}

bool CFeatureQuestions::isUserSettable() const
{
    return m_feature.hasWritableValue && m_feature.device->isOpen();
}

AccessMode CFeatureQuestions::accessMode() const
{
    return ask(AccessNotAvailable, [this] { return callFeature(m_feature, modeOf); });
}

QString CFeatureQuestions::displayName() const
{
    const QString text = lookUp(m_feature, [](const CNodeAccess &access) {
        return arv_gc_feature_node_get_display_name(access.node());
    });
    return text.isEmpty() ? m_feature.name() : text;
}

QString CFeatureQuestions::toolTip() const
{
    return lookUp(m_feature, [](const CNodeAccess &access) {
        return arv_gc_feature_node_get_tooltip(access.node());
    });
}

QString CFeatureQuestions::unit() const
{
    return lookUp(m_feature, unitOf);
}

Visibility CFeatureQuestions::visibility() const
{
    return ask(VisibilityBeginner, [this] {
        const CameraPool::CDeviceAccess access(*m_feature.device);
        return fromAravis(
            arv_gc_feature_node_get_visibility(CNodeAccess(m_feature, access).node()));
    });
}

QString CFeatureQuestions::readText() const
{
    return callFeature(m_feature, [](const CNodeAccess &access) {
        return codecFor(access.feature().type).read(access.offered());
    });
}

QString CFeatureQuestions::checkText(const QString &text) const
{
    return callFeature(m_feature, [text](const CNodeAccess &access) {
        access.offered();
        if (!access.feature().hasWritableValue) {
            access.refuse(QStringLiteral("it can only be read"));
        }
        if (access.isLocked()) {
            access.refuse(QStringLiteral("it is locked now: stop the grab, then set it"));
        }
        return codecFor(access.feature().type).check(access, text);
    });
}

void CFeatureQuestions::writeText(const QString &value) const
{
    callFeature(m_feature, [value](const CNodeAccess &access) {
        codecFor(access.feature().type).write(access, value);
    });
}

} // namespace ParameterCollectionPool
