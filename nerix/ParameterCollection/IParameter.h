// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>
#include <ParameterCollection/AccessMode.h>
#include <ParameterCollection/CParameterException.h>
#include <ParameterCollection/InterfaceType.h>
#include <ParameterCollection/Visibility.h>

#include <QObject>
#include <QSharedPointer>
#include <QString>

namespace ParameterCollection {

/// One parameter of a device: a GenICam feature, or a figure of the stream.
///
/// Callable in any thread; each call that needs the device takes the device's lock for that moment.
/// A look-up by name that finds nothing gives an object for which `isNull` is true, all questions
/// are answered with no, and every access to the value throws.
class NERIXCORE_EXPORT IParameter : public QObject
{
    Q_OBJECT

public:
    ~IParameter() override;

    /// True if this object stands for no parameter.
    virtual bool isNull() const = 0;

    /// The name without the tree, for example "ExposureTime".
    virtual QString name() const = 0;

    /// The name with the tree, for example "@CameraDevice/ExposureTime".
    virtual QString fullName() const = 0;

    /// What kind of parameter this is.
    virtual InterfaceType interfaceType() const = 0;

    /// True if the device does not offer the parameter now, or the device is gone.
    virtual bool isUnavailable() const = 0;

    virtual bool isReadable() const = 0;

    /// True if this is a parameter that a user can change: its description does not make it
    /// read-only. A parameter that is only locked for the moment counts.
    virtual bool isUserSettable() const = 0;

    /// The current value as text, in GenICam's notation: an enumeration gives the name of its
    /// entry, a boolean "true" or "false", a float its shortest exact decimal form with a point.
    /// @throws CParameterException if it cannot be read, or has no text that could be set again: a
    /// number that is no entry, a float that is not finite, a text that is not UTF-8.
    virtual QString valueText() const = 0;

    /// Sets the value from its text. Emits `parameterValueAboutToBeSet` before the device takes it.
    /// @throws CParameterException if the text is no such value, is outside the limits or the
    /// parameter cannot be written; nothing is emitted then.
    virtual void setValueText(const QString &text) = 0;

    /// @name What a window shows beside the value
    /// The base answers for a parameter of which no more is known.
    /// @{

    /// What can be done with the parameter at this moment; a parameter that is locked can only be
    /// read. The base derives it from the questions above.
    virtual AccessMode accessMode() const;

    /// The name for people, for example "Exposure Time". The base gives `name`.
    virtual QString displayName() const;

    /// A sentence or so of explanation. Empty for none.
    virtual QString toolTip() const;

    /// The unit of the value, for example "us". Empty for none.
    virtual QString unit() const;

    virtual Visibility visibility() const;

    /// The full name of the category that the parameter is in. Empty at the top of the tree.
    virtual QString category() const;

    /// @}

Q_SIGNALS:
    /// \a newValue, as text, is about to be set. Emitted in the thread that sets it, while no lock
    /// is held.
    void parameterValueAboutToBeSet(const QString &newValue);

protected:
    explicit IParameter(QObject *parent = nullptr);
};

} // namespace ParameterCollection
