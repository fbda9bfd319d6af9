// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/usagedatalog/CEventModel.h"
#include "plugins/usagedatalog/CEventsTool.h"

#include <memory>

#include <QElapsedTimer>
#include <QJsonObject>
#include <QObject>
#include <QTimer>

namespace Plugin {
namespace UsageDataLog {

/// Keeps a table of the stored events up to date while somebody watches. GUI thread.
///
/// New events are followed as they come. That others were delivered or deleted shows in their
/// numbers, which are compared once a second; then all are read again, not more often than every
/// few seconds.
class CEventStore : public QObject
{
    Q_OBJECT

public:
    enum class State {
        Unknown,       ///< not looked yet
        NothingStored, ///< there is no store: nothing was ever recorded here
        Ready,
        Failed ///< see error()
    };
    enum class Format { JsonLines, Csv };

    /// \a program is `rui-events`, \a directory where the events are kept.
    CEventStore(const QString &program, const QString &directory, QObject *parent = nullptr);
    ~CEventStore() override;

    void watch();
    void stopWatching();
    bool isWatching() const;

    CEventModel &model();
    State state() const;

    /// What keeps the store from being read; empty unless the state is Failed.
    QString error() const;

    /// Writes all events to \a file. Answers by `exported` or `failed`.
    void exportTo(const QString &file, Format format);

    /// Hands the waiting events over in \a file, which must not exist, instead of sending them.
    /// Answers by `handedOver` or `failed`.
    void handOverTo(const QString &file);

    /// Under which the events are sent; empty when there is none, or it is not known yet.
    QString clientId() const;

    /// Where the last recording delivers to; empty: nowhere.
    QString serverHost() const;
    bool isServerKnown() const;

    /// Deletes all events. Answers by a new state or `failed`.
    void deleteAll();

Q_SIGNALS:
    /// The state, or how many events there are.
    void changed();

    void exported(const QString &file);
    void handedOver(const QString &file);
    void failed(const QString &error);

private:
    void compare();
    void compareWith(const CEventsTool::Result &statistics);
    void readAll();
    void takeIdentity(const QJsonObject &statistics);
    void setState(State state, const QString &error = {});

    CEventModel m_model;
    CEventsTool m_tool;
    QTimer m_timer;
    QElapsedTimer m_lastRead;
    std::unique_ptr<QObject> m_watch; // what is followed is followed while it lives
    State m_state = State::Unknown;
    QString m_error;
    QString m_clientId;
    QString m_server; // null while it is not known
    bool m_isComparing = false;
    bool m_differed = false;
    int m_comparedRows = 0;
};

} // namespace UsageDataLog
} // namespace Plugin
