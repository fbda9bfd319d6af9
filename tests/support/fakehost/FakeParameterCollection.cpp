// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "FakeParameterCollection.h"

using ParameterCollection::IParameter;

template <class Interface, class Null>
QSharedPointer<Interface> FakeParameterCollection::find(const QString &fullName) const
{
    if (throwingLookups.contains(fullName)) {
        raise(QStringLiteral("look-up failed"));
    }
    for (const auto &candidate : all) {
        const auto found = candidate.dynamicCast<Interface>();
        if (found && found->fullName() == fullName) {
            return found;
        }
    }
    return QSharedPointer<Null>::create();
}

QList<QSharedPointer<IParameter>> FakeParameterCollection::parameters() const
{
    if (listThrows) {
        raise(QStringLiteral("parameters failed"));
    }
    return all;
}

QSharedPointer<IParameter> FakeParameterCollection::parameter(const QString &fullName) const
{
    return find<IParameter, FakeParameter>(fullName);
}

QSharedPointer<ParameterCollection::IBooleanParameter>
FakeParameterCollection::booleanParameter(const QString &fullName) const
{
    return find<ParameterCollection::IBooleanParameter, FakeBoolean>(fullName);
}

QSharedPointer<ParameterCollection::IIntegerParameter>
FakeParameterCollection::integerParameter(const QString &fullName) const
{
    return find<ParameterCollection::IIntegerParameter, FakeInteger>(fullName);
}

QSharedPointer<ParameterCollection::IEnumerationParameter>
FakeParameterCollection::enumerationParameter(const QString &fullName) const
{
    return find<ParameterCollection::IEnumerationParameter, FakeEnumeration>(fullName);
}

QString FakeParameterCollection::featureStream(const QString &treeName) const
{
    streamsRead.append(treeName);
    if (streamThrows) {
        raise(QStringLiteral("featureStream failed"));
    }
    return stream;
}
