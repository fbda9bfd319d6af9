// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/usagedatalog/CEventStore.h"

#include <chrono>

#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>

namespace Plugin {
namespace UsageDataLog {

namespace {

using namespace std::chrono_literals;

constexpr auto compareEvery = 1s;

// All events may be 50 MiB.
constexpr std::chrono::milliseconds readAllAtMostEvery = 4s;

const QLatin1String noStore("no usage events are stored here");

CStoredEvents eventsOf(const QByteArray &lines)
{
    CStoredEvents events;
    int begin = 0;
    for (int end = lines.indexOf('\n'); end >= 0; end = lines.indexOf('\n', begin)) {
        const CStoredEvent event = CStoredEvent::fromJson(lines.mid(begin, end - begin));
        if (event.number > 0) {
            events.append(event);
        }
        begin = end + 1;
    }
    return events;
}

// The totals also count what is not kept any more; the numbers by event do not.
int stored(const QJsonObject &statistics, QLatin1String state)
{
    if (!statistics.contains(QLatin1String("events"))) {
        return statistics.value(state).toInt();
    }
    int count = 0;
    const auto events = statistics.value(QLatin1String("events")).toArray();
    for (const auto &event : events) {
        count += event.toObject().value(state).toInt();
    }
    return count;
}

} // namespace

CEventStore::CEventStore(const QString &program, const QString &directory, QObject *parent)
    : QObject(parent)
    , m_tool(program, directory)
{
    m_timer.setInterval(compareEvery);
    connect(&m_timer, &QTimer::timeout, this, &CEventStore::compare);
    connect(&m_model, &QAbstractItemModel::rowsInserted, this, &CEventStore::changed);
    connect(&m_model, &QAbstractItemModel::rowsRemoved, this, &CEventStore::changed);
    connect(&m_model, &QAbstractItemModel::dataChanged, this, &CEventStore::changed);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &CEventStore::changed);
}

CEventStore::~CEventStore() = default;

void CEventStore::watch()
{
    if (m_watch) {
        return;
    }
    m_watch = std::make_unique<QObject>();
    m_tool.listen({QStringLiteral("--follow"), QStringLiteral("--json")}, m_watch.get(),
                  [this](const QByteArray &lines) {
                      m_model.append(eventsOf(lines));
                      setState(State::Ready);
                  });
    m_timer.start();
    compare();
}

void CEventStore::stopWatching()
{
    m_timer.stop();
    m_watch.reset();
}

bool CEventStore::isWatching() const
{
    return bool(m_watch);
}

CEventModel &CEventStore::model()
{
    return m_model;
}

CEventStore::State CEventStore::state() const
{
    return m_state;
}

QString CEventStore::error() const
{
    return m_error;
}

void CEventStore::exportTo(const QString &file, Format format)
{
    const QString option =
        format == Format::Csv ? QStringLiteral("--csv") : QStringLiteral("--json");
    m_tool.runInto(file, {option}, [this, file](const CEventsTool::Result &result) {
        if (result.succeeded) {
            Q_EMIT exported(file);
        } else {
            Q_EMIT failed(result.error);
        }
    });
}

void CEventStore::handOverTo(const QString &file)
{
    m_tool.run({QStringLiteral("export"), QStringLiteral("--otlp"), file},
               [this, file](const CEventsTool::Result &result) {
                   if (result.succeeded) {
                       Q_EMIT handedOver(file);
                   } else {
                       Q_EMIT failed(result.error);
                   }
                   readAll();
               });
}

QString CEventStore::clientId() const
{
    return m_clientId;
}

QString CEventStore::serverHost() const
{
    return QUrl(m_server).host();
}

bool CEventStore::isServerKnown() const
{
    return !m_server.isNull();
}

void CEventStore::deleteAll()
{
    m_tool.run({QStringLiteral("purge")}, [this](const CEventsTool::Result &result) {
        if (!result.succeeded) {
            Q_EMIT failed(result.error);
        }
        readAll();
    });
}

void CEventStore::compare()
{
    if (m_isComparing) {
        return;
    }
    m_isComparing = true;
    m_tool.run({QStringLiteral("--stats"), QStringLiteral("--json")},
               [this](const CEventsTool::Result &result) { compareWith(result); });
}

// What is being followed may come a moment later than its number, so the numbers must differ twice
// while nothing comes.
void CEventStore::compareWith(const CEventsTool::Result &statistics)
{
    m_isComparing = false;
    if (!statistics.succeeded) {
        m_model.setEvents({});
        const bool isMissing = statistics.error.contains(noStore);
        setState(isMissing ? State::NothingStored : State::Failed,
                 isMissing ? QString() : statistics.error);
        return;
    }
    setState(State::Ready);
    const QJsonObject numbers = QJsonDocument::fromJson(statistics.output).object();
    takeIdentity(numbers);
    const bool differs = numbers.value(QLatin1String("pending")).toInt() != m_model.waitingCount()
                         || stored(numbers, QLatin1String("delivered")) != m_model.deliveredCount()
                         || stored(numbers, QLatin1String("exported")) != m_model.handedOverCount();
    const bool mayRead = !m_lastRead.isValid() || m_lastRead.hasExpired(readAllAtMostEvery.count());
    const bool isComing = m_model.rowCount() != m_comparedRows;
    m_comparedRows = m_model.rowCount();
    if (differs && m_differed && !isComing && mayRead) {
        m_differed = false;
        readAll();
    } else {
        m_differed = differs;
    }
}

void CEventStore::readAll()
{
    m_lastRead.start();
    m_tool.run({QStringLiteral("--json")}, [this](const CEventsTool::Result &result) {
        if (result.succeeded) {
            m_model.setEvents(eventsOf(result.output));
        }
    });
}

void CEventStore::takeIdentity(const QJsonObject &statistics)
{
    const QString client = statistics.value(QLatin1String("client")).toString();
    // Null stays a null text, an empty one is "nowhere".
    const QString server = statistics.value(QLatin1String("server")).toString();
    if (client != m_clientId || server != m_server || server.isNull() != m_server.isNull()) {
        m_clientId = client;
        m_server = server;
        Q_EMIT changed();
    }
}

void CEventStore::setState(State state, const QString &error)
{
    if (state != m_state || error != m_error) {
        m_state = state;
        m_error = error;
        Q_EMIT changed();
    }
}

} // namespace UsageDataLog
} // namespace Plugin
