// SPDX-License-Identifier: MIT
// A cell that is open while something else happens: a button, a change of the field, another selection.
#include "EdIntSlider.h"
#include "EdTablePopupLineEdit.h"
#include "ListElements.h"
#include "MultiFixture.h"

#include <support/QtWarnings.h>
#include <support/SoFieldGallery.h>

#include <QApplication>
#include <QCheckBox>
#include <QSlider>

namespace
{

using listElements::fill;
using listElements::textOf;
using listElements::typed;

constexpr int Count = 5;

template <class Kind>
class OpenCell : public testing::Test
{
protected:
    using Fixture = MultiFixture<typename Kind::Editor, typename Kind::Field>;

    static void show(Fixture& f)
    {
        fill(f.field, Count);
        f.open();
    }
    static QLineEdit* open(Fixture& f, int row)
    {
        f.table().setFocus();
        f.table().setCurrentCell(row, f.table().columnCount() - 1);
        QTest::keyClick(&f.table(), Qt::Key_F2);
        QWidget* cell = f.table().indexWidget(f.table().currentIndex());
        auto* line = qobject_cast<QLineEdit*>(cell);
        return line || !cell ? line : cell->findChild<QLineEdit*>();
    }
    static QLineEdit* openAndType(Fixture& f, int row)
    {
        QLineEdit* line = open(f, row);
        if (!line)
            return nullptr;
        line->selectAll();
        QTest::keyClicks(line, typed(f.field));
        return line;
    }
    static void finish(Fixture& f)
    {
        TestHost::pump();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(f.table().viewport()->template findChild<QLineEdit*>());
    }
};

} // namespace

TYPED_TEST_SUITE(OpenCell, ListEditors, );

TYPED_TEST(OpenCell, WhatIsTypedIsAppliedBeforeAButtonActs)
{
    for (const char* button : {"m_addButton", "m_upButton", "m_downButton", "m_ignoreButton"}) {
        SCOPED_TRACE(button);
        std::vector<std::pair<std::string, int>> results;
        for (bool isAppliedBefore : {true, false}) {
            typename TestFixture::Fixture f;
            this->show(f);
            if (typed(f.field).isEmpty())
                return;
            QLineEdit* line = this->openAndType(f, 2);
            if (isAppliedBefore)
                QTest::keyClick(line, Qt::Key_Return);
            f.box().setNewValue(2);
            f.click(button);
            this->finish(f);
            results.emplace_back(f.text(), f.table().currentRow());
        }
        EXPECT_EQ(results[1], results[0]);
    }
}

TYPED_TEST(OpenCell, WhatIsTypedComesBeforeTheDefault)
{
    const SoRef<SoFieldGallery> gallery(new SoFieldGallery);
    const SoFieldData* data = gallery->getFieldData();
    SoMField* field = nullptr;
    for (int i = 0; SoField* each = data->getField(gallery.get(), i); ++i) {
        if (each->isOfType(decltype(TestFixture::Fixture::field)::getClassTypeId()))
            field = static_cast<SoMField*>(each);
    }
    ASSERT_TRUE(field);
    SbString fresh;
    field->get(fresh);
    fill(*field, field->getNum());
    typename TestFixture::Fixture f;
    f.host.edit(f.editor, field);
    TestHost::pump();
    if (!typed(*field).isEmpty() && f.table().isEnabled())
        this->openAndType(f, 0);
    f.click("m_defaultButton");
    f.host.release(f.editor);
    SbString text;
    field->get(text);
    EXPECT_EQ(text, fresh);
}

TYPED_TEST(OpenCell, WhatIsTypedStaysOutOfTheElementThatMovesIntoItsRow)
{
    for (int change = 0; change < 4; ++change) {
        SCOPED_TRACE(change);
        typename TestFixture::Fixture f;
        this->show(f);
        if (typed(f.field).isEmpty())
            return;
        ASSERT_TRUE(this->openAndType(f, 3));
        if (change == 0)
            f.field.insertSpace(0, 1);
        else if (change == 1)
            f.field.deleteValues(1, 1);
        else if (change == 2)
            f.field.insertSpace(3, 1);
        else
            f.field.deleteValues(3, 1);
        const std::string after = f.text();
        TestHost::pump();
        f.box().setFocus();
        f.host.release(f.editor);
        EXPECT_EQ(f.text(), after);
    }
}

