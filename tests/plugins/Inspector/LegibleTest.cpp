// SPDX-License-Identifier: MIT
// Every row of every type of node: what it is called, how it is reached, and that nothing of it is cut, with
// the fonts of small and dense screens and in narrow docks.
#include "plugins/Inspector/InspectorSession.h"

#include <xsg/nodes/base/SoNode.h>

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QLabel>
#include <QStyleOptionComboBox>
#include <QToolButton>
#include <QToolTip>

namespace
{

std::vector<SoRef<SoNode>> nodesOfAllTypes()
{
    std::vector<SoRef<SoNode>> nodes;
    for (const SoType type : SoType::getAllDerivedFrom(SoNode::getClassTypeId())) {
        SoRef<SoNode> node(type.canCreateInstance() ? dynamic_cast<SoNode*>(type.createInstance()) : nullptr);
        if (node && node->getFieldData()->getNumFields() > 0)
            nodes.push_back(std::move(node));
    }
    return nodes;
}

QString nameOf(const SoNode& node)
{
    return QString::fromLatin1(node.getTypeId().getName().getString());
}

// From top to bottom.
QList<QWidget*> rowsOf(QWidget& panel)
{
    QList<QWidget*> rows;
    for (auto* row : panel.findChildren<QWidget*>(QStringLiteral("row"))) {
        if (row->isVisible())
            rows += row;
    }
    std::sort(rows.begin(), rows.end(), [](QWidget* a, QWidget* b) { return a->y() < b->y(); });
    return rows;
}

bool isInput(const QWidget& widget)
{
    return widget.isVisible() && widget.isEnabled() && widget.focusPolicy() & Qt::TabFocus &&
           !widget.focusProxy() && !qobject_cast<const QAbstractScrollArea*>(&widget);
}

// In the order in which people read.
QList<QWidget*> inputsOf(QWidget& row)
{
    QList<QWidget*> inputs;
    for (auto* each : row.findChildren<QWidget*>()) {
        if (isInput(*each))
            inputs += each;
    }
    const auto placeOf = [&](QWidget* input) {
        const QPoint place = input->mapTo(&row, QPoint(0, input->height() / 2));
        return std::make_pair(place.y() / (row.fontMetrics().height() + 4), place.x());
    };
    std::sort(inputs.begin(), inputs.end(), [&](QWidget* a, QWidget* b) { return placeOf(a) < placeOf(b); });
    return inputs;
}

QString shownText(const QWidget& widget)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return QString(button->text()).remove('&');
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        return combo->currentText();
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->text();
    return {};
}

int roomFor(const QWidget& widget)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->width() - line->textMargins().left() - 2;
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        option.editable = combo->isEditable();
        return combo->style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
            .width();
    }
    return widget.width();
}

// What the user is shown who points at it.
QString toolTipOf(QWidget& widget, const QWidget& row)
{
    QToolTip::hideText();
    QHelpEvent ask(QEvent::ToolTip, widget.rect().center(), widget.mapToGlobal(widget.rect().center()));
    QApplication::sendEvent(&widget, &ask);
    return QToolTip::text() + widget.toolTip() + row.toolTip();
}

struct Dense {
    Theme theme;
    double font; // times the usual size
    int width;
};

