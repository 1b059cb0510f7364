// SPDX-License-Identifier: MIT
#include "ConsoleMessageQueue.h"

#include <gtest/gtest.h>

namespace
{

class Inbox : public ::testing::Test
{
protected:
    void push(int kind, int count, const QString& text = "text")
    {
        for (int i = 0; i < count; ++i)
            m_inbox.push({QString("%1 %2").arg(text).arg(i), kind});
    }
    QStringList takeAll(int linesAtOnce = 1000000)
    {
        QStringList texts;
        for (auto some = m_inbox.take(linesAtOnce); !some.empty(); some = m_inbox.take(linesAtOnce)) {
            for (const ConsoleMessage& message : some)
                texts += message.text;
        }
        return texts;
    }

    QStringList m_posted;
    ConsoleMessageQueue m_inbox{[this](ConsoleMessage&& message) { m_posted += message.text; }};
};

} // namespace

TEST_F(Inbox, PostsTheFirstMessagesAndKeepsTheOthersInOrder)
{
    m_inbox.setMaxLines(1000);
    push(ConsoleMessage::Info, 60, "info");
    push(ConsoleMessage::Error, 40, "error");
    const QStringList all = m_posted + takeAll(7);
    ASSERT_EQ(all.size(), 100);
    EXPECT_LT(m_posted.size(), 50);
    for (int i = 0; i < 60; ++i)
        EXPECT_EQ(all[i], QString("info %1").arg(i));
    for (int i = 0; i < 40; ++i)
        EXPECT_EQ(all[60 + i], QString("error %1").arg(i));
}

TEST_F(Inbox, PostsAgainOnlyWhenNothingWaits)
{
    m_inbox.setMaxLines(1000);
    push(ConsoleMessage::Info, 100);
    const int posted = m_posted.size();
    m_inbox.take(1);
    push(ConsoleMessage::Info, 1);
    EXPECT_EQ(m_posted.size(), posted);
    takeAll();
    push(ConsoleMessage::Info, 1);
    EXPECT_EQ(m_posted.size(), posted + 1);
}

TEST_F(Inbox, KeepsTheNewestLinesOfEachKind)
{
    m_inbox.setMaxLines(10);
    push(ConsoleMessage::Warning, 1000, "warning");
    push(ConsoleMessage::Error, 5, "error");
    push(ConsoleMessage::Info, 1000, "info");
    EXPECT_EQ(m_inbox.size(), 25U);
    const QStringList kept = takeAll();
    EXPECT_EQ(kept.first(), "warning 990");
    EXPECT_EQ(kept[10], "error 0");
    EXPECT_EQ(kept.last(), "info 999");
}

TEST_F(Inbox, CountsTheLinesThatAMessageWillTake)
{
    m_inbox.setMaxLines(10);
    push(ConsoleMessage::Info, 100);
    m_inbox.push({QString("a\nb\nc\nd\ne\nf\n") + QString(1001, 'x'), ConsoleMessage::Info});
    // Eight lines; of those before, two are enough.
    EXPECT_EQ(m_inbox.size(), 3U);
    EXPECT_EQ(m_inbox.take(2).size(), 2U);
    // About as many lines as asked for; a message is not divided.
    EXPECT_EQ(m_inbox.take(2).size(), 1U);
    m_inbox.push({QString(100, '\n') + "longer than all", ConsoleMessage::Info});
    EXPECT_EQ(m_inbox.size(), 1U);
}

TEST_F(Inbox, KeepsMessagesOfUnknownKindsAmongTheErrors)
{
    m_inbox.setMaxLines(2);
    push(ConsoleMessage::Error, 40, "error");
    for (const int kind : {-1, 3, 1000})
        push(kind, 1, "unknown");
    EXPECT_EQ(takeAll(), (QStringList{"unknown 0", "unknown 0"})) << "the newest two of one kind";
}
