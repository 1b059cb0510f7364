// SPDX-License-Identifier: MIT
// What holds for every editor, in each place where one edits a value.
#include "EveryEditor.h"

#include <QApplication>
#include <QLabel>
#include <QTest>

#include <set>

namespace
{

class EditorTable : public EveryEditor
{
};

INSTANTIATE_TEST_SUITE_P(Rows, EditorTable, testing::ValuesIn(editorRows()),
                         [](const auto& info) { return info.param.name(); });

class EditorRows : public Gallery
{
};

} // namespace

TEST_F(EditorRows, HaveEveryEditor)
{
    std::set<std::string> editors;
    std::set<std::string> rows;
    for (const auto& editor : m_editors)
        editors.insert(editor->getName().str());
    for (const EditorRow& row : editorRows())
        rows.insert(row.editor());
    EXPECT_EQ(rows, editors);
    EXPECT_EQ(rows.size(), 24U);
}

TEST_P(EditorTable, ShowsTheValue)
{
    EXPECT_EQ(m_editor->findChild<QLabel*>("m_label")->text().toStdString(),
              "<p align=\"center\">" + row().editor() + "</p>");
    EXPECT_EQ(shown(), row().shown[0]);
    open(another(1));
    EXPECT_EQ(shown(), row().shown[1]);
    EXPECT_EQ(commands(), 0);
}

TEST_P(EditorTable, AppliesWhatIsEntered)
{
    typeAndEnter();
    EXPECT_EQ(text(), row().applied);
    EXPECT_EQ(m_host.takeLog(),
              TestHost::Log(std::size_t(row().commands), "executeCommand SpxSFSetValueCommand"));
    if (row().input < 0)
        return;
    if (QWidget* input = inputsOf(row(), m_editor)[row().input]; isLine(input)) {
        QTest::keyClick(input, Qt::Key_Return);
        TestHost::pump();
    }
    EXPECT_EQ(text(), row().applied);
    const bool isText = std::string(row().applied)[0] == '"' || row().type == std::string("SFName");
    EXPECT_EQ(commands(), isText ? 1 : 0) << "only texts are applied whenever editing ends";
}

TEST_P(EditorTable, UndoRestoresAndRedoAppliesAgain)
{
    typeAndEnter();
    if (row().commands == 0)
        return; // nothing to edit, or not recorded, which is meant
    undoAll();
    EXPECT_EQ(text(), value(0));
    EXPECT_EQ(shown(), row().shown[0]);
    redoAll();
    EXPECT_EQ(text(), row().applied);
    EXPECT_NE(shown(), row().shown[0]);
    EXPECT_EQ(commands(), row().commands);
}

TEST_P(EditorTable, ShowsAChangeFromElsewhere)
{
    m_field->set(value(1).c_str());
    TestHost::pump();
    EXPECT_EQ(shown(), row().shown[1]);
    typeAndEnter();
    m_field->set(value(0).c_str());
    TestHost::pump();
    EXPECT_EQ(shown(), row().shown[0]) << "also after an edit";
    EXPECT_EQ(text(), value(0));
}

TEST_P(EditorTable, DefaultIsOneCommandThatUndoes)
{
    const std::string fresh = textOf(*fieldOf(addNode(), row().type));
    const int number = value(0) == fresh ? 1 : 0;
    m_field->set(value(number).c_str());
    TestHost::pump();
    QTest::mouseClick(button("m_defaultButton"), Qt::LeftButton);
    TestHost::pump();
    EXPECT_EQ(text(), fresh);
    EXPECT_NE(shown(), row().shown[std::size_t(number)]);
    EXPECT_EQ(m_host.log(), TestHost::Log{"executeCommand SpxFieldSetDefaultCommand"});
    undoAll();
    EXPECT_EQ(text(), value(number));
    EXPECT_EQ(shown(), row().shown[std::size_t(number)]);
    redoAll();
    EXPECT_EQ(text(), fresh);
}

TEST_P(EditorTable, IgnoreIsOneCommandThatUndoes)
{
    QPushButton* ignore = button("m_ignoreButton");
    QTest::mouseClick(ignore, Qt::LeftButton);
    EXPECT_TRUE(m_field->isIgnored());
    EXPECT_EQ(m_host.log(), TestHost::Log{"executeCommand SpxFieldIgnoredCommand"});
    undoAll();
    EXPECT_FALSE(m_field->isIgnored());
    EXPECT_FALSE(ignore->isChecked());
    redoAll();
    EXPECT_TRUE(ignore->isChecked());
    open(another(1));
    EXPECT_FALSE(ignore->isChecked());
    EXPECT_EQ(text(), value(0));
}

TEST_P(EditorTable, ShowingTenFieldsInTurnRecordsNothing)
{
    std::vector<SoSField*> fields;
    std::vector<std::string> before;
    for (int i = 0; i < 10; ++i) {
        fields.push_back(another(i));
        before.push_back(textOf(*fields.back()));
    }
    for (SoSField* field : fields)
        open(field);
    showNothing();
    for (std::size_t i = 0; i < fields.size(); ++i)
        EXPECT_EQ(textOf(*fields[i]), before[i]);
    EXPECT_EQ(commands(), 0);
}

