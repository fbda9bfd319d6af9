// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include <QKeySequence>
#include <QList>
#include <QMainWindow>

class QAction;
class QLineEdit;
class QToolBar;
class QUrl;

namespace Plugin {
namespace Help {

class CHelpBrowser;
class CHelpDocuments;

/// The window of the help: a document, back and forward, search, size of the letters. GUI thread.
class CHelpWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit CHelpWindow(const CHelpDocuments &documents, QWidget *parent = nullptr);
    ~CHelpWindow() override;

    /// Shows the document at \a path, in front. \a over is the window to stand over, null for none:
    /// a window that blocks the others lets only those through that stand over it.
    void showDocument(const QString &path, QWindow *over);

    /// Shows the same document in the language of the moment.
    void readAnew();

    CHelpBrowser *browser() const;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QAction *addEntry(const char *icon, std::function<QString()> text,
                      const QList<QKeySequence> &shortcuts, std::function<void()> act);
    void fillToolBar(const CHelpDocuments &documents);
    void addSearch();
    void setTitle();
    void openAddress(const QUrl &address);
    void search(bool backward);
    void zoomBy(int steps);

    QToolBar *m_toolBar;
    CHelpBrowser *m_browser;
    QLineEdit *m_search;
};

} // namespace Help
} // namespace Plugin
