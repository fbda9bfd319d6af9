// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>

#include <QObject>

namespace CameraPool {

/// News of the search for cameras.
class NERIXCORE_EXPORT ICameraEnumerationService : public QObject
{
    Q_OBJECT

public:
    ~ICameraEnumerationService() override;

Q_SIGNALS:
    /// A search has ended that found another set of cameras than the one before; the first search
    /// always counts, even if it found none. Emitted in the camera pool's thread, after the
    /// `deviceConnected` and `deviceDisconnected` signals of that search.
    void enumerationChanged();

protected:
    explicit ICameraEnumerationService(QObject *parent = nullptr);
};

} // namespace CameraPool
