// SPDX-License-Identifier: MIT
// Every single-value field of the gallery is edited by hand, in every input that its editor has.
#include "Gallery.h"

#include <QColorDialog>
#include <QComboBox>
#include <QSpinBox>
#include <QTimer>

#include <map>

namespace
{

void press(QWidget* input, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(input, key, modifiers);
    Session::settle();
}

void typeOver(QLineEdit* line, const QString& text)
{
    line->setFocus();
    press(line, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(line, text);
    press(line, Qt::Key_Return);
}

// The inputs that are visible in the editor, except those of popups and inside of spin boxes.
QList<QLineEdit*> linesOf(QWidget* editor)
{
    QList<QLineEdit*> lines;
    for (auto* line : editor->findChildren<QLineEdit*>()) {
        if (line->window() == editor->window() && !qobject_cast<QAbstractSpinBox*>(line->parentWidget()))
            lines.append(line);
    }
    return lines;
}

bool isNumber(const QLineEdit* line)
{
    bool is = false;
    line->text().toDouble(&is);
    return is && line->objectName() != "lineEdit";
}

void useSlider(GallerySession& session)
{
    // The drag starts at a value of few digits, as the slider keeps six.
    session.typeAnew(QStringLiteral("17"));
    press(session.input(), Qt::Key_Return);
    const QString typed = session.input()->text();
    const auto* slider = session.inEditor<QSlider>();
    const qint64 left = qint64(slider->value()) - slider->minimum();
    const qint64 right = qint64(slider->maximum()) - slider->value();
    session.drag(3, left > right ? -6 : 6, [] {}); // to where there is room
    EXPECT_NE(session.input()->text(), typed);
}

void useLines(QWidget* editor)
{
    for (QLineEdit* line : linesOf(editor)) {
        if (isNumber(line)) {
            typeOver(line, QStringLiteral("0.125"));
            continue;
        }
        line->setFocus();
        press(line, Qt::Key_End);
        QTest::keyClicks(line, QStringLiteral("1"));
        press(line, Qt::Key_Return);
    }
}

// The first number of the popup grid, where the editor has one.
void usePopup(GallerySession& session)
{
    auto* open = session.inEditor<QPushButton>("m_editButton");
    if (!open)
        return;
    session.click(open);
    QWidget* popup = QApplication::activePopupWidget();
    ASSERT_TRUE(popup);
    typeOver(popup->findChild<QLineEdit*>(), QStringLiteral("5"));
    popup->close();
    Session::settle();
}

void useColorDialog(GallerySession& session)
{
    QTimer::singleShot(0, qApp, [] {
        auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        dialog->setCurrentColor(QColor(51, 102, 153));
        dialog->accept();
    });
    auto* swatch = session.inEditor<QPushButton>("m_colorDisp");
    ASSERT_TRUE(swatch);
    session.click(swatch);
}

void useInputs(GallerySession& session, const std::string& type)
{
    QWidget* editor = session.dock()->widget();
    if (session.inEditor<QSlider>())
        return useSlider(session);
    if (auto* choice = session.inEditor<QComboBox>())
        return press(choice, Qt::Key_Down);
    const auto spins = editor->findChildren<QSpinBox*>();
    for (QSpinBox* spin : spins) {
        spin->setFocus();
        press(spin, Qt::Key_Up);
    }
    if (auto* box = session.inEditor<QCheckBox>()) {
        QTest::mouseClick(box, Qt::LeftButton, {}, {8, box->height() / 2});
        Session::settle();
    }
    useLines(editor);
    usePopup(session);
    if (type == "SFColor")
        useColorDialog(session);
}

// Values that no editor shows whole. A further digit at the end of their texts changes them.
void setValuesOfManyDigits(const GallerySession& session)
{
    const std::map<std::string, const char*> values{
        {"SFFloat", "0.1234567"},
        {"SFDouble", "0.12345678901234568"},
        {"SFTime", "1.2345678901234567e-05"},
        {"SFVec2f", "0.1234567 -3.4028235e+38"},
        {"SFVec2d", "0.30000000000000004 -1.7976931348623157e+30"},
        {"SFVec3f", "1e-45 -0 16777215"},
        {"SFVec3d", "5e-324 -0 0.25"},
        {"SFVec4f", "0.1234567 1e-07 -1.1754944e-38 7"},
        {"SFVec4d", "0.30000000000000004 0 -0 1"},
        {"SFColor", "0.1234567 -2 1e+20"},
        {"SFPlane", "0.26726124 0.5345225 0.8017837 -0.1234567"},
        {"SFRotation", "0.1234567 -0.7654321 0.30000001 0.9"},
        {"SFMatrix", "0.1234567 2 3 4 5 -1e-45 7 8 9 10 1e+38 12 13 14 15 -0"},
        {"SFBox3f", "-0.1234567 -2 -3 0.1234567 2 3"},
        {"SFString", R"("\"quotes\", \\ and a
line break")"},
    };
    for (SoSField* field : session.fields<SoSField>()) {
        const auto value = values.find(GallerySession::typeOf(field));
        if (value != values.end()) {
            ASSERT_TRUE(field->set(value->second)) << value->first;
        }
    }
    Session::settle();
}

std::string defaultOf(const SoField* field)
{
    const SoRef<SoFieldGallery> fresh{new SoFieldGallery};
    const SoFieldData* data = fresh->getFieldData();
    return GallerySession::textOf(data->getField(fresh.get(), data->getIndex(field->getContainer(), field)));
}

// A picture is only shown, a node has no text to type, and the clicks on a bit mask leave nothing to undo.
bool isLeftAlone(const std::string& type)
{
    return type == "SFImage" || type == "SFNode" || type == "SFBitMask";
}

void editAllAndUndo(GallerySession& session)
{
    const auto before = session.states();
    for (SoSField* field : session.fields<SoSField>()) {
        const std::string type = GallerySession::typeOf(field);
        SCOPED_TRACE(type);
        session.select(field);
        ASSERT_TRUE(session.editorShown());
        const auto edit = [&] {
            const std::string unedited = GallerySession::textOf(field);
            const int steps = session.stack().index();
            useInputs(session, type);
            EXPECT_NE(GallerySession::textOf(field), unedited);
            EXPECT_GT(session.stack().index(), steps);
        };
        if (!isLeftAlone(type))
            edit();
        session.click(session.inEditor<QPushButton>("m_defaultButton"));
        EXPECT_EQ(GallerySession::textOf(field), defaultOf(field));
        session.click(session.inEditor<QPushButton>("m_ignoreButton"));
        EXPECT_TRUE(field->isIgnored());
        if (!isLeftAlone(type))
            edit();
    }
    session.expectUndone(before);
}

} // namespace

TEST(SingleGallery, EveryInputOfEveryFieldIsUndoneToTheLastByte)
{
    GallerySession session;
    editAllAndUndo(session);
}

TEST(SingleGallery, UndoBringsDigitsBackThatNoEditorShows)
{
    GallerySession session;
    setValuesOfManyDigits(session);
    editAllAndUndo(session);
}
