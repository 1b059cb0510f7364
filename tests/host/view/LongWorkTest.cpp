// SPDX-License-Identifier: MIT
// What takes long says how far it is and can be cancelled, and the window stays alive.
#include "support/LongWork.h"
#include "services/HostServices.h"
#include "support/FileAnswer.h"
#include "support/UserNotifier.h"
#include "window/MainWindow.h"

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoTransform.h>

using namespace scopix;

namespace
{

constexpr int Many = 50000; // nodes: more than one piece of writing

class LongWorkTest : public testing::Test
{
protected:
    LongWorkTest()
    {
        qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
        window = std::make_unique<MainWindow>(services, notifier);
        window->show();
        QObject::connect(&notifier, &UserNotifier::told, [this](const QString& text) { told << text; });
    }
    ~LongWorkTest() override
    {
        notifier.setAttended(false);
        window.reset();
        qunsetenv("XDG_CONFIG_HOME");
    }
    QProgressDialog* dialog() const
    {
        return window->findChild<QProgressDialog*>(QStringLiteral("workProgress"));
    }
    // Works until the user would see how far it is.
    QProgressDialog* workUntilDialog(double part = -1) const
    {
        while (!dialog())
            LongWork::goOn(part);
        return dialog();
    }
    void cancel() const { QTest::mouseClick(workUntilDialog()->findChild<QPushButton*>(), Qt::LeftButton); }
    // Begins work in which the user has cancelled already.
    bool runCancelled(const std::function<void()>& work) const
    {
        return LongWork::run(window.get(), QStringLiteral("Working…"), [&] {
            cancel();
            work();
        });
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    template <class Node>
    void show(int count)
    {
        const SoRef<SoSeparator> root(new SoSeparator);
        for (int i = 0; i < count; ++i)
            root->addChild(new Node);
        window->setScene(root.get(), QStringLiteral("some"));
    }

    QTemporaryDir folder;
    UserNotifier notifier;
    HostServices services;
    std::unique_ptr<MainWindow> window;
    QStringList told;
};

TEST_F(LongWorkTest, SaysHowFarItIsAndCloses)
{
    bool wasVisible = false;
    EXPECT_TRUE(LongWork::run(window.get(), QStringLiteral("Working on <b>this</b>…"), [&] {
        QProgressDialog* shown = workUntilDialog(0.5);
        wasVisible = shown->isVisible();
        EXPECT_EQ(shown->labelText(), QStringLiteral("Working on <b>this</b>…"));
        EXPECT_EQ(shown->value() * 2, shown->maximum());
    }));
    EXPECT_TRUE(wasVisible);
    EXPECT_FALSE(dialog());
    LongWork::goOn(); // outside of any work
}

TEST_F(LongWorkTest, TheWindowIsAliveMeanwhileAndTakesNoInput)
{
    int events = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++events; });
    timer.start(0);
    LongWork::run(window.get(), QStringLiteral("Working…"), [&] {
        EXPECT_EQ(QApplication::activeModalWidget(), workUntilDialog());
        while (events < 10)
            LongWork::goOn();
    });
    EXPECT_GE(events, 10);
}

TEST_F(LongWorkTest, EndsWhereTheUserCancelsIt)
{
    bool isReached = false;
    EXPECT_FALSE(runCancelled([&] {
        LongWork::goOn();
        isReached = true;
    }));
    EXPECT_FALSE(isReached);
    EXPECT_FALSE(dialog());
}

TEST_F(LongWorkTest, InsideOtherWorkThatOneIsCancelled)
{
    EXPECT_FALSE(runCancelled([&] {
        LongWork::run(window.get(), QStringLiteral("Inside…"), [] { LongWork::goOn(); });
        ADD_FAILURE() << "went on";
    }));
}

TEST_F(LongWorkTest, ASaveThatIsCancelledLeavesTheFile)
{
    show<SoTransform>(Many); // which costs nothing to draw
    const QString path = folder.filePath(QStringLiteral("scene.xsg"));
    ASSERT_TRUE(window->getFiles().saveTo(path));
    const QByteArray before = contentOf(path);
    window->getScene()->asGroup()->addChild(new SoCube);
    EXPECT_FALSE(runCancelled([&] { window->getFiles().saveTo(path); }));
    EXPECT_EQ(contentOf(path), before);
    EXPECT_EQ(QDir(folder.path()).entryList({QStringLiteral("*scene.xsg*")}, QDir::AllEntries | QDir::Hidden),
              QStringList{QStringLiteral("scene.xsg")});
    EXPECT_TRUE(window->getFiles().saveTo(path));
    EXPECT_NE(contentOf(path), before);
}

TEST_F(LongWorkTest, AnExportThatIsCancelledWritesNothing)
{
    show<SoCube>(3);
    notifier.setAttended(false); // no question about what is lost
    for (const char* ending : {"glb", "obj", "ply", "stl"}) {
        const QString path = folder.filePath(QStringLiteral("out.") + QLatin1String(ending));
        EXPECT_FALSE(runCancelled([&] { window->getFiles().saveTo(path); })) << ending;
        EXPECT_FALSE(QFileInfo::exists(path)) << ending;
    }
}

} // namespace
