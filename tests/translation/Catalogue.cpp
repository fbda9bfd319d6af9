// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "Catalogue.h"

#include <QRegularExpression>
#include <QXmlStreamReader>

namespace {

Message readMessage(QXmlStreamReader &xml, const QString &context)
{
    Message message;
    message.context = context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.finished = !xml.attributes().hasAttribute(QLatin1String("type"));
            message.translation = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

void readContext(QXmlStreamReader &xml, QList<Message> &messages)
{
    QString context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            messages.append(readMessage(xml, context));
        } else {
            xml.skipCurrentElement();
        }
    }
}

QStringList linksOf(const QString &text)
{
    return tagsOf(text).filter(QLatin1String("<a "));
}

// "%1" and so on, in the order of their numbers.
QStringList placesOf(const QString &text)
{
    static const QRegularExpression place(QStringLiteral("%[1-9n]"));
    QStringList places;
    auto matches = place.globalMatch(text);
    while (matches.hasNext()) {
        places.append(matches.next().captured());
    }
    places.sort();
    return places;
}

bool hasMnemonic(const QString &text)
{
    static const QRegularExpression mnemonic(QStringLiteral("&[A-Za-z0-9]"));
    return text.contains(mnemonic);
}

} // namespace

QList<Message> messagesOf(const QByteArray &ts)
{
    QList<Message> messages;
    QXmlStreamReader xml(ts);
    xml.readNextStartElement();
    while (xml.readNextStartElement()) {
        readContext(xml, messages);
    }
    return xml.hasError() ? QList<Message>() : messages;
}

QStringList tagsOf(const QString &text)
{
    static const QRegularExpression tag(QStringLiteral("</?[a-z][^<>]*>"));
    QStringList tags;
    auto matches = tag.globalMatch(text);
    while (matches.hasNext()) {
        tags.append(matches.next().captured());
    }
    return tags;
}

QStringList faultsOf(const QList<Message> &messages)
{
    QStringList faults;
    for (const Message &message : messages) {
        const QString begin = message.source.left(30);
        QStringList expected = tagsOf(message.source);
        QStringList found = tagsOf(message.translation);
        // A sentence may be built the other way round, so that its emphasis stands elsewhere.
        expected.sort();
        found.sort();
        if (!message.finished || message.translation.trimmed().isEmpty()) {
            faults.append(QStringLiteral("not translated: %1: %2").arg(message.context, begin));
        } else if (linksOf(message.source) != linksOf(message.translation)) {
            faults.append(QStringLiteral("other links: %1: %2").arg(message.context, begin));
        } else if (expected != found) {
            faults.append(QStringLiteral("other tags: %1: %2").arg(message.context, begin));
        } else if (placesOf(message.source) != placesOf(message.translation)) {
            faults.append(QStringLiteral("other places: %1: %2").arg(message.context, begin));
        } else if (hasMnemonic(message.source) != hasMnemonic(message.translation)) {
            faults.append(QStringLiteral("other mnemonic: %1: %2").arg(message.context, begin));
        }
    }
    return faults;
}
