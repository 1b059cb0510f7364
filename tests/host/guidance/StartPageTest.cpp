// SPDX-License-Identifier: MIT
#include "GuidedWindow.h"

#include "panels/FieldListView.h"
#include "panels/SceneTreeView.h"
#include "start/AboutDialog.h"
#include "start/FileGallery.h"
#include "start/FilePictures.h"
#include "start/StartPage.h"
#include "start/Tour.h"
#include "viewport/SceneView.h"

#include <support/Waiting.h>

#include <xsg/core/SoField.h>

#include <QClipboard>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>

using namespace scopix;

namespace
{

class StartPageTest : public GuidedWindow
{
protected:
    StartPage& page() { return window->getWelcome().page(); }
    FileGallery& gallery(const char* name)
    {
        for (auto* each : page().findChildren<FileGallery*>())
            if (each->accessibleName() == QLatin1String(name))
                return *each;
        throw std::runtime_error(name);
    }
};

TEST_F(StartPageTest, MeetsAUserWhoHasOpenedNothing)
{
    EXPECT_FALSE(page().isVisible()); // pictures made by a script show the scene
    window->enterInteractiveMode();
    ASSERT_TRUE(page().isVisible());
    EXPECT_EQ(page().geometry(), window->getView().rect());
    EXPECT_TRUE(page().isAncestorOf(window->focusWidget()));
    EXPECT_EQ(gallery("Samples").count(), 5);
    EXPECT_EQ(gallery("Recent files").count(), 0);
}

TEST_F(StartPageTest, HasTheFilesBelowWhereTheWindowIsNarrow)
{
    window->enterInteractiveMode();
    const auto top = [this](QWidget& widget) { return widget.mapTo(&page(), QPoint()); };
    QWidget& first = *page().findChild<QPushButton*>();
    FileGallery& samples = gallery("Samples");
    window->resize(1400, 800);
    EXPECT_TRUE(waitFor([&] { return top(samples).x() > top(first).x() + first.width(); }));
    window->resize(700, 600);
    EXPECT_TRUE(waitFor([&] { return top(samples).y() > top(first).y() + first.height(); }));
    EXPECT_EQ(top(samples).x(), top(first).x());
    EXPECT_LT(top(samples).x() + samples.gridSize().width(), page().width());
}

TEST_F(StartPageTest, IsNotThereWhereAFileIsOpen)
{
    ASSERT_TRUE(open(StartPage::samples().value(2)));
    window->enterInteractiveMode();
    EXPECT_FALSE(page().isVisible());
}

TEST_F(StartPageTest, OpensASampleByClickAndByKey)
{
    window->enterInteractiveMode();
    FileGallery& samples = gallery("Samples");
    samples.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&samples, Qt::Key_Return);
    EXPECT_TRUE(waitFor([this] { return !page().isVisible(); }));
    EXPECT_TRUE(window->windowTitle().contains(QStringLiteral("showcase.xsg")));
    act("startPageAction")->trigger();
    ASSERT_TRUE(page().isVisible());
    const QRect second = samples.visualItemRect(samples.item(1));
    QTest::mouseClick(samples.viewport(), Qt::LeftButton, {}, second.center());
    EXPECT_TRUE(waitFor([this] { return window->windowTitle().contains(QStringLiteral("lighthouse.glb")); }));
}

TEST_F(StartPageTest, EachSampleHasAPictureAndOpens)
{
    ASSERT_EQ(StartPage::samples().size(), 5);
    for (const QString& sample : StartPage::samples()) {
        EXPECT_TRUE(open(sample)) << sample.toStdString();
        const QString picture = QStringLiteral(SCOPIX_SOURCE_DIR "/data/pictures/%1.png")
                                    .arg(QFileInfo(sample).completeBaseName());
        EXPECT_EQ(QImage(picture).size(), FilePictures::size()) << picture.toStdString();
    }
}

