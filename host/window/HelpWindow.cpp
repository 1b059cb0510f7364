// SPDX-License-Identifier: MIT
#include "window/HelpWindow.h"

#include "support/SharedFiles.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QTextBrowser>
#include <QVBoxLayout>

#include <vector>

namespace scopix
{

namespace
{

constexpr qint64 LargestPage = 4 << 20;
constexpr int WidthInCharacters = 110;
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

bool isPage(const QString& file)
{
    const QFileInfo info(file);
    return info.isFile() && info.isReadable() && info.size() <= LargestPage;
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
    auto* bar = new QHBoxLayout;
    makeBar(*bar);
    layout->addLayout(bar);
    layout->addWidget(m_browser);
    connect(m_browser, &QTextBrowser::anchorClicked, this, &HelpWindow::follow);
    connect(m_browser, &QTextBrowser::sourceChanged, this, &HelpWindow::showPage);
    resize(fontMetrics().averageCharWidth() * WidthInCharacters, fontMetrics().height() * HeightInLines);
}

void HelpWindow::makeBar(QHBoxLayout& bar)
{
    const auto add = [&](const QString& text, const char* name, const QKeySequence& key) {
        auto* button = new QPushButton(text);
        button->setObjectName(QLatin1String(name));
        button->setShortcut(key);
        button->setToolTip(tr("Key: %1").arg(key.toString(QKeySequence::NativeText)));
        bar.addWidget(button);
        return button;
    };
    auto* back = add(tr("Back"), "helpBack", QKeySequence::Back);
    auto* forward = add(tr("Forward"), "helpForward", QKeySequence::Forward);
    auto* contents = add(tr("Contents"), "helpContents", Qt::ALT + Qt::Key_Home);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(back, &QPushButton::clicked, m_browser, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, m_browser, &QTextBrowser::forward);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    connect(contents, &QPushButton::clicked, this, [this] { open(contentsPage(), {}); });
    makeFindLine(bar);
}

void HelpWindow::makeFindLine(QHBoxLayout& bar)
{
    bar.addStretch();
    m_notFound = new QLabel;
    bar.addWidget(m_notFound);
    m_wanted = new QLineEdit;
    m_wanted->setObjectName(QStringLiteral("helpFind"));
    m_wanted->setPlaceholderText(tr("Find in this page"));
    m_wanted->setAccessibleName(m_wanted->placeholderText());
    m_wanted->setClearButtonEnabled(true);
    bar.addWidget(m_wanted);
    connect(m_wanted, &QLineEdit::returnPressed, this, [this] { find({}); });
    connect(m_wanted, &QLineEdit::textEdited, m_notFound, &QLabel::clear);
    const auto onKey = [this](const QKeySequence& key, auto act) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, act);
    };
    onKey(QKeySequence::Find, [this] {
        m_wanted->setFocus(Qt::ShortcutFocusReason);
        m_wanted->selectAll();
    });
    onKey(QKeySequence::FindNext, [this] { find({}); });
    onKey(QKeySequence::FindPrevious, [this] { find(QTextDocument::FindBackward); });
}

// In English (decisions.md: reference-in-english).
QString HelpWindow::fileOf(const QString& page)
{
    if (QDir::isAbsolutePath(page))
        return isPage(page) ? page : QString();
    const QString file = page.contains(QLatin1Char('/'))
                             ? QString()
                             : sharedFile(QStringLiteral("docs/") + page + QStringLiteral(".md"));
    return isPage(file) ? file : QString();
}

bool HelpWindow::open(const QString& page, const QString& section)
{
    const QString file = fileOf(page);
    if (file.isEmpty())
        return false;
    show(); // before it, no section has a place
    go(file, section);
    raise();
    activateWindow();
    m_browser->setFocus();
    return true;
}

void HelpWindow::showPage()
{
    QTextDocument& document = *m_browser->document();
    document.setDocumentMargin(fontMetrics().height());
    setWindowTitle(document.begin().text());
    colorLinks();
}

// What reads Markdown takes the application's colour, which this window need not have.
void HelpWindow::colorLinks()
{
    QTextDocument& document = *m_browser->document();
    QTextCharFormat format;
    format.setForeground(palette().link());
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        std::vector<QTextCursor> links;
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            if (!part.fragment().charFormat().isAnchor())
                continue;
            links.emplace_back(&document);
            links.back().setPosition(part.fragment().position());
            links.back().setPosition(part.fragment().position() + part.fragment().length(),
                                     QTextCursor::KeepAnchor);
        }
        for (QTextCursor& link : links)
            link.mergeCharFormat(format);
    }
}

void HelpWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        colorLinks();
    QWidget::changeEvent(event);
}

// A page that is shown already is not read again.
void HelpWindow::go(const QString& file, const QString& section)
{
    QUrl place = QUrl::fromLocalFile(file);
    place.setFragment(section);
    m_browser->setSource(place, QTextDocument::MarkdownResource);
    m_notFound->clear();
    goTo(section);
}

// To another page, or to a section; what lies on a network is left alone.
void HelpWindow::follow(const QUrl& link)
{
    const QUrl place = m_browser->source().resolved(link);
    const QString file = place.toLocalFile();
    if (file.endsWith(QLatin1String(".md")) && isPage(file))
        go(file, link.fragment());
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

// From what is marked, and around the end of the page.
void HelpWindow::find(QTextDocument::FindFlags direction)
{
    const QString text = m_wanted->text();
    if (text.isEmpty())
        return;
    bool found = m_browser->find(text, direction);
    if (!found) {
        const QTextCursor before = m_browser->textCursor();
        const bool isBackward = direction.testFlag(QTextDocument::FindBackward);
        m_browser->moveCursor(isBackward ? QTextCursor::End : QTextCursor::Start);
        found = m_browser->find(text, direction);
        if (!found)
            m_browser->setTextCursor(before);
    }
    m_notFound->setText(found ? QString() : tr("Not in this page"));
}

void HelpWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace scopix
