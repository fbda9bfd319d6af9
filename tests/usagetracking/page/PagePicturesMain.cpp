// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// consent-page-pictures [--kept] FOLDER: pictures of the page in each state and language, for
// people to look at. With --kept in the size in which the comparison test keeps them.

#include "PagePictures.h"

#include <QApplication>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

int fail(const QString &message)
{
    QTextStream(stderr) << "consent-page-pictures: " << message << '\n';
    return 1;
}

} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    const QApplication application(argc, argv);
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
    QCoreApplication::setOrganizationName(QStringLiteral("Ostrand"));
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool kept = arguments.removeAll(QStringLiteral("--kept")) > 0;
    if (arguments.size() != 1) {
        return fail(QStringLiteral("usage: consent-page-pictures [--kept] FOLDER"));
    }
    const QDir folder(arguments.first());
    if (!folder.mkpath(QStringLiteral("."))) {
        return fail(folder.path() + QStringLiteral(": cannot be made"));
    }
    for (const PageView &view : pageViews()) {
        const QImage picture = pictureOf(view);
        const QString file = folder.filePath(view.name + QStringLiteral(".png"));
        if (picture.isNull() || !(kept ? keptSize(picture) : picture).save(file)) {
            return fail(file + QStringLiteral(": cannot be drawn or written"));
        }
    }
    return 0;
}
