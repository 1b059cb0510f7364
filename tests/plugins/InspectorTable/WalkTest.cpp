// SPDX-License-Identifier: MIT
// A long random walk of keys, clicks, lines and changes from elsewhere over a table of every type. Showing
// never writes, nothing warns, and undoing all restores every bit. SCOPIX_WALK_SEED walks another way,
// SCOPIX_WALK_STEPS another length.
#include "TableFixture.h"

#include <QClipboard>
#include <QMenu>

#include <random>

using namespace inspector;

namespace
{

int number(const char* name, int otherwise)
{
    bool isSet = false;
    const int value = qEnvironmentVariableIntValue(name, &isSet);
    return isSet ? value : otherwise;
}

constexpr int LargestList = 60;

class TableWalk : public ::testing::Test
{
protected:
    TableWalk()
        : m_seed(unsigned(number("SCOPIX_WALK_SEED", 16)))
        , m_random(m_seed)
    {
        const SoFieldData* data = m_gallery->getFieldData();
        for (int i = 0; SoField* field = data->getField(m_gallery.get(), i); ++i) {
            if (auto* list = dynamic_cast<SoMField*>(field))
                m_lists.push_back(list);
        }
        // Popups are answered: one would wait for a user.
        m_answer.setInterval(0);
        QObject::connect(&m_answer, &QTimer::timeout, [this] { answer(); });
        m_answer.start();
    }

    void walk(SoMField& list, int steps)
    {
        m_list = &list;
        const std::unique_ptr<SoMField> before = list.makeSlice();
        ASSERT_TRUE(before->replaceValues(0, 0, list, 0, list.getNum()));
        TableFieldEditor editor(list.getTypeId());
        m_editor = &editor;
        m_host.edit(editor, &list);
        editor.getWidget()->resize(360, 300);
        editor.getWidget()->activateWindow();
        TestHost::pump();
        EXPECT_TRUE(list.isDefault()) << "showing writes nothing";
        for (int i = 0; i < steps && !HasFailure(); ++i) {
            step();
            TestHost::pump();
            agree();
        }
        while (m_host.undo()) {
        }
        TestHost::pump();
        agree();
        EXPECT_EQ(textOf(list), textOf(*before));
        EXPECT_TRUE(list.isDefault());
        m_host.release(editor);
        m_host.clearUndo();
        if (HasFailure())
            ADD_FAILURE() << list.getTypeId().getName().getString() << ", seed " << m_seed << ", after "
                          << m_what.toStdString();
    }

    std::vector<SoMField*> m_lists;
    const unsigned m_seed;

private:
    int pick(int count) { return int(m_random() % unsigned(count)); }
    template <class T>
    T pickOf(std::initializer_list<T> all)
    {
        return all.begin()[pick(int(all.size()))];
    }
    ListTableView& view() { return m_editor->table()->view(); }
    static std::string textOf(const SoMField& list)
    {
        SbString text;
        list.get(text);
        return text.str();
    }

    void agree()
    {
        const TableRows& rows = view().rows();
        ASSERT_EQ(rows.list(), m_list);
        if (rows.order().isNatural()) {
            ASSERT_EQ(rows.count(), m_list->getNum());
        }
        for (const CellRange& range : view().selection().ranges()) {
            ASSERT_LT(range.bottom, rows.count());
            ASSERT_LT(range.right, rows.columnCount());
        }
        view().grab();
    }

