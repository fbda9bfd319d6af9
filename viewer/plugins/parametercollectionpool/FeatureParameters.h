// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CFeatureQuestions.h"
#include "CNodeAccess.h"
#include "CValueCodec.h"

#include <ParameterCollection/IBooleanParameter.h>
#include <ParameterCollection/IEnumerationParameter.h>
#include <ParameterCollection/IFloatParameter.h>
#include <ParameterCollection/IIntegerParameter.h>
#include <ParameterCollection/IParameter.h>

#include <utility>

namespace ParameterCollectionPool {

/// A feature of a device as a parameter of the kind \a Interface: what all kinds have in common.
template <class Interface>
class CFeatureParameter : public Interface
{
public:
    explicit CFeatureParameter(CFeature feature)
        : m_questions(std::move(feature))
    {}

    bool isNull() const override
    {
        return false;
    }
    QString name() const override
    {
        return feature().name();
    }
    QString fullName() const override
    {
        return feature().fullName();
    }
    ParameterCollection::InterfaceType interfaceType() const override
    {
        return feature().type;
    }
    bool isUnavailable() const override
    {
        return m_questions.isUnavailable();
    }
    bool isReadable() const override
    {
        return m_questions.isReadable();
    }
    bool isUserSettable() const override
    {
        return m_questions.isUserSettable();
    }
    QString valueText() const override
    {
        return m_questions.readText();
    }
    ParameterCollection::AccessMode accessMode() const override
    {
        return m_questions.accessMode();
    }
    QString displayName() const override
    {
        return m_questions.displayName();
    }
    QString toolTip() const override
    {
        return m_questions.toolTip();
    }
    QString unit() const override
    {
        return m_questions.unit();
    }
    ParameterCollection::Visibility visibility() const override
    {
        return m_questions.visibility();
    }
    QString category() const override
    {
        return feature().category;
    }

    // In three steps, because the lock must be free while the signal is emitted.
    void setValueText(const QString &text) override
    {
        const QString value = m_questions.checkText(text);
        Q_EMIT this->parameterValueAboutToBeSet(value);
        m_questions.writeText(value);
    }

protected:
    const CFeature &feature() const
    {
        return m_questions.feature();
    }

    /// Reads in the device's thread.
    template <class Result>
    Result ask(Result (*read)(const CNodeAccess &)) const
    {
        return callFeature(feature(),
                           [read](const CNodeAccess &access) { return read(access.offered()); });
    }

private:
    const CFeatureQuestions m_questions;
};

/// A text, a register, a command or a category.
using CPlainFeature = CFeatureParameter<ParameterCollection::IParameter>;

class CIntegerFeature : public CFeatureParameter<ParameterCollection::IIntegerParameter>
{
public:
    using CFeatureParameter::CFeatureParameter;
    qint64 value() const override
    {
        return ask(integerValue);
    }
    qint64 minimum() const override
    {
        return ask(integerMinimum);
    }
    qint64 maximum() const override
    {
        return ask(integerMaximum);
    }
    qint64 increment() const override
    {
        return ask(integerIncrement);
    }
};

class CFloatFeature : public CFeatureParameter<ParameterCollection::IFloatParameter>
{
public:
    using CFeatureParameter::CFeatureParameter;
    double value() const override
    {
        return ask(floatValue);
    }
    double minimum() const override
    {
        return ask(floatMinimum);
    }
    double maximum() const override
    {
        return ask(floatMaximum);
    }
};

class CBooleanFeature : public CFeatureParameter<ParameterCollection::IBooleanParameter>
{
public:
    using CFeatureParameter::CFeatureParameter;
    bool value() const override
    {
        return ask(booleanValue);
    }
};

class CEnumerationFeature : public CFeatureParameter<ParameterCollection::IEnumerationParameter>
{
public:
    using CFeatureParameter::CFeatureParameter;
    qint64 intValue() const override
    {
        return ask(enumerationValue);
    }
    QStringList entries() const override
    {
        return ask(enumerationEntries);
    }
};

/// The parameter object for \a feature, of the class that fits its type.
QSharedPointer<ParameterCollection::IParameter> createParameter(const CFeature &feature);

} // namespace ParameterCollectionPool
