// SPDX-License-Identifier: MIT
// Every row of every type of node: what it is called, how it is reached, and that nothing of it is cut, with
// the fonts of small and dense screens and in narrow docks.
#include "plugins/Inspector/AllNodes.h"

#include <support/WidgetWalk.h>

#include <QAbstractScrollArea>
#include <QAccessible>

#include <array>

namespace
{

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

// What the user is shown who points at it.
QString toolTipOf(QWidget& widget, const QWidget& row)
{
    return toolTipOf(widget) + row.toolTip();
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

namespace
{

constexpr std::array Values{"TRUE",
                            "FALSE",
                            "0.25",
                            "1",
                            "2",
                            "0.5 0.25",
                            "0.5 0.25 0.125",
                            "1 0 0  0.5",
                            "0.5 0.25 0.125 1",
                            "\"other\"",
                            "[ 0.25 ]",
                            "[ 3, 4 ]",
                            "[ 1 2 3 ]",
                            "[ 1 2 ]",
                            "[ 1 0 0 0.5 ]",
                            "[ \"other\" ]",
                            "1 0 0 0  0 1 0 0  0 0 1 0  2 3 4 1",
                            "LINES",
                            "NONE",
                            "AUTO"};

// To another one; false where none of these texts is one.
bool changeValue(SoField& field)
{
    SbString before;
    field.get(before);
    for (const char* text : Values) {
        SbString after;
        if (field.set(text))
            field.get(after);
        if (after.getLength() > 0 && after != before)
            return true;
    }
    return false;
}

// All that an assistant reads out of a row.
QStringList readOut(const QWidget& row)
{
    QStringList words;
    for (auto* part : row.findChildren<QWidget*>()) {
        const QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(part);
        if (!reader || !part->isVisible())
            continue;
        words << reader->text(QAccessible::Name) << reader->text(QAccessible::Value)
              << reader->text(QAccessible::Description) << (reader->state().checked ? "on" : "off");
    }
    return words;
}

} // namespace

TEST_F(Reached, WhatIsReadOutFollowsTheValue)
{
    session.host.window().resize(1000, 1500);
    int changed = 0;
    for (const SoRef<SoNode>& node : nodesOfAllTypes()) {
        session.selectNode(node.get());
        QStringList names;
        for (const QWidget* row : rowsOf(*session.panel()))
            names << row->accessibleName().section(',', 0, 0);
        for (const QString& name : qAsConst(names)) {
            // A list's row becomes another one with its number of values.
            const auto read = [&] { return readOut(*session.row(qPrintable(name))); };
            SoField* field = node->getField(SbName(qPrintable(name)));
            const QStringList before = read();
            if (!field || !changeValue(*field))
                continue;
            ++changed;
            ASSERT_TRUE(session.comesTrue([&] { return read() != before; }))
                << qPrintable(nameOf(*node) + '.' + name);
        }
    }
    EXPECT_GT(changed, 80);
    session.selectNode(nullptr);
}
