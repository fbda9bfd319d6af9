// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "Catalogue.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

/// What stands on the menus, buttons and panels of one language.
class CWords
{
public:
    /// From the messages of the catalogues of that language.
    explicit CWords(const QList<Message> &messages);

    /// How \a label, "Features" or "Camera > Open Camera", reads in that language; more than one if
    /// the catalogues differ, none if it is not what stands on something.
    QStringList translationsOf(const QString &label) const;

private:
    QHash<QString, QStringList> m_translations;
};

/// What keeps the document \a translation from being shipped as \a english in another language, a
/// line each: what is missing or added, other code, links, numbers or emphasis, and names of menus
/// and buttons that are not those of \a words. Also paragraphs of several lines, since the help
/// shows the end of a line as a space, which some languages do not write.
QStringList faultsOf(const QByteArray &english, const QByteArray &translation, const CWords &words);