TYPED_TEST(OpenCell, WhatIsTypedStaysWhenTheListGrowsOrAnotherElementChanges)
{
    typename TestFixture::Fixture f;
    this->show(f);
    if (typed(f.field).isEmpty())
        return;
    QPointer<QLineEdit> line = this->openAndType(f, 0);
    f.field.setNum(Count + 3);
    TestHost::pump();
    f.field.set1(Count, listElements::element(f.field, 1));
    TestHost::pump();
    f.field.set1(0, listElements::element(f.field, 2));
    TestHost::pump();
    ASSERT_TRUE(line);
    EXPECT_EQ(line->text(), typed(f.field));
    QTest::keyClick(line, Qt::Key_Return);
    this->finish(f);
    EXPECT_NE(textOf(f.field, 0), listElements::element(f.field, 2).str());
}

TYPED_TEST(OpenCell, UntouchedItFollowsItsElement)
{
    typename TestFixture::Fixture f;
    this->show(f);
    if (!f.table().isEnabled())
        return;
    QLineEdit* line = this->open(f, 0);
    ASSERT_TRUE(line);
    f.field.set1(0, listElements::element(f.field, 3));
    TestHost::pump();
    const QString followed = line->text();
    EXPECT_EQ(line->selectedText(), followed) << "selected whole, as when it was opened";
    f.table().dropOpenEditor();
    EXPECT_EQ(followed, this->open(f, 0)->text());
    const std::string before = f.text();
    f.host.release(f.editor);
    EXPECT_EQ(f.text(), before);
}

TYPED_TEST(OpenCell, WhatIsTypedIsAppliedWhenTheSelectionMoves)
{
    typename TestFixture::Fixture f;
    this->show(f);
    if (typed(f.field).isEmpty())
        return;
    this->openAndType(f, 0);
    EXPECT_TRUE(f.editor.edited());
    const std::string before = f.text();
    f.host.release(f.editor);
    EXPECT_NE(f.text(), before);
}

// A cell shows fewer digits than the number has.
TYPED_TEST(OpenCell, ADigitTypedAndTakenAwayChangesNothing)
{
    typename TestFixture::Fixture f;
    this->show(f);
    QStringList numbers = QString::fromStdString(textOf(f.field, 0)).split(' ');
    for (QString& number : numbers)
        number = "0.123456789";
    const bool isReal = f.field.set1(0, SbString(numbers.join(' ').toLatin1().constData()));
    if (!isReal || !f.table().isEnabled() || listElements::typeOf(f.field) == "MFString")
        return;
    TestHost::pump();
    const std::string before = f.text();
    QLineEdit* line = this->open(f, 0);
    const QString last = line->text().right(1);
    QTest::keyClick(line, Qt::Key_End);
    QTest::keyClick(line, Qt::Key_Backspace);
    QTest::keyClicks(line, last);
    ASSERT_TRUE(line->isModified());
    QTest::keyClick(line, Qt::Key_Return);
    this->finish(f);
    EXPECT_EQ(f.text(), before);
    EXPECT_EQ(f.host.undoCount(), 0);
}

TYPED_TEST(OpenCell, AnotherFieldBringsNoCurrentRowAlong)
{
    typename TestFixture::Fixture f;
    this->show(f);
    f.table().setCurrentCell(2, 0);
    f.box().setValue(3);
    decltype(f.field) other;
    fill(other, Count);
    SbString before;
    other.get(before);
    f.host.release(f.editor);
    f.host.edit(f.editor, &other);
    TestHost::pump();
    EXPECT_EQ(f.table().currentRow(), -1);
    EXPECT_EQ(f.box().value(), 1);
    f.table().setFocus();
    f.key(Qt::Key_Delete);
    f.click("m_deleteButton");
    SbString after;
    other.get(after);
    EXPECT_EQ(after, before);
    f.host.release(f.editor);
}

TYPED_TEST(OpenCell, AfterBeingUnloadedTheEditorIsLoadedAgainQuietly)
{
    typename TestFixture::Fixture f;
    this->show(f);
    f.host.stop(f.editor);
    {
        const QtWarnings warnings;
        f.open();
        EXPECT_EQ(warnings.all(), "");
    }
    EXPECT_EQ(f.editor.getWidgetContainer()->template findChildren<QPushButton*>("m_addButton").size(), 1);
    f.click("m_addButton");
    EXPECT_EQ(f.field.getNum(), Count + 1);
}

