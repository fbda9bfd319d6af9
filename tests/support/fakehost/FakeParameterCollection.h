// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "FakeParameters.h"

#include <ParameterCollection/IParameterCollection.h>

#include <QList>
#include <QSet>
#include <QSharedPointer>

/// The parameters that a test puts in, in that order.
class FakeParameterCollection : public ParameterCollection::IParameterCollection
{
public:
    /// Adds a parameter of the kind \a Fake and hands it out to be changed.
    template <class Fake>
    QSharedPointer<Fake> add(const char *fullName)
    {
        const auto parameter = QSharedPointer<Fake>::create(QString::fromLatin1(fullName));
        all.append(parameter);
        return parameter;
    }

    QList<QSharedPointer<ParameterCollection::IParameter>> parameters() const override;
    QSharedPointer<ParameterCollection::IParameter>
    parameter(const QString &fullName) const override;
    QSharedPointer<ParameterCollection::IBooleanParameter>
    booleanParameter(const QString &fullName) const override;
    QSharedPointer<ParameterCollection::IIntegerParameter>
    integerParameter(const QString &fullName) const override;
    QSharedPointer<ParameterCollection::IEnumerationParameter>
    enumerationParameter(const QString &fullName) const override;
    QString featureStream(const QString &treeName) const override;

    QList<QSharedPointer<ParameterCollection::IParameter>> all;
    QString stream;
    bool listThrows = false;
    bool streamThrows = false;
    /// The full names whose look-up throws, whatever kind is looked for.
    QSet<QString> throwingLookups;
    FakeException raise = throwParameterException;
    /// The trees whose stream was read, in order.
    mutable QList<QString> streamsRead;

private:
    template <class Interface, class Null>
    QSharedPointer<Interface> find(const QString &fullName) const;
};