TEST_F(StartPageTest, ShowsAPictureOfWhatWasOpen)
{
    window->enterInteractiveMode();
    const QString file = StartPage::samples().value(3);
    ASSERT_TRUE(open(file));
    EXPECT_TRUE(waitFor([&] { return !FilePictures().find(file).isNull(); }));
    window->getFiles().getRecent().add(file);
    act("startPageAction")->trigger();
    EXPECT_EQ(gallery("Recent files").files(), QStringList{file});
}

TEST_F(StartPageTest, ForgetsPicturesOfFilesThatAreNoLongerRecent)
{
    QImage picture(400, 100, QImage::Format_RGB32);
    picture.fill(Qt::red);
    const FilePictures pictures;
    EXPECT_EQ(pictures.keep(QStringLiteral("/a.xsg"), picture), QString());
    EXPECT_EQ(pictures.find(QStringLiteral("/a.xsg")).size(), FilePictures::size());
    pictures.keepOnly({QStringLiteral("/b.xsg")});
    EXPECT_TRUE(pictures.find(QStringLiteral("/a.xsg")).isNull());
}

TEST_F(StartPageTest, GoesByEscAndGivesTheFocusToTheView)
{
    window->enterInteractiveMode();
    QTest::keyClick(window->focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(page().isVisible());
    EXPECT_TRUE(window->getView().hasFocus());
}

TEST_F(StartPageTest, LeadsThroughTheWindowAsTheUserActs)
{
    window->enterInteractiveMode();
    act("tourAction")->trigger();
    Tour& tour = window->getWelcome().tour();
    EXPECT_FALSE(page().isVisible());
    EXPECT_EQ(tour.current(), 0);
    EXPECT_TRUE(window->rect().contains(tour.geometry()));
    emit window->getView().picked(window->getTree().pathTo(window->getScene()));
    EXPECT_EQ(tour.current(), 1);
    ASSERT_TRUE(window->selectField("Glass", "transparency"));
    EXPECT_EQ(tour.current(), 2);
    auto* next = tour.findChild<QPushButton*>(QStringLiteral("nextStep"));
    for (int step = 3; step < 5; ++step) {
        QTest::mouseClick(next, Qt::LeftButton);
        EXPECT_EQ(tour.current(), step);
        EXPECT_TRUE(window->rect().contains(tour.geometry()));
    }
    QTest::mouseClick(next, Qt::LeftButton);
    EXPECT_EQ(tour.current(), -1);
}

TEST_F(StartPageTest, AFileIsDroppedOnAFloatingDockToo)
{
    auto* dock = window->findChild<QDockWidget*>(QStringLiteral("historyDock"));
    dock->setFloating(true);
    settle();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(StartPage::samples().value(2))});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(dock, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(dock, &drop);
    EXPECT_TRUE(waitFor([this] { return window->windowTitle().contains(QStringLiteral("crate.gltf")); }));
}

TEST_F(StartPageTest, EmptyListsSayWhatTheyAreFor)
{
    auto* hint = window->getFields().findChild<QLabel*>(QStringLiteral("emptyHint"));
    ASSERT_TRUE(hint);
    EXPECT_FALSE(hint->isHidden());
    ASSERT_TRUE(window->selectField("Glass", "transparency"));
    EXPECT_TRUE(hint->isHidden());
    services.clearSelection();
    EXPECT_FALSE(hint->isHidden());
}

TEST_F(StartPageTest, TellsWhatABugReportNeeds)
{
    AboutDialog about(
        QStringLiteral("1.2.3"),
        [] {
            return std::vector<PluginState>{{"Good", PluginState::State::Loaded, {}},
                                            {"Bad", PluginState::State::SetAside, "It ended the program."}};
        },
        window.get());
    QTest::mouseClick(about.findChild<QPushButton*>(QStringLiteral("copyReport")), Qt::LeftButton);
    const QString text = QGuiApplication::clipboard()->text();
    for (const char* part : {"Scopix 1.2.3", "Qt: ", "OpenGL: ", "Good: loaded", "Bad: set aside; It ended"})
        EXPECT_TRUE(text.contains(QLatin1String(part))) << part;
    EXPECT_FALSE(text.contains(QDir::homePath()));
}

} // namespace
