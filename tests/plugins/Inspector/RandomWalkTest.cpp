// SPDX-License-Identifier: MIT
// Random events over the panel and the tables of a node of every type: showing writes nothing, and undoing
// all restores every bit. SCOPIX_WALK_STEPS and SCOPIX_WALK_SEED choose another walk.
#include "plugins/Inspector/InspectorSession.h"

#include <support/QtWarnings.h>

#include <xsg/core/SoMField.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QFileDialog>
#include <QPointer>
#include <QScrollBar>
#include <QTimer>

#include <random>

namespace
{

constexpr int LongestList = 200;

class Walk : public testing::Test
{
protected:
    Walk()
    {
        // Menus and dialogs are answered: one would wait for a user.
        answer.setInterval(0);
        QObject::connect(&answer, &QTimer::timeout, [this] { closeWhatOpened(); });
        answer.start();
    }
    static int setting(const char* name, int otherwise)
    {
        return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
    }
    int below(int end) { return end > 0 ? std::uniform_int_distribution<int>(0, end - 1)(random) : 0; }

    static std::vector<std::string> textsOf(const SoNode& node)
    {
        std::vector<std::string> texts;
        const SoFieldData* fields = node.getFieldData();
        for (int i = 0; i < fields->getNumFields(); ++i) {
            const SoField* field = fields->getField(&node, i);
            SbString text;
            field->get(text);
            texts.push_back(text.str() + (field->isDefault() ? " default" : "") +
                            (field->isIgnored() ? " ignored" : ""));
        }
        return texts;
    }

    QWidget* anyInput()
    {
        QList<QWidget*> inputs;
        for (auto* input : session.panel()->findChildren<QWidget*>()) {
            const bool opensADialogThatBlocks =
                input->accessibleName().endsWith(QLatin1String("choose a file"));
            const bool isInput = qobject_cast<QLineEdit*>(input) || qobject_cast<QAbstractButton*>(input) ||
                                 qobject_cast<QComboBox*>(input);
            if (isInput && input->isVisible() && input->isEnabled() && !opensADialogThatBlocks)
                inputs += input;
        }
        return inputs.isEmpty() ? nullptr : inputs[below(inputs.size())];
    }

