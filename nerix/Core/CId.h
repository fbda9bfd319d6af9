// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <NerixCoreExport.h>

#include <QHashFunctions>
#include <QMetaType>
#include <QString>

namespace Core {

/// The name by which the parts of the viewer refer to a menu, an action, a context or a tab, for
/// example "NerixViewer.Menu.Help".
///
/// A value type: two ids are the same when their texts are, case included. The parts of the text
/// are separated by dots; the first one names who defined it. Usable in any thread.
class NERIXCORE_EXPORT CId
{
public:
    /// An invalid id. It names nothing.
    CId() = default;

    explicit CId(const QString &text);

    /// @overload for literals; \a text is UTF-8, null gives an invalid id.
    explicit CId(const char *text);

    /// False for an empty text.
    bool isValid() const;

    const QString &toString() const;

private:
    QString m_text;
};

NERIXCORE_EXPORT bool operator==(const CId &left, const CId &right);
NERIXCORE_EXPORT bool operator!=(const CId &left, const CId &right);
NERIXCORE_EXPORT bool operator<(const CId &left, const CId &right);
NERIXCORE_EXPORT uint qHash(const CId &id, uint seed = 0);

} // namespace Core

Q_DECLARE_METATYPE(Core::CId)
