// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include <QString>

class QTranslator;

namespace Plugin {
namespace Localization {

/// The texts of Qt itself: the buttons of its dialogs, the menus of its input fields. GUI thread.
class CQtTexts
{
public:
    CQtTexts();

    /// Takes the translation out of the application.
    ~CQtTexts();

    Q_DISABLE_COPY_MOVE(CQtTexts)

    /// Translates them to \a language ("ja", "zh_CN"), in place of an earlier one. They are English
    /// where Qt's catalogue of that language is not installed.
    /// @return whether it is.
    bool setLanguage(const QString &language);

private:
    std::unique_ptr<QTranslator> m_translator;
};

} // namespace Localization
} // namespace Plugin
