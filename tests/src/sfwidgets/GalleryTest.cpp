// SPDX-License-Identifier: MIT
// Every single-value field of the field gallery in the dock, with the editor that the dock picks for it.
#include "Gallery.h"
#include "EdSlider.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QSpinBox>
#include <QTest>

#include <map>

namespace
{

class GalleryFields : public Gallery
{
protected:
    // Changes the value the way a user would.
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
};

} // namespace

TEST_F(GalleryFields, EveryFieldOpensInItsOwnEditorOrInTheGeneralOne)
{
    std::map<std::string, std::string> expected;
    for (const auto& editor : m_editors)
        expected[editor->getName().str()] = editor->getName().str();
    for (SoSField* field : m_fields) {
        const std::string caption = show(field)->findChild<QLabel*>("m_label")->text().toStdString();
        const auto own = expected.find(typeOf(field));
        const std::string name = own == expected.end() ? "SField" : own->second;
        EXPECT_EQ(caption, "<p align=\"center\">" + name + "</p>") << typeOf(field);
    }
}

TEST_F(GalleryFields, ShowingEveryFieldWritesAndRecordsNothing)
{
    std::vector<std::string> before;
    for (const SoSField* field : m_fields)
        before.push_back(textOf(*field));
    for (int round = 0; round < 2; ++round) {
        for (SoSField* field : m_fields)
            show(field);
    }
    showNothing();
    for (std::size_t i = 0; i < m_fields.size(); ++i)
        EXPECT_EQ(textOf(*m_fields[i]), before[i]) << typeOf(m_fields[i]);
    EXPECT_EQ(commands(), 0);
}

TEST_F(GalleryFields, EveryEditIsUndoneByteForByteAndRedone)
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
        if (type == "SFBitMask") { // decisions.md: bit-mask-no-undo
            EXPECT_EQ(commands(), 0);
            field->set(before.c_str());
            continue;
        }
        EXPECT_EQ(commands() == 0, isFixed) << type;
        undoAll();
        EXPECT_EQ(textOf(*field), before) << type;
        redoAll();
        EXPECT_EQ(textOf(*field), after) << type;
        undoAll();
        EXPECT_EQ(textOf(*field), before) << type;
    }
}

// The pictures of the documentation come from here: SCOPIX_PICTURES names the folder that they go to.
TEST_F(GalleryFields, EveryEditorFitsIntoANarrowDock)
{
    const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
    m_host.window().setFont(QFont(QStringLiteral("DejaVu Sans"), 9)); // as in the program
    for (SoSField* field : m_fields) {
        QWidget* editor = show(field);
        EXPECT_LE(editor->minimumSizeHint().width(), 460) << typeOf(field);
        const auto* frame = editor->findChild<QFrame*>("m_editionFrame");
        for (const QWidget* input : frame ? frame->findChildren<QWidget*>() : QList<QWidget*>()) {
            const bool isSeen = input->isVisible() && input->parentWidget() == frame;
            EXPECT_TRUE(!isSeen || frame->rect().contains(input->geometry())) << typeOf(field) << " is cut";
        }
        if (folder.isEmpty())
            continue;
        QDir().mkpath(folder);
        const QString path = QDir(folder).filePath(QString::fromStdString(typeOf(field)));
        const QSize size(editor->width(), editor->layout()->sizeHint().height());
        EXPECT_TRUE(editor->grab(QRect({0, 0}, size)).save(path + ".png"));
        if (auto* pencil = editor->findChild<QPushButton*>("m_editButton")) {
            QTest::mouseClick(pencil, Qt::LeftButton);
            EXPECT_TRUE(QApplication::activePopupWidget()->grab().save(path + "-grid.png"));
        }
    }
}
