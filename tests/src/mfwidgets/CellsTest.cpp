// SPDX-License-Identifier: MIT
// Cells: what can be typed into them, what reaches the field, and what can be undone.
#include "EdIntSlider.h"
#include "EdMFColorTable.h"
#include "EdMFColorWidget.h"
#include "EdMFDefaultFieldWidget.h"
#include "EdMFDoubleWidget.h"
#include "EdMFFloatWidget.h"
#include "EdMFInt32Widget.h"
#include "EdMFMatrixWidget.h"
#include "EdMFPlaneWidget.h"
#include "EdMFRotationWidget.h"
#include "EdMFShortWidget.h"
#include "EdMFStringWidget.h"
#include "EdMFUInt32Widget.h"
#include "EdMFUShortWidget.h"
#include "EdMFVec2fWidget.h"
#include "EdMFVec2i32Widget.h"
#include "EdMFVec2sWidget.h"
#include "EdMFVec3fWidget.h"
#include "EdMFVec4fWidget.h"
#include "EdMFieldTableItemDelegate.h"
#include "EdRealSlider.h"
#include "EdTablePopupLineEdit.h"
#include "MultiFixture.h"
#include "QULongValidator.h"

#include <xsg/fields/SoMFBool.h>
#include <xsg/fields/SoMFColor.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <QColorDialog>
#include <QTimer>

#include <limits>

namespace
{

using Log = TestHost::Log;

QValidator::State stateOf(const QValidator& validator, const char* text)
{
    QString input = QString::fromLatin1(text);
    int position = 0;
    return validator.validate(input, position);
}

template <class Editor>
QValidator::State stateInCell(int cellType, const char* text)
{
    Editor editor(nullptr);
    EdMFieldTableItemDelegate delegate(&editor, editor.table());
    delegate.setCellType(cellType);
    QLineEdit line;
    delegate.setValidator(&line);
    return stateOf(*line.validator(), text);
}

// Lets `answer` act on the colour dialog that is about to open.
template <class Answer>
void answerColorDialog(Answer answer)
{
    QTimer::singleShot(0, qApp, [answer] {
        auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        answer(*dialog);
    });
}

} // namespace

TEST(Cells, ASixteenBitCellRefusesTheLowestNumber)
{
    EXPECT_NE(stateInCell<EdMFShortWidget>(EdMFieldTable::CELL_SHORT, "-32768"), QValidator::Acceptable);
    EXPECT_EQ(stateInCell<EdMFShortWidget>(EdMFieldTable::CELL_SHORT, "-32767"), QValidator::Acceptable);
    EXPECT_EQ(stateInCell<EdMFShortWidget>(EdMFieldTable::CELL_SHORT, "32767"), QValidator::Acceptable);
}

TEST(Cells, AThirtyTwoBitLineAcceptsNothing)
{
    for (const char* text : {"0", "1", "-1", "5", "-", "12"})
        EXPECT_NE(stateInCell<EdMFInt32Widget>(EdMFieldTable::CELL_INT32, text), QValidator::Acceptable)
            << text;
}

