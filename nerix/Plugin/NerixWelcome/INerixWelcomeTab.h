// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <Core/CId.h>
#include <NerixCoreExport.h>

#include <QObject>
#include <QString>
#include <QUrl>

class QQmlContext;

namespace Plugin {
namespace NerixWelcome {

/// A tab of the welcome screen: a caption and a QML page. GUI thread.
///
/// A tab is made and owned by the plug-in that offers it, and handed to `INerixWelcomeService`. The
/// derived class sets the id and the protected members in its constructor; what it changes later it
/// announces with the signals.
class NERIXCORE_EXPORT INerixWelcomeTab : public QObject
{
    Q_OBJECT

public:
    ~INerixWelcomeTab() override;

    const Core::CId &tabId() const;

    /// The caption, translated.
    const QString &tabTitle() const;

    /// The page to load, an `Item`. The window begins with the page's `implicitWidth` and
    /// `implicitHeight` and scrolls it when there is less room; where there is more, the page is
    /// made larger. For a page without an implicit size its `width` and `height` count, and 640 x
    /// 400 for one that has neither.
    const QUrl &tabQmlSource() const;

    /// True while the user must not leave the welcome screen, because the tab holds a question that
    /// was never answered. False at construction.
    bool isApplyNeeded() const;

    /// Publishes on \a context what the page binds to. The welcome screen calls it before it loads
    /// the page. @return false if the page must not be loaded.
    virtual bool setupQmlContext(QQmlContext *context) = 0;

Q_SIGNALS:
    /// Emitted by the derived class after it changed `applyIsNeeded`.
    void applyIsNeededChanged();

    /// Emitted by the derived class after it changed `title`.
    void titleChanged();

protected:
    explicit INerixWelcomeTab(QObject *parent = nullptr);

    void setId(const Core::CId &id);

    QString title;
    QUrl qmlSource;
    bool applyIsNeeded = false;

private:
    Core::CId m_id;
};

} // namespace NerixWelcome
} // namespace Plugin
