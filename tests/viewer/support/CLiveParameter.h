// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <ParameterCollection/IBooleanParameter.h>
#include <ParameterCollection/IEnumerationParameter.h>
#include <ParameterCollection/IFloatParameter.h>
#include <ParameterCollection/IIntegerParameter.h>
#include <ParameterCollection/IParameter.h>

#include <functional>

#include <QMutex>
#include <QSet>
#include <QStringList>
#include <QThread>
#include <QWaitCondition>

// What a live parameter answers.
struct CLiveState
{
    ParameterCollection::InterfaceType type = ParameterCollection::InterfaceString;
    ParameterCollection::AccessMode mode = ParameterCollection::AccessReadWrite;
    bool isUserSettable = true;
    QString text;
    QString displayName; // empty: the name
    QString toolTip;
    QString unit;
    QString category;
    ParameterCollection::Visibility visibility = ParameterCollection::VisibilityBeginner;
    qint64 minimum = 0;
    qint64 maximum = 100;
    qint64 increment = 1;
    double floatMinimum = 0.0;
    double floatMaximum = 100.0;
    QStringList entries;
    QString readRefusal; // not empty: reading fails with it
    QString setRefusal;  // not empty: setting fails with it
};

// A parameter that is used by several threads at once: the test changes what it answers, lets it
// wait as a slow device does, and learns who used it and how.
class CLiveParameter
{
public:
    CLiveParameter() = default;
    virtual ~CLiveParameter();

    Q_DISABLE_COPY_MOVE(CLiveParameter)

    CLiveState state() const;
    void change(const std::function<void(CLiveState &)> &work);

    // From `hold` to `release`, reading and setting the value does not return.
    void hold();
    void release();
    bool isWaitedFor() const; // somebody waits in it now

    QStringList sets() const; // every text that was set or refused, in order
    int reads() const;
    bool wasUsedIn(const QThread *thread) const;

protected:
    CLiveState ask() const;
    QString readText() const;
    void noteSet(const QString &text);

private:
    void passGate() const;

    mutable QMutex m_mutex;
    mutable QWaitCondition m_released;
    CLiveState m_state;
    bool m_isHeld = false;
    mutable int m_waiting = 0;
    mutable int m_reads = 0;
    QStringList m_sets;
    mutable QSet<const QThread *> m_threads;
};

template <class Interface>
class CLiveParameterOf : public Interface, public CLiveParameter
{
public:
    explicit CLiveParameterOf(const QString &fullName)
        : m_fullName(fullName)
    {}

    bool isNull() const override
    {
        return false;
    }
    QString name() const override
    {
        return m_fullName.section(QLatin1Char('/'), 1);
    }
    QString fullName() const override
    {
        return m_fullName;
    }
    ParameterCollection::InterfaceType interfaceType() const override
    {
        return state().type;
    }
    bool isUnavailable() const override
    {
        return ask().mode <= ParameterCollection::AccessNotAvailable;
    }
    bool isReadable() const override
    {
        const auto mode = ask().mode;
        return mode == ParameterCollection::AccessReadOnly
               || mode == ParameterCollection::AccessReadWrite;
    }
    bool isUserSettable() const override
    {
        return ask().isUserSettable;
    }
    ParameterCollection::AccessMode accessMode() const override
    {
        return ask().mode;
    }
    QString displayName() const override
    {
        const QString text = ask().displayName;
        return text.isEmpty() ? name() : text;
    }
    QString toolTip() const override
    {
        return ask().toolTip;
    }
    QString unit() const override
    {
        return ask().unit;
    }
    QString category() const override
    {
        return ask().category;
    }
    ParameterCollection::Visibility visibility() const override
    {
        return ask().visibility;
    }
    QString valueText() const override
    {
        return readText();
    }
    void setValueText(const QString &text) override
    {
        noteSet(text);
        Q_EMIT this->parameterValueAboutToBeSet(text);
        change([&](CLiveState &state) { state.text = text; });
    }

private:
    const QString m_fullName;
};

using CLiveText = CLiveParameterOf<ParameterCollection::IParameter>;

class CLiveInteger : public CLiveParameterOf<ParameterCollection::IIntegerParameter>
{
public:
    using CLiveParameterOf::CLiveParameterOf;
    qint64 value() const override
    {
        return readText().toLongLong();
    }
    qint64 minimum() const override
    {
        return ask().minimum;
    }
    qint64 maximum() const override
    {
        return ask().maximum;
    }
    qint64 increment() const override
    {
        return ask().increment;
    }
};

class CLiveFloat : public CLiveParameterOf<ParameterCollection::IFloatParameter>
{
public:
    using CLiveParameterOf::CLiveParameterOf;
    double value() const override
    {
        return readText().toDouble();
    }
    double minimum() const override
    {
        return ask().floatMinimum;
    }
    double maximum() const override
    {
        return ask().floatMaximum;
    }
};

class CLiveBoolean : public CLiveParameterOf<ParameterCollection::IBooleanParameter>
{
public:
    using CLiveParameterOf::CLiveParameterOf;
    bool value() const override
    {
        return readText() == QLatin1String("true");
    }
};

class CLiveEnumeration : public CLiveParameterOf<ParameterCollection::IEnumerationParameter>
{
public:
    using CLiveParameterOf::CLiveParameterOf;
    qint64 intValue() const override
    {
        return state().entries.indexOf(readText());
    }
    QStringList entries() const override
    {
        return ask().entries;
    }
};
