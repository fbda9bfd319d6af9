// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "scripting/CScriptSettings.h"

#include <QSettings>

namespace Scripting {

CScriptSettings::CScriptSettings(QObject *parent)
    : QObject(parent)
{}

QVariant CScriptSettings::get(const QString &key) const
{
    const QVariant value = QSettings().value(key);
    return value.isValid() ? QVariant(value.toString()) : QVariant::fromValue(nullptr);
}

QString CScriptSettings::fileName() const
{
    return QSettings().fileName();
}

} // namespace Scripting
