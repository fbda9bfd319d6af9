// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMutex>
#include <QMutexLocker>
#include <QString>
#include <QStringList>
#include <QtGlobal>

/// Keeps log messages of every thread instead of printing them, until the end of its scope. One at
/// a time.
class MessageLog
{
public:
    struct Message
    {
        QtMsgType type;
        QString text;
        /// Where it was logged: "FILE:LINE FUNCTION"; ":0 " if it does not say.
        QString origin;
    };

    MessageLog()
        : m_former(qInstallMessageHandler(keep))
    {
        kept().clear();
    }

    ~MessageLog()
    {
        qInstallMessageHandler(m_former);
    }

    Q_DISABLE_COPY_MOVE(MessageLog)

    QList<Message> messages() const
    {
        const QMutexLocker lock(&mutex());
        return kept();
    }

    QStringList texts() const
    {
        QStringList all;
        for (const Message &message : messages()) {
            all.append(message.text);
        }
        return all;
    }

private:
    static QList<Message> &kept()
    {
        static QList<Message> messages;
        return messages;
    }

    static QMutex &mutex()
    {
        static QMutex instance;
        return instance;
    }

    static void keep(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        const QString origin = QStringLiteral("%1:%2 %3")
                                   .arg(QString::fromUtf8(context.file))
                                   .arg(context.line)
                                   .arg(QString::fromUtf8(context.function));
        const QMutexLocker lock(&mutex());
        kept().append({type, text, origin});
    }

    QtMessageHandler m_former;
};
