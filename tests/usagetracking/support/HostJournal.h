// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "FakeHost.h"
#include "RecordingAnalytics.h"

#include <QStringList>

/// What a slot asks the host for and what it sends meanwhile, in one row.
class HostJournal
{
public:
    /// Notes a question of the slot, behind the events that were sent since the last one.
    void ask(const QString &question)
    {
        noteSent();
        m_entries.append(question);
    }

    /// The row since the last call. An event is noted as "send NAME", any other call to the
    /// analytics library by its function.
    QStringList take()
    {
        noteSent();
        const QStringList entries = m_entries;
        m_entries.clear();
        return entries;
    }

private:
    void noteSent()
    {
        for (const QString &call : RecordingAnalytics::instance().takeCalls()) {
            const QString function = call.section(QLatin1Char('('), 0, 0);
            m_entries.append(function.startsWith(QLatin1String("ruiTrackEvent"))
                                 ? QStringLiteral("send ")
                                       + call.section(QStringLiteral(" | "), 2, 2)
                                 : function);
        }
    }

    QStringList m_entries;
};

/// A camera that notes what it is asked for.
class JournallingCamera : public FakeCamera
{
public:
    explicit JournallingCamera(HostJournal &journal)
        : FakeCamera("A")
        , m_journal(journal)
    {}

    QString identity() const override
    {
        m_journal.ask(QStringLiteral("identity"));
        return cameraIdentity;
    }

    QString displayName() const override
    {
        m_journal.ask(QStringLiteral("display name"));
        return cameraIdentity;
    }

    QString modelName() const override
    {
        m_journal.ask(QStringLiteral("model"));
        return cameraModel;
    }

private:
    HostJournal &m_journal;
};

/// Parameters that note what they are asked for.
class JournallingCollection : public FakeParameterCollection
{
public:
    explicit JournallingCollection(HostJournal &journal)
        : m_journal(journal)
    {}

    QList<QSharedPointer<ParameterCollection::IParameter>> parameters() const override
    {
        m_journal.ask(QStringLiteral("parameters"));
        return FakeParameterCollection::parameters();
    }

    QSharedPointer<ParameterCollection::IParameter>
    parameter(const QString &fullName) const override
    {
        m_journal.ask(fullName.section(QLatin1Char('/'), 1));
        return FakeParameterCollection::parameter(fullName);
    }

    QSharedPointer<ParameterCollection::IBooleanParameter>
    booleanParameter(const QString &fullName) const override
    {
        m_journal.ask(fullName.section(QLatin1Char('/'), 1));
        return FakeParameterCollection::booleanParameter(fullName);
    }

    QSharedPointer<ParameterCollection::IIntegerParameter>
    integerParameter(const QString &fullName) const override
    {
        m_journal.ask(fullName.section(QLatin1Char('/'), 1));
        return FakeParameterCollection::integerParameter(fullName);
    }

    QSharedPointer<ParameterCollection::IEnumerationParameter>
    enumerationParameter(const QString &fullName) const override
    {
        m_journal.ask(fullName.section(QLatin1Char('/'), 1));
        return FakeParameterCollection::enumerationParameter(fullName);
    }

    QString featureStream(const QString &treeName) const override
    {
        m_journal.ask(QStringLiteral("stream of ") + treeName);
        return stream;
    }

private:
    HostJournal &m_journal;
};

/// Hands out one collection and notes how often.
class JournallingParameterService : public FakeParameterService
{
public:
    explicit JournallingParameterService(HostJournal &journal)
        : m_journal(journal)
        , m_collection(QSharedPointer<JournallingCollection>::create(journal))
    {}

    QSharedPointer<ParameterCollection::IParameterCollection>
    parameterCollection(const Core::CameraPoolComponents::DeviceBaseInfoPtr &) const override
    {
        m_journal.ask(QStringLiteral("collection"));
        return m_collection;
    }

    JournallingCollection &collection()
    {
        return *m_collection;
    }

private:
    HostJournal &m_journal;
    QSharedPointer<JournallingCollection> m_collection;
};
