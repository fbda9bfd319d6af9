// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <ParameterCollection/CParameterException.h>
#include <ParameterCollection/IBooleanParameter.h>
#include <ParameterCollection/IEnumerationParameter.h>
#include <ParameterCollection/IIntegerParameter.h>

#include <utility>

namespace ParameterCollectionPool {

[[noreturn]] inline void refuseNull(const QString &fullName)
{
    throw ParameterCollection::CParameterException(
        QStringLiteral("%1: there is no such parameter").arg(fullName));
}

/// What a look-up gives that finds nothing: a parameter that stands for none.
template <class Interface>
class CNullParameter : public Interface
{
public:
    explicit CNullParameter(QString fullName)
        : m_fullName(std::move(fullName))
    {}

    bool isNull() const override
    {
        return true;
    }
    QString name() const override
    {
        return m_fullName.section(QLatin1Char('/'), -1);
    }
    QString fullName() const override
    {
        return m_fullName;
    }
    ParameterCollection::InterfaceType interfaceType() const override
    {
        return ParameterCollection::InterfaceValue;
    }
    bool isUnavailable() const override
    {
        return false;
    }
    bool isReadable() const override
    {
        return false;
    }
    bool isUserSettable() const override
    {
        return false;
    }
    QString valueText() const override
    {
        refuseNull(this->fullName());
    }
    void setValueText(const QString &) override
    {
        refuseNull(this->fullName());
    }

private:
    const QString m_fullName;
};

class CNullInteger : public CNullParameter<ParameterCollection::IIntegerParameter>
{
public:
    using CNullParameter::CNullParameter;
    qint64 value() const override
    {
        refuseNull(this->fullName());
    }
};

class CNullBoolean : public CNullParameter<ParameterCollection::IBooleanParameter>
{
public:
    using CNullParameter::CNullParameter;
    bool value() const override
    {
        refuseNull(this->fullName());
    }
};

class CNullEnumeration : public CNullParameter<ParameterCollection::IEnumerationParameter>
{
public:
    using CNullParameter::CNullParameter;
    qint64 intValue() const override
    {
        refuseNull(this->fullName());
    }
};

} // namespace ParameterCollectionPool
