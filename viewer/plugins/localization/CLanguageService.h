// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include "plugins/localization/CQtTexts.h"
#include "plugins/localization/ILanguageService.h"

#include <functional>

namespace Plugin {
namespace Localization {

/// Keeps the choice in the settings under "Localization/Language". GUI thread.
class CLanguageService : public ILanguageService
{
    Q_OBJECT

public:
    /// Switches every plug-in to a language.
    using Switch = std::function<void(const QString &language)>;

    explicit CLanguageService(Switch switchPlugins, QObject *parent = nullptr);
    ~CLanguageService() override;

    QString language() const override;
    QString choice() const override;
    QStringList languages() const override;
    bool setLanguage(const QString &language) override;

    /// Switches every plug-in, and Qt's own texts, to `language()`.
    void apply();

private:
    bool canBeChosen(const QString &language) const;
    void warnOfUnknownChoice() const;

    Switch m_switchPlugins;
    CQtTexts m_qtTexts;
};

} // namespace Localization
} // namespace Plugin
