// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QList>
#include <QObject>

class QDockWidget;
class QMainWindow;

namespace Plugin {
namespace NerixViewer {

/// The panels left and right of what is in the middle of a window. In a window that is narrower
/// than a full one they are narrower by the same ratio, so that the middle keeps its share; in a
/// wider one all that is added goes to the middle. A width that the user gives a panel is kept
/// likewise. GUI thread.
class CSidePanels : public QObject
{
    Q_OBJECT

public:
    /// \a fullWidth is that of a full window, in device-independent pixels. \a window must outlive
    /// this.
    CSidePanels(QMainWindow &window, int fullWidth);
    ~CSidePanels() override;

    /// From now on \a panel, which stays its owner's, is looked after wherever it stands.
    void add(QDockWidget *panel);

    /// Gives \a panel the width that it shall have in a full window.
    void setFullWidth(QDockWidget *panel, int width);

    /// The widths are right that the panels get next from the window, for the width that it has
    /// then.
    void adopt();

    /// The window has another width now.
    void follow();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void resize(const QList<QDockWidget *> &panels, const QList<int> &widths);
    double ratio() const;
    bool isAtASide(const QDockWidget &panel) const;
    void noteWidth(QDockWidget *panel);

    QMainWindow &m_window;
    const int m_fullWidth;
    int m_windowWidth; // to which the panels are laid out
    bool m_isResizing = false;
    QHash<const QObject *, double> m_fullWidths;
};

} // namespace NerixViewer
} // namespace Plugin
