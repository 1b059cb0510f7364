// Every single-value field of the field gallery in the dock, with the editor that the dock picks for it.
#include "EdSFBitMaskWidget.h"
#include "EdSFBoolWidget.h"
#include "EdSFBox3sWidget.h"
#include "EdSFColorWidget.h"
#include "EdSFDoubleWidget.h"
#include "EdSFEnumWidget.h"
#include "EdSFFilePathStringWidget.h"
#include "EdSFFloatWidget.h"
#include "EdSFImageWidget.h"
#include "EdSFInt32Widget.h"
#include "EdSFLineWidget.h"
#include "EdSFMatrixWidget.h"
#include "EdSFNameWidget.h"
#include "EdSFPlaneWidget.h"
#include "EdSFRotationWidget.h"
#include "EdSFShortWidget.h"
#include "EdSFStringWidget.h"
#include "EdSFUInt32Widget.h"
#include "EdSFUShortWidget.h"
#include "EdSFVec2fWidget.h"
#include "EdSFVec2i32Widget.h"
#include "EdSFVec2sWidget.h"
#include "EdSFVec3fWidget.h"
#include "EdSFVec4fWidget.h"
#include "EdSlider.h"
#include "EditedField.h"
#include "SpxFieldEditorDockWin.h"

#include <xsg/core/SoFieldContainer.h>

#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QSpinBox>
#include <QTest>

#include <map>
#include <random>
#include <tuple>

namespace
{

using AllEditors =
    std::tuple<EdSFBitMaskWidget, EdSFBoolWidget, EdSFBox3sWidget, EdSFColorWidget, EdSFEnumWidget,
               EdSFDoubleWidget, EdSFFilePathStringWidget, EdSFFloatWidget, EdSFImageWidget, EdSFInt32Widget,
               EdSFLineWidget, EdSFMatrixWidget, EdSFNameWidget, EdSFPlaneWidget, EdSFRotationWidget,
               EdSFShortWidget, EdSFStringWidget, EdSFUInt32Widget, EdSFUShortWidget, EdSFVec2fWidget,
               EdSFVec2i32Widget, EdSFVec2sWidget, EdSFVec3fWidget, EdSFVec4fWidget>;

SoRef<SoFieldContainer> makeGallery()
{
    return dynamic_cast<SoFieldContainer*>(SoType::fromName("FieldGallery").createInstance());
}

class GalleryTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_gallery);
        std::apply([this](auto&... editor) { (m_extensions << ... << &editor); }, m_editors);
        m_host.control(m_extensions);
        for (SpxExtension* editor : qAsConst(m_extensions))
            editor->load();
        m_host.start(m_dock);
        m_host.window().resize(480, 320);
        m_host.window().show();
        const SoFieldData* data = m_gallery->getFieldData();
        for (int i = 0; SoField* field = data->getField(m_gallery.get(), i); ++i) {
            if (auto* single = dynamic_cast<SoSField*>(field))
                m_fields.push_back(single);
        }
        ASSERT_GE(m_fields.size(), 29U);
        m_host.takeLog();
    }
    void TearDown() override
    {
        m_host.select(static_cast<SoField*>(nullptr));
        m_host.stop(m_dock);
        for (SpxExtension* editor : qAsConst(m_extensions))
            editor->unload();
    }

    // Shows the field; its editor's widget.
    QWidget* show(SoSField* field)
    {
        m_host.select(field);
        TestHost::pump();
        return m_host.window().findChild<QDockWidget*>()->widget();
    }
    static std::string typeOf(const SoField* field) { return field->getTypeId().getName().getString(); }
    int commands() const { return int(m_host.log().size()); }
    void undoAll()
    {
        while (m_host.undo()) {
        }
        TestHost::pump();
    }
    // Changes the value the way a person would.
    static void edit(QWidget* editor)
    {
        if (auto* slider = editor->findChild<EdSlider*>())
            return person::typeAndEnter(slider->findChild<QLineEdit*>(), "17");
        if (auto* spin = editor->findChild<QSpinBox*>()) {
            person::focus(spin);
            return QTest::keyClick(spin, Qt::Key_Up);
        }
        if (auto* combo = editor->findChild<QComboBox*>()) {
            person::focus(combo);
            return QTest::keyClick(combo, Qt::Key_Down);
        }
        if (auto* box = editor->findChild<QCheckBox*>())
            return QTest::mouseClick(box, Qt::LeftButton, {}, {8, box->height() / 2});
        if (auto* line = editor->findChild<QLineEdit*>("lineEdit")) {
            person::focus(line);
            QTest::keyClick(line, Qt::Key_End);
            QTest::keyClick(line, '1');
            return QTest::keyClick(line, Qt::Key_Return);
        }
        if (auto* line = editor->findChild<QLineEdit*>())
            person::typeAndEnter(line, "0.125");
    }

    SoRef<SoFieldContainer> m_gallery = makeGallery();
    std::vector<SoSField*> m_fields;
    TestHost m_host;
    AllEditors m_editors;
    QList<SpxExtension*> m_extensions;
    SpxFieldEditorDockWin m_dock;
};

} // namespace

