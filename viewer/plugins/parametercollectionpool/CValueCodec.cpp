// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CValueCodec.h"

namespace ParameterCollectionPool {
namespace {

using namespace ParameterCollection;

QString refuseToRead(const CNodeAccess &access)
{
    access.refuse(QStringLiteral("it has no value"));
}

QString refuseText(const CNodeAccess &access, const QString &)
{
    access.refuse(QStringLiteral("it has no value that could be set"));
}

void refuseToWrite(const CNodeAccess &access, const QString &)
{
    access.refuse(QStringLiteral("it has no value that could be set"));
}

} // namespace

const CValueCodec &codecFor(InterfaceType type)
{
    static const CValueCodec none{refuseToRead, refuseText, refuseToWrite};
    switch (type) {
    case InterfaceInteger:
        return integerCodec();
    case InterfaceBoolean:
        return booleanCodec();
    case InterfaceCommand:
        return commandCodec();
    case InterfaceFloat:
        return floatCodec();
    case InterfaceString:
        return stringCodec();
    case InterfaceRegister:
        return registerCodec();
    case InterfaceEnumeration:
        return enumerationCodec();
    default:
        return none;
    }
}

} // namespace ParameterCollectionPool
