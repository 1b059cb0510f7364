// SPDX-License-Identifier: MIT
// A long random walk over each editor: row operations, cells, undo, redo and changes from elsewhere. After
// each step field, table, count and access box are what a simple model of the list says. SCOPIX_WALK_SEED
// walks another way, SCOPIX_WALK_STEPS another length.
#include "EdTablePopupLineEdit.h"
#include "ListEditors.h"
#include "ListModel.h"
#include "MultiFixture.h"

#include <QApplication>
#include <QPointer>

#include <map>
#include <random>
#include <type_traits>

namespace
{

int stepCount()
{
    bool isSet = false;
    const int steps = qEnvironmentVariableIntValue("SCOPIX_WALK_STEPS", &isSet);
    return isSet ? steps : 10'000;
}

constexpr int LargestList = 9;

// Numbers that every type of that name holds and that a cell takes.
QStringList wordsOf(const std::string& type)
{
    static const std::map<std::string, QStringList> words{
        {"MFString", {"\"one\"", "\"two words\"", "\"a \\\"quoted\\\" one\"", "\"\""}},
        {"MFBool", {"TRUE", "FALSE"}},
        {"MFColor", {"0", "1", "0.5", "0.1", "1e-07"}},
        {"MFShort", {"0", "1", "-7", "32767", "-32768"}},
        {"MFInt32", {"0", "1", "-7", "2147483647", "-2147483648"}},
        {"MFUShort", {"0", "1", "7", "65535"}},
        {"MFUInt32", {"0", "1", "7", "4294967295"}},
        {"MFVec2s", {"0", "1", "-7", "32767"}},
        {"MFVec2i32", {"0", "1", "-7", "2147483647"}},
    };
    const auto own = words.find(type);
    return own == words.end() ? QStringList{"0", "1", "-0.5", "0.1", "12345.678"} : own->second;
}

QStringList typedInto(const std::string& type)
{
    if (type == "MFString")
        return {"typed", "two words", "say \"hi\""};
    if (type == "MFBool")
        return {"TRUE", "FALSE", "perhaps"};
    if (type == "MFColor")
        return {"0", "1", "0.25", "1.5"};
    if (type == "MFUInt32" || type == "MFUShort")
        return {"0", "3", "200"};
    if (type == "MFVec2s" || type == "MFShort" || type == "MFInt32" || type == "MFVec2i32")
        return {"0", "3", "-5"};
    return {"0", "0.25", "7", "-5"};
}

template <class Kind>
class Walk : public testing::Test
{
protected:
    using Editor = typename Kind::Editor;
    using Field = typename Kind::Field;
    static constexpr bool HasPopup = std::is_same_v<Editor, EdMFMatrixWidget>;
    static constexpr bool IsLine =
        std::is_base_of_v<EdMFLineWidget, Editor> && !std::is_same_v<Editor, EdMFDefaultFieldWidget>;
    static constexpr bool HasSlider = IsLine && !std::is_same_v<Editor, EdMFDoubleWidget>;
    /// A text is a value of its own also where it is typed again; a number is not.
    static constexpr bool IsText = std::is_same_v<Editor, EdMFStringWidget> ||
                                   std::is_same_v<Editor, EdMFDefaultFieldWidget> ||
                                   std::is_same_v<Editor, EdMFVec2sWidget>;

    Walk()
        : m_type(Field::getClassTypeId().getName().getString())
        , m_words(wordsOf(m_type))
        , m_typed(typedInto(m_type))
        , m_model(freshText(), normalised)
        , m_seed(qEnvironmentVariableIsSet("SCOPIX_WALK_SEED")
                     ? unsigned(qEnvironmentVariableIntValue("SCOPIX_WALK_SEED"))
                     : 20)
        , m_random(m_seed)
    {
        f.open();
        m_fresh = QString::fromStdString(freshText());
    }