TEST_F(GalleryTest, EveryFieldOpensInItsOwnEditorOrInTheGeneralOne)
{
    std::map<std::string, std::string> expected;
    for (SpxExtension* extension : qAsConst(m_extensions))
        expected[extension->getName().str()] = extension->getName().str();
    for (SoSField* field : m_fields) {
        const std::string caption = show(field)->findChild<QLabel*>("m_label")->text().toStdString();
        const auto own = expected.find(typeOf(field));
        const std::string name = own == expected.end() ? "SField" : own->second;
        EXPECT_EQ(caption, "<p align=\"center\">" + name + "</p>") << typeOf(field);
    }
}

TEST_F(GalleryTest, ShowingEveryFieldWritesAndRecordsNothing)
{
    std::vector<std::string> before;
    for (const SoSField* field : m_fields)
        before.push_back(textOf(*field));
    for (int round = 0; round < 2; ++round) {
        for (SoSField* field : m_fields)
            show(field);
    }
    m_host.select(static_cast<SoField*>(nullptr));
    for (std::size_t i = 0; i < m_fields.size(); ++i)
        EXPECT_EQ(textOf(*m_fields[i]), before[i]) << typeOf(m_fields[i]);
    EXPECT_EQ(commands(), 0);
}

TEST_F(GalleryTest, EveryEditIsUndoneByteForByteAndRedone)
{
    for (SoSField* field : m_fields) {
        const std::string type = typeOf(field);
        const std::string before = textOf(*field);
        QWidget* editor = show(field);
        m_host.takeLog();
        edit(editor);
        TestHost::pump();
        const std::string after = textOf(*field);
        const bool isFixed = type == "SFImage" || type == "SFNode"; // nothing that typing could change
        EXPECT_EQ(after == before, isFixed) << type << ' ' << after;
        if (type == "SFBitMask") { // leaves nothing to undo, which is meant
            EXPECT_EQ(commands(), 0);
            field->set(before.c_str());
            continue;
        }
        EXPECT_EQ(commands() == 0, isFixed) << type;
        undoAll();
        EXPECT_EQ(textOf(*field), before) << type;
        while (m_host.redo()) {
        }
        EXPECT_EQ(textOf(*field), after) << type;
        undoAll();
        EXPECT_EQ(textOf(*field), before) << type;
    }
}

TEST_F(GalleryTest, DefaultAndIgnoreOfEveryFieldAreOneCommandEach)
{
    for (SoSField* field : m_fields) {
        QWidget* editor = show(field);
        const std::string before = textOf(*field);
        m_host.takeLog();
        QTest::mouseClick(editor->findChild<QPushButton*>("m_defaultButton"), Qt::LeftButton);
        EXPECT_EQ(m_host.takeLog(), TestHost::Log{"executeCommand SpxFieldSetDefaultCommand"})
            << typeOf(field);
        QTest::mouseClick(editor->findChild<QPushButton*>("m_ignoreButton"), Qt::LeftButton);
        EXPECT_EQ(m_host.takeLog(), TestHost::Log{"executeCommand SpxFieldIgnoredCommand"}) << typeOf(field);
        EXPECT_TRUE(field->isIgnored());
        undoAll();
        EXPECT_FALSE(field->isIgnored());
        EXPECT_EQ(textOf(*field), before);
    }
}