// --- Cells of several inputs

template <class Kind>
class OpenSlider : public OpenCell<Kind>
{
protected:
    // Opens row 2 and takes the focus to one of the cell's parts by a click.
    template <class Part>
    QPointer<Part> openPart(typename OpenCell<Kind>::Fixture& f)
    {
        this->show(f);
        this->open(f, 2);
        QPointer<Part> part = f.table().indexWidget(f.table().currentIndex())->template findChild<Part*>();
        QTest::mouseClick(part, Qt::LeftButton, {}, {2, part->height() / 2});
        part->setFocus();
        TestHost::pump();
        EXPECT_TRUE(part->hasFocus());
        return part;
    }
    // The count and the current row that a button leaves where no cell is open.
    std::pair<int, int> resultOf(const char* button)
    {
        typename OpenCell<Kind>::Fixture f;
        this->show(f);
        f.table().setCurrentCell(2, 0);
        f.box().setNewValue(2);
        f.click(button);
        return {f.field.getNum(), f.table().currentRow()};
    }
    template <class Part>
    void closesInOrder()
    {
        for (const char* button : {"m_upButton", "m_downButton", "m_addButton", "m_deleteButton"}) {
            SCOPED_TRACE(button);
            const auto [count, row] = resultOf(button);
            typename OpenCell<Kind>::Fixture f;
            openPart<Part>(f);
            f.box().setNewValue(2);
            f.click(button);
            this->finish(f);
            EXPECT_EQ(f.field.getNum(), count);
            EXPECT_EQ(f.table().currentRow(), row);
            EXPECT_EQ(QApplication::focusWidget(), &f.table());
        }
        typename OpenCell<Kind>::Fixture f;
        QPointer<Part> part = openPart<Part>(f);
        const std::string third = textOf(f.field, 3);
        QTest::keyClick(part, Qt::Key_Escape);
        this->finish(f);
        EXPECT_EQ(f.table().currentRow(), 2);
        EXPECT_EQ(QApplication::focusWidget(), &f.table());
        f.press('-');
        EXPECT_EQ(f.field.getNum(), Count - 1);
        EXPECT_EQ(textOf(f.field, 2), third);
    }
};

using SliderLists = testing::Types<Kind<EdMFFloatWidget, SoMFFloat>, Kind<EdMFInt32Widget, SoMFInt32>,
                                   Kind<EdMFShortWidget, SoMFShort>, Kind<EdMFUInt32Widget, SoMFUInt32>,
                                   Kind<EdMFUShortWidget, SoMFUShort>>;
TYPED_TEST_SUITE(OpenSlider, SliderLists, );

TYPED_TEST(OpenSlider, WithTheFocusInItsHandleClosesInOrder)
{
    this->template closesInOrder<QSlider>();
}

TYPED_TEST(OpenSlider, WithTheFocusInItsCheckBoxClosesInOrder)
{
    this->template closesInOrder<QCheckBox>();
}

TYPED_TEST(OpenSlider, WhoseRowIsRemovedGivesTheFocusBack)
{
    typename TestFixture::Fixture f;
    this->template openPart<QSlider>(f);
    f.table().setCurrentCell(2, 0);
    f.field.setNum(2);
    this->finish(f);
    EXPECT_EQ(QApplication::focusWidget(), &f.table());
    EXPECT_EQ(f.field.getNum(), 2);
}

TYPED_TEST(OpenSlider, EscapeDropsWhatIsNotApplied)
{
    typename TestFixture::Fixture f;
    this->show(f);
    this->open(f, 2);
    QWidget* cell = f.table().indexWidget(f.table().currentIndex());
    cell->findChild<QCheckBox*>()->setChecked(false);
    const std::string before = f.text();
    auto* handle = cell->findChild<QSlider*>();
    handle->setFocus();
    QTest::keyClick(handle, Qt::Key_Right);
    EXPECT_EQ(f.text(), before);
    QTest::keyClick(handle, Qt::Key_Escape);
    this->finish(f);
    EXPECT_EQ(f.text(), before);
}

