// SPDX-License-Identifier: MIT
// Every list of the gallery is edited by hand: each operation on its rows, and a cell.
#include "Gallery.h"

#include <QColorDialog>
#include <QHeaderView>
#include <QLabel>
#include <QSpinBox>
#include <QTableWidget>
#include <QTimer>

#include <map>

namespace
{

// What to type into the cells of a list, by its type: for a list without an editor of its own a text of the
// element.
const char* cellText(const std::string& type)
{
    static const std::map<std::string, const char*> texts{
        {"MFBitMask", "RIGHT"},
        {"MFBool", "FALSE"},
        {"MFBox3f", "1 2 3 4 5 6"},
        {"MFColor", "0.125"},
        {"MFEnum", "AUTUMN"},
        {"MFName", "Foot"},
        {"MFString", "a \"new\" text"},
        {"MFTime", "2.5"},
        {"MFVec2d", "0.5 0.25"},
        {"MFVec3d", "0.5 0.25 1"},
        {"MFVec3s", "7 8 9"},
        {"MFVec4d", "0.5 0.25 1 2"},
        {"MFNode", "nothing of a node can be typed"},
    };
    const auto own = texts.find(type);
    return own == texts.end() ? "5" : own->second;
}

class ListGallery : public testing::Test
{
protected:
    void show(SoMField* field)
    {
        m_field = field;
        m_session.select(field);
        ASSERT_TRUE(m_session.editorShown());
        m_table = m_session.inEditor<QTableWidget>("m_table");
        m_box = m_session.inEditor<QSpinBox>("m_accessBox");
        ASSERT_TRUE(m_table && m_box);
        agree();
    }
    std::string text() const { return GallerySession::textOf(m_field); }
    std::string type() const { return GallerySession::typeOf(m_field); }

