// SPDX-License-Identifier: MIT
// What can be seen, read and reached: sizes, marks, the popup, the clipboard, Tab.
#include "EdTablePopupLineEdit.h"
#include "ListElements.h"
#include "MultiFixture.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QHeaderView>
#include <QImage>
#include <QPainter>
#include <QScreen>
#include <QStyleOptionFrame>
#include <QTimer>

namespace
{

using listElements::fill;

template <class Kind>
class Look : public testing::Test
{
protected:
    MultiFixture<typename Kind::Editor, typename Kind::Field> f;
};

// The pixels that a line has for its text.
int roomOf(const QLineEdit& line)
{
    QStyleOptionFrame option;
    option.initFrom(&line);
    option.lineWidth = line.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &line);
    constexpr int MarginsInside = 4;
    return line.style()->subElementRect(QStyle::SE_LineEditContents, &option, &line).width() - MarginsInside;
}

bool isInside(const QWidget* widget, const QWidget& whole)
{
    return widget && (widget == &whole || whole.isAncestorOf(widget));
}

} // namespace

TYPED_TEST_SUITE(Look, ListEditors, );

TYPED_TEST(Look, TheSmallestWidthFitsIntoANarrowDock)
{
    this->f.field.setNum(1000);
    this->f.open();
    constexpr int NarrowDock = 280;
    QWidget* editor = this->f.editor.getWidgetContainer();
    EXPECT_LE(editor->minimumSizeHint().width(), NarrowDock);
    editor->resize(NarrowDock, 160);
    TestHost::pump();
    for (const auto* button : editor->template findChildren<QPushButton*>()) {
        EXPECT_TRUE(editor->rect().contains(button->geometry())) << button->objectName().toStdString();
        EXPECT_FALSE(button->geometry().intersects(this->f.box().geometry()))
            << button->objectName().toStdString();
    }
    EXPECT_TRUE(this->f.editor.getWidgetContainer()
                    ->template findChild<QLabel*>("m_labelNumElement")
                    ->toolTip()
                    .contains("1000 elements"));
}

TYPED_TEST(Look, TheAccessBoxShowsItsLargestNumber)
{
    this->f.field.setNum(1'000'000);
    this->f.open();
    this->f.box().setValue(1'000'000);
    const auto* line = this->f.box().template findChild<QLineEdit*>();
    EXPECT_GE(roomOf(*line), line->fontMetrics().horizontalAdvance("1000000"));
    QFont large = this->f.box().font();
    large.setPointSize(24);
    this->f.box().setFont(large);
    TestHost::pump();
    EXPECT_GE(roomOf(*line), line->fontMetrics().horizontalAdvance("1000000"));
    EXPECT_GE(this->f.box().height(), line->fontMetrics().height());
}

TYPED_TEST(Look, ACopiedCellHasTheTextOfTheField)
{
    auto& f = this->f;
    fill(f.field, 3);
    f.open();
    if (!f.table().isEnabled())
        return;
    const int shift = listElements::typeOf(f.field) == "MFColor" ? 1 : 0;
    const auto expectCopied = [&](int row) {
        for (int column = shift; column < f.table().columnCount(); ++column) {
            QApplication::clipboard()->setText("nothing");
            f.table().setCurrentCell(row, column);
            QTest::keyClick(&f.table(), Qt::Key_C, Qt::ControlModifier);
            EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
                      f.editor.getFieldValue(row, column - shift).toStdString());
        }
    };
    expectCopied(1);
    f.table().setCurrentCell(1, f.table().columnCount() - 1);
    f.key(Qt::Key_F2);
    QTest::keyClicks(QApplication::focusWidget(), listElements::typed(f.field));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    TestHost::pump();
    expectCopied(1);
    f.field.set1(1, listElements::element(f.field, 2)); // as undo does
    TestHost::pump();
    expectCopied(1);
}

