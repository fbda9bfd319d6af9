// SPDX-FileCopyrightText: 2026 Ostrand
// SPDX-License-Identifier: MIT

#include "plugins/help/CHelpBrowser.h"

#include <QSettings>
#include <QTextBlock>
#include <QTextTable>

namespace Plugin {
namespace Help {

namespace {

const QLatin1String zoomKey("Help/Zoom");
constexpr int smallest = -5;
constexpr int largest = 20;

constexpr qreal tablePadding = 4;

bool isHeading(const QTextBlock &block)
{
    return block.blockFormat().headingLevel() > 0;
}

// "What is masked, and what is not" is linked to as "what-is-masked-and-what-is-not".
QString anchorOf(const QString &heading)
{
    QString anchor;
    for (const QChar letter : heading.toLower()) {
        if (letter.isLetterOrNumber() || letter == QLatin1Char('-')) {
            anchor.append(letter);
        } else if (letter.isSpace()) {
            anchor.append(QLatin1Char('-'));
        }
    }
    return anchor;
}

} // namespace

CHelpBrowser::CHelpBrowser(const CHelpDocuments &documents, QWidget *parent)
    : QTextBrowser(parent)
    , m_documents(documents)
{
    setOpenLinks(false);
    document()->setDocumentMargin(16);
    connect(this, &QTextBrowser::anchorClicked, this, &CHelpBrowser::follow);
    connect(this, &QTextBrowser::sourceChanged, this, &CHelpBrowser::giveTablesRoom);
    setZoom(QSettings().value(zoomKey, 0).toInt());
}

CHelpBrowser::~CHelpBrowser() = default;

void CHelpBrowser::showDocument(const QString &path, const QString &heading)
{
    const QUrl url = QUrl::fromLocalFile(path);
    if (source().fileName() == url.fileName()) {
        reload();
    } else {
        setSource(url, path.endsWith(QLatin1String(".md")) ? QTextDocument::MarkdownResource
                                                           : QTextDocument::HtmlResource);
    }
    goToHeading(heading);
}

// A document has the same blocks in each language.
void CHelpBrowser::readAnew()
{
    if (source().isEmpty()) {
        return;
    }
    const int top = cursorForPosition({}).blockNumber();
    reload();
    if (top > 0) {
        bringToTheTop(document()->findBlockByNumber(top));
    }
}

QString CHelpBrowser::title() const
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (isHeading(block)) {
            return block.text();
        }
    }
    return source().fileName();
}

bool CHelpBrowser::search(const QString &text, QTextDocument::FindFlags flags)
{
    if (find(text, flags)) {
        return true;
    }
    const QTextCursor before = textCursor();
    const bool backward = flags.testFlag(QTextDocument::FindBackward);
    moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    if (find(text, flags)) {
        return true;
    }
    setTextCursor(before);
    return false;
}

int CHelpBrowser::zoom() const
{
    return m_zoom;
}

void CHelpBrowser::setZoom(int steps)
{
    const int wanted = qBound(smallest, steps, largest);
    zoomIn(wanted - m_zoom);
    m_zoom = wanted;
    if (QSettings().value(zoomKey, 0).toInt() != wanted) {
        QSettings().setValue(zoomKey, wanted);
    }
}

// Qt would read the file in the encoding of the system, and in the language of its path: the way
// back has paths of other languages after a change.
QVariant CHelpBrowser::loadResource(int type, const QUrl &name)
{
    const bool isText =
        type == QTextDocument::MarkdownResource || type == QTextDocument::HtmlResource;
    const QString path = m_documents.resolve(name);
    if (!isText || path.isEmpty()) {
        return {};
    }
    return m_documents.text(path);
}

void CHelpBrowser::follow(const QUrl &link)
{
    const QString path = link.path().isEmpty() ? source().toLocalFile() : m_documents.resolve(link);
    if (path.isEmpty()) {
        Q_EMIT addressClicked(link);
    } else {
        showDocument(path, link.fragment());
    }
}

// The way tables come out of Markdown, their texts touch the lines.
void CHelpBrowser::giveTablesRoom()
{
    const auto frames = document()->rootFrame()->childFrames();
    for (QTextFrame *frame : frames) {
        if (auto *table = qobject_cast<QTextTable *>(frame)) {
            QTextTableFormat format = table->format();
            format.setCellPadding(tablePadding);
            format.setCellSpacing(0);
            format.setBorderCollapse(true);
            format.setTopMargin(tablePadding);
            format.setBottomMargin(2 * tablePadding);
            table->setFormat(format);
        }
    }
}

void CHelpBrowser::goToHeading(const QString &heading)
{
    if (heading.isEmpty()) {
        return;
    }
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (isHeading(block) && anchorOf(block.text()) == heading) {
            bringToTheTop(block);
            return;
        }
    }
}

// From the end, since the view moves no farther than it must.
void CHelpBrowser::bringToTheTop(const QTextBlock &block)
{
    moveCursor(QTextCursor::End);
    setTextCursor(QTextCursor(block));
}

} // namespace Help
} // namespace Plugin
