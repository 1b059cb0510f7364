// Every single-value field of the gallery is edited by hand, in every input that its editor has.
#include "Gallery.h"

#include <QColorDialog>
#include <QComboBox>
#include <QSpinBox>
#include <QTimer>

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

// The inputs that a person sees in the editor: those of popups and inside of spin boxes aside.
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
    session.drag(3, 6, [] {});
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

// A picture is only shown, a node has no text to type, and the clicks on a bit mask leave nothing to undo.
bool isLeftAlone(const std::string& type)
{
    return type == "SFImage" || type == "SFNode" || type == "SFBitMask";
}

} // namespace

TEST(SingleGallery, EveryInputOfEveryFieldIsUndoneToTheLastByte)
{
    GallerySession session;
    const auto before = session.states();
    for (SoSField* field : session.fields<SoSField>()) {
        const std::string type = GallerySession::typeOf(field);
        SCOPED_TRACE(type);
        const std::string original = GallerySession::textOf(field);
        session.select(field);
        ASSERT_TRUE(session.editorShown());
        const auto edit = [&] {
            const int steps = session.stack().index();
            useInputs(session, type);
            EXPECT_NE(GallerySession::textOf(field), original);
            EXPECT_GT(session.stack().index(), steps);
        };
        if (!isLeftAlone(type))
            edit();
        session.click(session.inEditor<QPushButton>("m_defaultButton"));
        EXPECT_EQ(GallerySession::textOf(field), original) << "the gallery's own values are its defaults";
        session.click(session.inEditor<QPushButton>("m_ignoreButton"));
        EXPECT_TRUE(field->isIgnored());
        if (!isLeftAlone(type))
            edit();
    }
    session.expectUndone(before);
}