TYPED_TEST(OpenSlider, WhatIsNoNumberIsNotTakenAndTheValueIsShownAgain)
{
    typename TestFixture::Fixture f;
    this->show(f);
    const std::string before = f.text();
    for (const char* text : {"", "-", "7x", "1e", "99999999999999999999"}) {
        SCOPED_TRACE(text);
        QLineEdit* line = this->open(f, 2);
        ASSERT_TRUE(line);
        const QString shown = line->text();
        auto* slider = qobject_cast<EdSlider*>(line->parentWidget());
        line->selectAll();
        QTest::keyClick(line, Qt::Key_Delete);
        QTest::keyClicks(line, QLatin1String(text));
        if (line->text() == "7" || line->text() == "1" || line->text().startsWith("999"))
            line->clear(), line->insert("-"); // the rest was refused while it was typed
        slider->changeValueFromEdit();
        EXPECT_EQ(line->text(), shown);
        EXPECT_FALSE(slider->isEdited());
        QTest::keyClick(line, Qt::Key_Escape);
        this->finish(f);
        EXPECT_EQ(f.text(), before);
    }
}

TEST(OpenSliderCell, WhatLiesBeyondTheTypeIsClampedInItsLine)
{
    MultiFixture<EdMFUShortWidget, SoMFUShort> f("[ 1, 2, 3 ]");
    f.open();
    auto* slider = qobject_cast<EdSlider*>(f.openCell(1, 0));
    ASSERT_TRUE(slider);
    auto* line = slider->findChild<QLineEdit*>();
    line->selectAll();
    QTest::keyClicks(line, "70000");
    slider->changeValueFromEdit();
    EXPECT_EQ(line->text(), "65535");
    EXPECT_EQ(f.text(), "[ 1, 65535, 3 ]");
}

TEST(OpenSliderCell, AFixedRangeClampsInItsLine)
{
    for (int row : {0, 1}) {
        MultiFixture<EdMFFloatWidget, SoMFFloat> f("[ 0.5, 0.25 ]");
        f.open();
        f.table().setDoubleEditorRange(0, 1);
        f.table().setBoundedValue(true);
        auto* slider = qobject_cast<EdSlider*>(f.openCell(row, 0));
        ASSERT_TRUE(slider);
        auto* line = slider->findChild<QLineEdit*>();
        line->selectAll();
        QTest::keyClicks(line, "5");
        slider->changeValueFromEdit();
        EXPECT_EQ(line->text().toDouble(), 1);
        EXPECT_EQ(f.text(), "[ 1, 0.25 ]") << "element 0 from every row";
    }
    MultiFixture<EdMFInt32Widget, SoMFInt32> f("[ 1, 2 ]");
    f.open();
    f.table().setIntEditorRange(0, 10);
    f.table().setBoundedValue(true);
    f.type(f.openCell(1, 0)->findChild<QLineEdit*>(), "70");
    EXPECT_EQ(f.text(), "[ 1, 10 ]");
}

TEST(OpenSliderCell, NoRowTakesWhatAFloatCannotHold)
{
    MultiFixture<EdMFFloatWidget, SoMFFloat> f("[ 0.5, 0.25 ]");
    f.open();
    for (int row : {0, 1}) {
        auto* line = f.openCell(row, 0)->findChild<QLineEdit*>();
        line->selectAll();
        QTest::keyClicks(line, "1e300");
        EXPECT_EQ(line->text(), "1e30") << "the last digit is refused";
        QTest::keyClick(line, Qt::Key_Escape);
        TestHost::pump();
    }
    EXPECT_EQ(f.text(), "[ 0.5, 0.25 ]");
}

TEST(OpenSliderCell, FollowsTheFieldAfterItsHandleWasHeld)
{
    MultiFixture<EdMFInt32Widget, SoMFInt32> f("[ 1, 2 ]");
    f.open();
    auto* slider = qobject_cast<EdIntSlider*>(f.openCell(1, 0));
    ASSERT_TRUE(slider);
    auto* handle = slider->findChild<QSlider*>();
    handle->setSliderDown(true);
    f.field.set1Value(1, 9);
    TestHost::pump();
    EXPECT_EQ(slider->getNumber(), 2) << "held";
    handle->setSliderDown(false);
    TestHost::pump();
    EXPECT_EQ(slider->getNumber(), 9);
    EXPECT_EQ(f.text(), "[ 1, 9 ]");
}