    void step()
    {
        const int kind = pick(20);
        if (kind < 6 || kind == 14)
            view().endTyping(); // which may write
        const std::string before = textOf(*m_list);
        const int steps = m_host.undoCount();
        if (kind < 6)
            navigate();
        else if (kind < 8)
            mouse();
        else if (kind < 11)
            typeIntoCell();
        else if (kind < 14)
            act();
        else if (kind < 16)
            runLine(kind == 14);
        else if (kind < 18)
            undoOrRedo();
        else
            clipboard();
        if (m_list->getNum() > LargestList) {
            while (m_list->getNum() > LargestList / 4 && m_host.undo()) {
            }
            return;
        }
        const bool isChanged = textOf(*m_list) != before;
        const bool isUndone = m_what == "undo" || m_what == "redo";
        if (isChanged && !isUndone) {
            ASSERT_GT(m_host.undoCount(), 0) << m_what.toStdString();
        }
        if (kind < 6 || m_what == "filter") {
            ASSERT_FALSE(isChanged) << m_what.toStdString();
            ASSERT_EQ(m_host.undoCount(), steps);
        }
    }
    QWidget* focused()
    {
        QWidget* focused = QApplication::focusWidget();
        return focused ? focused : &view();
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(focused(), Qt::Key(key), modifiers);
    }
    void navigate()
    {
        m_what = "navigate";
        view().setFocus();
        const auto key =
            pickOf({Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End,
                    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Backtab});
        press(key, pickOf({Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier}));
    }
    void mouse()
    {
        m_what = "mouse";
        QWidget* area = view().viewport();
        const auto place = [&] { return QPoint(pick(area->width()), pick(area->height())); };
        const QPoint from = place();
        const QPoint to = place();
        if (pick(4) == 0)
            return QTest::mouseDClick(area, Qt::LeftButton, Qt::NoModifier, from);
        QTest::mousePress(area, Qt::LeftButton,
                          pickOf({Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier}), from);
        QMouseEvent event(QEvent::MouseMove, to, area->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(area, &event);
        QTest::mouseRelease(area, Qt::LeftButton, Qt::NoModifier, to);
    }
    QString word()
    {
        return pickOf<QString>(
            {"1", "0", "-3", "0.1", "x+1", "1e", "TRUE", "SUMMER", "LEFT|TOP", "abc", "nan", ""});
    }
    void typeIntoCell()
    {
        m_what = "type";
        view().setFocus();
        for (const QChar c : word())
            QTest::sendKeyEvent(QTest::Click, focused(), Qt::Key_unknown, c, Qt::NoModifier, 0);
        if (pick(3))
            press(pickOf({Qt::Key_Return, Qt::Key_Tab, Qt::Key_Escape}),
                  pickOf({Qt::NoModifier, Qt::ControlModifier}));
    }
    void act()
    {
        view().endTyping();
        const QList<QAction*> actions = m_editor->table()->menu().actions();
        QAction* action = actions[pick(actions.size())];
        m_what = action->text();
        if (!m_what.contains("CSV"))
            action->trigger();
    }
    void runLine(bool isReading)
    {
        const auto kind = isReading ? ListTable::Line(1 + pick(3)) : ListTable::Line::Calculate;
        m_what = isReading ? "filter" : "calculate";
        m_editor->table()->askFor(kind);
        auto* line = m_editor->table()->findChild<QLineEdit*>("line");
        line->setText(
            pickOf<QString>({"x*2", "row", "x > 0", "nan", "duplicates", "", "1", "(", "1/0", "TRUE"}));
        QTest::keyClick(line, Qt::Key_Return);
    }
    void undoOrRedo()
    {
        view().endTyping();
        m_what = pick(3) ? "undo" : "redo";
        m_what == "undo" ? m_host.undo() : m_host.redo();
    }
    void clipboard()
    {
        m_what = "paste";
        view().setFocus();
        if (pick(2))
            QApplication::clipboard()->setText(
                pickOf<QString>({"1\t2\n3\t4", "1", "1\n2\n3", "\"a\tb\"\tc", "oops", ""}));
        press(pickOf({Qt::Key_C, Qt::Key_V, Qt::Key_X}), Qt::ControlModifier);
    }
    void answer()
    {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            if (auto* menu = qobject_cast<QMenu*>(popup); menu && pick(2) && !menu->actions().isEmpty()) {
                menu->setActiveAction(menu->actions()[pick(menu->actions().size())]);
                QTest::keyClick(menu, Qt::Key_Return);
                return;
            }
            popup->close();
        } else if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            pick(2) ? dialog->accept() : dialog->reject();
        }
    }

    TestHost m_host;
    SoRef<SoFieldGallery> m_gallery{new SoFieldGallery};
    std::mt19937 m_random;
    QTimer m_answer;
    SoMField* m_list = nullptr;
    TableFieldEditor* m_editor = nullptr;
    QString m_what;
};

} // namespace

TEST_F(TableWalk, UndoingAllRestoresEveryBitOfEveryType)
{
    const QtWarnings warnings;
    const int steps = number("SCOPIX_WALK_STEPS", 2700) / int(m_lists.size()) + 1;
    for (SoMField* list : m_lists) {
        walk(*list, steps);
        if (HasFailure())
            break;
    }
    EXPECT_EQ(warnings.all(), "");
}
