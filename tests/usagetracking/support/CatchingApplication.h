// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <exception>

#include <QApplication>
#include <QMutex>
#include <QMutexLocker>
#include <QStringList>

/// An application that survives exceptions that leave a slot, as the viewer does, and remembers
/// what they said.
class CatchingApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::exception &exception) {
            const QMutexLocker lock(&m_mutex);
            m_caught.append(QString::fromUtf8(exception.what()));
            return false;
        } catch (...) {
            const QMutexLocker lock(&m_mutex);
            m_caught.append(QStringLiteral("what is no exception class"));
            return false;
        }
    }

    /// What was caught since the last call, in any thread.
    static QStringList takeCaught()
    {
        auto *self = static_cast<CatchingApplication *>(QCoreApplication::instance());
        const QMutexLocker lock(&self->m_mutex);
        const QStringList caught = self->m_caught;
        self->m_caught.clear();
        return caught;
    }

private:
    QMutex m_mutex;
    QStringList m_caught;
};