TEST_P(EditorTable, UnappliedTypingIsWrittenOnceToItsOwnField)
{
    SoSField* next = another(1);
    const std::string before = textOf(*next);
    type();
    if (!row().isEachKeyApplied()) {
        EXPECT_EQ(text(), value(0));
        EXPECT_EQ(commands(), 0);
    }
    open(next);
    EXPECT_EQ(text(), row().applied);
    EXPECT_EQ(textOf(*next), before);
    EXPECT_EQ(shown(), row().shown[1]);
    EXPECT_EQ(commands(), row().commands);
    open();
    showNothing();
    EXPECT_EQ(text(), row().applied);
    EXPECT_EQ(textOf(*next), before);
    EXPECT_EQ(commands(), row().commands);
}

TEST_P(EditorTable, TextThatIsNoNumberIsNotWrittenToTheNextField)
{
    for (QWidget* line : lines()) {
        if (!isNumbers())
            continue; // a text, or a text of several numbers
        typeInto(line, "-");
        SoSField* next = another(0);
        open(next);
        EXPECT_EQ(shown(), row().shown[0]);
        EXPECT_EQ(textOf(*next), value(0));
        open();
    }
}

TEST_P(EditorTable, TabMovesThroughTheInputsInReadingOrder)
{
    const QList<QWidget*> stops = stopsOf(row(), m_editor);
    for (QWidget* input : inputsOf(row(), m_editor))
        EXPECT_TRUE(stops.contains(input) || !canEdit());
    if (!stops.isEmpty())
        person::focus(stops.first());
    for (int i = 1; i < stops.size(); ++i) {
        person::tab(QApplication::focusWidget());
        EXPECT_EQ(QApplication::focusWidget(), stops[i]) << i;
    }
}

TEST_P(EditorTable, EnterInEachLineApplies)
{
    for (QWidget* line : lines()) {
        const std::string before = text();
        const int commandsBefore = commands();
        typeInto(line, row().isEachKeyApplied() ? row().keys : "8");
        QTest::keyClick(line, Qt::Key_Return);
        TestHost::pump();
        EXPECT_NE(text(), before);
        EXPECT_EQ(commands(), commandsBefore + row().commands);
    }
}

TEST_P(EditorTable, EscapeInEachLineBringsTheShownValueBack)
{
    for (QWidget* line : lines()) {
        // Where each key is applied, what the field refuses is all that can be taken back.
        typeInto(line, row().isEachKeyApplied() ? "-" : "7");
        EXPECT_NE(shown(), row().shown[0]);
        QTest::keyClick(line, Qt::Key_Escape);
        EXPECT_EQ(shown(), row().shown[0]);
        EXPECT_EQ(commands(), 0);
        m_editor->window()->setFocus();
        TestHost::pump();
        EXPECT_EQ(text(), value(0));
    }
}

TEST_P(EditorTable, RefusedTextStaysForMendingAndLeavesTheField)
{
    const QList<QWidget*> found = lines();
    auto* line = found.isEmpty() ? nullptr : qobject_cast<QLineEdit*>(found.first());
    if (!line || !row().isEachKeyApplied())
        return; // what cannot be read counts as 0, or is not let in
    typeInto(line, "1 x");
    m_field->touch();
    TestHost::pump();
    QTest::keyClick(line, Qt::Key_Return);
    m_editor->window()->setFocus();
    TestHost::pump();
    EXPECT_EQ(line->text(), "1 x");
    const bool isOneNumber = row().type == std::string("SFTime"); // "1" was read on the way
    EXPECT_EQ(text(), isOneNumber ? "1" : value(0));
    EXPECT_EQ(commands(), isOneNumber ? 4 : 0);
}

TEST_P(EditorTable, HasRoomForItsNumbersInTheNarrowestDock)
{
    m_editor->window()->resize(m_editor->window()->minimumSizeHint());
    TestHost::pump();
    if (!isNumbers())
        return;
    for (QWidget* input : lines()) {
        auto* line = qobject_cast<QLineEdit*>(input);
        if (!line) // in a spin box
            line = input->findChild<QLineEdit*>();
        line->setText(longNumber());
        line->end(false);
        TestHost::pump();
        EXPECT_EQ(line->cursorPositionAt({0, line->height() / 2}), 0) << "the beginning has moved out";
    }
}

TEST_P(EditorTable, EachInputHasAName)
{
    const QList<QWidget*> inputs = inputsOf(row(), m_editor);
    ASSERT_FALSE(inputs.isEmpty());
    for (const QWidget* input : inputs + stopsOf(row(), m_editor))
        EXPECT_FALSE(input->accessibleName().isEmpty()) << input->metaObject()->className();
}

TEST_P(EditorTable, CanBeUnloadedAndLoadedAgain)
{
    const int children = m_editor->findChildren<QObject*>().size();
    for (int i = 0; i < 2; ++i) {
        reload();
        open();
        EXPECT_EQ(m_editor->findChildren<QObject*>().size(), children);
        EXPECT_EQ(shown(), row().shown[0]);
    }
    typeAndEnter();
    EXPECT_EQ(text(), row().applied);
    EXPECT_EQ(commands(), row().commands);
}
