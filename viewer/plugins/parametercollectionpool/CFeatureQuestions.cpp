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

// Asks, and takes \a ifNot for an answer if the device cannot be asked.
template <class Answer, class Question>
Answer ask(const CFeature &feature, Answer ifNot, Question question)
{
    try {
        return question(CNodeAccess(feature));
    } catch (const CParameterException &) {
        return ifNot;
    }
}

bool hasReadableValue(const CNodeAccess &access)
{
    const InterfaceType type = access.feature().type;
    return type != InterfaceCategory && type != InterfaceCommand && access.mayRead();
}

bool hasWritableValue(const CNodeAccess &access)
{
    return access.feature().type != InterfaceCategory && access.mayWrite();
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
    if (!access.isOffered()) {
        return AccessNotAvailable;
    }
    const bool canRead = hasReadableValue(access);
    const bool canWrite = hasWritableValue(access) && !access.isLocked();
    if (canRead) {
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
    return ask(m_feature, true, [](const CNodeAccess &access) { return !access.isOffered(); });
}

bool CFeatureQuestions::isReadable() const
{
    return ask(m_feature, false, [](const CNodeAccess &access) {
        return hasReadableValue(access) && access.isOffered();
    });
}

bool CFeatureQuestions::isUserSettable() const
{
    return ask(m_feature, false, hasWritableValue);
}

AccessMode CFeatureQuestions::accessMode() const
{
    return ask(m_feature, AccessNotAvailable, modeOf);
}

QString CFeatureQuestions::displayName() const
{
    const QString text = ask(m_feature, QString(), [](const CNodeAccess &access) {
        return QString::fromUtf8(arv_gc_feature_node_get_display_name(access.node()));
    });
    return text.isEmpty() ? m_feature.name() : text;
}

QString CFeatureQuestions::toolTip() const
{
    return ask(m_feature, QString(), [](const CNodeAccess &access) {
        return QString::fromUtf8(arv_gc_feature_node_get_tooltip(access.node()));
    });
}

QString CFeatureQuestions::unit() const
{
    return ask(m_feature, QString(),
               [](const CNodeAccess &access) { return QString::fromUtf8(unitOf(access)); });
}

Visibility CFeatureQuestions::visibility() const
{
    return ask(m_feature, VisibilityBeginner, [](const CNodeAccess &access) {
        return fromAravis(arv_gc_feature_node_get_visibility(access.node()));
    });
}

QString CFeatureQuestions::readText() const
{
    return codecFor(m_feature.type).read(CNodeAccess(m_feature).offered());
}

QString CFeatureQuestions::checkText(const QString &text) const
{
    const CNodeAccess access(m_feature);
    access.offered();
    if (!hasWritableValue(access)) {
        access.refuse(QStringLiteral("it can only be read"));
    }
    if (access.isLocked()) {
        access.refuse(QStringLiteral("it is locked now: stop the grab, then set it"));
    }
    return codecFor(m_feature.type).check(access, text);
}

void CFeatureQuestions::writeText(const QString &value) const
{
    codecFor(m_feature.type).write(CNodeAccess(m_feature), value);
}

} // namespace ParameterCollectionPool
