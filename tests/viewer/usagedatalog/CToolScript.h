// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryDir>

// A program in the place of `rui-events`, for what the real one rarely does: it prints what the
// test says.
class CToolScript
{
public:
    CToolScript()
    {
        write("program", "#!/bin/sh\n"
                         "cd \"$(dirname \"$0\")\"\n"
                         "echo \"$*\" >>calls\n"
                         "case \"$*\" in\n"
                         "--follow*) cat follow; exec tail -f /dev/null ;;\n"
                         "--stats*) name=stats ;;\n"
                         "purge*) name=purge ;;\n"
                         "export*) name=export ;;\n"
                         "*) name=list ;;\n"
                         "esac\n"
                         "cat $name; cat $name.error >&2 2>/dev/null && exit 1; exit 0\n");
        QFile::setPermissions(program(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        for (const char *name : {"follow", "stats", "purge", "export", "list"}) {
            write(name, "");
        }
    }

    QString program() const
    {
        return path("program");
    }

    // What the program prints in each of its uses: "follow", "stats", "purge", "export", "list".
    void print(const char *use, const QByteArray &output)
    {
        write(use, output);
    }

    // It prints this as an error, and fails.
    void fail(const char *use, const QByteArray &error)
    {
        write(use + QByteArray(".error"), error);
    }

    // The command lines so far, one a line.
    QByteArray calls() const
    {
        QFile file(path("calls"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QString path(const QByteArray &name) const
    {
        return m_folder.filePath(QString::fromLatin1(name));
    }

    // At once: the program may read it at any time.
    void write(const QByteArray &name, const QByteArray &content)
    {
        const QString fresh = path(name + ".new");
        QFile file(fresh);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("%s cannot be written", qPrintable(fresh));
        }
        file.close();
        if (::rename(qPrintable(fresh), qPrintable(path(name))) != 0) {
            qFatal("%s cannot be replaced", name.constData());
        }
    }

    QTemporaryDir m_folder;
};
