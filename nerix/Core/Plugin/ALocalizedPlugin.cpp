// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include <Core/Plugin/ALocalizedPlugin.h>

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTranslator>

namespace Core {
namespace Plugin {

ALocalizedPlugin::ALocalizedPlugin(QObject *parent)
    : IPlugin(parent)
{}

// The translator takes itself out of the application when it is destroyed.
ALocalizedPlugin::~ALocalizedPlugin() = default;

bool ALocalizedPlugin::setLanguage(const QString &language)
{
    m_translator.reset();
    if (loadCatalogue(language)) {
        return true;
    }
    const int separator = language.indexOf(QRegularExpression(QStringLiteral("[_-]")));
    return separator > 0 && loadCatalogue(language.left(separator));
}

bool ALocalizedPlugin::loadCatalogue(const QString &language)
{
    QScopedPointer<QTranslator> translator(new QTranslator);
    const QString catalogue = QStringLiteral(":/translation/%1_%2.qm").arg(objectName(), language);
    // QTranslator::load has a fall-back of its own, which would also try a file without a suffix.
    if (!QFile::exists(catalogue) || !translator->load(catalogue)) {
        return false;
    }
    m_translator.swap(translator);
    QCoreApplication::installTranslator(m_translator.data());
    return true;
}

} // namespace Plugin
} // namespace Core
