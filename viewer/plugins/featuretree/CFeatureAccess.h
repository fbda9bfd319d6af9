// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/featuretree/CFeatureDescription.h"
#include "plugins/featuretree/CFeatureState.h"
#include "windows/CWorkThread.h"

#include <ParameterCollection/IParameterCollection.h>

#include <functional>
#include <memory>

#include <QObject>
#include <QQueue>
#include <QSharedPointer>
#include <QVector>

namespace FeatureTree {

/// Reads and sets the features of one device at a time, in a thread of its own, because a device
/// may take seconds to answer. GUI thread; every operation returns at once.
///
/// What is to be set goes first, in order; what is to be read comes after it. A feature is meant by
/// its place in the list that `described` gives.
class CFeatureAccess : public QObject
{
    Q_OBJECT

public:
    using ParameterPtr = QSharedPointer<ParameterCollection::IParameter>;
    using CollectionPtr = QSharedPointer<ParameterCollection::IParameterCollection>;

    CFeatureAccess();
    ~CFeatureAccess() override;

    /// Asks for the features of what \a collection gives, which is called in the other thread and
    /// may give null. Ends with `described` or `notDescribed`.
    void open(std::function<CollectionPtr()> collection);

    /// Drops the device: no more is told of it, and what is not yet begun is not done.
    void close();

    /// Reads \a features, in place of those of the last call that are not read yet. Each ends with
    /// `stateRead`, all of them with `allRead`.
    void read(const QVector<int> &features);

    /// True until `allRead`.
    bool isReading() const
    {
        return m_isReading;
    }

    /// Sets the feature once. Ends with `written`.
    void write(int feature, const QString &text);

    /// Null before `described`.
    ParameterPtr parameter(int feature) const;

Q_SIGNALS:
    void described(const QVector<FeatureTree::CFeatureDescription> &features);

    /// \a reason is one line; empty if the device has no features.
    void notDescribed(const QString &reason);

    void stateRead(int feature, const FeatureTree::CFeatureState &state);
    void allRead();

    /// \a failure is one line with the reason; empty if the device took the value.
    void written(int feature, const QString &failure);

    /// Somebody, possibly this object, sets \a feature.
    void setBySomebody(int feature);

private:
    struct Device;
    struct Write
    {
        int feature;
        QString text;
    };

    void onDescribed(int opening);
    void listen();
    void workOn();
    void beginWrite(const Write &write);
    void beginRead(int feature);
    template <class Work, class Report>
    void begin(Work work, Report report);

    std::shared_ptr<Device> m_device; // null: closed
    int m_opening = 0;                // counts, so that what is told of an earlier one is known
    bool m_isBusy = false;
    bool m_isReading = false; // until `allRead`
    QQueue<Write> m_writes;
    QQueue<int> m_reads;
    Windows::CWorkThread m_thread; // last, so that it ends first
};

} // namespace FeatureTree