TYPED_TEST(Look, AScreenReaderIsAnsweredFromTheField)
{
    auto& f = this->f;
    fill(f.field, 3);
    f.open();
    QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(&f.table());
    ASSERT_TRUE(whole && whole->tableInterface());
    QAccessibleTableInterface* table = whole->tableInterface();
    EXPECT_EQ(table->rowCount(), 3);
    EXPECT_EQ(table->columnCount(), f.table().columnCount());
    const int shift = listElements::typeOf(f.field) == "MFColor" ? 1 : 0;
    const auto expectRead = [&] {
        for (int column = shift; column < f.table().columnCount(); ++column) {
            QAccessibleInterface* cell = table->cellAt(1, column);
            ASSERT_TRUE(cell);
            EXPECT_EQ(cell->text(QAccessible::Name), f.editor.getFieldValue(1, column - shift));
            EXPECT_FALSE(cell->text(QAccessible::Name).isEmpty());
            EXPECT_EQ(whole->child(whole->indexOfChild(cell)), cell);
            const QAccessibleTableCellInterface* place = cell->tableCellInterface();
            EXPECT_EQ(place->rowIndex(), 1);
            EXPECT_EQ(place->columnHeaderCells().first()->text(QAccessible::Name),
                      f.table().model()->headerData(column, Qt::Horizontal).toString());
        }
    };
    expectRead();
    f.table().putItem(1, shift);
    f.table().item(1, shift)->setText("old");
    f.field.set1(1, listElements::element(f.field, 4));
    TestHost::pump();
    expectRead();
    f.table().setCurrentCell(2, shift);
    EXPECT_EQ(whole->focusChild(), table->cellAt(2, shift));
    QAccessibleInterface* last = table->cellAt(2, shift);
    f.field.setNum(1);
    TestHost::pump();
    EXPECT_FALSE(last->isValid());
    EXPECT_EQ(last->text(QAccessible::Name), "");
    EXPECT_EQ(table->cellAt(2, shift), nullptr);
}