class Legible : public testing::TestWithParam<Dense>
{
protected:
    void SetUp() override
    {
        QMainWindow& window = session.host.window();
        applyTheme(window, GetParam().theme);
        QFont font = window.font();
        font.setPointSizeF(font.pointSizeF() * GetParam().font);
        window.setFont(font);
        window.resize(1600, int(1500 * GetParam().font));
        session.settle();
    }
    void expectWhole(QWidget& row, const QString& node)
    {
        const QString place = node + ", " + row.accessibleName();
        EXPECT_TRUE(row.parentWidget()->rect().contains(row.geometry())) << qPrintable(place);
        for (auto* each : row.findChildren<QWidget*>()) {
            if (!each->isVisible() || each->isWindow() || each->window() != row.window())
                continue;
            const QString what =
                place + ": " + each->metaObject()->className() + ' ' + each->accessibleName();
            EXPECT_TRUE(each->parentWidget()->rect().contains(each->geometry()))
                << qPrintable(what) << ' ' << each->geometry().right() << " of "
                << each->parentWidget()->width();
            if (each->minimumWidth() != each->maximumWidth()) {
                EXPECT_GE(each->width(), each->minimumSizeHint().width()) << qPrintable(what);
            }
            EXPECT_GE(each->height(), each->fontMetrics().height()) << qPrintable(what);
            const QString text = shownText(*each);
            if (each->fontMetrics().horizontalAdvance(text) <= roomFor(*each))
                continue;
            const QString toolTip = toolTipOf(*each, row);
            EXPECT_TRUE(toolTip.contains(text.toHtmlEscaped()) || toolTip.contains(text))
                << qPrintable(what) << " cuts " << qPrintable(text);
        }
    }

    InspectorSession session{GetParam().width};
};

class Reached : public testing::Test
{
protected:
    InspectorSession session;
};

} // namespace

TEST_P(Legible, NothingOfAnyNodeIsCut)
{
    for (const SoRef<SoNode>& node : nodesOfAllTypes()) {
        session.selectNode(node.get());
        ASSERT_TRUE(session.panel()) << qPrintable(nameOf(*node));
        const QList<QWidget*> rows = rowsOf(*session.panel());
        EXPECT_EQ(rows.size(), node->getFieldData()->getNumFields()) << qPrintable(nameOf(*node));
        for (QWidget* row : rows)
            expectWhole(*row, nameOf(*node));
    }
    session.selectNode(nullptr);
}

INSTANTIATE_TEST_SUITE_P(All, Legible,
                         testing::Values(Dense{Theme::Light, 1, 220}, Dense{Theme::Dark, 168 / 96.0, 220},
                                         Dense{Theme::Light, 3, 340}));

TEST_F(Reached, EveryInputOfEveryNodeByTabInReadingOrderWithAName)
{
    session.host.window().resize(1000, 1500);
    for (const SoRef<SoNode>& node : nodesOfAllTypes()) {
        session.selectNode(node.get());
        ASSERT_TRUE(session.panel());
        QList<QWidget*> expected;
        for (QWidget* row : rowsOf(*session.panel())) {
            EXPECT_TRUE(row->accessibleName().contains(", ")) << qPrintable(nameOf(*node)); // field and type
            EXPECT_FALSE(row->accessibleDescription().isEmpty()) << qPrintable(row->accessibleName());
            expected += inputsOf(*row);
            const bool leadsNowhere = row->accessibleName().endsWith(", SFNode"); // a link to no node
            EXPECT_EQ(inputsOf(*row).isEmpty(), leadsNowhere)
                << qPrintable(nameOf(*node) + ' ' + row->accessibleName());
        }
        ASSERT_FALSE(expected.isEmpty());
        expected.first()->setFocus(Qt::TabFocusReason);
        for (QWidget* each : qAsConst(expected)) {
            const QString name = each->accessibleName();
            EXPECT_FALSE(name.isEmpty())
                << qPrintable(nameOf(*node)) << ' ' << each->metaObject()->className();
            EXPECT_FALSE(each->accessibleDescription().isEmpty()) << qPrintable(nameOf(*node) + ' ' + name);
            EXPECT_EQ(QApplication::focusWidget(), each)
                << qPrintable(nameOf(*node)) << ": " << qPrintable(name) << " is not reached after "
                << (QApplication::focusWidget() ? qPrintable(QApplication::focusWidget()->accessibleName())
                                                : "nothing");
            if (QApplication::focusWidget())
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        EXPECT_EQ(session.stack().count(), 0) << "reading is no edit";
    }
    session.selectNode(nullptr);
}