    void press()
    {
        static const Qt::Key keys[] = {Qt::Key_Up,     Qt::Key_Down,      Qt::Key_PageUp, Qt::Key_PageDown,
                                       Qt::Key_Return, Qt::Key_Escape,    Qt::Key_Tab,    Qt::Key_Home,
                                       Qt::Key_End,    Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Left,
                                       Qt::Key_Space,  Qt::Key_Backtab};
        QWidget* focus = QApplication::focusWidget();
        if (focus && session.panel() && session.panel()->isAncestorOf(focus))
            QTest::keyClick(focus, keys[below(int(std::size(keys)))],
                            below(4) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
    }
    void type()
    {
        static const char* texts[] = {"0.5", "x*2", "+= 10%", "pi/3", "1e38", "-7", "1,5", "1,234.5",
                                      "(",   "nan", "90deg",  "3cm",  "#1a6", "12", "abc", "1/0"};
        QWidget* focus = QApplication::focusWidget();
        if (focus && session.panel() && session.panel()->isAncestorOf(focus))
            QTest::keyClicks(focus, QLatin1String(texts[below(int(std::size(texts)))]));
    }
    // Another row may take its place meanwhile.
    void drag(const QPointer<QWidget>& input)
    {
        QPoint at = input->rect().center();
        const Qt::KeyboardModifiers modifiers = below(3) == 0   ? Qt::ShiftModifier
                                                : below(3) == 0 ? Qt::ControlModifier
                                                                : Qt::NoModifier;
        QTest::mousePress(input, Qt::LeftButton, modifiers, at);
        for (int i = 0, speed = below(41) - 20; i < 5 && input; ++i) {
            at.rx() += speed;
            InspectorSession::move(input, at, modifiers);
        }
        if (input && below(4) == 0)
            QTest::keyClick(input, Qt::Key_Escape);
        if (input)
            QTest::mouseRelease(input, Qt::LeftButton, modifiers, at);
    }
    void turnWheel(QWidget* input)
    {
        QWheelEvent event(input->rect().center(), input->mapToGlobal(input->rect().center()), {},
                          {0, below(2) ? 120 : -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(input, &event);
    }
    void closeWhatOpened()
    {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()))
            return chooseOrClose(*menu);
        if (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        else if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            below(2) && !qobject_cast<QFileDialog*>(dialog) ? dialog->accept() : dialog->reject();
    }
    void chooseOrClose(QMenu& menu)
    {
        const QList<QAction*> actions = menu.actions();
        const int place = below(actions.size());
        if (actions.isEmpty() || !isHarmless(*actions[place]) || below(2))
            return void(menu.close());
        // Not in the timer's own time, which does not run again while a dialog that opens is waiting.
        QTimer::singleShot(0, &menu, [&menu, place] {
            menu.setActiveAction(menu.actions().value(place));
            QTest::keyClick(&menu, Qt::Key_Return);
        });
    }
    // What asks for a file of this computer, or opens another window, is tested elsewhere.
    static bool isHarmless(const QAction& action)
    {
        const QString text = QString(action.text()).remove('&');
        const auto has = [&text](const char* part) { return text.contains(QLatin1String(part)); };
        return !has("CSV") && !has("Help") && !has("Pin") && !has("New Nodes") && !has("new nodes");
    }

    QList<QWidget*> tables()
    {
        QList<QWidget*> shown;
        for (auto* table : session.host.window().findChildren<QAbstractScrollArea*>("listTable")) {
            if (table->isVisible())
                shown += table;
        }
        return shown;
    }
    void openAList(const SoNode& node)
    {
        std::vector<SoField*> lists;
        const SoFieldData* fields = node.getFieldData();
        for (int i = 0; i < fields->getNumFields(); ++i) {
            if (dynamic_cast<SoMField*>(fields->getField(&node, i)))
                lists.push_back(fields->getField(&node, i));
        }
        if (!lists.empty())
            session.select(lists[std::size_t(below(int(lists.size())))]);
    }
    void workInATable(const SoNode& node)
    {
        const QList<QWidget*> shown = tables();
        if (shown.isEmpty() || below(20) == 0)
            return openAList(node);
        auto* table = static_cast<QAbstractScrollArea*>(shown[below(shown.size())]);
        switch (below(6)) {
        case 0:
            QTest::mouseClick(table->viewport(), Qt::LeftButton,
                              below(3) ? Qt::NoModifier : Qt::ShiftModifier,
                              {below(table->viewport()->width()), below(table->viewport()->height())});
            break;
        case 1: {
            QAction* action = table->actions()[below(table->actions().size())];
            if (isHarmless(*action) && action->isEnabled())
                action->trigger();
            break;
        }
        default:
            table->setFocus();
            pressInATable();
        }
    }
    void pressInATable()
    {
        static const Qt::Key keys[] = {
            Qt::Key_Up,       Qt::Key_Down,      Qt::Key_Left, Qt::Key_Right,  Qt::Key_Home,   Qt::Key_End,
            Qt::Key_PageDown, Qt::Key_Return,    Qt::Key_Tab,  Qt::Key_Delete, Qt::Key_Insert, Qt::Key_Space,
            Qt::Key_Escape,   Qt::Key_Backspace, Qt::Key_7,    Qt::Key_Minus,  Qt::Key_A,      Qt::Key_C,
            Qt::Key_V,        Qt::Key_D,         Qt::Key_T,    Qt::Key_X,      Qt::Key_F2};
        static const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                                          Qt::ControlModifier};
        if (QWidget* focus = QApplication::focusWidget())
            QTest::keyClick(focus, keys[below(int(std::size(keys)))],
                            modifiers[below(int(std::size(modifiers)))]);
    }
    static bool hasALongList(const SoNode& node)
    {
        const SoFieldData* fields = node.getFieldData();
        for (int i = 0; i < fields->getNumFields(); ++i) {
            const auto* list = dynamic_cast<const SoMField*>(fields->getField(&node, i));
            if (list && list->getNum() > LongestList)
                return true;
        }
        return false;
    }

    void step(SoNode* node)
    {
        if (!session.panel())
            return session.selectNode(node);
        QWidget* input = anyInput();
        switch (input ? below(13) : 8 + below(5)) {
        case 0:
            QTest::mouseClick(input, Qt::LeftButton);
            break;
        case 1:
            drag(input);
            break;
        case 2:
            turnWheel(input);
            break;
        case 3:
            type();
            break;
        case 4:
            below(2) ? session.stack().undo() : session.stack().redo();
            break;
        case 5: {
            auto* bar = session.panel()->findChild<QAbstractScrollArea*>("rowList")->verticalScrollBar();
            bar->setValue(below(bar->maximum() + 1));
            break;
        }
        case 9:
        case 10:
        case 11:
        case 12:
            workInATable(*node);
            break;
        default:
            press();
        }
        session.settle();
        while (hasALongList(*node) && session.stack().canUndo()) {
            session.host.services().preview().showPresent(); // nothing is undone while former values show
            session.stack().undo();
        }
        if (session.host.services().selectedNode() != node)
            session.selectNode(node);
    }

    std::mt19937 random{unsigned(setting("SCOPIX_WALK_SEED", 1))};
    QTimer answer;
    InspectorSession session{260};
};

} // namespace

TEST_F(Walk, UndoingAllRestoresEveryBitOfEveryTypeOfNode)
{
    const QtWarnings warnings;
    std::vector<SoType> types = SoType::getAllDerivedFrom(SoNode::getClassTypeId());
    types.erase(
        std::remove_if(types.begin(), types.end(), [](SoType type) { return !type.canCreateInstance(); }),
        types.end());
    ASSERT_GT(types.size(), 30U);
    const int steps = std::max(3, setting("SCOPIX_WALK_STEPS", 4000) / int(types.size()));
    int changes = 0;
    for (const SoType type : types) {
        SCOPED_TRACE(type.getName().getString());
        const SoRef<SoNode> node(static_cast<SoNode*>(type.createInstance()));
        const std::vector<std::string> before = textsOf(*node);
        session.selectNode(node.get());
        ASSERT_TRUE(session.panel());
        EXPECT_EQ(textsOf(*node), before) << "showing it wrote";
        for (int i = 0; i < steps; ++i)
            step(node.get());
        session.selectNode(nullptr);
        changes += session.stack().count();
        session.host.services().preview().showPresent();
        session.stack().setIndex(0);
        session.settle();
        EXPECT_EQ(textsOf(*node), before);
        session.host.services().history().clear();
    }
    EXPECT_GT(changes, steps / 10);
    const QString told = QString::fromStdString(warnings.all());
    for (const QString& warning : told.split('\n', Qt::SkipEmptyParts))
        EXPECT_TRUE(warning.startsWith("This plugin does not support")) << qPrintable(warning);
}
