// SPDX-License-Identifier: MIT
// A random walk over every editor, by keys and clicks, through the real host and the real plug-in: fields are
// edited in every input that is there, dialogs are accepted and cancelled, steps undone and redone. After
// each act all fields hold what they held when the history was there before. SCOPIX_WALK_SEED walks another
// way, SCOPIX_WALK_STEPS another length.
#include "Gallery.h"

#include <support/RandomWalk.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/shapes/SoSphere.h>

#include <QAbstractSpinBox>
#include <QColorDialog>
#include <QComboBox>
#include <QTableWidget>
#include <QTextEdit>
#include <QTimer>

#include <deque>
#include <optional>
#include <random>

namespace
{

class EditorWalk : public testing::Test
{
protected:
    EditorWalk()
        : m_fields(m_session.fields<SoField>())
        , m_seed(fromEnvironment("SCOPIX_WALK_SEED", 7))
        , m_random(static_cast<unsigned>(m_seed))
    {
        // Nobody else knows these.
        m_session.gallery->mfNode.set1Value(0, SoRef<SoNode>(new SoSphere));
        m_session.gallery->mfNode.set1Value(1, SoRef<SoNode>(new SoSphere));
        m_session.gallery->sfNode.setValue(SoRef<SoNode>(new SoSphere));
        m_start = whole();
        m_known = {m_start};
        QObject::connect(&m_answers, &QTimer::timeout, [this] { answerDialog(); });
        m_answers.start(1);
        choose();
    }

    struct Whole {
        std::vector<GallerySession::State> fields;
        std::string saved;
        bool operator==(const Whole& other) const { return fields == other.fields && saved == other.saved; }
    };
    Whole whole() const { return {m_session.states(), SoSceneFile::writeText(m_session.gallery.get())}; }

    void walk(int steps)
    {
        for (m_step = 0; m_step < steps && !HasFailure(); ++m_step) {
            const int kind = pick(24);
            if (kind == 0)
                choose();
            else if (kind < 3)
                undoOrRedo(true);
            else if (kind == 3)
                undoOrRedo(false);
            else
                act();
            Session::settle();
            check();
        }
    }
    void expectUndone()
    {
        m_session.selectNothing();
        check();
        m_session.redoAll();
        const Whole end = whole();
        m_session.undoAll();
        expectSame(m_start, "everything undone");
        m_session.redoAll();
        expectSame(end, "everything redone");
        m_session.undoAll();
        expectSame(m_start, "everything undone again");
    }

