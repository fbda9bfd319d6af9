// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/featuretree/CChoiceEdit.h"

#include "windows/ShownText.h"

#include <QMetaObject>

namespace FeatureTree {

CChoiceEdit::CChoiceEdit(QWidget *parent)
    : QComboBox(parent)
{
    setFrame(false);
    connect(this, QOverload<int>::of(&QComboBox::activated), this, [this] {
        m_isPicked = true;
        Q_EMIT picked();
    });
    // Not before the view has put it where it belongs.
    QMetaObject::invokeMethod(
        this, [this] { showPopup(); }, Qt::QueuedConnection);
}

CChoiceEdit::~CChoiceEdit() = default;

void CChoiceEdit::setEntries(const QStringList &entries)
{
    QStringList present;
    for (int i = 0; i < count(); ++i) {
        present.append(itemData(i).toString());
    }
    if (entries != present) {
        const QString chosen = entry();
        clear();
        for (const QString &one : entries) {
            addItem(Windows::shownLine(one), one);
        }
        setCurrentIndex(findData(chosen));
    }
}

QString CChoiceEdit::entry() const
{
    return currentData().toString();
}

// The list is hidden first and tells only then which entry was picked.
void CChoiceEdit::hidePopup()
{
    QComboBox::hidePopup();
    QMetaObject::invokeMethod(
        this, [this] { onHidden(); }, Qt::QueuedConnection);
}

void CChoiceEdit::onHidden()
{
    if (!m_isPicked) {
        Q_EMIT dismissed();
    }
}

} // namespace FeatureTree
