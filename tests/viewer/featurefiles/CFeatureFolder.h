// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QTemporaryDir>

// A folder for files of features, which is gone in the end.
class CFeatureFolder
{
public:
    QString path(const char *name) const
    {
        return m_folder.filePath(QString::fromUtf8(name));
    }

    // Writes a file with the first line of ours and these lines. @return its path.
    QString write(const char *name, const QStringList &lines) const
    {
        QByteArray text = "# nerix feature stream 1: " + QByteArray::number(lines.size())
                          + " features, 0 not readable\n";
        for (const QString &line : lines) {
            text += line.toUtf8() + '\n';
        }
        return writeRaw(name, text);
    }

    QString writeRaw(const char *name, const QByteArray &text) const
    {
        QFile file(path(name));
        const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
        return isWritten ? file.fileName() : QString();
    }

    QByteArray read(const char *name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir m_folder;
};

// The refused features of a report, as "name: reason".
template <class Report>
QStringList refusedIn(const Report &report)
{
    QStringList lines;
    for (const auto &refused : report.refused) {
        lines.append(refused.name + QStringLiteral(": ") + refused.reason);
    }
    return lines;
}
