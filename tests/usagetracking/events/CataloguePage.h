// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// What the page of the usage events says, as far as a test can check it.
class CataloguePage
{
public:
    /// A section with the heading "### NAME".
    struct Section
    {
        QString heading;
        /// The keys of the table "| key | ...".
        QStringList keys;
        /// The keys of a table "| key of `INNER` | ...", each as "INNER.KEY".
        QStringList innerKeys;
        /// The examples, each as the call that the recording analytics library writes down.
        QStringList calls;
        /// The records of the examples.
        QStringList records;
    };

    /// Reads the page, which must be there.
    CataloguePage();

    QStringList calls() const;

    QList<Section> sections;
    /// The lines of the block "session": "CATEGORY | NAME".
    QStringList session;
    /// The regular expression for the record that is no JSON.
    QString regularExpression;

private:
    void readLine(const QString &line);
    void readTableRow(const QString &line);
    void readBlock();
    void readExample();

    /// The language of the block that is being read; null outside of one.
    QString m_language;
    QStringList m_block;
    /// The head of the table that is being read; empty outside of one.
    QString m_tableHead;
};
