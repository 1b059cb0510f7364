// SPDX-License-Identifier: MIT
// The sliders that cells of numbers open: how they are made, and when they stay open.
#include "EdIntSlider.h"
#include "EdMFDoubleWidget.h"
#include "EdMFFloatWidget.h"
#include "EdMFInt32Widget.h"
#include "EdMFShortWidget.h"
#include "EdMFUInt32Widget.h"
#include "EdMFUShortWidget.h"
#include "EdRealSlider.h"
#include "EdUIntSlider.h"
#include "MultiFixture.h"

#include <QCheckBox>
#include <QPointer>

namespace
{

using Floats = MultiFixture<EdMFFloatWidget, SoMFFloat>;
using Integers = MultiFixture<EdMFInt32Widget, SoMFInt32>;

template <class Slider, class Fixture>
Slider* openSlider(Fixture& f, int row)
{
    return qobject_cast<Slider*>(f.openCell(row, 0));
}

// What a single-column cell opens, types and applies; nothing of it is recorded.
template <class Slider, class Fixture>
void expectSliderOfItsRow(Fixture& f, double top)
{
    f.open();
    auto* slider = openSlider<Slider>(f, 1);
    ASSERT_TRUE(slider);
    EXPECT_EQ(double(slider->getBottom()), 0);
    EXPECT_EQ(double(slider->getTop()), top);
    EXPECT_EQ(slider->focusPolicy(), Qt::WheelFocus);
    f.type(slider->template findChild<QLineEdit*>(), "9");
    EXPECT_EQ(f.text(), "[ 1, 9, 3 ]");
    EXPECT_TRUE(f.host.takeLog().empty()) << "a cell of a single column leaves nothing to undo";
    EXPECT_EQ(f.host.undoCount(), 0);
}

// As the delegate does when the slider loses the focus.
void askToClose(EdMFieldTable& table, QWidget* editor)
{
    emit table.itemDelegate()->closeEditor(editor, QAbstractItemDelegate::NoHint);
}

} // namespace

TEST(SliderCells, SignedIntegers)
{
    Integers f("[ 1, 2, 3 ]");
    expectSliderOfItsRow<EdIntSlider>(f, 10);
}

TEST(SliderCells, ShortIntegers)
{
    MultiFixture<EdMFShortWidget, SoMFShort> f("[ 1, 2, 3 ]");
    expectSliderOfItsRow<EdIntSlider>(f, 10);
}

TEST(SliderCells, UnsignedIntegers)
{
    MultiFixture<EdMFUInt32Widget, SoMFUInt32> f("[ 1, 2, 3 ]");
    expectSliderOfItsRow<EdUIntSlider>(f, 10);
}

TEST(SliderCells, UnsignedShortIntegers)
{
    MultiFixture<EdMFUShortWidget, SoMFUShort> f("[ 1, 2, 3 ]");
    expectSliderOfItsRow<EdUIntSlider>(f, 10);
}

// The row is passed as the precision: row 0 has a slider of doubles, all others one of floats
// (decisions.md: slider-first-element).
TEST(SliderCells, TheRowOfAFloatIsTakenForItsPrecision)
{
    Floats f("[ 0.123456789, 0.123456789, 0.123456789 ]");
    f.open();
    const auto shown = [&](int row) {
        auto* slider = openSlider<EdRealSlider>(f, row);
        const QString text = slider ? slider->getValueFromEdit() : QString();
        QTest::keyClick(slider, Qt::Key_Escape);
        TestHost::pump();
        return text.toStdString();
    };
    EXPECT_EQ(shown(0), QString::number(double(0.123456789F), 'g', 15).toStdString());
    EXPECT_EQ(shown(1), "0.123457");
    EXPECT_EQ(shown(2), "0.123457");
}

TEST(SliderCells, AClickOnItsPartsKeepsItOpen)
{
    Integers f("[ 1, 2, 3 ]");
    f.open();
    const QPointer<EdIntSlider> slider = openSlider<EdIntSlider>(f, 1);
    ASSERT_TRUE(slider);
    QTest::mouseClick(slider->findChild<QCheckBox*>(), Qt::LeftButton);
    QTest::mouseClick(slider->findChild<QSlider*>(), Qt::LeftButton, {}, {3, 5});
    TestHost::pump();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(slider);
    EXPECT_EQ(f.table().indexWidget(f.table().model()->index(1, 0)), slider);
}

TEST(SliderCells, UnderTheMouseItIsNotClosedButByTheKeys)
{
    Integers f("[ 1, 2, 3 ]");
    f.open();
    const QPointer<EdIntSlider> slider = openSlider<EdIntSlider>(f, 1);
    ASSERT_TRUE(slider);
    QCursor::setPos(slider->mapToGlobal(slider->rect().center()));
    askToClose(f.table(), slider);
    f.table().editorDestroyed(slider);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_TRUE(slider);
    QTest::keyClick(slider, Qt::Key_Escape);
    TestHost::pump();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(slider);
}

TEST(SliderCells, AwayFromTheMouseAndTheFocusItIsClosed)
{
    Integers f("[ 1, 2, 3 ]");
    f.open();
    const QPointer<EdIntSlider> slider = openSlider<EdIntSlider>(f, 1);
    ASSERT_TRUE(slider);
    QCursor::setPos(f.editor.getWidgetContainer()->mapToGlobal({-50, -50}));
    f.box().setFocus();
    askToClose(f.table(), slider);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(slider);
}

TEST(SliderCells, TypingOpensItAndReachesItsLine)
{
    Integers f("[ 1, 2, 3 ]");
    f.open();
    f.table().setCurrentCell(1, 0);
    f.press('7');
    auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(line);
    QTest::keyClick(line, Qt::Key_Return);
    TestHost::pump();
    EXPECT_EQ(f.text(), "[ 1, 7, 3 ]");
}

// decisions.md: no-double-slider.
TEST(SliderCells, ADoubleHasNone)
{
    MultiFixture<EdMFDoubleWidget, SoMFDouble> f("[ 1, 2, 3 ]");
    f.open();
    EXPECT_TRUE(f.openLine(1, 0));
}
