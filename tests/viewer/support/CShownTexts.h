// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class QAbstractItemModel;
class QAction;
class QModelIndex;
class QWidget;

// Every text that the windows of this process show or would show (labels, tool tips, entries, rows,
// titles), in all widgets that there are, and what is wrong in the way in which they show those
// texts that have a certain mark in them: texts that came from outside.
class CShownTexts
{
public:
    // The foreign texts are those that contain \a mark.
    explicit CShownTexts(const QString &mark);

    // Where foreign texts are shown, such as "QTreeView CameraSelector.Cameras, tool tip".
    QStringList places() const;

    // One line for each that is shown in a way in which it must not be: guessed to be HTML, with
    // control or bidirectional characters, as a mnemonic, without a limit.
    QStringList faults() const;

    // Every tool tip, foreign or not, as Qt gets it.
    QStringList toolTips() const;

private:
    enum class Kind { Plain, Line, Guessed, Html, Mnemonic };

    void addWidget(const QWidget &widget);
    void addItems(const QString &place, const QAbstractItemModel &model, const QModelIndex &parent);
    void addAction(const QAction &action);
    void addToolTip(const QString &place, const QString &text);
    void add(const QString &place, Kind kind, const QString &text);
    void fault(const QString &place, const char *reason, const QString &text);

    QString m_mark;
    QStringList m_places;
    QStringList m_faults;
    QStringList m_toolTips;
};
