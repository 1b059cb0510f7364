// SPDX-License-Identifier: MIT
// Pictures of the view alone: by the menu, and as files.
#include "ViewPictures.h"
#include "support/FileAnswer.h"
#include "support/MessageBoxes.h"

#include "services/HostServices.h"
#include "support/UserNotifier.h"
#include "window/MainWindow.h"
#include "window/PictureDialog.h"

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/shapes/SoCube.h>

#include <QCheckBox>
#include <QProgressDialog>
#include <QSpinBox>

using namespace scopix;

namespace
{

class Pictures : public testing::Test
{
protected:
    Pictures()
    {
        auto* look = new SoMaterial;
        look->diffuseColor.setValue(SbColor(1, 0, 0));
        scene->addChild(look);
        scene->addChild(cube.get());
        cube->width.setValue(4);
        view.resize(200, 200);
        view.setScene(scene.get());
    }
    PictureOrder order(const QString& name, const QSize& size = {60, 40}) const
    {
        PictureOrder order;
        order.path = folder.filePath(name);
        order.size = size;
        return order;
    }
    PictureSeries make(const PictureOrder& order, const PictureSeries::Progress& progress = {})
    {
        return PictureSeries::make(view.getPictureSubject(order.size, order.count > 1), order, progress);
    }
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files); }

    QTemporaryDir folder;
    SoRef<SoSeparator> scene{new SoSeparator};
    SoRef<SoCube> cube{new SoCube};
    SceneView view;
};

TEST_F(Pictures, HaveAnySizeAndAGround)
{
    const SoRef<SoNode> before(scene.get());
    const SbVec3f eye = view.getCamera().position.getValue();
    EXPECT_EQ(make(order("a.png", {321, 77})).problem, "");
    const QImage image(folder.filePath("a.png"));
    ASSERT_EQ(image.size(), QSize(321, 77));
    EXPECT_GT(qRed(image.pixel(160, 38)), qGreen(image.pixel(160, 38)) + 40);
    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 255);
    EXPECT_EQ(view.getCamera().position.getValue(), eye); // framed for the picture, and not for the view
}

TEST_F(Pictures, AreTransparentWhereNothingIs)
{
    PictureOrder wanted = order("a.png");
    wanted.isTransparent = true;
    EXPECT_EQ(make(wanted).problem, "");
    const QImage image(wanted.path);
    EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(image.pixel(30, 20)), 255);
    EXPECT_GT(qRed(image.pixel(30, 20)), 60);
    int between = 0; // along the edges
    for (int x = 0; x < 60; ++x)
        between += qAlpha(image.pixel(x, 20)) % 255 != 0 ? 1 : 0;
    EXPECT_GT(between, 0);
}

