// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/nerixwelcome/QuickRenderer.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <QSGRendererInterface>

namespace Plugin {
namespace NerixWelcome {

namespace {

Q_LOGGING_CATEGORY(log, "nerix.welcome", QtInfoMsg)

// The platforms without a screen have no OpenGL, and say so with a warning when they are asked.
bool mayHaveOpenGl()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("minimal") && platform != QLatin1String("offscreen");
}

bool openGlWorks()
{
    QOpenGLContext context;
    if (!mayHaveOpenGl() || !context.create()) {
        return false;
    }
    QOffscreenSurface surface;
    surface.create();
    return surface.isValid() && context.makeCurrent(&surface);
}

bool isChosen()
{
    return !QQuickWindow::sceneGraphBackend().isEmpty()
           || !qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND");
}

void choose()
{
    if (!isChosen() && !openGlWorks()) {
        qCDebug(log) << "pages are drawn without OpenGL: it does not work here";
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    }
}

} // namespace

void chooseQuickRenderer()
{
    static const bool isDone = [] {
        choose();
        return true;
    }();
    Q_UNUSED(isDone)
}

} // namespace NerixWelcome
} // namespace Plugin