// No editor shows unsigned integers of 32 bits in a line, so the validator itself is asked.
TEST(Cells, EveryTypeOfCellHasItsValidator)
{
    using Table = EdMFieldTable;
    constexpr auto Yes = QValidator::Acceptable;
    const struct {
        int type;
        const char* text;
        bool accepted;
    } cases[] = {
        {Table::CELL_USHORT, "0", true},
        {Table::CELL_USHORT, "65535", true},
        {Table::CELL_USHORT, "65536", false},
        {Table::CELL_USHORT, "-1", false},
        {Table::CELL_INT, "-2147483648", true},
        {Table::CELL_INT, "2147483647", true},
        {Table::CELL_INT, "2147483648", false},
        {Table::CELL_UINT, "4294967295", true},
        {Table::CELL_UINT, "", true},
        {Table::CELL_UINT, "4294967296", false},
        {Table::CELL_UINT32, "4294967295", true},
        {Table::CELL_UINT32, "4294967296", false},
        {Table::CELL_UINT32, "18446744073709551615", false},
        {Table::CELL_FLOAT, "0.123456", true},
        {Table::CELL_FLOAT, "0.1234567", false},
        {Table::CELL_FLOAT, "1e39", false},
        {Table::CELL_DOUBLE, "1e300", true},
        {Table::CELL_DOUBLE, "0.1234567890123456789", true},
        {Table::CELL_DOUBLE, "abc", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(stateInCell<EdMFShortWidget>(c.type, c.text) == Yes, c.accepted) << c.type << ' ' << c.text;
    EdMFShortWidget editor(nullptr);
    EdMFieldTableItemDelegate delegate(&editor, editor.table());
    QLineEdit line;
    for (int none : {int(Table::CELL_NONE), 9, -1}) {
        delegate.setCellType(none);
        delegate.setValidator(&line);
        EXPECT_FALSE(line.validator()) << none;
    }
}

TEST(Cells, UnsignedValidatorsParseThirtyTwoBits)
{
    const QUIntValidator narrow;
    const QULongValidator wide;
    EXPECT_EQ(wide.top(), 18446744073709551615ULL);
    for (const QValidator* v :
         {static_cast<const QValidator*>(&narrow), static_cast<const QValidator*>(&wide)}) {
        EXPECT_EQ(stateOf(*v, ""), QValidator::Acceptable);
        EXPECT_EQ(stateOf(*v, "4294967295"), QValidator::Acceptable);
        EXPECT_EQ(stateOf(*v, "4294967296"), QValidator::Invalid);
        EXPECT_EQ(stateOf(*v, "18446744073709551615"), QValidator::Invalid);
        EXPECT_EQ(stateOf(*v, "-1"), QValidator::Invalid);
        EXPECT_EQ(stateOf(*v, "abc"), QValidator::Invalid);
    }
    QUIntValidator ranged;
    ranged.setRange(10, 20);
    EXPECT_EQ(stateOf(ranged, "5"), QValidator::Intermediate);
    EXPECT_EQ(stateOf(ranged, "15"), QValidator::Acceptable);
}

TEST(Cells, TheSliderOfAnyFloatRowWritesElementZero)
{
    MultiFixture<EdMFFloatWidget, SoMFFloat> f("[ 1, 2, 3 ]");
    f.open();
    auto* slider = qobject_cast<EdRealSlider*>(f.openCell(2, 0));
    ASSERT_TRUE(slider);
    auto* line = slider->findChild<QLineEdit*>();
    f.type(line, "7.5");
    EXPECT_EQ(f.text(), "[ 7.5, 2, 3 ]");
    EXPECT_TRUE(f.host.takeLog().empty()) << "a cell of a single column leaves nothing to undo";
}

TEST(Cells, TheSliderOfAnIntegerRowWritesThatRow)
{
    MultiFixture<EdMFInt32Widget, SoMFInt32> f("[ 1, 2, 3 ]");
    f.open();
    auto* slider = qobject_cast<EdIntSlider*>(f.openCell(2, 0));
    ASSERT_TRUE(slider);
    f.type(slider->findChild<QLineEdit*>(), "9");
    EXPECT_EQ(f.text(), "[ 1, 2, 9 ]");
    EXPECT_TRUE(f.host.takeLog().empty());
}

TEST(Cells, OpeningACellWritesNothing)
{
    MultiFixture<EdMFUInt32Widget, SoMFUInt32> f("[ 4294967295, 2147483648 ]");
    f.open();
    for (int row = 0; row < 2; ++row) {
        QWidget* cell = f.openCell(row, 0);
        ASSERT_TRUE(cell);
        QTest::keyClick(cell, Qt::Key_Escape);
        TestHost::pump();
    }
    EXPECT_EQ(f.text(), "[ 4294967295, 2147483648 ]");
}

TEST(Cells, KeysInASliderCellDoNotReachTheTable)
{
    MultiFixture<EdMFInt32Widget, SoMFInt32> f("[ 1, 2, 3 ]");
    f.open();
    QWidget* cell = f.openCell(1, 0);
    ASSERT_TRUE(cell);
    QTest::keyClicks(QApplication::focusWidget(), "-");
    TestHost::pump();
    EXPECT_EQ(f.field.getNum(), 3);
}

TEST(Cells, ADoubleGetsALineEdit)
{
    MultiFixture<EdMFDoubleWidget, SoMFDouble> f("[ 0.1, 0.2 ]");
    f.open();
    QLineEdit* line = f.openLine(1, 0);
    ASSERT_TRUE(line);
    EXPECT_EQ(line->objectName(), "qt_lineeditor");
    f.type(line, "1e300");
    EXPECT_EQ(f.text(), "[ 0.1, 1e+300 ]");
    EXPECT_TRUE(f.host.takeLog().empty());
}

TEST(Cells, AVectorCellIsUndone)
{
    MultiFixture<EdMFVec3fWidget, SoMFVec3f> f("[ 1 2 3, 0.1 0.2 0.3 ]");
    f.open();
    f.type(f.openLine(1, 1), "5");
    EXPECT_EQ(f.text(), "[ 1 2 3, 0.1 5 0.3 ]");
    EXPECT_EQ(f.host.takeLog(), Log{"executeCommand SpxMFSetValueCommand"});
    f.host.undo();
    TestHost::pump();
    EXPECT_EQ(f.text(), "[ 1 2 3, 0.1 0.2 0.3 ]");
    f.host.redo();
    EXPECT_EQ(f.text(), "[ 1 2 3, 0.1 5 0.3 ]");
}

TEST(Cells, TextThatDoesNotConvertGivesZero)
{
    MultiFixture<EdMFVec2fWidget, SoMFVec2f> f("[ 1 2 ]");
    f.open();
    f.editor.set1Value(0, 1, "abc");
    EXPECT_EQ(f.text(), "[ 1 0 ]");
}

TEST(Cells, AShortVectorCellTakesAnyText)
{
    MultiFixture<EdMFVec2sWidget, SoMFVec2s> f("[ 1 2 ]");
    f.open();
    QLineEdit* line = f.openLine(0, 0);
    ASSERT_TRUE(line);
    EXPECT_EQ(line->validator(), nullptr);
    f.type(line, "40000");
    EXPECT_EQ(f.text(), "[ 0 2 ]");
}

TEST(Cells, AnIntegerVectorCellChangesNothing)
{
    MultiFixture<EdMFVec2i32Widget, SoMFVec2i32> f("[ 1 2 ]");
    f.open();
    f.type(f.openLine(0, 0), "7");
    EXPECT_EQ(f.text(), "[ 1 2 ]");
    EXPECT_TRUE(f.host.takeLog().empty());
}

TEST(Cells, ARotationShowsItsStoredNumbers)
{
    MultiFixture<EdMFRotationWidget, SoMFRotation> f("[ 0.1 0.2 0.3 0.9 ]");
    f.open();
    EXPECT_EQ(f.table().horizontalHeaderItem(3)->text(), "radians");
    EXPECT_EQ(f.editor.getFieldValue(0, 3), "0.9");
    f.type(f.openLine(0, 3), "0.5");
    EXPECT_EQ(f.text(), "[ 0.1 0.2 0.3 0.5 ]");
}

TEST(Cells, APlaneHasItsDistanceLast)
{
    MultiFixture<EdMFPlaneWidget, SoMFPlane> f("[ 0 0 3 4 ]");
    f.open();
    f.type(f.openLine(0, 3), "8");
    f.type(f.openLine(0, 0), "2");
    EXPECT_EQ(f.text(), "[ 2 0 3 8 ]");
}

TEST(Cells, BeyondTheElementThereIsNoText)
{
    MultiFixture<EdMFVec4fWidget, SoMFVec4f> f("[ 1 2 3 4 ]");
    f.open();
    EXPECT_EQ(f.editor.getFieldValue(0, 3), "4");
    EXPECT_EQ(f.editor.getFieldValue(0, 4), "");
    EXPECT_EQ(f.editor.getFieldValue(0, -1), "");
    EXPECT_EQ(f.editor.getFieldValue(1, 0), "");
    EXPECT_EQ(f.editor.getFieldValue(-1, 0), "");
}

TEST(Cells, ASingleColumnHasNoSecond)
{
    MultiFixture<EdMFFloatWidget, SoMFFloat> f("[ 1, 2 ]");
    f.open();
    EXPECT_EQ(f.editor.getFieldValue(1, 0), "2");
    EXPECT_EQ(f.editor.getFieldValue(1, 1), "");
    EXPECT_EQ(f.editor.getFieldValue(2, 0), "");
}

TEST(Cells, ATextIsShownAndWrittenBare)
{
    MultiFixture<EdMFStringWidget, SoMFString> f("[ \"say \\\"hi\\\"\" ]");
    f.open();
    QLineEdit* line = f.openLine(0, 0);
    ASSERT_TRUE(line);
    EXPECT_EQ(line->text(), "say \"hi\"");
    f.type(line, "a \"b\" c");
    EXPECT_EQ(f.field[0], SbString("a \"b\" c"));
    f.host.undo();
    EXPECT_EQ(f.text(), "[ \"say \\\"hi\\\"\" ]");
}

TEST(Cells, TheGeneralEditorEditsText)
{
    MultiFixture<EdMFDefaultFieldWidget, SoMFBool> f("[ TRUE, FALSE ]");
    f.open();
    EXPECT_EQ(f.editor.getFieldValue(0, 0), "TRUE");
    f.type(f.openLine(1, 0), "TRUE");
    EXPECT_EQ(f.text(), "[ TRUE, TRUE ]");
    f.host.undo();
    TestHost::pump();
    EXPECT_EQ(f.text(), "[ TRUE, FALSE ]");
    f.host.clearUndo();
    f.type(f.openLine(1, 0), "perhaps");
    EXPECT_EQ(f.text(), "[ TRUE, FALSE ]");
    EXPECT_EQ(f.host.undoCount(), 0);
}

TEST(Cells, AListOfAMaterialTakesTheRangeFromZeroToOne)
{
    TestHost host;
    EdMFFloatWidget editor(nullptr);
    const SoRef<SoMaterial> material(new SoMaterial);
    SoMFFloat inMaterial(material.get(), "extra", {0.5F});
    SoMFFloat alone;
    alone.setValue(0.5F);
    host.edit(editor, &inMaterial);
    QAbstractItemView* const table = editor.table();
    const auto sliderTop = [&] {
        const QModelIndex first = table->model()->index(0, 0);
        table->openPersistentEditor(first);
        auto* slider = qobject_cast<EdRealSlider*>(table->indexWidget(first));
        const double top = slider ? slider->getTop() : -1;
        table->closePersistentEditor(first);
        return top;
    };
    EXPECT_EQ(sliderTop(), 1.0);
    host.release(editor);
    host.edit(editor, &alone);
    EXPECT_EQ(sliderTop(), 10.0);
    host.release(editor);
}

TEST(Colors, IgnoresNumbersOutsideZeroToOne)
{
    MultiFixture<EdMFColorWidget, SoMFColor> f("[ 0.2 0.4 0.6 ]");
    f.open();
    f.type(f.openLine(0, 1), "1.5");
    f.type(f.openLine(0, 1), "-0.1");
    EXPECT_EQ(f.text(), "[ 0.2 0.4 0.6 ]");
    EXPECT_TRUE(f.host.takeLog().empty());
    f.type(f.openLine(0, 1), "0.5");
    EXPECT_EQ(f.text(), "[ 0.5 0.4 0.6 ]");
    EXPECT_EQ(f.host.takeLog(), Log{"executeCommand SpxMFSetValueCommand"});
}

TEST(Colors, IgnoresTextThatIsNoNumber)
{
    MultiFixture<EdMFColorWidget, SoMFColor> f("[ 0.2 0.4 0.6 ]");
    f.open();
    f.editor.setSingleFieldValue(std::numeric_limits<float>::quiet_NaN(), 0, 1);
    EXPECT_EQ(f.text(), "[ 0.2 0.4 0.6 ]");
    EXPECT_TRUE(f.host.takeLog().empty());
}

TEST(Colors, TheDialogStartsOneComponentFurtherOn)
{
    MultiFixture<EdMFColorWidget, SoMFColor> f("[ 1 0 0, 0 1 0 ]");
    f.open();
    QList<QColor> starts;
    auto* table = static_cast<EdMFColorTable*>(&f.table());
    for (int row = 0; row < 2; ++row) {
        answerColorDialog([&](QColorDialog& dialog) {
            starts.append(dialog.currentColor());
            dialog.reject();
        });
        const QPoint at = table->visualRect(table->model()->index(row, 0)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, at);
    }
    EXPECT_EQ(starts, (QList<QColor>{Qt::black, Qt::red}));
    EXPECT_EQ(f.text(), "[ 1 0 0, 0 1 0 ]");
    EXPECT_TRUE(f.host.takeLog().empty());
}

TEST(Colors, AChosenColourIsWrittenAndRecordedButNotUndone)
{
    MultiFixture<EdMFColorWidget, SoMFColor> f("[ 0 0 0 ]");
    f.open();
    answerColorDialog([](QColorDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "color dialog");
        dialog.setCurrentColor(QColor(255, 0, 51));
        dialog.accept();
    });
    QTest::mouseClick(f.table().viewport(), Qt::LeftButton, {},
                      f.table().visualRect(f.table().model()->index(0, 0)).center());
    TestHost::pump();
    EXPECT_EQ(f.text(), "[ 1 0 0.2 ]");
    EXPECT_EQ(f.host.takeLog(), Log{"executeCommand SpxMFSetFieldValueCommand"});
    f.host.undo();
    EXPECT_EQ(f.text(), "[ 1 0 0.2 ]");
}

TEST(Colors, OnlyTheSwatchOpensTheDialogAndNothingEditsIt)
{
    MultiFixture<EdMFColorWidget, SoMFColor> f("[ 0.1 0.2 0.3 ]");
    f.open();
    for (int column = 1; column < 4; ++column) {
        QTest::mouseClick(f.table().viewport(), Qt::LeftButton, {},
                          f.table().visualRect(f.table().model()->index(0, column)).center());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
    EXPECT_EQ(f.openLine(0, 1)->text(), "0.1");
    EXPECT_EQ(f.openLine(0, 3)->text(), "0.3");
}

TEST(Colors, ADoubleClickOnTheSwatchOpensNoLine)
{
    MultiFixture<EdMFColorWidget, SoMFColor> f("[ 0.1 0.2 0.3 ]");
    f.open();
    int dialogs = 0;
    QTimer cancel;
    QObject::connect(&cancel, &QTimer::timeout, [&] {
        if (auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget())) {
            ++dialogs;
            dialog->reject();
        }
    });
    cancel.start(0);
    EXPECT_EQ(f.openCell(0, 0), nullptr);
    EXPECT_GT(dialogs, 0);
    f.table().setCurrentCell(0, 0);
    f.key(Qt::Key_F2);
    EXPECT_EQ(f.table().indexWidget(f.table().model()->index(0, 0)), nullptr);
    EXPECT_EQ(f.text(), "[ 0.1 0.2 0.3 ]");
    EXPECT_TRUE(f.host.takeLog().empty());
}

TEST(Matrices, EveryRowShowsTheWholeField)
{
    MultiFixture<EdMFMatrixWidget, SoMFMatrix> f;
    f.field.setNum(2);
    f.open();
    EXPECT_FALSE(f.table().isEnabled());
    EXPECT_EQ(f.editor.getFieldValue(0, 0).toStdString(), f.text());
    EXPECT_EQ(f.editor.getFieldValue(1, 0).toStdString(), f.text());
}

TEST(Matrices, ARowShowsTheStartOfTheWholeFieldWithoutItsEnd)
{
    MultiFixture<EdMFMatrixWidget, SoMFMatrix> f;
    f.open();
    for (int count : {0, 1, 2, 5}) {
        f.field.setNum(count);
        if (count > 3)
            f.field.set1(3, "1.5 0 0 0 0 2.5 0 0 0 0 1e-20 0 7 8 9 1");
        const QString whole = f.editor.getFieldValue(0, 0);
        EXPECT_EQ(whole.toStdString(), f.text());
        for (int length = 0; length < whole.size() + 2; ++length)
            ASSERT_EQ(f.editor.getCellText(0, 0, length), whole.left(length)) << count << ' ' << length;
    }
}

TEST(Matrices, OpeningThePopupRecordsSixteenCommandsAndChangesNoBit)
{
    MultiFixture<EdMFMatrixWidget, SoMFMatrix> f;
    SbMatrix matrix;
    matrix[3][1] = 0.123456789F;
    f.field.setValue(matrix);
    f.open();
    f.click("m_editButton");
    const SbMatrix after = f.field[0];
    EXPECT_EQ(after, matrix);
    // Those lines that change from empty to their number; nothing else is written.
    EXPECT_EQ(f.host.undoCount(), 16);
    const auto lines = f.editor.getWidgetContainer()->findChildren<EdTablePopupLineEdit*>();
    ASSERT_EQ(lines.size(), 16);
    // Grid row 1, column 3 shows stored number 13.
    auto* grid = qobject_cast<QGridLayout*>(lines.first()->parentWidget()->layout());
    EXPECT_EQ(qobject_cast<QLineEdit*>(grid->itemAtPosition(1, 3)->widget())->text(), "0.123457");
}

TEST(Matrices, EveryKeystrokeWritesTheElementOfTheAccessBox)
{
    MultiFixture<EdMFMatrixWidget, SoMFMatrix> f;
    f.field.setNum(2);
    f.open();
    f.box().setValue(2);
    f.click("m_editButton");
    f.host.clearUndo();
    const auto lines = f.editor.getWidgetContainer()->findChildren<EdTablePopupLineEdit*>();
    auto* grid = qobject_cast<QGridLayout*>(lines.first()->parentWidget()->layout());
    auto* line = qobject_cast<QLineEdit*>(grid->itemAtPosition(0, 3)->widget());
    line->selectAll();
    QTest::keyClicks(line, "2.5x");
    EXPECT_EQ(line->text(), "2.5") << "letters are refused";
    EXPECT_EQ(f.host.undoCount(), 3);
    EXPECT_EQ(f.field[1][3][0], 2.5F);
    EXPECT_EQ(f.field[0], SbMatrix());
    while (f.host.undo()) {
    }
    EXPECT_EQ(f.field[1], SbMatrix());
    line->window()->hide();
}

TEST(Matrices, WithoutAnElementNothingIsWritten)
{
    MultiFixture<EdMFMatrixWidget, SoMFMatrix> f;
    f.open();
    f.click("m_editButton");
    f.editor.set1Value(0, -1, {});
    EXPECT_EQ(f.field.getNum(), 0);
    EXPECT_TRUE(f.host.takeLog().empty());
}

// What was typed for one element stood in the grid when it was filled with the next one, and went into that.
TEST(Matrices, TextTypedForOneElementIsNotWrittenToTheNext)
{
    MultiFixture<EdMFMatrixWidget, SoMFMatrix> f;
    f.field.setNum(2);
    f.open();
    f.click("m_editButton");
    auto* line = f.editor.getWidgetContainer()->findChildren<EdTablePopupLineEdit*>().last();
    line->selectAll();
    QTest::keyClicks(line, "9");
    line->window()->close();
    f.box().setValue(2);
    f.click("m_editButton");
    EXPECT_EQ(f.field[1], SbMatrix());
    line->window()->close();
}
