// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "PagePictures.h"

#include "ConsentPage.h"

#include <QCursor>

QList<PageView> pageViews()
{
    QList<PageView> views;
    for (const char *code : {"en", "ja", "ko", "zh"}) {
        const QString language = QString::fromLatin1(code);
        const auto add = [&](const char *state, bool answered, bool answer,
                             const QByteArrayList &clicks) {
            views.append({QStringLiteral("%1-%2").arg(language, QLatin1String(state)), language,
                          answered, answer, clicks});
        };
        add("1-nothing-clicked", false, false, {});
        add("2-yes-clicked", false, false, {"yesCheckbox"});
        add("3-no-clicked", false, false, {"noCheckbox"});
        add("4-yes-applied", true, true, {});
        add("5-no-applied", true, false, {});
        add("6-no-clicked-after-yes", true, true, {"noCheckbox"});
    }
    return views;
}

QImage pictureOf(const PageView &view)
{
    if (view.answered) {
        storeAnswer(view.answer);
    } else {
        storeNoAnswer();
    }
    ConsentPage page;
    page.fixture.plugin->setLanguage(view.language);
    for (const QByteArray &name : view.clicks) {
        page.click(name.constData());
    }
    QCursor::setPos(page.window.mapToGlobal({2, 2}));
    page.hoverNothing();
    return page.window.grabWindow();
}

QImage keptSize(const QImage &picture)
{
    constexpr int width = 334;
    return picture.scaledToWidth(width, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}
