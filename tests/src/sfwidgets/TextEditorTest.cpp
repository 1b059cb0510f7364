// SPDX-License-Identifier: MIT
#include "EdSFFilePathStringWidget.h"
#include "EdSFNameWidget.h"
#include "EdSFStringWidget.h"
#include "EditedField.h"

#include <scopix/editing/SpxText.h>

#include <QFileDialog>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace
{

using EditedString = EditedField<EdSFStringWidget, SoSFString>;
using EditedName = EditedField<EdSFNameWidget, SoSFName>;
using EditedPath = EditedField<EdSFFilePathStringWidget, SoSFFilePathString>;

template <class Edited>
class TextEditor : public testing::Test
{
};
using TextEditors = testing::Types<EditedString, EditedName, EditedPath>;
TYPED_TEST_SUITE(TextEditor, TextEditors);

template <class Act>
void inFileDialog(EditedPath& edited, Act act)
{
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        timer.stop();
        act(*dialog);
    });
    timer.start(1);
    QTest::mouseClick(edited.find<QPushButton>("openFileButton"), Qt::LeftButton);
    TestHost::pump();
}

} // namespace

TYPED_TEST(TextEditor, AppliesOnEnterAndUndoes)
{
    TypeParam edited("before");
    EXPECT_EQ(edited.shown(), "before");
    EXPECT_EQ(edited.edit()->objectName(), "lineEdit");
    person::typeAndEnter(edited.edit(), "after");
    TestHost::pump();
    EXPECT_STREQ(edited.field.getValue().getString(), "after");
    EXPECT_EQ(edited.commands(), 1);
    edited.undo();
    EXPECT_EQ(edited.shown(), "before");
    edited.redo();
    EXPECT_EQ(edited.shown(), "after");
}

TYPED_TEST(TextEditor, LeavingWithoutAChangeAppliesTheSameValue)
{
    TypeParam edited("before");
    person::focus(edited.edit());
    EXPECT_EQ(edited.commands(), 0);
    person::clickElsewhere(edited.edit());
    EXPECT_EQ(edited.commands(), 1);
    // QLineEdit reports leaving it once, and then not before its text has changed.
    person::focus(edited.edit());
    person::clickElsewhere(edited.edit());
    EXPECT_EQ(edited.commands(), 2);
    EXPECT_STREQ(edited.field.getValue().getString(), "before");
}

TYPED_TEST(TextEditor, ShowsChangesFromElsewhereAndSparesTyping)
{
    TypeParam edited("before");
    edited.change("other");
    EXPECT_EQ(edited.shown(), "other");
    person::type(edited.edit(), "typed");
    edited.field.setIgnored(true);
    edited.field.touch();
    TestHost::pump();
    EXPECT_EQ(edited.shown(), "typed");
    EXPECT_EQ(edited.commands(), 0);
    QTest::keyClick(edited.edit(), Qt::Key_Escape);
    EXPECT_EQ(edited.shown(), "other");
}

TYPED_TEST(TextEditor, UnappliedTypingIsWrittenToTheOldFieldOnce)
{
    TypeParam edited("before");
    decltype(edited.field) other;
    other.set("other");
    person::type(edited.edit(), "typed");
    edited.host.release(edited.editor);
    EXPECT_EQ(edited.commands(), 1);
    EXPECT_STREQ(edited.field.getValue().getString(), "typed");
    edited.host.edit(edited.editor, &other);
    TestHost::pump();
    EXPECT_STREQ(other.getValue().getString(), "other");
    EXPECT_EQ(edited.commands(), 1);
    edited.host.release(edited.editor);
}

TEST(StringEditor, QuotesAreNeitherAddedNorLost)
{
    EditedString edited;
    edited.field.setValue("say \"hi\" \\ there");
    edited.host.edit(edited.editor, &edited.field);
    EXPECT_EQ(edited.shown(), "say \"hi\" \\ there");
    person::typeAndEnter(edited.edit(), "\"quoted\"");
    EXPECT_STREQ(edited.field.getValue().getString(), "\"quoted\"");
}

TEST(StringEditor, UntouchedTextKeepsEveryByte)
{
    EditedString edited;
    const std::string bytes = "line\nbreak \xff tab\t " + std::string(100000, 'x');
    edited.field.setValue(SbString(bytes));
    edited.host.edit(edited.editor, &edited.field);
    person::focus(edited.edit());
    edited.edit()->clearFocus();
    EXPECT_EQ(edited.field.getValue().str(), bytes);
}

TEST(StringEditor, LongTextsAreNotCut)
{
    EditedString edited;
    const std::string bytes(100000, 'x');
    edited.field.setValue(SbString(bytes));
    edited.host.edit(edited.editor, &edited.field);
    person::focus(edited.edit());
    QTest::keyClick(edited.edit(), Qt::Key_End);
    QTest::keyClick(edited.edit(), Qt::Key_Y);
    QTest::keyClick(edited.edit(), Qt::Key_Return);
    EXPECT_EQ(edited.field.getValue().str(), bytes + "y");
}

TEST(StringEditor, AnyCharacterIsKept)
{
    EditedString edited("a");
    person::typeKey(edited.edit(), QString::fromUtf8("\u00e9\u4e2d\U0001F600"));
    QTest::keyClick(edited.edit(), Qt::Key_Return);
    EXPECT_STREQ(edited.field.getValue().getString(), "\u00e9\u4e2d\U0001F600");
}

TEST(NameEditor, IsStoredThroughLatin1)
{
    EditedName edited("a");
    person::typeKey(edited.edit(), QString::fromUtf8("\u00e9\u4e2d"));
    QTest::keyClick(edited.edit(), Qt::Key_Return);
    EXPECT_STREQ(edited.field.getValue().getString(), "\xe9?");
    TestHost::pump();
    EXPECT_EQ(edited.edit()->text(), QString::fromUtf8("\u00e9?"));
}

TEST(NameEditor, EmptyNameIsShownEmpty)
{
    EditedName edited("a");
    edited.field.setValue(SbName());
    TestHost::pump();
    EXPECT_EQ(edited.shown(), "");
}

TEST(FilePathEditor, ChosenFileIsApplied)
{
    QTemporaryDir folder;
    QFile file(folder.filePath("model.txt"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    EditedPath edited;
    edited.field.setValue(SpxText::toSbString(folder.filePath("old.txt")));
    edited.host.edit(edited.editor, &edited.field);
    QString startedIn;
    inFileDialog(edited, [&](QFileDialog& dialog) {
        startedIn = dialog.directory().canonicalPath();
        EXPECT_EQ(dialog.windowTitle(), "Open File");
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(file.fileName());
        QMetaObject::invokeMethod(&dialog, "accept", Qt::QueuedConnection);
    });
    EXPECT_EQ(startedIn, QDir(folder.path()).canonicalPath());
    EXPECT_EQ(edited.field.getValue().str(), file.fileName().toStdString());
    EXPECT_EQ(edited.edit()->text(), file.fileName());
    EXPECT_EQ(edited.commands(), 1);
}

TEST(FilePathEditor, CancelledDialogChangesNothing)
{
    EditedPath edited("\"some/where.txt\"");
    inFileDialog(edited, [](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(edited.shown(), "some/where.txt");
    EXPECT_EQ(edited.commands(), 0);
}
