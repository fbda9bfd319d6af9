// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "scripting/CScriptCameraObject.h"

#include <QJSValue>
#include <QVariant>

namespace Scripting {

class CCameraJournal;

/// `cameras`: the cameras as the windows drive them. GUI thread.
class CScriptCameras : public CScriptCameraObject
{
    Q_OBJECT

public:
    /// \a services and \a wait must outlive the object.
    CScriptCameras(const Core::Plugin::IPluginInitializer &services, CScriptWait &wait,
                   QObject *parent);
    ~CScriptCameras() override;

    /// The connected cameras, in the order in which they were first seen.
    Q_INVOKABLE QVariantList list();

    /// \a numberOrPattern is a number: returns `list` once that many are connected. Or a text, in
    /// which * and ? stand for anything: returns the first camera with that identity, display name
    /// or model.
    Q_INVOKABLE QVariant waitFor(const QJSValue &numberOrPattern, int ms = 10000);

    /// Returns once no camera matches \a pattern.
    Q_INVOKABLE void waitForGone(const QString &pattern, int ms = 10000);

    /// Returns the camera once it is open.
    Q_INVOKABLE QVariant open(const QJSValue &camera, int ms = 30000);

    /// Returns once the camera is closed.
    Q_INVOKABLE void close(const QJSValue &camera, int ms = 30000);

    /// Null selects none.
    Q_INVOKABLE void select(const QJSValue &cameraOrNull);

    /// Null if none is selected.
    Q_INVOKABLE QVariant selected();

    /// What happened since the last call; see `CCameraJournal::take`.
    Q_INVOKABLE QVariantList takeEvents();

private:
    QVariant waitForCount(int count, int ms);
    QVariant waitForMatch(const QString &pattern, int ms);

    CCameraJournal *m_journal;
};

} // namespace Scripting
