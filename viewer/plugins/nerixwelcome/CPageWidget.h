// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickWidget>

class QQuickItem;

namespace Plugin {
namespace NerixWelcome {

/// A page among the widgets of a window: it has the size of the widget, and the keys that walk from
/// control to control walk into it, through it and out of it. GUI thread.
class CPageWidget : public QQuickWidget
{
    Q_OBJECT

public:
    /// \a page stays its owner's and may go before this object, but not after \a engine.
    CPageWidget(QQmlEngine &engine, QQuickItem &page, QWidget *parent = nullptr);
    ~CPageWidget() override;

    /// Null once the page is gone.
    QQuickItem *page() const;

Q_SIGNALS:
    /// The keyboard is now at \a area of the page.
    void focusMoved(const QRect &area);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void followFocus();
    QQuickItem *firstStop(bool forward) const;

    QPointer<QQuickItem> m_page;
};

} // namespace NerixWelcome
} // namespace Plugin
