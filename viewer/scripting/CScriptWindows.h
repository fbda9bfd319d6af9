// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/CScriptObject.h"

#include <QStringList>

class QWidget;

namespace Scripting {

/// `windows`: the windows that are on the screen, each named by its title. GUI thread.
class CScriptWindows : public CScriptObject
{
    Q_OBJECT

public:
    using CScriptObject::CScriptObject;

    /// The titles of the windows that are shown. None in a run without windows.
    Q_INVOKABLE QStringList titles();

    /// Makes the window \a title so large, in device-independent pixels.
    Q_INVOKABLE void resize(const QString &title, int width, int height);

    /// Saves a picture of the window \a title; the suffix of \a file says in which format.
    Q_INVOKABLE void save(const QString &title, const QString &file);

    /// What a screen reader says of the thing that has the keyboard; empty if nothing has.
    Q_INVOKABLE QString focus();

private:
    QWidget *find(const QString &title);
};

} // namespace Scripting
