// SPDX-License-Identifier: MIT
// Selecting, measuring and other looks of the scene in the view of the real window, by mouse and keys.
#include "ViewPictures.h"

#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "structure/SceneStates.h"
#include "support/UserNotifier.h"
#include "viewport/HoverMark.h"
#include "viewport/SceneParts.h"
#include "window/MainWindow.h"

#include <support/Waiting.h>

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoTransform.h>
#include <xsg/values/SbRotation.h>

#include <QClipboard>
#include <QPainter>
#include <QSlider>
#include <QToolButton>

using namespace scopix;

namespace
{

// Three cubes with names, the third one behind the first, as seen from the front.
class Acts : public testing::Test
{
protected:
    Acts()
    {
        notifier.setAttended(false);
        addPart("Left", {-3, 0, 0});
        addPart("Right", {3, 0, 0});
        addPart("Behind", {-3, 0, -5});
        window.resize(1000, 700);
        window.show();
        window.setScene(scene.get(), QStringLiteral("parts"));
        SoCamera& camera = view.getCamera();
        camera.orientation.setValue(SbRotation());
        QTest::keyClick(&view, Qt::Key_A);
        view.setFocus();
        settle();
    }
    void addPart(const char* name, const SbVec3f& place)
    {
        auto* part = new SoSeparator;
        part->setName(name);
        auto* move = new SoTransform;
        move->translation.setValue(place);
        part->addChild(move);
        part->addChild(new SoMaterial);
        part->addChild(new SoCube);
        scene->addChild(part);
    }
    static void settle()
    {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::processEvents();
            SoSensorQueue::getInstance().process();
        }
    }
    SoNode* part(int number, int child = -1)
    {
        SoNode* node = scene->getChild(number);
        return child < 0 ? node : node->asGroup()->getChild(child);
    }
    QPoint at(const SbVec3f& point) { return placeOf(view, point); }
    void click(const SbVec3f& point, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(&view, Qt::LeftButton, keys, at(point));
        settle();
    }
    void key(int key, Qt::KeyboardModifiers keys = {})
    {
        QTest::keyClick(&view, static_cast<Qt::Key>(key), keys);
        settle();
    }
    void drag(const QPoint& from, const QPoint& to, Qt::KeyboardModifiers keys)
    {
        const auto send = [&](QEvent::Type type, const QPoint& place, Qt::MouseButtons held) {
            QMouseEvent event(type, place, view.mapToGlobal(place),
                              type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, held, keys);
            QCoreApplication::sendEvent(&view, &event);
        };
        send(QEvent::MouseButtonPress, from, Qt::LeftButton);
        send(QEvent::MouseMove, (from + to) / 2, Qt::LeftButton);
        send(QEvent::MouseMove, to, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, to, {});
        settle();
    }
    void hover(const SbVec3f& point)
    {
        const QPoint place = at(point);
        QMouseEvent event(QEvent::MouseMove, place, view.mapToGlobal(place), Qt::NoButton, {}, {});
        QCoreApplication::sendEvent(&view, &event);
    }
    QList<SoNode*> selected()
    {
        QList<SoNode*> nodes;
        for (const SoPath& path : services.getSelectedPaths())
            nodes << path.getTail();
        return nodes;
    }
    QAction* action(const char* name) { return window.findChild<QAction*>(QLatin1String(name)); }
    // What lies over the scene.
    QImage sheet()
    {
        auto* widget = view.findChild<QWidget*>(QStringLiteral("viewSheet"));
        QImage image(widget->size(), QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        widget->render(&image, {}, {}, QWidget::DrawChildren);
        return image;
    }
    static bool hasMarks(const QImage& image, const QRect& within)
    {
        for (int y = within.top(); y <= within.bottom(); ++y) {
            for (int x = within.left(); x <= within.right(); ++x) {
                if (image.rect().contains(x, y) && qAlpha(image.pixel(x, y)) > 0)
                    return true;
            }
        }
        return false;
    }

    using Nodes = QList<SoNode*>;
    UserNotifier notifier;
    HostServices services;
    MainWindow window{services, notifier};
    SceneView& view = window.getView();
    SoRef<SoSeparator> scene{new SoSeparator};
};

TEST_F(Acts, AClickSelectsThePartThenTheShapeThenTheMaterial)
{
    const QRect place(view.mapToGlobal(QPoint()), view.size());
    click({-3, 0, 1});
    EXPECT_EQ(selected(), Nodes{part(0)});
    click({-3, 0, 1});
    EXPECT_EQ(selected(), Nodes{part(0, 2)});
    click({-3, 0, 1});
    EXPECT_EQ(selected(), Nodes{part(0, 1)});
    EXPECT_EQ(window.getTree().getSelectedPath().getTail(), part(0, 1));
    click({-3, 0, 1});
    EXPECT_EQ(selected(), Nodes{part(0)});
    click({3, 0, 1});
    EXPECT_EQ(selected(), Nodes{part(1)});
    click({0, 0, 1});
    EXPECT_EQ(selected(), Nodes());
    EXPECT_EQ(QRect(view.mapToGlobal(QPoint()), view.size()), place);
}

// Its first click goes on within the part; what is shown whole is the part nevertheless.
TEST_F(Acts, ADoubleClickOnWhatIsSelectedShowsAllOfIt)
{
    click({-3, 0, 1});
    const QPoint place = at({-3, 0, 1});
    QTest::mouseDClick(&view, Qt::LeftButton, {}, place);
    QTest::mouseRelease(&view, Qt::LeftButton, {}, place);
    settle();
    EXPECT_EQ(selected(), Nodes{part(0)});
    EXPECT_LT((view.getCamera().getFocalPoint() - SbVec3f(-3, 0, 0)).length(), 0.1F);
}

TEST_F(Acts, CtrlAddsAndTakesAway)
{
    click({-3, 0, 1});
    click({3, 0, 1}, Qt::ControlModifier);
    EXPECT_EQ(selected(), (Nodes{part(0), part(1)}));
    click({-3, 0, 1}, Qt::ControlModifier);
    EXPECT_EQ(selected(), Nodes{part(1)});
    click({0, 0, 1}, Qt::ControlModifier);
    EXPECT_EQ(selected(), Nodes{part(1)});
}

TEST_F(Acts, EscGoesUpAndThenSelectsNothing)
{
    click({-3, 0, 1});
    click({-3, 0, 1});
    key(Qt::Key_Escape);
    EXPECT_EQ(selected(), Nodes{part(0)});
    key(Qt::Key_Escape);
    EXPECT_EQ(selected(), Nodes());
}

TEST_F(Acts, ARubberBandSelectsWhatIsSeenInIt)
{
    const SbVec3f eye = view.getCamera().position.getValue();
    const int height = view.height();
    drag({2, 2}, {view.width() / 2, height - 3}, Qt::ShiftModifier);
    const Nodes left = selected();
    EXPECT_TRUE(left.contains(part(0)));
    EXPECT_FALSE(left.contains(part(1)));
    const QPoint corner = at({3, 0, 1}); // crossing is enough
    drag(corner, corner + QPoint(12, 12), Qt::ShiftModifier);
    EXPECT_EQ(selected(), Nodes{part(1)});
    drag(at({-3.9F, 0.5F, 1}), at({-2.3F, -0.5F, 1}), Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(selected(), (Nodes{part(1), part(0)})); // what is behind is hidden
    EXPECT_EQ(view.getCamera().position.getValue(), eye);
    drag({2, 2}, {20, 20}, Qt::ShiftModifier);
    EXPECT_EQ(selected(), Nodes());
}

TEST_F(Acts, AltListsAllThatLiesUnderThePointer)
{
    const auto menu = [this] { return view.findChild<QMenu*>(QStringLiteral("underPointer")); };
    const SbVec3f eye = view.getCamera().position.getValue();
    const SbVec3f behind(-3, 0, -4);
    // Where the line of sight meets both.
    const SbVec3f through = behind + (eye - behind) * ((1 - behind[2]) / (eye[2] - behind[2]));
    click(through, Qt::AltModifier);
    ASSERT_TRUE(menu());
    ASSERT_EQ(menu()->actions().size(), 2);
    EXPECT_EQ(menu()->actions()[0]->text(), "Left");
    EXPECT_EQ(menu()->actions()[1]->text(), "Behind");
    QTest::keyClick(menu(), Qt::Key_Down);
    QTest::keyClick(menu(), Qt::Key_Return);
    settle();
    EXPECT_EQ(selected(), Nodes{part(2)});
}

TEST_F(Acts, WhatIsLockedOrHiddenIsPassedOver)
{
    window.getStates().setLocked({part(0)}, true);
    window.getStates().setHidden({part(1)}, true);
    const SbVec3f eye = view.getCamera().position.getValue();
    const SbVec3f behind(-3, 0, -4);
    click(behind + (eye - behind) * ((1 - behind[2]) / (eye[2] - behind[2])));
    EXPECT_EQ(selected(), Nodes{part(2)});
    drag({2, 2}, {view.width() - 3, view.height() - 3}, Qt::ShiftModifier);
    EXPECT_FALSE(selected().contains(part(0)));
    EXPECT_FALSE(selected().contains(part(1)));
    EXPECT_TRUE(selected().contains(part(2)));
}

TEST_F(Acts, HoveringShowsWhatAClickWouldSelectWithoutAnotherPicture)
{
    view.grab();
    const int drawn = view.getDrawCount();
    const QRect around = QRect(at({-4, 1, 1}), at({-2, -1, 1})).adjusted(-8, -8, 8, 8);
    EXPECT_FALSE(hasMarks(sheet(), around));
    hover({-3, 0, 1});
    EXPECT_TRUE(waitFor([&] { return hasMarks(sheet(), around); }));
    const QPoint edge = at({-4, 0, 1});
    EXPECT_TRUE(hasMarks(sheet(), QRect(edge - QPoint(3, 3), edge + QPoint(3, 3))));
    EXPECT_FALSE(hasMarks(sheet(), QRect(at({3, 0, 1}) - QPoint(40, 40), QSize(80, 80))));
    view.grab();
    EXPECT_EQ(view.getDrawCount(), drawn);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&view, &leave);
    EXPECT_FALSE(hasMarks(sheet(), around));
    action("hoverAction")->trigger();
    hover({-3, 0, 1});
    settle();
    EXPECT_FALSE(hasMarks(sheet(), around));
    action("hoverAction")->trigger();
}

TEST_F(Acts, KeysDoAllThatTheMouseDoes)
{
    const auto goTo = [this](const QPoint& place) {
        QPoint here = view.rect().center();
        key(Qt::Key_Escape); // no crosshair, which begins in the middle
        const auto step = [&](int& from, int to, Qt::Key less, Qt::Key more) {
            while (std::abs(to - from) >= 12) {
                key(to < from ? less : more, Qt::ControlModifier);
                from += to < from ? -12 : 12;
            }
            while (from != to) {
                key(to < from ? less : more, Qt::ControlModifier | Qt::AltModifier);
                from += to < from ? -1 : 1;
            }
        };
        step(here.rx(), place.x(), Qt::Key_Left, Qt::Key_Right);
        step(here.ry(), place.y(), Qt::Key_Up, Qt::Key_Down);
    };
    goTo(at({-3, 0, 1}));
    key(Qt::Key_Return);
    EXPECT_EQ(selected(), Nodes{part(0)});
    goTo(at({3, 0, 1}));
    key(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(selected(), (Nodes{part(0), part(1)}));
    key(Qt::Key_Return, Qt::ShiftModifier); // a band from here
    for (int i = 0; i < 3; ++i)
        key(Qt::Key_Down, Qt::ControlModifier);
    key(Qt::Key_Return);
    EXPECT_EQ(selected(), Nodes{part(1)});
    key(Qt::Key_Return, Qt::AltModifier);
    auto* menu = view.findChild<QMenu*>(QStringLiteral("underPointer"));
    ASSERT_TRUE(menu);
    QTest::keyClick(menu, Qt::Key_Escape);
}

TEST_F(Acts, MeasuresBetweenCornersExactly)
{
    click({3, 0, 1});
    key(Qt::Key_M);
    ASSERT_TRUE(action("measureAction")->isChecked());
    click({-2.02F, 0.98F, 1}); // near a corner of each
    click({2.02F, 0.98F, 1});
    EXPECT_EQ(selected(), Nodes{part(1)}); // measuring selects nothing
    const auto copied = [this] {
        QApplication::clipboard()->clear();
        key(Qt::Key_C, Qt::ControlModifier);
        return QApplication::clipboard()->text().split('\n');
    };
    ASSERT_TRUE(waitFor([&] { return copied().size() >= 5; }));
    EXPECT_EQ(copied(), (QStringList{"Distance: 4", "Along x, y, z: 4 0 0", "Box of the selection: 2 2 2",
                                     "Area: 24", "Triangles: 12"}));
    click({-2.02F, 0.98F, 1});
    click({-2.02F, 0, 1}); // the middle of an edge
    EXPECT_TRUE(copied().contains("Edge: 2")) << qPrintable(copied().join('\n'));
    key(Qt::Key_Escape);
    EXPECT_FALSE(action("measureAction")->isChecked());
    EXPECT_EQ(selected(), Nodes{part(1)});
}

TEST_F(Acts, TheBoxFollowsWhatItIsAround)
{
    action("sizeBoxAction")->trigger();
    click({3, 0, 1});
    const QPoint corner = at({4, 1, 1});
    const auto isMarked = [&] {
        return hasMarks(sheet(), QRect(corner - QPoint(2, 2), corner + QPoint(2, 2)));
    };
    EXPECT_TRUE(waitFor(isMarked));
    static_cast<SoCube*>(part(1, 2))->width.setValue(1);
    settle();
    EXPECT_TRUE(waitFor([&] { return !isMarked(); }));
    action("sizeBoxAction")->trigger();
}

TEST_F(Acts, APlaneCutsTheViewAndNotTheScene)
{
    const std::uint32_t changes = scene->getChangeCount();
    const QPoint place = at({3, 0, 1});
    const QImage whole = pictureOf(view);
    action("clipAction")->trigger();
    auto* bar = view.findChild<QWidget*>(QStringLiteral("clipBar"));
    ASSERT_TRUE(bar->isVisible());
    EXPECT_EQ(pictureOf(view).pixel(place), whole.pixel(2, 2));
    EXPECT_FALSE(view.pick(place));
    EXPECT_TRUE(view.pick(at({-3, 0, 1})));
    bar->findChild<QToolButton*>(QStringLiteral("clipFlip"))->click();
    EXPECT_TRUE(view.pick(place));
    EXPECT_FALSE(view.pick(at({-3, 0, 1})));
    QTest::keyClick(bar->findChild<QSlider*>(QStringLiteral("clipSlider")), Qt::Key_Home);
    EXPECT_TRUE(view.pick(at({-3, 0, 1})));
    QTest::keyClick(bar, Qt::Key_Escape);
    EXPECT_FALSE(bar->isVisible());
    EXPECT_FALSE(action("clipAction")->isChecked());
    EXPECT_EQ(pictureOf(view), whole);
    EXPECT_EQ(scene->getChangeCount(), changes);
}

TEST_F(Acts, OtherLooksAreChosenInTheMenu)
{
    const QImage full = pictureOf(view);
    QList<QImage> seen{full};
    for (int shading = 1; shading < 5; ++shading) {
        action(qPrintable(QStringLiteral("shading%1").arg(shading)))->trigger();
        const QImage picture = pictureOf(view);
        EXPECT_FALSE(seen.contains(picture)) << shading;
        seen << picture;
    }
    action("shading0")->trigger();
    EXPECT_EQ(pictureOf(view), full);
}

TEST_F(Acts, BrightLightIsMappedAsIsChosenInTheMenu)
{
    auto* material = new SoPhysicalMaterial;
    material->emissiveColor.setValue({2, 1, 0.5F});
    scene->addChild(material);
    scene->addChild(new SoCube);
    EXPECT_TRUE(action("toneMapping1")->isChecked());
    QList<QImage> seen;
    for (const char* name : {"toneMapping0", "toneMapping1", "toneMapping2"}) {
        action(name)->trigger();
        const QImage picture = pictureOf(view);
        EXPECT_FALSE(seen.contains(picture)) << name;
        seen << picture;
    }
    action("toneMapping1")->trigger();
    EXPECT_EQ(pictureOf(view), seen[1]);
    action("toneMapping2")->trigger();
    HostServices others;
    const MainWindow next(others, notifier);
    EXPECT_TRUE(next.findChild<QAction*>("toneMapping2")->isChecked()) << "it is remembered";
    action("toneMapping1")->trigger();
}

// The pictures of docs/view.md come from here: SCOPIX_PICTURES names the folder that they go to.
class PicturesOfThePage : public Acts
{
protected:
    PicturesOfThePage()
    {
        QList<bool> done;
        QObject::connect(&window, &HostWindow::openFinished, [&done](bool opened) { done << opened; });
        window.openFile(QStringLiteral(SCOPIX_SOURCE_DIR "/data/models/lighthouse.glb"));
        EXPECT_TRUE(waitFor([&] { return done.value(0); }));
        window.disconnect();
        settle();
    }
    void keep(const char* name, const QImage& picture)
    {
        QSet<QRgb> colors;
        for (int y = 0; y < picture.height(); y += 3) {
            for (int x = 0; x < picture.width(); x += 3)
                colors.insert(picture.pixel(x, y));
        }
        EXPECT_GT(colors.size(), 100);
        const QString folder = qEnvironmentVariable("SCOPIX_PICTURES");
        if (!folder.isEmpty()) {
            EXPECT_TRUE(picture.save(folder + QLatin1Char('/') + QLatin1String(name)));
        }
    }
};

TEST_F(PicturesOfThePage, Measure)
{
    const auto clickAt = [this](double right, double down) {
        QTest::mouseClick(&view, Qt::LeftButton, {},
                          QPoint(int(view.width() * right), int(view.height() * down)));
    };
    clickAt(0.4, 0.36); // the tower
    key(Qt::Key_M);
    clickAt(0.392, 0.153); // its top
    clickAt(0.667, 0.444); // the top of the mast
    QApplication::clipboard()->clear();
    const auto isMeasured = [this] {
        key(Qt::Key_C, Qt::ControlModifier);
        return QApplication::clipboard()->text().contains(QLatin1String("Triangles"));
    };
    EXPECT_TRUE(waitFor(isMeasured)) << qPrintable(QApplication::clipboard()->text());
    keep("measure.png", pictureOf(view));
}

TEST_F(PicturesOfThePage, Looks)
{
    const QSize half = view.size() / 2;
    QImage all(half * 2, QImage::Format_RGB32);
    QPainter painter(&all);
    for (int shading = 1; shading < 5; ++shading) {
        action(qPrintable(QStringLiteral("shading%1").arg(shading)))->trigger();
        const QPoint place((shading - 1) % 2 * half.width(), (shading - 1) / 2 * half.height());
        painter.drawImage(QRect(place, half), pictureOf(view));
    }
    painter.end();
    keep("looks.png", all);
}

TEST_F(PicturesOfThePage, Clip)
{
    action("sizeBoxAction")->trigger();
    QTest::mouseClick(&view, Qt::LeftButton, {}, view.rect().center());
    action("clipAction")->trigger();
    auto* bar = view.findChild<QWidget*>(QStringLiteral("clipBar"));
    bar->findChildren<QToolButton*>(QStringLiteral("clipAxis")).value(2)->click();
    settle();
    keep("clip.png", pictureOf(view));
    action("sizeBoxAction")->trigger();
}

TEST_F(Acts, PartsAreKnownByTheirNames)
{
    SoPath path;
    path.append(scene.get());
    EXPECT_TRUE(isSamePath(namedPart(path), path));
    path.append(part(0));
    path.append(part(0, 2));
    EXPECT_EQ(namedPart(path).getTail(), part(0));
    EXPECT_EQ(materialPath(path).getTail(), part(0, 1));
    EXPECT_EQ(partText(path), "Left ▸ Cube");
    part(0)->asGroup()->removeChild(1);
    EXPECT_TRUE(materialPath(path).isEmpty());
    EXPECT_EQ(clickedPart(path, path).getTail(), part(0));
    auto* open = new SoGroup; // what it sets is seen after it
    open->addChild(new SoMaterial);
    scene->insertChild(open, 0);
    EXPECT_EQ(materialPath(path).getTail(), open->getChild(0));
}

} // namespace