    GallerySession m_session;
    std::vector<SoField*> m_fields;

private:
    int pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(std::max(count, 1))); }
    template <class Values>
    auto pickOf(const Values& values)
    {
        return values[static_cast<typename Values::size_type>(pick(static_cast<int>(values.size())))];
    }
    void note(const QString& what)
    {
        m_trace.push_back(std::to_string(m_step) + " " + what.toStdString());
        if (m_trace.size() > 40)
            m_trace.pop_front();
    }
    std::string trace() const
    {
        std::string all = "seed " + std::to_string(m_seed) + "\n";
        for (const std::string& each : m_trace)
            all += each + "\n";
        return all;
    }

    void choose()
    {
        SoField* field = pickOf(m_fields);
        note("choose " + QString::fromLatin1(field->getName().getString()));
        m_session.select(field);
        ASSERT_TRUE(m_session.editorShown());
    }
    void undoOrRedo(bool undoes)
    {
        note(undoes ? "undo" : "redo");
        undoes ? m_session.stack().undo() : m_session.stack().redo();
        m_wasHistory = true;
    }

    QWidget* place()
    {
        QWidget* popup = QApplication::activePopupWidget();
        return popup ? popup : m_session.dock()->widget();
    }
    static bool isInput(const QWidget* widget)
    {
        if (!widget->isVisible() || !widget->isEnabled())
            return false;
        if (qobject_cast<const QLineEdit*>(widget))
            return !qobject_cast<const QAbstractSpinBox*>(widget->parentWidget());
        return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QAbstractSlider*>(widget) ||
               qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QComboBox*>(widget) ||
               qobject_cast<const QTextEdit*>(widget) || qobject_cast<const QTableWidget*>(widget);
    }
    void act()
    {
        QWidget* const in = place();
        std::vector<QWidget*> inputs;
        for (QWidget* widget : in->findChildren<QWidget*>()) {
            if (isInput(widget))
                inputs.push_back(widget);
        }
        if (in == QApplication::activePopupWidget() && (inputs.empty() || pick(4) == 0)) {
            note("close the popup");
            return pressKey(in, Qt::Key_Escape);
        }
        if (inputs.empty())
            return;
        QWidget* input = pickOf(inputs);
        note(QString::fromLatin1(input->metaObject()->className()) + " " + input->objectName());
        if (auto* table = qobject_cast<QTableWidget*>(input))
            useTable(*table);
        else if (pick(5) == 0)
            pressAnyKey(input);
        else if (qobject_cast<QAbstractButton*>(input))
            clickButton(input);
        else if (qobject_cast<QAbstractSlider*>(input))
            drag(input);
        else if (qobject_cast<QComboBox*>(input))
            pressKey(input, pick(2) ? Qt::Key_Down : Qt::Key_Up);
        else
            typeInto(input);
    }
    void clickButton(QWidget* button)
    {
        const QPoint at(std::min(8, button->width() / 2), button->height() / 2);
        QTest::mouseClick(button, Qt::LeftButton, {}, at);
    }
    void drag(QWidget* slider)
    {
        QPoint at(pick(slider->width()), slider->height() / 2);
        const QPoint from = at;
        const QPointer<QWidget> held = slider;
        QTest::mousePress(slider, Qt::LeftButton, {}, at);
        for (int i = 0, moves = pick(4); i < moves && held; ++i) {
            at.rx() += pick(41) - 20;
            move(held, i + 1 == moves && pick(2) ? from : at);
        }
        if (held)
            QTest::mouseRelease(held, Qt::LeftButton, {}, at);
    }
    static void move(QWidget* widget, QPoint at)
    {
        QMouseEvent event(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(widget, &event);
        Session::settle();
    }
    void typeInto(QWidget* input)
    {
        static const QStringList Texts = {"0",     "-1",     "0.5",     "1e-3",  "abc",  "",        "17",
                                          "TRUE",  "SPRING", "\"a b\"", "1 2 3", "0x1f", "-",       "1e",
                                          "40000", "Foot",   "LEFT",    "0.1",   "7 8",  "[ 1, 2 ]"};
        const QPointer<QWidget> alive = input;
        QTest::mouseClick(input, Qt::LeftButton, {}, input->rect().center());
        if (!alive)
            return;
        if (pick(3))
            QTest::keyClick(input, Qt::Key_A, Qt::ControlModifier);
        const QString text = pickOf(Texts);
        note("type " + text);
        if (alive && text.isEmpty())
            QTest::keyClick(input, Qt::Key_Backspace);
        for (const QChar letter : text) {
            if (alive)
                QTest::keyClick(input, letter.toLatin1());
        }
        if (alive && pick(2))
            pressKey(input, pick(3) ? Qt::Key_Return : Qt::Key_Tab);
    }
    void pressAnyKey(QWidget* input)
    {
        static const std::vector<Qt::Key> Keys = {
            Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left, Qt::Key_Right,  Qt::Key_PageUp, Qt::Key_Backspace,
            Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab,  Qt::Key_Escape, Qt::Key_Delete};
        input->setFocus();
        pressKey(QApplication::focusWidget() ? QApplication::focusWidget() : input, pickOf(Keys));
    }
    void pressKey(QWidget* input, Qt::Key key)
    {
        note("press " + QKeySequence(key).toString());
        QTest::keyClick(input, key);
    }
    void useTable(QTableWidget& table)
    {
        if (table.rowCount() == 0 || table.columnCount() == 0)
            return useTableKey(table);
        const QModelIndex index = table.model()->index(pick(table.rowCount()), pick(table.columnCount()));
        table.scrollTo(index);
        const QPoint at = table.visualRect(index).center();
        note(QStringLiteral("cell %1 %2").arg(index.row()).arg(index.column()));
        const QPointer<QTableWidget> alive = &table;
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, at);
        if (!alive || QApplication::activePopupWidget())
            return;
        const int kind = pick(6);
        if (kind < 2)
            return QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, at);
        if (kind == 2)
            return pressKey(&table, Qt::Key_F2);
        if (kind == 3)
            useTableKey(table);
    }
    void useTableKey(QTableWidget& table)
    {
        static const std::vector<std::pair<int, QString>> Keys = {
            {Qt::Key_Plus, "+"}, {Qt::Key_Plus, "+"}, {Qt::Key_Minus, "-"}, {Qt::Key_Delete, ""}};
        const auto key = pickOf(Keys);
        note("table key " + key.second);
        table.setFocus();
        const bool isBlock = pick(3) == 0;
        if (isBlock) {
            send(table, QEvent::KeyPress, Qt::Key_Shift, {});
            send(table, QEvent::KeyPress, Qt::Key_Down, Qt::ShiftModifier);
            send(table, QEvent::KeyRelease, Qt::Key_Down, Qt::ShiftModifier);
        }
        const Qt::KeyboardModifiers held = isBlock ? Qt::ShiftModifier : Qt::NoModifier;
        send(table, QEvent::KeyPress, key.first, held, key.second);
        send(table, QEvent::KeyRelease, key.first, held, key.second);
        if (isBlock)
            send(table, QEvent::KeyRelease, Qt::Key_Shift, {});
    }
    static void send(QWidget& widget, QEvent::Type type, int key, Qt::KeyboardModifiers held,
                     const QString& text = {})
    {
        QKeyEvent event(type, key, held, text);
        QApplication::sendEvent(&widget, &event);
    }
    void answerDialog()
    {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        auto* color = qobject_cast<QColorDialog*>(dialog);
        const bool accepts = color && pick(3);
        note(accepts ? "accept the dialog" : "cancel the dialog");
        if (color)
            color->setCurrentColor(QColor(pick(256), pick(256), pick(256)));
        accepts ? dialog->accept() : dialog->reject();
    }

    void expectSame(const Whole& expected, const std::string& when)
    {
        const Whole now = whole();
        if (now == expected)
            return;
        for (std::size_t i = 0; i < m_fields.size(); ++i) {
            if (!(now.fields[i] == expected.fields[i]))
                ADD_FAILURE() << when << ": " << m_fields[i]->getName().getString() << " is "
                              << testing::PrintToString(now.fields[i]) << " and was "
                              << testing::PrintToString(expected.fields[i]) << '\n'
                              << trace();
        }
        EXPECT_EQ(now.saved, expected.saved) << when;
    }
    // One state belongs to each place in the history.
    void check()
    {
        const auto index = static_cast<std::size_t>(m_session.stack().index());
        const std::size_t before = std::exchange(m_index, index);
        if (std::exchange(m_wasHistory, false) || index == 0) {
            ASSERT_LT(index, m_known.size());
            if (!m_known[index])
                m_known[index] = whole();
            return expectSame(*m_known[index], "place " + std::to_string(index) + " of the history");
        }
        const bool isNew = static_cast<int>(index) == m_session.stack().count();
        if (!isNew)
            return expectSame(m_known[index].value_or(whole()),
                              "what can be redone belongs to another state");
        m_known.resize(std::min(index, before + 1));
        m_known.resize(
            index); // an act that ends one step and makes another leaves a place that nobody has seen
        m_known.push_back(whole());
    }

    Whole m_start;
    std::vector<std::optional<Whole>> m_known; // by index in the history
    std::size_t m_index = 0;
    std::deque<std::string> m_trace;
    QTimer m_answers;
    int m_seed;
    std::mt19937 m_random;
    int m_step = 0;
    bool m_wasHistory = false;
};

} // namespace

TEST_F(EditorWalk, UndoingEverythingEndsWhereItBegan)
{
    walk(fromEnvironment("SCOPIX_WALK_STEPS", 1500));
    expectUndone();
}