TYPED_TEST(Look, TabLeavesTheTableAfterItsLastCell)
{
    auto& f = this->f;
    fill(f.field, 2);
    f.open();
    if (!f.table().isEnabled())
        return;
    const int last = f.table().columnCount() - 1;
    f.table().setCurrentCell(1, last);
    f.key(Qt::Key_F2);
    ASSERT_TRUE(isInside(QApplication::focusWidget(), *f.table().viewport()));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    TestHost::pump();
    EXPECT_EQ(QApplication::focusWidget(), &f.table()) << "the first Tab closes the cell";
    EXPECT_EQ(f.table().currentIndex(), f.table().model()->index(1, last));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_FALSE(isInside(QApplication::focusWidget(), f.table()));

    f.table().setFocus();
    f.table().setCurrentCell(0, 0);
    QTest::keyClick(&f.table(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), &f.table());
    f.table().setCurrentCell(0, 0);
    QTest::keyClick(&f.table(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_FALSE(isInside(QApplication::focusWidget(), f.table()));

    f.table().setFocus();
    f.table().setCurrentCell(0, 0);
    QAction rival; // as a window's act
    rival.setShortcut(Qt::CTRL + Qt::Key_Tab);
    f.table().window()->addAction(&rival);
    QSignalSpy taken(&rival, &QAction::triggered);
    QTest::keyClick(&f.table(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_FALSE(isInside(QApplication::focusWidget(), f.table()));
    EXPECT_TRUE(taken.isEmpty());

    f.field.setNum(0);
    TestHost::pump();
    f.table().setFocus();
    QTest::keyClick(&f.table(), Qt::Key_Tab);
    EXPECT_FALSE(isInside(QApplication::focusWidget(), f.table()));
}

TYPED_TEST(Look, TheHeadersMarkTheCurrentRowAndColumn)
{
    auto& f = this->f;
    fill(f.field, 2);
    f.open();
    const int last = f.table().columnCount() - 1;
    const auto grab = [&](QHeaderView* header) { return header->viewport()->grab().toImage(); };
    f.table().setCurrentCell(1, last);
    const QImage rows = grab(f.table().verticalHeader());
    const QImage columns = grab(f.table().horizontalHeader());
    f.table().setCurrentCell(-1, -1);
    EXPECT_NE(grab(f.table().verticalHeader()), rows);
    EXPECT_NE(grab(f.table().horizontalHeader()), columns);
}

TEST(LookOfCells, ATextOfSeveralLinesIsDrawnInOne)
{
    MultiFixture<EdMFStringWidget, SoMFString> f;
    f.field.set1Value(0, SbString("first\nsecond"));
    f.open();
    const QImage lines = f.table().viewport()->grab().toImage();
    f.field.set1Value(0, SbString("first second"));
    TestHost::pump();
    EXPECT_EQ(lines, f.table().viewport()->grab().toImage());
}

TEST(LookOfCells, TheDotsSplitNoCharacter)
{
    // The same pictures as of a text whose characters have the same width and are one unit long.
    MultiFixture<EdMFStringWidget, SoMFString> f;
    const QString face = QString::fromUtf8("\360\237\230\200");
    f.field.set1Value(0, SpxText::toSbString(face.repeated(30)));
    f.open();
    QStyleOptionViewItem option;
    option.palette = f.table().palette();
    option.state = QStyle::State_Enabled;
    for (int width = 8; width < 200; ++width) {
        option.rect = QRect(0, 0, width, 24);
        const auto blank = [&] {
            QImage image(width, 24, QImage::Format_RGB32);
            image.fill(Qt::white);
            return image;
        };
        QImage drawn = blank();
        QPainter painter(&drawn);
        f.table().itemDelegate()->paint(&painter, option, f.table().model()->index(0, 0));
        painter.end();
        bool isWhole = false;
        for (int kept = 1; kept <= 30 && !isWhole; ++kept) {
            QImage expected = blank();
            QPainter other(&expected);
            other.setPen(option.palette.color(QPalette::Text));
            other.drawText(option.rect, Qt::AlignCenter, face.repeated(kept) + (kept < 30 ? "..." : ""));
            other.end();
            isWhole = expected == drawn;
        }
        ASSERT_TRUE(isWhole) << width;
    }
}

TEST(LookOfCells, TheTextOfTheCellDoesNotShowThroughItsSlider)
{
    MultiFixture<EdMFInt32Widget, SoMFInt32> f("[ 1, 2 ]");
    f.open();
    QWidget* cell = f.openCell(1, 0);
    ASSERT_TRUE(cell);
    f.editor.setRefresh(false);
    const QImage before = f.table().viewport()->grab(cell->geometry()).toImage();
    f.field.set1Value(1, 888888888);
    TestHost::pump();
    EXPECT_EQ(f.table().viewport()->grab(cell->geometry()).toImage(), before);
}

TEST(LookOfCells, StoresTypedTextInTheTableButReadsTheField)
{
    MultiFixture<EdMFStringWidget, SoMFString> f("[ \"a\", \"b\" ]");
    f.open();
    f.type(f.openLine(1, 0), "typed");
    EXPECT_EQ(f.table().item(1, 0)->text(), "typed");
    f.host.undo();
    TestHost::pump();
    f.table().setCurrentCell(1, 0);
    QTest::keyClick(&f.table(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "b");
}

TEST(LookOfColors, WithShiftAClickOnASwatchExtendsTheSelection)
{
    MultiFixture<EdMFColorWidget, SoMFColor> f("[ 1 0 0, 0 1 0, 0 0 1, 1 1 1 ]");
    f.open();
    f.editor.getWidgetContainer()->resize(420, 300);
    TestHost::pump();
    const auto at = [&](int row, int column) {
        return f.table().visualRect(f.table().model()->index(row, column)).center();
    };
    bool hasDialog = false;
    QTimer cancel;
    QObject::connect(&cancel, &QTimer::timeout, [&] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            hasDialog = true;
            dialog->reject();
        }
    });
    cancel.start(0);
    for (bool hadFocus : {true, false}) {
        SCOPED_TRACE(hadFocus);
        QTest::mouseClick(f.table().viewport(), Qt::LeftButton, {}, at(1, 1));
        if (hadFocus)
            f.sendKey(QEvent::KeyPress, Qt::Key_Shift, {});
        else
            f.box().setFocus();
        QTest::mouseClick(f.table().viewport(), Qt::LeftButton, Qt::ShiftModifier, at(2, 0));
        EXPECT_FALSE(hasDialog);
        ASSERT_EQ(f.table().selectedRanges().size(), 1);
        EXPECT_EQ(f.table().selectedRanges().first().topRow(), 1);
        EXPECT_EQ(f.table().selectedRanges().first().bottomRow(), 2);
        f.sendKey(QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftModifier);
        EXPECT_TRUE(f.table().selectedRanges().isEmpty());
    }
    EXPECT_EQ(f.text(), "[ 1 0 0, 0 1 0, 0 0 1, 1 1 1 ]");
}

// --- The popup of the matrices

namespace
{

struct Matrices : MultiFixture<EdMFMatrixWidget, SoMFMatrix> {
    Matrices()
    {
        SbMatrix matrix;
        matrix[1][2] = -2.34567e-08F;
        field.setValue(matrix);
        open();
    }
    QList<EdTablePopupLineEdit*> lines()
    {
        return editor.getWidgetContainer()->findChildren<EdTablePopupLineEdit*>();
    }
    QWidget& popup() { return *lines().first()->window(); }
};

} // namespace

TEST(LookOfThePopup, ItsFirstOpeningAtTheEdgeOfTheScreenIsWhole)
{
    Matrices f;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget* editor = f.editor.getWidgetContainer();
    editor->move(screen.right() - editor->width(), screen.bottom() - 40);
    TestHost::pump();
    f.click("m_editButton");
    constexpr int Tolerance = 2; // a platform without a window manager counts a frame that is not there
    EXPECT_TRUE(screen.adjusted(0, 0, Tolerance, Tolerance).contains(f.popup().geometry()))
        << f.popup().geometry().bottom() << ' ' << screen.bottom();
    f.popup().close();
}

TEST(LookOfThePopup, EveryNumberIsReadWhole)
{
    Matrices f;
    f.click("m_editButton");
    for (const auto* line : f.lines())
        EXPECT_GE(roomOf(*line), line->fontMetrics().horizontalAdvance("-2.34567e-08"));
    EXPECT_GE(f.popup().width(), 260);
    EXPECT_GE(f.popup().height(), 100);
    f.popup().close();
}

TEST(LookOfThePopup, IsOpenedAndUsedByKeysAlone)
{
    Matrices f;
    f.box().setFocus();
    QTest::keyClick(&f.box(), Qt::Key_F2);
    ASSERT_TRUE(f.popup().isVisible());
    QWidget* first = QApplication::focusWidget();
    ASSERT_EQ(first, f.lines().first());
    QTest::keyClicks(first, "5");
    EXPECT_EQ(f.field[0][0][0], 5.F);
    QTest::keyClick(first, Qt::Key_Tab);
    ASSERT_NE(QApplication::focusWidget(), first);
    EXPECT_EQ(QApplication::focusWidget()->window(), &f.popup());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    TestHost::pump();
    EXPECT_FALSE(f.popup().isVisible());
    f.editor.getWidgetContainer()->activateWindow();
    TestHost::pump();
    EXPECT_EQ(QApplication::focusWidget(), &f.box()) << "where the focus was";
    EXPECT_EQ(f.button("m_editButton").focusPolicy(), Qt::NoFocus);
    EXPECT_FALSE(f.table().isEnabled());
}

TEST(LookOfThePopup, ClosesWhenAnotherFieldComes)
{
    Matrices f;
    f.click("m_editButton");
    SoMFMatrix other;
    other.setNum(1);
    f.editor.setField(&other);
    EXPECT_FALSE(f.popup().isVisible());
    f.editor.setField(&f.field);
}

TEST(LookOfThePopup, AnIncompleteNumberKeepsTheElement)
{
    Matrices f;
    f.click("m_editButton");
    EdTablePopupLineEdit* line = f.lines().first();
    const SbMatrix before = f.field[0];
    line->selectAll();
    for (const char* keys : {"-", "5", "e"}) {
        QTest::keyClicks(line, QLatin1String(keys));
        TestHost::pump();
    }
    EXPECT_EQ(line->text(), "-5e");
    EXPECT_EQ(f.field[0][0][0], -5.F);
    f.lines().at(1)->setFocus();
    EXPECT_EQ(line->text(), "-5");
    line->setFocus();
    line->selectAll();
    QTest::keyClick(line, Qt::Key_Delete);
    TestHost::pump();
    EXPECT_EQ(f.field[0][0][0], -5.F);
    f.popup().close();
    f.host.undo();
    while (f.host.undo()) {
    }
    EXPECT_EQ(f.field[0], before);
}