    void step()
    {
        const int kind = pick(20);
        if (kind < 3)
            add();
        else if (kind < 5 || m_model.count() >= LargestList)
            deleteOne();
        else if (kind == 5)
            deleteBlock();
        else if (kind < 8)
            move(kind == 6 ? -1 : 1);
        else if (kind < 11)
            editCell();
        else if (kind < 14)
            undo();
        else if (kind < 16)
            redo();
        else if (kind == 16)
            shrinkUnderTheHand();
        else
            changeElsewhere();
        TestHost::pump();
        m_box = std::clamp(m_box, m_model.count() > 0 ? 1 : 0, m_model.count());
    }
    void agree()
    {
        ListModel::Texts texts;
        for (int i = 0; i < f.field.getNum(); ++i)
            texts.push_back(elementText(f.field, i));
        ASSERT_EQ(texts, m_model.elements());
        const int count = m_model.count();
        ASSERT_EQ(f.table().rowCount(), count);
        ASSERT_EQ(f.count(), QStringLiteral("<p align=\"center\">%1 elements</p>").arg(count));
        ASSERT_EQ(f.box().minimum(), count > 0 ? 1 : 0);
        ASSERT_EQ(f.box().maximum(), count);
        ASSERT_EQ(f.box().value(), m_box);
        ASSERT_EQ(f.host.undoCount(), m_model.undoCount());
        for (int row = 0; !HasPopup && row < count; ++row)
            ASSERT_EQ(f.editor.getFieldValue(row, 0).isEmpty(), texts[std::size_t(row)] == "\"\"");
    }
    std::string where(int step) const
    {
        return m_type + ", seed " + std::to_string(m_seed) + ", step " + std::to_string(step) + ": " + m_what;
    }

private:
    int pick(int count) { return int(m_random() % unsigned(count)); }
    QString pick(const QStringList& texts) { return texts[pick(texts.size())]; }

    static std::string elementText(const SoMField& field, int index)
    {
        SbString text;
        field.get1(index, text);
        return text.str();
    }
    static std::string freshText()
    {
        Field field;
        field.setNum(1);
        return elementText(field, 0);
    }
    static std::optional<std::string> normalised(const std::string& text)
    {
        Field field;
        if (!field.set1(0, SbString(text.c_str())))
            return std::nullopt;
        return elementText(field, 0);
    }
    QString randomElement()
    {
        if (m_fresh.startsWith('"'))
            return pick(m_words);
        QStringList numbers = m_fresh.split(' ');
        for (QString& number : numbers)
            number = pick(m_words);
        return numbers.join(' ');
    }

    // --- Rows
    int goToRow()
    {
        const int row = m_model.count() > 0 ? pick(m_model.count()) : -1;
        f.table().setCurrentCell(row, 0);
        return f.table().currentRow();
    }
    void press(const char* button, Qt::Key key)
    {
        if (HasPopup || pick(2))
            return f.click(button);
        QTest::keyClick(&f.table(), key);
    }
    void add()
    {
        const int row = goToRow();
        m_what = "add after " + std::to_string(row);
        press("m_addButton", Qt::Key_Plus);
        m_model.addRow(row + 1);
    }
    void deleteOne()
    {
        const int row = goToRow();
        m_what = "delete " + std::to_string(row);
        press("m_deleteButton", pick(2) ? Qt::Key_Minus : Qt::Key_Delete);
        if (row >= 0)
            m_model.deleteRows(row, 1);
    }
    void deleteBlock()
    {
        if (HasPopup || m_model.count() < 2)
            return;
        const int first = pick(m_model.count() - 1);
        const int further = 1 + pick(m_model.count() - first - 1);
        m_what = "delete " + std::to_string(further + 1) + " from " + std::to_string(first);
        f.table().setCurrentCell(first, 0);
        f.sendKey(QEvent::KeyPress, Qt::Key_Shift, {});
        for (int i = 0; i < further; ++i)
            f.sendKey(QEvent::KeyPress, Qt::Key_Down, Qt::ShiftModifier);
        f.sendKey(QEvent::KeyPress, Qt::Key_Delete, Qt::ShiftModifier);
        f.sendKey(QEvent::KeyRelease, Qt::Key_Shift, {});
        m_model.deleteRows(first, further + 1);
    }
    void move(int by)
    {
        goToBox();
        const int row = m_box - 1;
        m_what = "move " + std::to_string(row) + " by " + std::to_string(by);
        f.click(by < 0 ? "m_upButton" : "m_downButton");
        if (row < 0 || row + by < 0 || row + by >= m_model.count())
            return;
        m_model.swapRows(row, row + by);
        m_box = row + by + 1;
    }
    void goToBox()
    {
        m_box = m_model.count() > 0 ? 1 + pick(m_model.count()) : 0;
        f.box().setValue(m_box);
    }

