// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>

#include <QtGlobal>

namespace Core {
namespace AppCoreComponents {

/// The root of everything that the viewer describes with a shared info object, such as a device.
///
/// Info objects are immutable once they are handed out, so every thread may read them without a
/// lock. They are held by `QSharedPointer`; whoever keeps one keeps only the description alive, not
/// the device.
class NERIXCORE_EXPORT IBaseInfo
{
public:
    IBaseInfo() = default;
    virtual ~IBaseInfo();

    Q_DISABLE_COPY_MOVE(IBaseInfo)
};

} // namespace AppCoreComponents
} // namespace Core
