// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>
#include <ParameterCollection/IBooleanParameter.h>
#include <ParameterCollection/IEnumerationParameter.h>
#include <ParameterCollection/IIntegerParameter.h>
#include <ParameterCollection/IParameter.h>

#include <QList>
#include <QSharedPointer>
#include <QString>

namespace ParameterCollection {

/// The parameters of one device, in trees: "@CameraDevice" holds the features of the camera,
/// "@StreamGrabber0" the figures of its first stream.
///
/// Callable in any thread. The look-ups never return a null pointer: what does not exist, or is of
/// another kind, is answered with an object for which `IParameter::isNull` is true. The same name
/// gives the same object as long as the collection lives.
class NERIXCORE_EXPORT IParameterCollection
{
public:
    IParameterCollection() = default;
    virtual ~IParameterCollection();

    Q_DISABLE_COPY_MOVE(IParameterCollection)

    /// All parameters in tree order, categories included.
    /// @throws CParameterException if the device cannot be asked.
    virtual QList<QSharedPointer<IParameter>> parameters() const = 0;

    /// The parameter with the full name \a fullName, of whatever kind.
    virtual QSharedPointer<IParameter> parameter(const QString &fullName) const = 0;

    virtual QSharedPointer<IBooleanParameter> booleanParameter(const QString &fullName) const = 0;
    virtual QSharedPointer<IIntegerParameter> integerParameter(const QString &fullName) const = 0;
    virtual QSharedPointer<IEnumerationParameter>
    enumerationParameter(const QString &fullName) const = 0;

    /// The values of a whole tree as one text, which can be loaded again. What cannot be read is
    /// left out and counted in the first line: everything, if the device is gone or closed.
    /// @throws CParameterException if there is no such tree.
    virtual QString featureStream(const QString &treeName) const = 0;
};

} // namespace ParameterCollection