    // --- Cells
    QLineEdit* openByKey(int row, int column)
    {
        f.table().setFocus();
        f.table().setCurrentCell(row, column);
        QTest::keyClick(&f.table(), Qt::Key_F2);
        QWidget* cell = f.table().indexWidget(f.table().model()->index(row, column));
        auto* line = qobject_cast<QLineEdit*>(cell);
        return line || !cell ? line : cell->findChild<QLineEdit*>();
    }
    void editCell()
    {
        if (m_model.count() == 0)
            return;
        if constexpr (HasPopup) {
            editInPopup();
        } else if (HasSlider && pick(4) == 0) {
            focusPartOfCell();
        } else {
            const int row = pick(m_model.count());
            const int first = m_type == "MFColor" ? 1 : 0;
            const int column = first + pick(f.table().columnCount() - first);
            const QString text = pick(m_typed);
            m_what =
                "type " + text.toStdString() + " at " + std::to_string(row) + ", " + std::to_string(column);
            QLineEdit* line = openByKey(row, column);
            ASSERT_TRUE(line);
            const bool isShown = line->text() == text;
            line->selectAll();
            QTest::keyClicks(line, text);
            const bool isAdded = finishCell(*line);
            if (!isShown || IsText)
                expectTyped(row, column - first, text);
            if (isAdded)
                m_model.addRow(row + 1);
        }
    }
    // Enter, Tab out of the table, or a button that comes upon the open cell. True where that added a row.
    bool finishCell(QLineEdit& line)
    {
        switch (pick(4)) {
        case 0:
            f.click("m_addButton");
            return true;
        case 1:
            QTest::keyClick(&line, Qt::Key_Tab, Qt::ControlModifier);
            return false;
        default:
            QTest::keyClick(&line, Qt::Key_Return);
            return false;
        }
    }
    // The focus moves to the handle or the check box of a cell, which is then closed by a key or a button.
    void focusPartOfCell()
    {
        const int row = pick(m_model.count());
        QLineEdit* line = openByKey(row, 0);
        ASSERT_TRUE(line);
        const auto parts = line->parentWidget()->findChildren<QWidget*>();
        QWidget* part = parts[pick(parts.size())];
        part->setFocus();
        m_what = "close the cell at " + std::to_string(row) + " with the focus in its " +
                 part->metaObject()->className();
        if (pick(2)) {
            QTest::keyClick(part, Qt::Key_Escape);
        } else {
            f.click("m_addButton");
            m_model.addRow(row + 1);
        }
        TestHost::pump();
        EXPECT_EQ(f.table().currentRow(), row);
        EXPECT_EQ(QApplication::focusWidget(), &f.table());
    }
    void expectTyped(int row, int column, const QString& text)
    {
        if (m_type == "MFVec2i32" || (m_type == "MFColor" && text.toDouble() > 1))
            return;
        if (IsLine) // nothing to undo; and a slider of floats writes element 0 from any row
            m_model.write(m_type == "MFFloat" ? 0 : row, text.toStdString());
        else if (m_type == "MFString")
            m_model.edit(row, QString(text).replace('"', "\\\"").prepend('"').append('"').toStdString());
        else if (m_type != "MFBool")
            m_model.edit(row, withNumber(row, column, text));
        else if (normalised(text.toStdString()))
            m_model.edit(row, text.toStdString());
    }
    std::string withNumber(int row, int index, const QString& number) const
    {
        QStringList numbers = QString::fromStdString(m_model.at(row)).split(' ');
        numbers[index] = number;
        return numbers.join(' ').toStdString();
    }
    // Filling the grid writes the element once for each number that was another before: the same element.
    void openPopup(int row)
    {
        const int before = f.host.undoCount();
        f.click("m_editButton");
        for (int i = f.host.undoCount() - before; i > 0; --i)
            m_model.edit(row, m_model.at(row));
    }
    void editInPopup()
    {
        goToBox();
        const int row = m_box - 1;
        openPopup(row);
        const auto lines = f.editor.getWidgetContainer()->template findChildren<EdTablePopupLineEdit*>();
        EdTablePopupLineEdit* line = lines[pick(lines.size())];
        const QString digit = QString::number(2 + pick(8));
        m_what = "popup number " + std::to_string(line->index()) + " of " + std::to_string(row) + " is " +
                 digit.toStdString();
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, digit);
        m_model.edit(row, withNumber(row, line->index(), digit));
        line->window()->close();
    }

