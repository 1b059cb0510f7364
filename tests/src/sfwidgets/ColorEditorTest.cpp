// SPDX-License-Identifier: MIT
#include "EdSFColorWidget.h"
#include "EditedField.h"

#include <xsg/fields/SoSFColor.h>

#include <QColorDialog>
#include <QTest>
#include <QTimer>

namespace
{

struct EditedColor : EditedField<EdSFColorWidget, SoSFColor> {
    using EditedField::EditedField;
    QList<QLineEdit*> lines() { return editor.getWidget()->findChildren<QLineEdit*>("SFColorLine"); }
    QPushButton* swatch() { return find<QPushButton>("m_colorDisp"); }
    QColor color()
    {
        return swatch()->icon().pixmap(swatch()->size()).toImage().pixelColor(swatch()->rect().center());
    }
    // Opens the dialog and does `act` in it.
    template <class Act>
    void inDialog(Act act)
    {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            timer.stop();
            act(*dialog);
        });
        timer.start(1);
        QTest::mouseClick(swatch(), Qt::LeftButton);
        TestHost::pump();
    }
};

} // namespace

TEST(ColorEditor, KeystrokesChangeTheSwatchAndEnterTheField)
{
    EditedColor edited("0 0 0");
    person::type(edited.lines()[0], "0.5");
    EXPECT_EQ(edited.color(), QColor(127, 0, 0));
    EXPECT_EQ(edited.text(), "0 0 0");
    QTest::keyClick(edited.lines()[0], Qt::Key_Return);
    TestHost::pump();
    EXPECT_EQ(edited.text(), "0.5 0 0");
    EXPECT_EQ(edited.commands(), 1);
    person::type(edited.lines()[1], "1");
    person::tab(edited.lines()[1]);
    EXPECT_EQ(edited.text(), "0.5 1 0");
    EXPECT_EQ(edited.commands(), 2);
    edited.undo();
    edited.undo();
    EXPECT_EQ(edited.text(), "0 0 0");
    EXPECT_EQ(edited.color(), QColor(0, 0, 0));
}

TEST(ColorEditor, UntouchedComponentsKeepEveryBit)
{
    EditedColor edited("0 0.123456791 2");
    const std::string before = edited.text();
    person::type(edited.lines()[1], "0.5");
    QTest::keyClick(edited.lines()[1], Qt::Key_Escape);
    person::typeAndEnter(edited.lines()[0], "1");
    EXPECT_EQ(edited.text(), "1" + before.substr(1));
}

TEST(ColorEditor, ComponentsBeyondOneAreKeptAndTheSwatchClamps)
{
    EditedColor edited("0 0 0");
    person::typeAndEnter(edited.lines()[2], "3.5");
    person::typeAndEnter(edited.lines()[0], "-1");
    EXPECT_EQ(edited.text(), "-1 0 3.5");
    EXPECT_EQ(edited.color(), QColor(0, 0, 255));
}

TEST(ColorEditor, TextThatIsNoNumberCountsAsZero)
{
    EditedColor edited("0.5 0.5 0.5");
    for (const char* text : {"abc", "1e99", "nan"}) {
        person::type(edited.lines()[0], text);
        EXPECT_EQ(edited.color().red(), 0) << text;
    }
    EXPECT_EQ(edited.lines()[0]->validator(), nullptr);
}

TEST(ColorEditor, ChoiceInTheDialogIsAppliedAtOnce)
{
    EditedColor edited("0 0 0");
    edited.inDialog([](QColorDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>();
        person::type(name, "#ff8000");
        QTest::keyClick(name, Qt::Key_Return);
    });
    EXPECT_EQ(edited.lines()[0]->text(), "1");
    EXPECT_EQ(edited.lines()[1]->text(), "0.501961");
    EXPECT_EQ(edited.lines()[2]->text(), "0");
    EXPECT_EQ(edited.text(), "1 0.501961 0");
    EXPECT_EQ(edited.commands(), 1);
    edited.undo();
    EXPECT_EQ(edited.text(), "0 0 0");
}

TEST(ColorEditor, CancelledDialogChangesNothing)
{
    EditedColor edited("0.1 0.2 0.3");
    edited.inDialog([](QColorDialog& dialog) {
        dialog.setCurrentColor(Qt::white);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(edited.text(), "0.1 0.2 0.3");
    EXPECT_EQ(edited.commands(), 0);
}

TEST(ColorEditor, DialogThatReturnsForAnotherFieldWritesNothing)
{
    EditedColor edited("0.1 0.2 0.3");
    SoSFColor other;
    other.set("0 0 0");
    edited.inDialog([&](QColorDialog& dialog) {
        edited.host.release(edited.editor);
        edited.host.edit(edited.editor, &other);
        dialog.setCurrentColor(Qt::white);
        dialog.accept();
    });
    EXPECT_EQ(textOf(other), "0 0 0");
    EXPECT_EQ(edited.text(), "0.1 0.2 0.3");
    EXPECT_EQ(edited.commands(), 0);
    edited.host.release(edited.editor);
}

TEST(ColorEditor, ShowsChangesFromElsewhere)
{
    EditedColor edited("0 0 0");
    edited.change("1 0.5 0.25");
    EXPECT_EQ(edited.lines()[1]->text(), "0.5");
    EXPECT_EQ(edited.color(), QColor(255, 127, 63));
    EXPECT_EQ(edited.commands(), 0);
    EXPECT_EQ(edited.swatch()->size(), QSize(20, 18));
}
