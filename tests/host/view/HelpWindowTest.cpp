// SPDX-License-Identifier: MIT
// Reading the documentation in its window: back and forth, the contents, words in a page.
#include "window/HelpWindow.h"

#include <support/Waiting.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryFile>
#include <QTextBlock>
#include <QTextBrowser>

#include <gtest/gtest.h>

#include <set>

using namespace scopix;

namespace
{

class HelpPages : public testing::Test
{
protected:
    HelpPages()
    {
        EXPECT_TRUE(m_help.open("nodes", "Material"));
        EXPECT_TRUE(waitForActive(&m_help));
    }
    QString heading() { return m_browser->textCursor().block().text(); }
    // As a user clicks it.
    void clickLink(const QString& words)
    {
        m_browser->moveCursor(QTextCursor::Start);
        ASSERT_TRUE(m_browser->find(words)) << words.toStdString();
        QTextCursor at = m_browser->textCursor();
        at.setPosition(at.selectionStart() + 1);
        m_browser->setTextCursor(at);
        m_browser->ensureCursorVisible();
        QTest::mouseClick(m_browser->viewport(), Qt::LeftButton, {}, m_browser->cursorRect().center());
    }
    int scrolled() { return m_browser->verticalScrollBar()->value(); }
    QString marked() { return m_browser->textCursor().selectedText(); }
    // A button shows for a moment that it is pressed.
    void press(Qt::Key key, const QString& title)
    {
        QTest::keyClick(&m_help, key, Qt::AltModifier);
        EXPECT_TRUE(waitFor([&] { return m_help.windowTitle() == title; })) << title.toStdString();
    }
    QPushButton* button(const char* name) { return m_help.findChild<QPushButton*>(name); }
    void find(const QString& text)
    {
        QTest::keyClick(&m_help, Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }

    std::set<QString> linkColors()
    {
        std::set<QString> colors;
        for (QTextBlock block = m_browser->document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part) {
                const QTextCharFormat format = part.fragment().charFormat();
                if (format.isAnchor())
                    colors.insert(format.foreground().color().name());
            }
        }
        return colors;
    }

    HelpWindow m_help{nullptr};
    QTextBrowser* m_browser = m_help.findChild<QTextBrowser*>();
};

} // namespace

TEST_F(HelpPages, LinksAreLegibleWhateverThePalette)
{
    QPalette dark = m_help.palette();
    dark.setColor(QPalette::Base, QColor("#202124"));
    dark.setColor(QPalette::Link, QColor("#8ab4f8"));
    m_help.setPalette(dark);
    press(Qt::Key_Home, "Documentation");
    EXPECT_EQ(linkColors(), std::set<QString>({"#8ab4f8"}));

    QPalette light = m_help.palette();
    light.setColor(QPalette::Base, Qt::white);
    light.setColor(QPalette::Link, QColor("#1a5fb4"));
    m_help.setPalette(light);
    EXPECT_EQ(linkColors(), std::set<QString>({"#1a5fb4"}));
}

TEST_F(HelpPages, GoBackToWhereOneWas)
{
    EXPECT_FALSE(button("helpBack")->isEnabled());
    m_browser->verticalScrollBar()->setValue(m_browser->verticalScrollBar()->value() + 40);
    const int before = scrolled();
    emit m_browser->anchorClicked(QUrl("fields.md"));
    EXPECT_EQ(m_help.windowTitle(), "Field types");

    press(Qt::Key_Left, "Nodes");
    EXPECT_EQ(scrolled(), before);
    EXPECT_FALSE(button("helpBack")->isEnabled());

    press(Qt::Key_Right, "Field types");
    EXPECT_FALSE(button("helpForward")->isEnabled());
}

TEST_F(HelpPages, GoBackWithinAPage)
{
    const int atMaterial = scrolled();
    EXPECT_TRUE(m_help.open("nodes", "Fog"));
    EXPECT_EQ(heading(), "Fog");
    EXPECT_NE(scrolled(), atMaterial);
    QTest::keyClick(&m_help, Qt::Key_Left, Qt::AltModifier);
    EXPECT_TRUE(waitFor([&] { return scrolled() == atMaterial; })) << scrolled();
}

TEST_F(HelpPages, TheContentsLeadOn)
{
    press(Qt::Key_Home, "Documentation");
    clickLink("Write a tool");
    EXPECT_EQ(m_help.windowTitle(), "Write a tool");
    clickLink("the guide to field");
    EXPECT_EQ(m_help.windowTitle(), "Write a field editor");
}

TEST_F(HelpPages, FindGoesOnAndAroundTheEnd)
{
    m_help.open("contents", {});
    find("write a");
    const int first = m_browser->textCursor().position();
    EXPECT_EQ(marked().toLower(), "write a");
    QTest::keyClick(&m_help, Qt::Key_F3);
    EXPECT_GT(m_browser->textCursor().position(), first);
    QTest::keyClick(&m_help, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(m_browser->textCursor().position(), first);
    QTest::keyClick(&m_help, Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_GT(m_browser->textCursor().position(), first) << "the last one";
    QTest::keyClick(&m_help, Qt::Key_F3);
    EXPECT_EQ(m_browser->textCursor().position(), first);
    EXPECT_EQ(m_help.findChild<QLabel*>()->text(), "");
}

TEST_F(HelpPages, WhatIsTooLargeIsNoPage)
{
    QTemporaryFile large;
    ASSERT_TRUE(large.open());
    large.write("# Large\n");
    ASSERT_TRUE(large.resize((4 << 20) + 1));
    EXPECT_FALSE(m_help.open(large.fileName(), {}));
    EXPECT_EQ(m_help.windowTitle(), "Nodes");
    large.resize(0);
    large.write("# Short\n");
    large.close();
    EXPECT_TRUE(m_help.open(large.fileName(), {}));
    EXPECT_EQ(m_help.windowTitle(), "Short");
}

TEST_F(HelpPages, AWordThatIsNowhereIsSaid)
{
    find("no such word");
    EXPECT_EQ(m_help.findChild<QLabel*>()->text(), "Not in this page");
    QTest::keyClicks(QApplication::focusWidget(), "s");
    EXPECT_EQ(m_help.findChild<QLabel*>()->text(), "");
}