TEST_F(GalleryTest, TypingThatWaitsNeverReachesAnotherField)
{
    for (std::size_t i = 0; i + 1 < m_fields.size(); ++i) {
        const std::string next = textOf(*m_fields[i + 1]);
        const QList<QLineEdit*> lines = show(m_fields[i])->findChildren<QLineEdit*>();
        if (!lines.isEmpty())
            person::type(lines.first(), "1");
        show(m_fields[i + 1]);
        EXPECT_EQ(textOf(*m_fields[i + 1]), next) << typeOf(m_fields[i + 1]);
        m_host.clearUndo();
    }
}

TEST_F(GalleryTest, EveryInputHasANameForThoseWhoDoNotSeeIt)
{
    for (SoSField* field : m_fields) {
        const QList<QWidget*> inputs = show(field)->findChildren<QWidget*>();
        for (const QWidget* input : inputs) {
            const bool isInner = qobject_cast<const QSpinBox*>(input->parentWidget()) ||
                                 qobject_cast<const QComboBox*>(input->parentWidget()) || input->isWindow() ||
                                 !input->isVisible();
            if (input->focusPolicy() == Qt::NoFocus || isInner)
                continue;
            EXPECT_FALSE(input->accessibleName().isEmpty())
                << typeOf(field) << ' ' << input->metaObject()->className();
        }
    }
}

// Random text into every line input: nothing crashes, and the field's text always reads back.
TEST_F(GalleryTest, NoTextThatSomebodyTypesBreaksAField)
{
    std::mt19937 random(20);
    const QString letters = "0123456789.-+eExX \"\\,;#nanif{}[]()" + QString::fromUtf8("\u00e9\u4e2d\u0660");
    const int rounds = qEnvironmentVariableIntValue("SCOPIX_TYPING_ROUNDS") + 5;
    const auto pick = [&random](int count) { return int(random() % unsigned(count)); };
    for (SoSField* field : m_fields) {
        QWidget* editor = show(field);
        for (int round = 0; round < rounds; ++round) {
            for (QLineEdit* line : editor->findChildren<QLineEdit*>()) {
                QString text;
                for (int i = pick(24); i > 0; --i)
                    text += letters[pick(letters.size())];
                line->setFocus();
                if (pick(2))
                    line->selectAll();
                for (const QChar& letter : qAsConst(text))
                    QTest::sendKeyEvent(QTest::Click, line, Qt::Key_unknown, QString(letter), Qt::NoModifier);
                QTest::keyClick(line, pick(3) ? Qt::Key_Return : Qt::Key_Tab);
                if (!pick(4))
                    TestHost::pump();
                if (!pick(8))
                    m_host.undo();
            }
            SbString written;
            field->get(written);
            EXPECT_GT(written.getLength(), 0);
            EXPECT_TRUE(field->set(written)) << typeOf(field) << ' ' << written.getString();
        }
        m_host.clearUndo();
    }
}

// The pictures of the documentation come from here: SCOPIX_PICTURES names the folder that they go to.
TEST_F(GalleryTest, EveryEditorFitsIntoANarrowDock)
{
    const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
    for (SoSField* field : m_fields) {
        QWidget* editor = show(field);
        EXPECT_LE(editor->minimumSizeHint().width(), 420) << typeOf(field);
        if (folder.isEmpty())
            continue;
        QDir().mkpath(folder);
        const QString name = QString::fromStdString(typeOf(field)) + ".png";
        const QSize size(editor->width(), editor->layout()->sizeHint().height());
        EXPECT_TRUE(editor->grab(QRect({0, 0}, size)).save(QDir(folder).filePath(name)));
    }
}
