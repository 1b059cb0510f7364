// SPDX-License-Identifier: MIT
// Random events over the panel of a node of every type: showing writes nothing, and undoing all restores
// every bit. SCOPIX_WALK_STEPS and SCOPIX_WALK_SEED choose another walk.
#include "plugins/Inspector/InspectorSession.h"

#include <support/QtWarnings.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QScrollBar>

#include <random>

namespace
{

class Walk : public testing::Test
{
protected:
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
            if (isInput && input->isVisible() && input->isEnabled() && !opensADialogThatBlocks &&
                input->objectName() != QLatin1String("mark"))
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
    void drag(QWidget* input)
    {
        QPoint at = input->rect().center();
        const Qt::KeyboardModifiers modifiers = below(3) == 0   ? Qt::ShiftModifier
                                                : below(3) == 0 ? Qt::ControlModifier
                                                                : Qt::NoModifier;
        QTest::mousePress(input, Qt::LeftButton, modifiers, at);
        for (int i = 0, speed = below(41) - 20; i < 5; ++i) {
            at.rx() += speed;
            InspectorSession::move(input, at, modifiers);
        }
        if (below(4) == 0)
            QTest::keyClick(input, Qt::Key_Escape);
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
        if (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            below(2) ? dialog->accept() : dialog->reject();
    }
    void step(SoNode* node)
    {
        if (!session.panel())
            return session.selectNode(node);
        QWidget* input = anyInput();
        switch (input ? below(9) : 8) {
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
        default:
            press();
        }
        session.settle();
        closeWhatOpened();
        if (session.host.services().selectedNode() != node)
            session.selectNode(node);
    }

    std::mt19937 random{unsigned(setting("SCOPIX_WALK_SEED", 1))};
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
    const int steps = std::max(3, setting("SCOPIX_WALK_STEPS", 2000) / int(types.size()));
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
        changes += session.stack().index();
        session.stack().setIndex(0);
        session.settle();
        EXPECT_EQ(textsOf(*node), before);
        session.host.services().history().clear();
    }
    EXPECT_GT(changes, 20);
    const QString told = QString::fromStdString(warnings.all());
    for (const QString& warning : told.split('\n', Qt::SkipEmptyParts))
        EXPECT_TRUE(warning.startsWith("This plugin does not support")) << qPrintable(warning);
}
