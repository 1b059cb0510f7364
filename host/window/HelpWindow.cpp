// SPDX-License-Identifier: MIT
#include "window/HelpWindow.h"

#include "support/InputFile.h"
#include "support/SharedFiles.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr qint64 LargestPage = 4 << 20;
constexpr int WidthInCharacters = 90;
constexpr int HeightInLines = 40;

// "Colour picker" and "colour-picker" are the same section, as links have it.
QString plain(const QString& heading)
{
    QString text;
    for (const QChar sign : heading) {
        if (sign.isLetterOrNumber())
            text += sign.toLower();
    }
    return text;
}

} // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , m_browser(new QTextBrowser)
{
    setObjectName(QStringLiteral("help"));
    m_browser->setAccessibleName(tr("Documentation"));
    m_browser->setFrameShape(QFrame::NoFrame);
    m_browser->setOpenLinks(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_browser);
    connect(m_browser, &QTextBrowser::anchorClicked, this, &HelpWindow::follow);
    resize(fontMetrics().averageCharWidth() * WidthInCharacters, fontMetrics().height() * HeightInLines);
}

// In English (decisions.md: reference-in-english).
QString HelpWindow::fileOf(const QString& page)
{
    if (QDir::isAbsolutePath(page))
        return QFileInfo(page).isFile() ? page : QString();
    const QString file = page.contains(QLatin1Char('/'))
                             ? QString()
                             : sharedFile(QStringLiteral("docs/") + page + QStringLiteral(".md"));
    return QFileInfo(file).isFile() ? file : QString();
}

bool HelpWindow::open(const QString& page, const QString& section)
{
    const QString file = fileOf(page);
    if (file.isEmpty() || !load(file))
        return false;
    show();
    raise();
    activateWindow();
    m_browser->setFocus();
    goTo(section);
    return true;
}

bool HelpWindow::load(const QString& file)
{
    if (file == m_file)
        return true;
    QByteArray text;
    if (!readFile(file, LargestPage, text).isEmpty())
        return false;
    m_file = file;
    m_browser->setSearchPaths({QFileInfo(file).path()});
    m_browser->setMarkdown(QString::fromUtf8(text));
    const QTextBlock first = m_browser->document()->begin();
    setWindowTitle(first.text());
    return true;
}

// To another page, or to a section; what lies on a network is left alone.
void HelpWindow::follow(const QUrl& link)
{
    if (!link.isRelative())
        return;
    const QString file = QDir(QFileInfo(m_file).path()).filePath(link.path());
    const bool isPage = file.endsWith(QLatin1String(".md")) && QFileInfo(file).isFile();
    if (link.path().isEmpty() || (isPage && load(QDir::cleanPath(file))))
        goTo(link.fragment());
}

void HelpWindow::goTo(const QString& section)
{
    const QTextDocument& document = *m_browser->document();
    QTextBlock block = document.begin();
    const QString wanted = plain(section);
    const auto isIt = [&] { return block.blockFormat().headingLevel() > 0 && plain(block.text()) == wanted; };
    while (!wanted.isEmpty() && block.isValid() && !isIt())
        block = block.next();
    if (!block.isValid())
        block = document.begin();
    m_browser->setTextCursor(QTextCursor(block));
    m_browser->verticalScrollBar()->setValue(int(document.documentLayout()->blockBoundingRect(block).top()) -
                                             int(document.documentMargin()));
}

void HelpWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace scopix
