// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#include "CValueCodec.h"
#include "RegisterLength.h"

namespace ParameterCollectionPool {
namespace {

ArvGcString *string(const CNodeAccess &access)
{
    return ARV_GC_STRING(access.node());
}

// The bytes in one line: what is not printed as it is in ASCII, as two hexadecimal digits.
QString printed(const QByteArray &bytes)
{
    QString text;
    for (const char byte : bytes) {
        const bool isPlain = byte >= ' ' && byte <= '~';
        text += isPlain ? QString(QLatin1Char(byte))
                        : QStringLiteral("\\x%1").arg(uchar(byte), 2, 16, QLatin1Char('0'));
    }
    return text;
}

// Aravis owns the text and may drop it at the next read of the same node. A text that would be
// written as other bytes than it was read from is none.
QString read(const CNodeAccess &access)
{
    if (ARV_IS_GC_REGISTER(access.node())) {
        registerLength(access);
    }
    const QByteArray bytes = access.call(
        [&](GError **error) { return QByteArray(arv_gc_string_get_value(string(access), error)); });
    const QString text = QString::fromUtf8(bytes);
    if (text.toUtf8() != bytes) {
        access.refuseValue(QStringLiteral("its text \"%1\" is not valid UTF-8").arg(printed(bytes)),
                           QStringLiteral("set it anew"));
    }
    return text;
}

QString check(const CNodeAccess &access, const QString &text)
{
    const gint64 maximum = access.call(
        [&](GError **error) { return arv_gc_string_get_max_length(string(access), error); });
    const int size = text.toUtf8().size();
    if (maximum > 0 && size > maximum) {
        access.refuse(QStringLiteral("a text of %1 bytes is too long: give one of at most %2 bytes")
                          .arg(size)
                          .arg(maximum));
    }
    if (text.contains(QChar())) {
        access.refuse(QStringLiteral("the text holds a zero character: give one without"));
    }
    return text;
}

void write(const CNodeAccess &access, const QString &value)
{
    access.run([&](GError **error) {
        arv_gc_string_set_value(string(access), value.toUtf8().constData(), error);
    });
}

} // namespace

const CValueCodec &stringCodec()
{
    static const CValueCodec codec{read, check, write};
    return codec;
}

} // namespace ParameterCollectionPool
