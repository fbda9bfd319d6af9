// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "CNodeAccess.h"

#include <QString>
#include <QStringList>

namespace ParameterCollectionPool {

/// How the value of one kind of feature is read, checked and written as text. All of them are
/// called while the device is locked, and throw ParameterCollection::CParameterException.
struct CValueCodec
{
    /// The current value.
    QString (*read)(const CNodeAccess &access);

    /// Refuses a text that is no such value or is outside the limits, with the limits in the
    /// message; else gives it in the notation that `read` uses.
    QString (*check)(const CNodeAccess &access, const QString &text);

    /// Writes what `check` gave.
    void (*write)(const CNodeAccess &access, const QString &value);
};

/// The codec for \a type. A kind without a value refuses everything.
const CValueCodec &codecFor(ParameterCollection::InterfaceType type);

const CValueCodec &integerCodec();
const CValueCodec &floatCodec();
const CValueCodec &booleanCodec();
const CValueCodec &enumerationCodec();
const CValueCodec &stringCodec();
const CValueCodec &registerCodec();
const CValueCodec &commandCodec();

/// @name What the typed parameters ask beyond the text
/// Called while the device is locked; they throw ParameterCollection::CParameterException.
/// @{
qint64 integerValue(const CNodeAccess &access);
qint64 integerMinimum(const CNodeAccess &access);
qint64 integerMaximum(const CNodeAccess &access);
qint64 integerIncrement(const CNodeAccess &access);
double floatValue(const CNodeAccess &access);
double floatMinimum(const CNodeAccess &access);
double floatMaximum(const CNodeAccess &access);
bool booleanValue(const CNodeAccess &access);
qint64 enumerationValue(const CNodeAccess &access);
QStringList enumerationEntries(const CNodeAccess &access);
/// @}

} // namespace ParameterCollectionPool
