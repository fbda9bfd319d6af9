// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "IgnoredLeaks.h"

#include <memory>

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

template <class Application>
std::unique_ptr<Application> makeTestApplication(int &argc, char **argv)
{
    // Qt 5.15's offscreen platform does not delete its screen.
    const IgnoredLeaks screen;
    return std::make_unique<Application>(argc, argv);
}

/// An application with names and folders of its own, so that tests neither touch what belongs to a
/// user nor meet each other.
#define NERIX_TEST_MAIN(TestClass) NERIX_TEST_MAIN_IN(QApplication, TestClass)

/// The same with an \a Application of a class of its own.
#define NERIX_TEST_MAIN_IN(Application, TestClass)                                                 \
    int main(int argc, char *argv[])                                                               \
    {                                                                                              \
        QTemporaryDir home;                                                                        \
        qputenv("XDG_DATA_HOME", home.filePath("data").toLocal8Bit());                             \
        qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());                                     \
        const auto application = makeTestApplication<Application>(argc, argv);                     \
        QCoreApplication::setOrganizationName(QStringLiteral("Ostrand"));                          \
        QCoreApplication::setApplicationName(QStringLiteral(#TestClass));                          \
        QSettings::setDefaultFormat(QSettings::IniFormat);                                         \
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());               \
        TestClass test;                                                                            \
        return QTest::qExec(&test, argc, argv);                                                    \
    }
