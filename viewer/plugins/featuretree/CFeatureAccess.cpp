// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CFeatureAccess.h"

#include "plugins/featuretree/FeatureReading.h"

#include <atomic>
#include <exception>
#include <utility>

namespace FeatureTree {

using ParameterCollection::IParameter;

/// What both threads know of a device. Filled in the other thread before it is handed back.
struct CFeatureAccess::Device
{
    std::atomic<bool> isDropped{false};
    CollectionPtr collection;
    QVector<ParameterPtr> parameters;
    QVector<CFeatureDescription> descriptions;
    QString failure;

    void describe(const std::function<CollectionPtr()> &open)
    {
        collection = open();
        if (!collection) {
            return;
        }
        const auto all = collection->parameters();
        for (const ParameterPtr &parameter : all) {
            if (isDropped) {
                return;
            }
            parameters.append(parameter);
            descriptions.append(describeFeature(*parameter));
        }
    }
};

CFeatureAccess::CFeatureAccess()
    : m_thread(QStringLiteral("features"))
{}

CFeatureAccess::~CFeatureAccess()
{
    close();
}

void CFeatureAccess::open(std::function<CollectionPtr()> collection)
{
    close();
    m_device = std::make_shared<Device>();
    m_thread.post(
        [this, opening = m_opening, device = m_device, collection = std::move(collection)] {
            try {
                device->describe(collection);
            } catch (const std::exception &exception) {
                device->failure = QString::fromUtf8(exception.what());
            }
            QMetaObject::invokeMethod(
                this, [this, opening] { onDescribed(opening); }, Qt::QueuedConnection);
        });
}

void CFeatureAccess::onDescribed(int opening)
{
    if (opening != m_opening) {
        return;
    }
    if (m_device->descriptions.isEmpty()) {
        Q_EMIT notDescribed(m_device->failure);
        return;
    }
    listen();
    Q_EMIT described(m_device->descriptions);
}

void CFeatureAccess::listen()
{
    for (int i = 0; i < m_device->parameters.size(); ++i) {
        connect(
            m_device->parameters.at(i).data(), &IParameter::parameterValueAboutToBeSet, this,
            [this, i, opening = m_opening] {
                if (opening == m_opening) {
                    Q_EMIT setBySomebody(i);
                }
            },
            Qt::QueuedConnection);
    }
}

// Who is the last to let go of a device may have to wait for it, so that is left to the other
// thread; for the same reason, nothing that is posted to this one holds the device.
void CFeatureAccess::close()
{
    ++m_opening;
    m_writes.clear();
    m_reads.clear();
    m_isBusy = false;
    m_isReading = false;
    if (!m_device) {
        return;
    }
    m_device->isDropped = true;
    for (const ParameterPtr &parameter : qAsConst(m_device->parameters)) {
        parameter->disconnect(this);
    }
    m_thread.post([device = std::move(m_device)]() mutable { device.reset(); });
    m_device.reset();
}

void CFeatureAccess::read(const QVector<int> &features)
{
    m_reads.clear();
    for (const int feature : features) {
        m_reads.enqueue(feature);
    }
    m_isReading = true;
    workOn();
}

void CFeatureAccess::write(int feature, const QString &text)
{
    m_writes.enqueue({feature, text});
    workOn();
}

CFeatureAccess::ParameterPtr CFeatureAccess::parameter(int feature) const
{
    return m_device ? m_device->parameters.value(feature) : ParameterPtr();
}

// One at a time, so that what the user sets need not wait for all that is still to be read.
void CFeatureAccess::workOn()
{
    if (m_isBusy || !m_device) {
        return;
    }
    if (!m_writes.isEmpty()) {
        beginWrite(m_writes.dequeue());
    } else if (!m_reads.isEmpty()) {
        beginRead(m_reads.dequeue());
    } else if (m_isReading) {
        m_isReading = false;
        Q_EMIT allRead();
    }
}

void CFeatureAccess::beginWrite(const Write &write)
{
    const auto set = [write](IParameter &parameter) {
        try {
            parameter.setValueText(write.text);
        } catch (const std::exception &exception) {
            return QString::fromUtf8(exception.what());
        }
        return QString();
    };
    begin([set, feature = write.feature](
              const Device &device) { return set(*device.parameters.at(feature)); },
          [this, feature = write.feature](const QString &failure) {
              Q_EMIT written(feature, failure);
          });
}

void CFeatureAccess::beginRead(int feature)
{
    begin([feature](const Device &device) { return readFeature(*device.parameters.at(feature)); },
          [this, feature](const CFeatureState &state) { Q_EMIT stateRead(feature, state); });
}

template <class Work, class Report>
void CFeatureAccess::begin(Work work, Report report)
{
    m_isBusy = true;
    m_thread.post([this, opening = m_opening, device = m_device, work, report] {
        if (device->isDropped) {
            return;
        }
        const auto result = work(*device);
        QMetaObject::invokeMethod(
            this,
            [this, opening, result, report] {
                if (opening == m_opening) {
                    m_isBusy = false;
                    report(result);
                    workOn();
                }
            },
            Qt::QueuedConnection);
    });
}

} // namespace FeatureTree
