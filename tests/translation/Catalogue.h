// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/// A text of a catalogue source (.ts).
struct Message
{
    QString context;
    QString source;
    QString translation;
    bool finished = false;
};

/// The messages of a catalogue in their order; none if \a ts is not one.
QList<Message> messagesOf(const QByteArray &ts);

/// The tags of a text in their order, links with their targets: "<b>", "<a href=\"...\">", "</a>".
QStringList tagsOf(const QString &text);

/// What keeps \a messages from being shipped, a line each: translations that are missing or not
/// finished, links that lead elsewhere, another structure of the text, places for values ("%1")
/// that are lost or added, and mnemonics ("&F") likewise.
QStringList faultsOf(const QList<Message> &messages);
