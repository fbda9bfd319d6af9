// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "windows/OnLanguageChange.h"

#include <utility>

#include <QCoreApplication>
#include <QEvent>
#include <QObject>

namespace Windows {

namespace {

// The application tells of its catalogues by an event to itself.
class CLanguageListener : public QObject
{
public:
    CLanguageListener(QObject *owner, std::function<void()> setTexts)
        : QObject(owner)
        , m_setTexts(std::move(setTexts))
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::LanguageChange && watched == QCoreApplication::instance()) {
            m_setTexts();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> m_setTexts;
};

} // namespace

void onLanguageChange(QObject *owner, std::function<void()> setTexts)
{
    setTexts();
    new CLanguageListener(owner, std::move(setTexts));
}

} // namespace Windows
