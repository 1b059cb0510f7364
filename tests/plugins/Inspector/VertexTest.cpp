// SPDX-License-Identifier: MIT
// Rows of a list and the 3D view know each other: selected vertices are marked, clicked ones are gone to.
#include "InspectorSession.h"

#include "viewport/OrientationCube.h"
#include "viewport/PointMarks.h"
#include "viewport/SceneView.h"
#include "window/MainWindow.h"
#include "window/ViewActions.h"
#include "window/ViewPoints.h"

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoNormals.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/shapes/SoIndexedTriangleSet.h>
#include <xsg/nodes/transforms/SoTransform.h>

#include <QAbstractScrollArea>
#include <QAction>
#include <QLabel>

namespace
{

// A square of two triangles, moved to the right by 3, in the real window.
class VertexRows : public ::testing::Test
{
protected:
    VertexRows()
        : session([](HostServices& services, UserNotifier& notifier) {
            return std::make_unique<MainWindow>(services, notifier);
        })
    {
        const SbVec3f corners[] = {{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}};
        points->points.setValues(0, 4, corners);
        normals->vectors.setNum(4);
        transform->translation.setValue(3, 0, 0);
        const std::int32_t index[] = {0, 1, 2, 0, 2, 3};
        shape->index.setValues(0, 6, index);
        auto* group = new SoSeparator;
        for (SoNode* child : {static_cast<SoNode*>(points), static_cast<SoNode*>(normals),
                              static_cast<SoNode*>(transform), static_cast<SoNode*>(shape)})
            group->addChild(child);
        root->addChild(group);
        window().setScene(root.get(), "test");
        window().getViewActions().getCube().setShown(false); // it lies over a corner
        session.settle();
        view().viewAll();
    }
    ~VertexRows() override { session.selectNothing(); }

    MainWindow& window() { return static_cast<MainWindow&>(session.host.window()); }
    SceneView& view() { return window().getView(); }
    std::size_t marked()
    {
        session.settle();
        return window().getViewPoints().getMarks().count();
    }
    QWidget* table() { return session.inEditor<QAbstractScrollArea>("listTable"); }
    void open(SoField& field)
    {
        session.select(&field);
        ASSERT_TRUE(table());
        table()->setFocus();
        session.settle();
    }
    void key(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
        session.settle();
    }
    // In the world's coordinates, and that many pixels beside.
    void clickAt(const SbVec3f& place, const QPointF& beside = {})
    {
        const auto seen = view().getSight().toScreen(place);
        ASSERT_TRUE(seen);
        QTest::mouseClick(&view(), Qt::LeftButton, {}, (*seen + beside).toPoint());
        session.settle();
    }
    // Types into the current cell, which tells which one it is.
    void typeIntoCurrent(const char* text)
    {
        table()->setFocus();
        QTest::keyClicks(table(), text);
        key(Qt::Key_Return);
    }
    const SoNode* selected() { return dynamic_cast<SoNode*>(session.host.services().selectedNode()); }

    InspectorSession session;
    SoRef<SoSeparator> root{new SoSeparator};
    SoPoints* points = new SoPoints;
    SoNormals* normals = new SoNormals;
    SoTransform* transform = new SoTransform;
    SoIndexedTriangleSet* shape = new SoIndexedTriangleSet;
    const QPointF inward{-3, 3}; // from the upper right corner, so that the square is hit
};

} // namespace

