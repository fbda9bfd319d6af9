// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CParameterCollection.h"

#include "CFeatureQuestions.h"
#include "CStreamCounterParameter.h"
#include "FeatureParameters.h"
#include "FeatureStream.h"
#include "NullParameters.h"

#include <ParameterCollection/CParameterException.h>

#include <QMutexLocker>

namespace ParameterCollectionPool {

using namespace ParameterCollection;

namespace {

bool hasValue(const CFeature &feature)
{
    return feature.type != InterfaceCategory && feature.type != InterfaceCommand;
}

} // namespace

CParameterCollection::CParameterCollection(const QSharedPointer<CameraPool::CDevice> &device)
    : m_device(device)
    , m_features(walkFeatures(device))
{
    for (const CFeature &feature : m_features) {
        m_indices.insert(feature.fullName(), m_indices.size());
    }
    const CameraPool::CStreamCounters counters = device->counters();
    for (int i = 0; i < CameraPool::CStreamCounters::Count; ++i) {
        if (counters.at(i)) {
            m_counters.append(i);
            m_indices.insert(CStreamCounterParameter(device, i).fullName(), m_indices.size());
        }
    }
    m_objects.resize(m_indices.size());
}

CParameterCollection::~CParameterCollection() = default;

QList<QSharedPointer<IParameter>> CParameterCollection::parameters() const
{
    QList<QSharedPointer<IParameter>> all;
    const QMutexLocker lock(&m_mutex);
    for (int i = 0; i < m_objects.size(); ++i) {
        all.append(create(i));
    }
    return all;
}

QSharedPointer<IParameter> CParameterCollection::parameter(const QString &fullName) const
{
    const ParameterPtr found = find(fullName);
    return found ? found : QSharedPointer<CNullParameter<IParameter>>::create(fullName);
}

QSharedPointer<IBooleanParameter>
CParameterCollection::booleanParameter(const QString &fullName) const
{
    return typed<IBooleanParameter, CNullBoolean>(fullName);
}

QSharedPointer<IIntegerParameter>
CParameterCollection::integerParameter(const QString &fullName) const
{
    return typed<IIntegerParameter, CNullInteger>(fullName);
}

QSharedPointer<IEnumerationParameter>
CParameterCollection::enumerationParameter(const QString &fullName) const
{
    return typed<IEnumerationParameter, CNullEnumeration>(fullName);
}

QString CParameterCollection::featureStream(const QString &treeName) const
{
    const QString prefix = treeName + QLatin1Char('/');
    if (prefix == CFeature::treePrefix()) {
        return cameraStream();
    }
    if (prefix == CStreamCounterParameter::treePrefix()) {
        return counterStream();
    }
    throw CParameterException(
        QStringLiteral("%1: there is no such tree; the trees are @CameraDevice and @StreamGrabber0")
            .arg(treeName));
}

CParameterCollection::ParameterPtr CParameterCollection::find(const QString &fullName) const
{
    const int index = m_indices.value(fullName, -1);
    if (index < 0) {
        return {};
    }
    const QMutexLocker lock(&m_mutex);
    return create(index);
}

CParameterCollection::ParameterPtr CParameterCollection::create(int index) const
{
    ParameterPtr &object = m_objects[index];
    if (!object) {
        object = index < m_features.size() ? createParameter(m_features.at(index))
                                           : QSharedPointer<CStreamCounterParameter>::create(
                                               m_device, m_counters.at(index - m_features.size()));
    }
    return object;
}

template <class Interface, class Null>
QSharedPointer<Interface> CParameterCollection::typed(const QString &fullName) const
{
    const auto found = qSharedPointerDynamicCast<Interface>(find(fullName));
    return found ? found : QSharedPointer<Null>::create(fullName);
}

// A feature that fails is left out and counted. Of a device that is gone each fails at once.
QString CParameterCollection::cameraStream() const
{
    QVector<FeatureStream::Line> lines;
    int notReadable = 0;
    for (const CFeature &feature : m_features) {
        if (!hasValue(feature)) {
            continue;
        }
        try {
            lines.append({feature.name(), CFeatureQuestions(feature).readText()});
        } catch (const std::exception &) {
            ++notReadable;
        }
    }
    return FeatureStream::format(lines, notReadable);
}

QString CParameterCollection::counterStream() const
{
    QVector<FeatureStream::Line> lines;
    for (const int counter : m_counters) {
        const CStreamCounterParameter parameter(m_device, counter);
        lines.append({parameter.name(), parameter.valueText()});
    }
    return FeatureStream::format(lines, 0);
}

} // namespace ParameterCollectionPool