TEST_F(Pictures, LargerThanATileHaveNoSeams)
{
    EXPECT_EQ(make(order("large.png", {1500, 1100})).problem, "");
    EXPECT_EQ(make(order("small.png", {150, 110})).problem, "");
    const QImage large(folder.filePath("large.png"));
    const QImage small = QImage(folder.filePath("small.png"));
    ASSERT_EQ(large.size(), QSize(1500, 1100));
    const QImage scaled = large.scaled(150, 110, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int different = 0;
    for (int y = 0; y < 110; ++y) {
        for (int x = 0; x < 150; ++x)
            different += std::abs(qRed(scaled.pixel(x, y)) - qRed(small.pixel(x, y))) > 24 ? 1 : 0;
    }
    EXPECT_LT(different, 150); // of 16500, along the edges
}

TEST_F(Pictures, OfOneTurnAreNumberedAndGoAllAround)
{
    PictureOrder wanted = order("turn.png");
    wanted.count = 4;
    const PictureSeries series = make(wanted);
    EXPECT_EQ(series.problem, "");
    EXPECT_EQ(series.written, 4);
    EXPECT_EQ(files(), (QStringList{"turn-1.png", "turn-2.png", "turn-3.png", "turn-4.png"}));
    const auto widthOf = [this](int number) {
        return partOf(QImage(folder.filePath(QStringLiteral("turn-%1.png").arg(number)))).width();
    };
    EXPECT_NE(widthOf(1), widthOf(2));
    for (int number = 1; number <= 4; ++number) {
        const QRect part = partOf(QImage(folder.filePath(QStringLiteral("turn-%1.png").arg(number))));
        EXPECT_GT(part.left(), 0);
        EXPECT_LT(part.right(), 59);
        EXPECT_GT(part.top(), 0);
        EXPECT_LT(part.bottom(), 39);
    }
    wanted.count = 100;
    EXPECT_EQ(QFileInfo(wanted.getPaths().first()).fileName(), "turn-001.png");
}

TEST_F(Pictures, AreRefusedInASentence)
{
    const auto problem = [&](const PictureOrder& wanted) { return make(wanted).problem; };
    EXPECT_EQ(problem(order("a.xsg")).section(':', 0, 0),
              QStringLiteral("The picture “%1” cannot be written").arg(folder.filePath("a.xsg")));
    EXPECT_TRUE(problem(order("none/a.png")).contains("cannot be written"));
    EXPECT_TRUE(problem(order("a.png", {0, 10})).contains("cannot be made"));
    EXPECT_TRUE(problem(order("a.png", {32768, 32768})).contains("cannot be made"));
    PictureOrder wanted = order("a.jpg");
    wanted.isTransparent = true;
    EXPECT_TRUE(problem(wanted).contains("choose .png"));
    wanted = order("a.png");
    wanted.count = 100000;
    EXPECT_TRUE(problem(wanted).contains("choose 2 to"));
    ASSERT_TRUE(QDir(folder.path()).mkdir("b-2.png"));
    wanted = order("b.png");
    wanted.count = 2;
    EXPECT_TRUE(problem(wanted).contains("it is a folder"));
    EXPECT_EQ(files(), QStringList()); // also those before the one that cannot be written
}

TEST_F(Pictures, AreCancelledBetweenTheirParts)
{
    PictureOrder wanted = order("turn.png");
    wanted.count = 5;
    const PictureSeries series = make(wanted, [](int done, int total) {
        EXPECT_EQ(total, 5);
        return done < 2;
    });
    EXPECT_TRUE(series.isCancelled);
    EXPECT_EQ(series.written, 2);
    EXPECT_EQ(files(), (QStringList{"turn-1.png", "turn-2.png"}));
}

// Fills in the dialog for pictures that is about to open.
class DialogAnswer : public QObject
{
public:
    explicit DialogAnswer(const PictureOrder& order)
        : m_order(order)
    {
        startTimer(1);
    }

protected:
    void timerEvent(QTimerEvent*) override
    {
        auto* dialog = qobject_cast<PictureDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        dialog->findChild<QSpinBox*>(QStringLiteral("pictureWidth"))->setValue(m_order.size.width());
        dialog->findChild<QSpinBox*>(QStringLiteral("pictureHeight"))->setValue(m_order.size.height());
        dialog->findChild<QSpinBox*>(QStringLiteral("pictureCount"))->setValue(m_order.count);
        dialog->findChild<QCheckBox*>(QStringLiteral("pictureTransparent"))
            ->setChecked(m_order.isTransparent);
        QTest::keyClick(dialog, Qt::Key_Return);
    }

private:
    PictureOrder m_order;
};

TEST_F(Pictures, AreSavedByTheMenu)
{
    UserNotifier notifier;
    QStringList told;
    QObject::connect(&notifier, &UserNotifier::told, [&told](const QString& text) { told << text; });
    HostServices services;
    MainWindow window(services, notifier);
    window.show();
    window.setScene(scene.get(), QStringLiteral("cube"));
    QCoreApplication::processEvents(); // the first layout
    const QSize size = window.getView().size();
    {
        PictureOrder wanted = order("");
        wanted.isTransparent = true;
        const DialogAnswer dialog(wanted);
        const FileAnswer file(folder.filePath("one.png"));
        window.findChild<QAction*>(QStringLiteral("savePictureAction"))->trigger();
    }
    EXPECT_EQ(QImage(folder.filePath("one.png")).size(), QSize(60, 40));
    EXPECT_EQ(qAlpha(QImage(folder.filePath("one.png")).pixel(0, 0)), 0);
    {
        PictureOrder wanted = order("");
        wanted.count = 3;
        const DialogAnswer dialog(wanted);
        const FileAnswer file(folder.filePath("turn.png"));
        window.findChild<QAction*>(QStringLiteral("saveTurntableAction"))->trigger();
    }
    EXPECT_EQ(files(), (QStringList{"one.png", "turn-1.png", "turn-2.png", "turn-3.png"}));
    ASSERT_FALSE(told.isEmpty());
    EXPECT_TRUE(told.last().startsWith("Saved 3 pictures")) << qPrintable(told.last());
    EXPECT_EQ(window.getView().size(), size);
    EXPECT_EQ(PictureDialog({10, 10}, true, nullptr).getOrder().count, 3); // is offered again
}

} // namespace