TEST_F(VertexRows, SelectedRowsAreMarkedAndOthersAreNot)
{
    EXPECT_EQ(marked(), 0U);
    open(points->points);
    EXPECT_EQ(marked(), 1U);
    key(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(marked(), 2U);
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(marked(), 4U);
    session.selectNothing();
    EXPECT_EQ(marked(), 0U);
    EXPECT_EQ(session.stack().count(), 0) << "marking is no step";
}

TEST_F(VertexRows, TheMarksAreSeenWhereTheVerticesAre)
{
    open(points->points);
    key(Qt::Key_End, Qt::ControlModifier); // the upper left corner
    ASSERT_EQ(marked(), 1U);
    const auto at = view().getSight().toScreen({2, 1, 0});
    ASSERT_TRUE(at);
    const QColor wanted = view().palette().color(QPalette::Highlight);
    const auto isMarked = [&] {
        const QColor seen = view().grab().toImage().pixelColor(at->toPoint());
        return std::abs(seen.red() - wanted.red()) + std::abs(seen.green() - wanted.green()) +
                   std::abs(seen.blue() - wanted.blue()) <
               40;
    };
    EXPECT_TRUE(isMarked());
    transform->translation.setValue(3, -0.5F, 0);
    session.settle();
    EXPECT_FALSE(isMarked()) << "the mark follows what moves the shape";
}

TEST_F(VertexRows, IndicesAndNormalsStandForTheirVertices)
{
    open(shape->index);
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(marked(), 6U);
    shape->index.set1Value(0, -1);
    EXPECT_EQ(marked(), 5U) << "no vertex";
    open(normals->vectors);
    EXPECT_EQ(marked(), 1U);
    root->removeAllChildren();
    EXPECT_EQ(marked(), 0U) << "no shape uses them any more";
}

TEST_F(VertexRows, AClickedVertexIsGoneToAndTheTableStays)
{
    open(points->points);
    clickAt({4, 1, 0}, inward);
    EXPECT_EQ(selected(), points);
    typeIntoCurrent("9");
    EXPECT_EQ(points->points[2][0], 9) << "the upper right corner";
    EXPECT_EQ(session.stack().count(), 1);
}

TEST_F(VertexRows, AClickBesideAVertexSelectsTheShape)
{
    open(points->points);
    clickAt({3.3F, 0, 0});
    EXPECT_EQ(selected(), shape);
}

TEST_F(VertexRows, AClickedVertexIsGoneToInTheIndicesOfItsFace)
{
    open(shape->index);
    clickAt({2, 1, 0}, {3, 3});
    typeIntoCurrent("1");
    EXPECT_EQ(shape->index[5], 1);
    session.undo();
    clickAt({2, -1, 0}, {3, -10}); // in the second triangle
    typeIntoCurrent("1");
    EXPECT_EQ(shape->index[0], 0);
    EXPECT_EQ(shape->index[3], 1);
}

TEST_F(VertexRows, TheWideTableStaysWhileOtherNodesAreSelected)
{
    open(points->points);
    key(Qt::Key_T, Qt::ControlModifier);
    QDockWidget* wide = session.dock("Table");
    ASSERT_TRUE(wide && wide->isVisible());
    EXPECT_EQ(window().dockWidgetArea(wide), Qt::BottomDockWidgetArea);
    auto* cells = wide->findChild<QAbstractScrollArea*>("listTable");
    EXPECT_TRUE(cells->hasFocus());
    EXPECT_TRUE(wide->findChild<QLabel*>("caption")->text().contains("Points.points")) << "whose list it is";
    session.selectNode(transform);
    clickAt({4, 1, 0}, inward);
    EXPECT_EQ(selected(), shape) << "it keeps no click to itself";
    EXPECT_TRUE(wide->isVisible());
    EXPECT_EQ(marked(), 1U);
    cells->setFocus();
    QTest::keyClicks(cells, "9");
    key(Qt::Key_Return);
    EXPECT_EQ(points->points[2][0], 9);
    EXPECT_EQ(session.stack().count(), 1);
    session.undo();
    EXPECT_EQ(points->points[2][0], 1);
    wide->close();
    EXPECT_EQ(marked(), 0U);
}

TEST_F(VertexRows, TheWideTableGoesWithItsList)
{
    open(points->points);
    key(Qt::Key_T, Qt::ControlModifier);
    QDockWidget* wide = session.dock("Table");
    ASSERT_TRUE(wide && wide->isVisible());
    window().setScene(new SoSeparator, "another");
    root = SoRef<SoSeparator>();
    session.settle();
    EXPECT_FALSE(wide->isVisible());
    EXPECT_EQ(marked(), 0U);
}