    // --- Elsewhere
    void undo()
    {
        m_what = "undo";
        f.host.undo();
        m_model.undo();
        keepSmall();
    }
    void redo()
    {
        m_what = "redo";
        f.host.redo();
        m_model.redo();
        keepSmall();
    }
    // Edits taken back after a change from elsewhere may lengthen the list.
    void keepSmall()
    {
        if (m_model.count() <= 2 * LargestList)
            return;
        f.field.setNum(LargestList);
        m_model.resize(LargestList);
    }
    void changeElsewhere()
    {
        const int at = pick(m_model.count() + 1);
        const int howMany = pick(3);
        const std::string text = randomElement().toStdString();
        switch (pick(5)) {
        case 0:
            m_what = "elsewhere: insert";
            f.field.insertSpace(at, howMany);
            m_model.insert(at, howMany);
            break;
        case 1:
            m_what = "elsewhere: remove";
            f.field.deleteValues(at, howMany);
            m_model.remove(at, howMany);
            break;
        case 2:
            m_what = "elsewhere: resize";
            f.field.setNum(howMany * 2);
            m_model.resize(howMany * 2);
            break;
        case 3:
            m_what = "elsewhere: forget the edits";
            f.host.clearUndo();
            m_model.clearUndo();
            break;
        default:
            m_what = "elsewhere: write " + text;
            EXPECT_TRUE(f.field.set1(at, SbString(text.c_str())));
            m_model.write(at, text);
        }
    }
    // The field shrinks while a cell is open or while the popup shows an element.
    void shrinkUnderTheHand()
    {
        if (m_model.count() == 0)
            return;
        m_what = "shrink while an element is open";
        const int row = m_model.count() - 1;
        const int left = pick(m_model.count());
        QPointer<QWidget> open;
        if constexpr (HasPopup) {
            m_box = row + 1;
            f.box().setValue(m_box);
            openPopup(row);
            open = f.editor.getWidgetContainer()->template findChild<EdTablePopupLineEdit*>()->window();
        } else {
            QLineEdit* line = openByKey(row, f.table().columnCount() - 1);
            ASSERT_TRUE(line);
            QTest::keyClicks(line, pick(m_typed));
            open = line;
        }
        f.field.setNum(left);
        m_model.resize(left);
        TestHost::pump();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (HasPopup && left > 0) {
            EXPECT_TRUE(open->isVisible()) << "the box, and so the popup, moves on to the last element";
            open->close();
        } else {
            EXPECT_FALSE(open && open->isVisible());
        }
    }

    MultiFixture<Editor, Field> f;
    std::string m_type;
    QStringList m_words;
    QStringList m_typed;
    ListModel m_model;
    unsigned m_seed;
    std::mt19937 m_random;
    QString m_fresh;
    std::string m_what;
    int m_box = 0;
};

} // namespace

TYPED_TEST_SUITE(Walk, ListEditors, );

TYPED_TEST(Walk, FieldTableCountAndBoxAgreeAfterEveryStep)
{
    testing::internal::CaptureStderr(); // the trace lines of the moves
    for (int i = 0, steps = stepCount(); i < steps && !this->HasFailure(); ++i) {
        this->step();
        this->agree();
        if (this->HasFailure())
            ADD_FAILURE() << this->where(i);
    }
    testing::internal::GetCapturedStderr();
}
