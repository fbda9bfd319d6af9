// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QTreeView;

namespace Plugin {
namespace NerixViewer {

class CMessageModel;

/// The panel with the last messages, each in as many lines as it needs, which can be copied and
/// cleared. It stays at the newest one
/// until the user scrolls up. GUI thread.
class CMessagePanel : public QWidget
{
    Q_OBJECT

public:
    /// \a model must outlive the panel.
    explicit CMessagePanel(CMessageModel &model, QWidget *parent = nullptr);
    ~CMessagePanel() override;

private:
    void addActions();
    void copy() const;
    void followNewest();

    CMessageModel &m_model;
    QTreeView *m_view;
    bool m_isAtNewest = true;
};

} // namespace NerixViewer
} // namespace Plugin
