// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CId.h>
#include <NerixCoreExport.h>

#include <QList>

namespace Core {
namespace AppCoreComponents {

/// Where in the application an action applies: the ids of the views in which it can be triggered.
///
/// "AppCore.Global.Context" stands for everywhere. A value type, usable in any thread.
class NERIXCORE_EXPORT CContext
{
public:
    /// An empty context: the action applies nowhere.
    CContext() = default;

    /// The context that holds just \a id.
    explicit CContext(const CId &id);

    void add(const CId &id);
    bool contains(const CId &id) const;
    const QList<CId> &ids() const;

private:
    QList<CId> m_ids;
};

} // namespace AppCoreComponents
} // namespace Core
