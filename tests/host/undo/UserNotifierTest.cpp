// SPDX-License-Identifier: MIT
#include "support/UserNotifier.h"
#include "HostParts.h"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

using namespace scopix;

namespace
{

QMessageBox* openBox()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

// The window system may add lines of its own.
bool starts(const std::string& text, const std::string& with)
{
    return text.compare(0, with.size(), with) == 0;
}

TEST(Messages, AnErrorIsWrittenToStandardErrorAndTheStatusBar)
{
    UserNotifier notifier;
    notifier.setAttended(false);
    QSignalSpy told(&notifier, &UserNotifier::told);
    ::testing::internal::CaptureStderr();
    notifier.error("It went wrong.");
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "scopix: It went wrong.\n");
    EXPECT_EQ(told.count(), 1);
    EXPECT_EQ(notifier.errorCount(), 1);
    EXPECT_FALSE(openBox());
}

TEST(Messages, InformationIsNoError)
{
    UserNotifier notifier;
    QSignalSpy told(&notifier, &UserNotifier::told);
    notifier.info("All is well.");
    EXPECT_EQ(told.count(), 1);
    EXPECT_EQ(notifier.errorCount(), 0);
}

TEST(Messages, AttendedSessionsShowAllErrorsInOneBox)
{
    UserNotifier notifier;
    notifier.error("First.");
    notifier.error("Second.");
    ASSERT_TRUE(openBox());
    EXPECT_EQ(openBox()->text(), "First.\nSecond.");
    openBox()->accept();
    notifier.error("Third.");
    ASSERT_TRUE(openBox());
    EXPECT_EQ(openBox()->text(), "Third.");
}

class Unattended : public ::testing::Test
{
protected:
    Unattended() { m_messages.setAttended(false); }
    UserNotifier m_messages;
};

TEST_F(Unattended, EveryMessageBoxIsClosedAndPrinted)
{
    ::testing::internal::CaptureStderr();
    const auto answer = QMessageBox::warning(nullptr, "Title", "The <b>file</b> is gone.");
    EXPECT_TRUE(starts(::testing::internal::GetCapturedStderr(), "scopix: The file is gone.\n"));
    EXPECT_EQ(answer, QMessageBox::Ok);
}

TEST_F(Unattended, AQuestionIsAnsweredByWhatChangesNothing)
{
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(QMessageBox::question(nullptr, "", "Overwrite?", QMessageBox::Yes | QMessageBox::Cancel),
              QMessageBox::Cancel);
    EXPECT_EQ(QMessageBox::question(nullptr, "", "Really?", QMessageBox::Yes | QMessageBox::No),
              QMessageBox::No);
    ::testing::internal::GetCapturedStderr();
}

TEST_F(Unattended, ABoxWithoutAnyWayOutIsClosedToo)
{
    QMessageBox box;
    box.setText("No way out.");
    box.setInformativeText("None.");
    box.addButton("One", QMessageBox::ActionRole);
    box.addButton("Two", QMessageBox::ActionRole);
    ::testing::internal::CaptureStderr();
    box.exec();
    EXPECT_TRUE(starts(::testing::internal::GetCapturedStderr(), "scopix: No way out. None.\n"));
}

} // namespace
