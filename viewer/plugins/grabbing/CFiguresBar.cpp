// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/grabbing/CFiguresBar.h"

#include "plugins/grabbing/CGrabController.h"
#include "plugins/grabbing/FigureTexts.h"
#include "windows/CPlainLabel.h"
#include "windows/OnLanguageChange.h"

#include <QHBoxLayout>

namespace Grabbing {

namespace {

constexpr int gap = 18;

// A label grows with its text and does not shrink again, so that the others stay where they are.
void setSteadyText(Windows::CPlainLabel *label, const QString &text)
{
    label->setText(text);
    label->setMinimumWidth(qMax(label->minimumWidth(), label->sizeHint().width()));
}

void setBold(Windows::CPlainLabel *label, bool isBold)
{
    QFont font = label->font();
    font.setBold(isBold);
    label->setFont(font);
}

} // namespace

CFiguresBar::CFiguresBar(const CGrabController &controller, QWidget *parent)
    : QWidget(parent)
    , m_controller(controller)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 6, 0);
    layout->setSpacing(gap);
    m_images = addLabel("images");
    m_failures = addLabel("failures");
    m_imageRate = addLabel("imageRate");
    m_dataRate = addLabel("dataRate");
    connect(&m_controller, &CGrabController::changed, this, &CFiguresBar::update);
    Windows::onLanguageChange(this, [this] {
        setAccessibleName(tr("Figures of the grab"));
        update();
    });
}

CFiguresBar::~CFiguresBar() = default;

Windows::CPlainLabel *CFiguresBar::addLabel(const char *name)
{
    auto *label = new Windows::CPlainLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout()->addWidget(label);
    return label;
}

void CFiguresBar::giveRoomBack()
{
    for (Windows::CPlainLabel *label : {m_images, m_failures, m_imageRate, m_dataRate}) {
        label->setMinimumWidth(0);
    }
}

void CFiguresBar::update()
{
    const auto figures = m_controller.figures();
    const FigureTexts texts = figures ? figureTexts(*figures, QLocale()) : FigureTexts();
    if (!figures) {
        giveRoomBack();
    }
    setSteadyText(m_images, texts.images);
    setBold(m_failures, figures && figures->imagesFailed > 0);
    setSteadyText(m_failures, texts.failures);
    setSteadyText(m_imageRate, texts.imageRate);
    setSteadyText(m_dataRate, texts.dataRate);
}

} // namespace Grabbing
