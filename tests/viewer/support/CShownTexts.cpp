// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "support/CShownTexts.h"

#include <algorithm>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QStatusBar>
#include <QTabBar>
#include <QTextDocument>

namespace {

// Far more than a screen holds, far less than what takes a second to lay out.
constexpr int longestShown = 20000;

QString placeOf(const QObject &object)
{
    QString name = object.objectName();
    for (const QObject *up = &object; name.isEmpty() && up; up = up->parent()) {
        name = up->objectName();
    }
    return QLatin1String(object.metaObject()->className()) + QLatin1Char(' ') + name;
}

bool isUnseen(QChar character)
{
    return character.category() == QChar::Other_Control
           || character.category() == QChar::Other_Format || character.unicode() == 0x2028
           || character.unicode() == 0x2029;
}

} // namespace

CShownTexts::CShownTexts(const QString &mark)
    : m_mark(mark)
{
    const auto all = QApplication::allWidgets();
    for (const QWidget *widget : all) {
        addWidget(*widget);
    }
}

QStringList CShownTexts::places() const
{
    return m_places;
}

QStringList CShownTexts::faults() const
{
    return m_faults;
}

QStringList CShownTexts::toolTips() const
{
    return m_toolTips;
}

void CShownTexts::addWidget(const QWidget &widget)
{
    const QString place = placeOf(widget);
    add(place + QLatin1String(", title"), Kind::Line, widget.windowTitle());
    addToolTip(place, widget.toolTip());
    addToolTip(place, widget.whatsThis());
    if (const auto *label = qobject_cast<const QLabel *>(&widget)) {
        const bool isPlain = label->textFormat() == Qt::PlainText;
        add(place,
            isPlain                               ? Kind::Plain
            : label->textFormat() == Qt::AutoText ? Kind::Guessed
                                                  : Kind::Html,
            label->text());
    } else if (const auto *view = qobject_cast<const QAbstractItemView *>(&widget)) {
        // A header has the same rows.
        if (view->model() && !qobject_cast<const QHeaderView *>(view)) {
            addItems(place, *view->model(), {});
        }
    } else if (const auto *choice = qobject_cast<const QComboBox *>(&widget)) {
        addItems(place, *choice->model(), {});
    } else if (const auto *button = qobject_cast<const QAbstractButton *>(&widget)) {
        add(place, Kind::Mnemonic, button->text());
    } else if (const auto *text = qobject_cast<const QPlainTextEdit *>(&widget)) {
        add(place, Kind::Plain, text->toPlainText());
    } else if (const auto *status = qobject_cast<const QStatusBar *>(&widget)) {
        add(place, Kind::Line, status->currentMessage());
    } else if (const auto *tabs = qobject_cast<const QTabBar *>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i) {
            add(place, Kind::Mnemonic, tabs->tabText(i));
        }
    }
    const auto actions = widget.actions();
    for (const QAction *action : actions) {
        addAction(*action);
    }
}

void CShownTexts::addItems(const QString &place, const QAbstractItemModel &model,
                           const QModelIndex &parent)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column) {
            const QModelIndex index = model.index(row, column, parent);
            add(place, Kind::Plain, index.data().toString());
            add(place, Kind::Line, index.data(Qt::AccessibleTextRole).toString());
            addToolTip(place, index.data(Qt::ToolTipRole).toString());
        }
        addItems(place, model, model.index(row, 0, parent));
    }
}

void CShownTexts::addAction(const QAction &action)
{
    const QString place = placeOf(action);
    add(place, Kind::Mnemonic, action.text());
    addToolTip(place, action.toolTip());
    addToolTip(place, action.statusTip());
}

void CShownTexts::addToolTip(const QString &place, const QString &text)
{
    m_toolTips.append(text);
    add(place + QLatin1String(", tool tip"), Qt::mightBeRichText(text) ? Kind::Html : Kind::Plain,
        text);
}

void CShownTexts::add(const QString &place, Kind kind, const QString &text)
{
    if (!text.contains(m_mark)) {
        return;
    }
    m_places.append(place);
    const bool hasUnseen = std::any_of(text.begin(), text.end(), [kind](QChar character) {
        return isUnseen(character) && (character != QLatin1Char('\n') || kind == Kind::Line);
    });
    if (kind == Kind::Guessed) {
        fault(place, "guesses whether it is HTML", text);
    }
    if (kind == Kind::Html && text.contains(QLatin1String("<img"))) {
        fault(place, "takes it for HTML", text);
    }
    if (kind == Kind::Mnemonic && text.contains(QLatin1Char('&'))) {
        fault(place, "takes an & of it for a mnemonic", text);
    }
    if (hasUnseen) {
        fault(place, "has characters that nobody sees", text);
    }
    if (text.size() > longestShown) {
        fault(place, "has no limit", text);
    }
}

void CShownTexts::fault(const QString &place, const char *reason, const QString &text)
{
    m_faults.append(QStringLiteral("%1 %2: %3").arg(place, QLatin1String(reason), text.left(200)));
}
