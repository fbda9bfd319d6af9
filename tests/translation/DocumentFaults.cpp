// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "DocumentFaults.h"

#include "Outline.h"

#include <algorithm>

#include <QRegularExpression>

namespace {

const QString separator = QStringLiteral(" > ");

// Without the mnemonic, "&Open" or "開く(&O)", and the dots of what asks for more.
QString label(QString text)
{
    static const QRegularExpression mnemonicAtTheEnd(QStringLiteral("\\(&[A-Z0-9]\\)"));
    static const QRegularExpression dots(QStringLiteral("\\.\\.\\.$"));
    return text.remove(mnemonicAtTheEnd).remove(QLatin1Char('&')).remove(dots);
}

QStringList sorted(QStringList texts)
{
    texts.sort();
    return texts;
}

// A document that has no translation is a folder further up.
QStringList targetsOf(const Block &block)
{
    QStringList targets = linkTargetsOf(block);
    for (QString &target : targets) {
        target.remove(QRegularExpression(QStringLiteral("^\\.\\./")));
    }
    return sorted(targets);
}

bool anyOf(const QStringList &wanted, const QStringList &found)
{
    return std::any_of(wanted.begin(), wanted.end(),
                       [&found](const QString &text) { return found.contains(text); });
}

QStringList otherNumbers(const Block &english, const Block &translation)
{
    QStringList faults;
    const QStringList numbers = numbersOf(english);
    for (const QString &number : numbers) {
        if (!numbersOf(translation).contains(number)) {
            faults.append(QStringLiteral("number %1 is lost").arg(number));
        }
    }
    return faults;
}

QStringList otherNames(const Block &english, const Block &translation, const CWords &words)
{
    QStringList faults;
    const QStringList labels = labelsOf(english);
    for (const QString &name : labels) {
        const QStringList wanted = words.translationsOf(name);
        if (wanted.isEmpty() && name.contains(separator)) {
            faults.append(QStringLiteral("there is no %1").arg(name));
        } else if (!wanted.isEmpty() && !anyOf(wanted, labelsOf(translation))) {
            faults.append(QStringLiteral("%1 is called %2").arg(name, wanted.join(" or ")));
        }
    }
    const QStringList quotes = quotesOf(english);
    for (const QString &quote : quotes) {
        const QString wanted = words.translationsOf(quote).value(0, quote);
        if (!translation.text.contains(wanted)) {
            faults.append(QStringLiteral("\"%1\" is called %2").arg(quote, wanted));
        }
    }
    return faults;
}

QStringList faultsOfBlock(const Block &english, const Block &translation, const CWords &words)
{
    QStringList faults;
    if (sorted(codeSpansOf(english)) != sorted(codeSpansOf(translation))) {
        faults.append(QStringLiteral("other code"));
    }
    if (targetsOf(english) != targetsOf(translation)) {
        faults.append(QStringLiteral("other links"));
    }
    if (emphasesOf(english).size() != emphasesOf(translation).size()) {
        faults.append(QStringLiteral("other emphasis"));
    }
    if (translation.lines > 1) {
        faults.append(QStringLiteral("more than one line"));
    }
    return faults + otherNumbers(english, translation) + otherNames(english, translation, words);
}

} // namespace

CWords::CWords(const QList<Message> &messages)
{
    for (const Message &message : messages) {
        QStringList &known = m_translations[label(message.source)];
        if (!known.contains(label(message.translation))) {
            known.append(label(message.translation));
        }
    }
}

QStringList CWords::translationsOf(const QString &label) const
{
    QStringList paths{QString()};
    const QStringList parts = label.split(separator);
    for (const QString &part : parts) {
        QStringList longer;
        const QStringList translations = m_translations.value(part);
        for (const QString &path : qAsConst(paths)) {
            for (const QString &translation : translations) {
                longer.append(path.isEmpty() ? translation : path + separator + translation);
            }
        }
        paths = longer;
    }
    return paths;
}

QStringList faultsOf(const QByteArray &english, const QByteArray &translation, const CWords &words)
{
    QStringList faults;
    const QList<Block> expected = blocksOf(english);
    const QList<Block> found = blocksOf(translation);
    for (int i = 0; i < qMax(expected.size(), found.size()); ++i) {
        const QString wanted = expected.value(i).kind;
        const QString is = found.value(i).kind;
        const QString place = QStringLiteral("block %1: ").arg(i + 1);
        if (wanted != is) {
            // What comes after it is shifted.
            return faults << place + QStringLiteral("\"%1\" instead of \"%2\"").arg(is, wanted);
        }
        const QStringList here = faultsOfBlock(expected.at(i), found.at(i), words);
        for (const QString &fault : here) {
            faults.append(place + fault);
        }
    }
    return faults;
}
