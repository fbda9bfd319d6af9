// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <arv.h>

#include <functional>

#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

// A program that controls a camera, reduced to what tests need. It opens by address, without a
// broadcast, and lets Aravis check ranges and access. Used from one thread.
class CGigEClient : public QObject
{
    Q_OBJECT

public:
    explicit CGigEClient(const QString &address);
    ~CGigEClient() override;

    bool isOpen() const;
    // Why the last call failed; empty when it did not.
    QString error() const;
    ArvDevice *device() const;

    // The features in tree order without the categories.
    QStringList features() const;
    // Categories above the feature, outermost first, joined by "/"; without the root.
    QString path(const QString &feature) const;
    // A feature's node; null for an unknown name.
    ArvGcFeatureNode *node(const QString &feature) const;

    // The value as text. Null when it cannot be read.
    QString value(const QString &feature);
    bool setValue(const QString &feature, const QString &value);
    bool execute(const QString &command);
    QByteArray bytes(const QString &registerFeature);
    bool setBytes(const QString &registerFeature, const QByteArray &bytes);
    bool isAvailable(const QString &feature);
    bool isImplemented(const QString &feature);
    bool isLocked(const QString &feature);

Q_SIGNALS:
    // Emitted in a thread of Aravis.
    void controlLost();

private:
    bool perform(const std::function<void(GError **)> &action);
    void collect(ArvGcNode *category, const QString &path);

    ArvDevice *m_device = nullptr;
    QString m_error;
    QStringList m_features;
    QMap<QString, QString> m_paths;
};