    // Table, count and access box show the field as it is.
    void agree()
    {
        const int count = m_field->getNum();
        EXPECT_EQ(m_table->rowCount(), count);
        EXPECT_EQ(m_box->maximum(), count);
        EXPECT_EQ(m_box->minimum(), count > 0 ? 1 : 0);
        auto* label = m_session.inEditor<QLabel>("m_labelNumElement");
        EXPECT_TRUE(label->text().contains(QStringLiteral(">%1 elements<").arg(count)))
            << label->text().toStdString();
    }
    // One act: it is one step of the undo history, and what is shown agrees afterwards.
    template <class Act>
    void step(const char* what, Act act)
    {
        SCOPED_TRACE(what);
        const int steps = m_session.stack().index();
        act();
        Session::settle();
        EXPECT_EQ(m_session.stack().index(), steps + 1);
        agree();
    }
    void click(const char* button) { m_session.click(m_session.inEditor<QPushButton>(button)); }
    void send(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, const char* letter = "")
    {
        QKeyEvent event(type, key, modifiers, QLatin1String(letter));
        QApplication::sendEvent(m_table, &event);
    }
    void key(int key, const char* letter = "")
    {
        m_table->setFocus();
        send(QEvent::KeyPress, key, {}, letter);
        send(QEvent::KeyRelease, key, {}, letter);
    }
    void goTo(int row)
    {
        m_box->setFocus();
        QTest::keyClick(m_box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(m_box, QString::number(row));
        QTest::keyClick(m_box, Qt::Key_Return);
        Session::settle();
        EXPECT_EQ(m_box->value(), row);
    }
    // The table of the matrices takes no keys and no clicks.
    bool takesKeys() const { return m_table->isEnabled(); }
    void deleteBlock()
    {
        m_table->setFocus();
        m_table->setCurrentCell(1, 0);
        send(QEvent::KeyPress, Qt::Key_Shift, {});
        send(QEvent::KeyPress, Qt::Key_Down, Qt::ShiftModifier);
        send(QEvent::KeyRelease, Qt::Key_Down, Qt::ShiftModifier);
        send(QEvent::KeyPress, Qt::Key_Delete, Qt::ShiftModifier);
        send(QEvent::KeyRelease, Qt::Key_Delete, Qt::ShiftModifier);
        send(QEvent::KeyRelease, Qt::Key_Shift, {});
    }
    void useRows()
    {
        for (int i = m_field->getNum(); i < 2; ++i)
            step("add", [&] { click("m_addButton"); });
        if (takesKeys()) {
            step("+", [&] { key(Qt::Key_Plus, "+"); });
            step("+", [&] { key(Qt::Key_Plus, "+"); });
        } else {
            step("add", [&] { click("m_addButton"); });
            step("add", [&] { click("m_addButton"); });
        }
        const int count = m_field->getNum();
        ASSERT_GE(count, 4);
        goTo(2);
        step("up", [&] { click("m_upButton"); });
        EXPECT_EQ(m_box->value(), 1);
        step("down", [&] { click("m_downButton"); });
        EXPECT_EQ(m_box->value(), 2);
        step("delete", [&] { click("m_deleteButton"); });
        EXPECT_EQ(m_field->getNum(), count - 1);
        if (!takesKeys())
            return;
        step("delete a block", [&] { deleteBlock(); });
        EXPECT_EQ(m_field->getNum(), count - 3);
        m_table->setCurrentCell(0, 0);
        step("-", [&] { key(Qt::Key_Minus, "-"); });
        step("+", [&] { key(Qt::Key_Plus, "+"); });
    }

    QLineEdit* open(int row, int column)
    {
        const QModelIndex index = m_table->model()->index(row, column);
        m_table->setCurrentCell(row, column);
        m_table->scrollTo(index);
        const QPoint at = m_table->visualRect(index).center();
        QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(m_table->viewport(), Qt::LeftButton, {}, at);
        QCoreApplication::processEvents();
        QWidget* cell = m_table->indexWidget(index);
        if (!cell)
            return nullptr;
        auto* line = qobject_cast<QLineEdit*>(cell);
        return line ? line : cell->findChild<QLineEdit*>();
    }
    void typeIntoCell(int column)
    {
        QLineEdit* line = open(0, column);
        ASSERT_TRUE(line);
        line->selectAll();
        QTest::keyClicks(line, QLatin1String(cellText(type())));
        QTest::keyClick(line, Qt::Key_Return);
        Session::settle();
    }
    void useCells()
    {
        const int first = type() == "MFColor" ? 1 : 0;
        for (int column = first; column < m_table->columnCount(); ++column) {
            SCOPED_TRACE(column);
            const std::string before = text();
            if (type() == "MFVec2i32" || type() == "MFNode") {
                // No validator accepts what is typed there, no text stands for a node.
                const int steps = m_session.stack().index();
                typeIntoCell(column);
                EXPECT_EQ(text(), before);
                EXPECT_EQ(m_session.stack().index(), steps);
            } else {
                step("cell", [&] { typeIntoCell(column); });
                EXPECT_NE(text(), before);
            }
            agree();
        }
    }
    void usePopup()
    {
        goTo(2);
        const std::string before = text();
        const int steps = m_session.stack().index();
        click("m_editButton");
        EXPECT_EQ(m_session.stack().index(), steps) << "opening changes nothing";
        EXPECT_EQ(text(), before);
        QWidget* popup = QApplication::activePopupWidget();
        ASSERT_TRUE(popup);
        auto* line = popup->findChild<QLineEdit*>();
        step("popup number", [&] {
            line->setFocus();
            line->selectAll();
            QTest::keyClicks(line, QStringLiteral("5"));
        });
        EXPECT_NE(text(), before);
        popup->close();
        Session::settle();
    }
    void useColorDialog()
    {
        const std::string before = text();
        step("dialog", [&] {
            QTimer::singleShot(0, qApp, [] {
                auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
                ASSERT_TRUE(dialog);
                dialog->setCurrentColor(QColor(51, 102, 153));
                dialog->accept();
            });
            const QModelIndex swatch = m_table->model()->index(0, 0);
            m_table->scrollTo(swatch);
            QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {}, m_table->visualRect(swatch).center());
        });
        EXPECT_NE(text(), before);
    }

    GallerySession m_session;
    SoMField* m_field = nullptr;
    QTableWidget* m_table = nullptr;
    QSpinBox* m_box = nullptr;
};

} // namespace

TEST_F(ListGallery, EveryOperationOnEveryListIsUndoneToTheLastByte)
{
    const auto before = m_session.states();
    for (SoMField* field : m_session.fields<SoMField>()) {
        SCOPED_TRACE(GallerySession::typeOf(field));
        const std::string original = GallerySession::textOf(field);
        ASSERT_NO_FATAL_FAILURE(show(field));
        ASSERT_NO_FATAL_FAILURE(useRows());
        if (!takesKeys())
            ASSERT_NO_FATAL_FAILURE(usePopup());
        else
            useCells();
        if (type() == "MFColor")
            useColorDialog();
        step("default", [&] { click("m_defaultButton"); });
        EXPECT_EQ(text(), original) << "the gallery's own values are its defaults";
        step("ignore", [&] { click("m_ignoreButton"); });
        EXPECT_TRUE(field->isIgnored());
        ASSERT_NO_FATAL_FAILURE(useRows());
    }
    m_session.expectUndone(before);
    agree();
}
