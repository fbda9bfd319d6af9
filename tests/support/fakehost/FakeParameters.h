// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <ParameterCollection/IBooleanParameter.h>
#include <ParameterCollection/IEnumerationParameter.h>
#include <ParameterCollection/IIntegerParameter.h>
#include <ParameterCollection/IParameter.h>

#include <functional>

#include <QSet>
#include <QString>

/// How a fake throws.
using FakeException = std::function<void(const QString &message)>;

inline void throwParameterException(const QString &message)
{
    throw ParameterCollection::CParameterException(message);
}

/// What is no exception class at all.
inline void throwNumber(const QString & /*message*/)
{
    throw 5;
}

/// What a fake parameter answers. `throwing` holds the operations that throw, by name ("name",
/// "isUnavailable", "value", ...).
struct FakeParameterState
{
    bool stateIsNull = false;
    QString stateFullName;
    ParameterCollection::InterfaceType stateType = ParameterCollection::InterfaceInteger;
    bool stateUnavailable = false;
    bool stateReadable = true;
    bool stateUserSettable = true;
    QString stateText;
    QSet<QString> throwing;
    FakeException raise = throwParameterException;

    void check(const char *operation) const
    {
        if (stateIsNull || throwing.contains(QLatin1String(operation))) {
            raise(QLatin1String(operation) + QStringLiteral(" failed"));
        }
    }

    void checkQuestion(const char *operation) const
    {
        if (throwing.contains(QLatin1String(operation))) {
            check(operation);
        }
    }
};

/// A parameter of the kind \a Interface that answers what the test sets.
template <class Interface>
class FakeParameterOf : public Interface, public FakeParameterState
{
public:
    explicit FakeParameterOf(const QString &fullName = QString())
    {
        stateFullName = fullName;
        stateIsNull = fullName.isEmpty();
    }

    bool isNull() const override
    {
        return stateIsNull;
    }

    QString name() const override
    {
        checkQuestion("name");
        return stateFullName.section(QLatin1Char('/'), 1);
    }

    QString fullName() const override
    {
        return stateFullName;
    }

    ParameterCollection::InterfaceType interfaceType() const override
    {
        checkQuestion("interfaceType");
        return stateType;
    }

    bool isUnavailable() const override
    {
        checkQuestion("isUnavailable");
        return stateUnavailable;
    }

    bool isReadable() const override
    {
        checkQuestion("isReadable");
        return !stateIsNull && stateReadable;
    }

    bool isUserSettable() const override
    {
        checkQuestion("isUserSettable");
        return stateUserSettable;
    }

    QString valueText() const override
    {
        check("valueText");
        return stateText;
    }

    void setValueText(const QString &text) override
    {
        check("setValueText");
        Q_EMIT this->parameterValueAboutToBeSet(text);
        stateText = text;
    }
};

using FakeParameter = FakeParameterOf<ParameterCollection::IParameter>;

class FakeInteger : public FakeParameterOf<ParameterCollection::IIntegerParameter>
{
public:
    using FakeParameterOf::FakeParameterOf;

    qint64 value() const override
    {
        check("value");
        return number;
    }

    qint64 number = 0;
};

class FakeBoolean : public FakeParameterOf<ParameterCollection::IBooleanParameter>
{
public:
    using FakeParameterOf::FakeParameterOf;

    bool value() const override
    {
        check("value");
        return on;
    }

    bool on = false;
};

class FakeEnumeration : public FakeParameterOf<ParameterCollection::IEnumerationParameter>
{
public:
    using FakeParameterOf::FakeParameterOf;

    qint64 intValue() const override
    {
        check("intValue");
        return number;
    }

    qint64 number = 0;
};
