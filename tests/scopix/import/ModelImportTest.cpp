#include "ModelFiles.h"

#include "import/ModelImport.h"

namespace
{

class Import : public testing::Test
{
protected:
    Import()
    {
        QObject::connect(&import, &ModelImport::finished, [this](const SoRef<SoSeparator>& s) {
            scene = s;
            told << "finished";
        });
        QObject::connect(&import, &ModelImport::failed, [this](const QString& sentence) {
            error = sentence;
            told << "failed";
        });
        QObject::connect(&import, &ModelImport::cancelled, [this] { told << "cancelled"; });
        QObject::connect(&import, &ModelImport::threadEnded, [this] { told << "ended"; });
    }
    bool waitForEnd() { return QTest::qWaitFor([this] { return told.contains("ended"); }, 60000); }
    QProgressDialog* dialog() { return window.findChild<QProgressDialog*>("importProgress"); }

    QWidget window;
    ModelImport import{&window};
    SoRef<SoSeparator> scene;
    QString error;
    QStringList told;
};

TEST_F(Import, GivesTheSceneFromTheEventLoop)
{
    import.start(shippedModel("lighthouse.glb"));
    EXPECT_TRUE(told.isEmpty());
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(told, QStringList({"finished", "ended"}));
    ASSERT_TRUE(scene);
    EXPECT_STREQ(scene->getName().getString(), "Harbour");
    EXPECT_FALSE(dialog() && dialog()->isVisible());
}

TEST_F(Import, TellsWhatIsWrong)
{
    import.start("/nowhere/none.glb");
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(told, QStringList({"failed", "ended"}));
    EXPECT_TRUE(error.contains("/nowhere/none.glb"));
}

TEST_F(Import, CancelAnswersAtOnceAndDropsWhatComesLater)
{
    import.start(shippedModel("lighthouse.glb"));
    ASSERT_TRUE(dialog());
    emit dialog()->canceled(); // what its button and Escape do
    EXPECT_EQ(told, QStringList({"cancelled"}));
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(told, QStringList({"cancelled", "ended"}));
    EXPECT_FALSE(scene);
}

TEST(ImportEnd, MayBeDeletedWhileItReads)
{
    QWidget window;
    for (int i = 0; i < 5; ++i) {
        ModelImport import(&window);
        import.start(shippedModel("lighthouse.glb"));
    }
    QCoreApplication::processEvents();
}

} // namespace
