// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "windows/ShownText.h"

#include <algorithm>

#include <QTextDocument>
#include <QVector>

namespace Windows {

namespace {

constexpr uint lineFeed = '\n';
constexpr uint tabulator = '\t';
constexpr uint carriageReturn = '\r';

bool isSeen(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

QString writtenOut(uint character)
{
    switch (character) {
    case lineFeed:
        return QStringLiteral("\\n");
    case tabulator:
        return QStringLiteral("\\t");
    case carriageReturn:
        return QStringLiteral("\\r");
    default:
        return QStringLiteral("\\u{%1}").arg(character, 0, 16);
    }
}

// Half a pair is no character; within a text Qt puts the sign of a replacement for it.
QString beginOf(const QString &text, int limit)
{
    const bool isInPair = limit > 0 && text.at(limit - 1).isHighSurrogate();
    return text.left(isInPair ? limit - 1 : limit);
}

QString shown(const QString &foreign, int limit, bool keepsLines)
{
    const bool isCut = foreign.size() > limit;
    const QVector<uint> characters = (isCut ? beginOf(foreign, limit) : foreign).toUcs4();
    QString text;
    text.reserve(characters.size() + 1);
    for (const uint character : characters) {
        if (isSeen(character) || (keepsLines && character == lineFeed)) {
            text += QString::fromUcs4(&character, 1);
        } else {
            text += writtenOut(character);
        }
    }
    return isCut ? text + QChar(0x2026) : text;
}

// Most texts are, and are asked for at every painting.
bool isShownAsItIs(const QString &text, int limit, bool keepsLines)
{
    return text.size() <= limit && std::all_of(text.begin(), text.end(), [&](QChar character) {
               return (isSeen(character.unicode()) && !character.isSurrogate())
                      || (keepsLines && character == QChar(lineFeed));
           });
}

QString shownOrSame(const QString &foreign, int limit, bool keepsLines)
{
    return isShownAsItIs(foreign, limit, keepsLines) ? foreign : shown(foreign, limit, keepsLines);
}

} // namespace

QString shownLine(const QString &foreign, int limit)
{
    return shownOrSame(foreign, limit, false);
}

QString shownText(const QString &foreign, int limit)
{
    return shownOrSame(foreign, limit, true);
}

QString toolTipText(const QString &foreign)
{
    const QString text = shownText(foreign);
    if (!Qt::mightBeRichText(text)) {
        return text;
    }
    return QStringLiteral("<qt>%1</qt>")
        .arg(text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br/>")));
}

} // namespace Windows
