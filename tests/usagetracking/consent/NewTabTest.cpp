// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

// What a tab tells while it is being made, before anybody can have a pointer to it but its parent.

#include "TestMain.h"

#include <internal/CDataPrivacyTab.h>

#include <QChildEvent>

using namespace Plugin::UsageTracking::Internal;

namespace {

// A child that is just born is no more than a QObject, whose three signals come first; then the
// tab's own, of which this is the first.
constexpr int applyIsNeededChanged = 3;

} // namespace

/// Listens to each child from the moment that it is its child.
class ListeningParent : public QObject
{
    Q_OBJECT

public:
    int emissions = 0;

public Q_SLOTS:
    void count()
    {
        ++emissions;
    }

protected:
    void childEvent(QChildEvent *event) override
    {
        if (event->added()) {
            QMetaObject::connect(event->child(), applyIsNeededChanged, this,
                                 staticMetaObject.indexOfMethod("count()"));
        }
    }
};

class NewTabTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newTabHasSaidOnceThatAnAnswerIsNeeded()
    {
        ListeningParent parent;
        const CDataPrivacyTab tab(&parent);
        QCOMPARE(parent.emissions, 1);
        QCOMPARE(tab.isApplyNeeded(), true);
    }
};

NERIX_TEST_MAIN(NewTabTest)
#include "NewTabTest.moc"
