// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "CataloguePage.h"

#include "EventCalls.h"

#include <QFile>

namespace {

const QString fence = QStringLiteral("```");
const QString backtick = QStringLiteral("`");

/// What follows \a label in the line of the block that begins with it; null if there is none.
QString labelled(const QStringList &block, const QString &label)
{
    for (const QString &line : block) {
        if (line.startsWith(label)) {
            return line.mid(label.size());
        }
    }
    return {};
}

} // namespace

CataloguePage::CataloguePage()
{
    QFile file(QStringLiteral(NERIX_EVENTS_PAGE));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
    }
    const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
    for (const QString &line : lines) {
        readLine(line);
    }
}

QStringList CataloguePage::calls() const
{
    QStringList all;
    for (const Section &section : sections) {
        all += section.calls;
    }
    return all;
}

void CataloguePage::readLine(const QString &line)
{
    if (!m_language.isNull()) {
        if (line == fence) {
            readBlock();
            m_language = QString();
            m_block.clear();
        } else {
            m_block.append(line);
        }
    } else if (line.startsWith(fence)) {
        m_language = line.mid(fence.size());
    } else if (line.startsWith(QStringLiteral("### "))) {
        Section section;
        section.heading = line.mid(4);
        sections.append(section);
    } else {
        readTableRow(line);
    }
}

void CataloguePage::readTableRow(const QString &line)
{
    if (!line.startsWith('|') || sections.isEmpty()) {
        m_tableHead.clear();
    } else if (m_tableHead.isEmpty()) {
        m_tableHead = line.section('|', 1, 1).trimmed();
    } else if (line.startsWith(QStringLiteral("| `"))) {
        const QString key = line.section(backtick, 1, 1);
        const QString inner = m_tableHead.section(backtick, 1, 1);
        if (inner.isEmpty()) {
            sections.last().keys.append(key);
        } else {
            sections.last().innerKeys.append(inner + '.' + key);
        }
    }
}

void CataloguePage::readBlock()
{
    if (m_language == QLatin1String("event")) {
        readExample();
    } else if (m_language == QLatin1String("session")) {
        session = m_block;
    } else if (m_language == QLatin1String("regex")) {
        regularExpression = m_block.join('\n');
    }
}

void CataloguePage::readExample()
{
    const QString category = labelled(m_block, QStringLiteral("category: "));
    const QString name = labelled(m_block, QStringLiteral("name: "));
    const QString record = labelled(m_block, QStringLiteral("record: "));
    Section &section = sections.last();
    if (record.isNull()) {
        section.calls.append(modelCall(name));
    } else {
        section.calls.append(eventCall(category.toUtf8(), name, record));
        section.records.append(record);
    }
}
