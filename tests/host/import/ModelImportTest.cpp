// SPDX-License-Identifier: MIT
#include "ModelFiles.h"

#include "import/ModelImport.h"
#include "language/Languages.h"
#include "model/ModelFormats.h"

#include <support/Waiting.h>

#include <csignal>

using namespace scopix;

namespace
{

class Import : public testing::Test
{
protected:
    Import() { listenTo(import); }
    void listenTo(ModelImport& to)
    {
        QObject::connect(&to, &ModelImport::finished, [this](const SoRef<SoSeparator>& s) {
            scene = s;
            told << "finished";
        });
        QObject::connect(&to, &ModelImport::failed, [this](const QString& sentence) {
            error = sentence;
            told << "failed";
        });
        QObject::connect(&to, &ModelImport::cancelled, [this] { told << "cancelled"; });
    }
    bool waitForEnd()
    {
        return waitFor([this] { return !told.isEmpty(); });
    }
    // One that has read all before the signal reaches it is followed by another.
    bool endReaderBy(int signal)
    {
        for (int attempt = 0; attempt < 20; ++attempt) {
            told.clear();
            ModelImport other(&window);
            listenTo(other);
            other.start(shippedModel("lighthouse.glb"));
            auto* process = other.findChild<QProcess*>();
            if (!process->waitForStarted(MostWaitMs))
                return false;
            kill(static_cast<pid_t>(process->processId()), signal);
            if (!waitForEnd())
                return false;
            if (told != QStringList{"finished"})
                return true;
        }
        return false;
    }
    QProcess* reader() { return import.findChild<QProcess*>(); }
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
    EXPECT_EQ(told, QStringList{"finished"});
    ASSERT_TRUE(scene);
    EXPECT_STREQ(scene->getName().getString(), "Harbour");
    EXPECT_FALSE(dialog() && dialog()->isVisible());
}

// Whoever is told may run an event loop of their own, as a question to the user does.
TEST_F(Import, NoDialogWaitsToOpenOnceItHasEnded)
{
    import.start(shippedModel("crate.gltf"));
    QPointer<QProgressDialog> progress = dialog();
    ASSERT_TRUE(progress);
    int waiting = -1;
    QObject::connect(&import, &ModelImport::finished, [&] {
        const QList<QTimer*> timers = progress->findChildren<QTimer*>();
        waiting = int(std::count_if(timers.begin(), timers.end(), [](QTimer* t) { return t->isActive(); }));
    });
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(waiting, 0);
}

TEST_F(Import, TellsWhatIsMissingInTheUsersLanguage)
{
    qputenv("SCOPIX_LANGUAGE", "de");
    Languages::begin();
    qputenv("SCOPIX_LANGUAGE", "en");
    ModelFiles files;
    import.start(files.write("plain.obj", "mtllib none.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n"));
    EXPECT_TRUE(waitForEnd());
    delete Languages::instance();
    EXPECT_TRUE(import.notes().join(' ').contains(
        "1 Materialdatei ist nicht da, stattdessen gelten vorgegebene Materialien: „none.mtl“."))
        << import.notes().join('\n').toStdString();
}

TEST_F(Import, TellsWhatIsMissingInEnglishToPrograms)
{
    qputenv("SCOPIX_LANGUAGE", "de");
    ModelFiles files;
    import.start(files.write("plain.obj", "mtllib none.mtl\nv 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n"));
    EXPECT_TRUE(waitForEnd());
    qputenv("SCOPIX_LANGUAGE", "en");
    EXPECT_TRUE(import.notes().join(' ').contains("1 file of materials is missing"))
        << import.notes().join('\n').toStdString();
}

TEST_F(Import, ReportsWhatIsWrong)
{
    import.start("/nowhere/none.glb");
    ASSERT_TRUE(waitForEnd());
    EXPECT_EQ(told, QStringList{"failed"});
    EXPECT_TRUE(error.contains("/nowhere/none.glb"));
}

TEST_F(Import, CancelEndsTheReaderAtOnce)
{
    import.start(shippedModel("lighthouse.glb"));
    ASSERT_TRUE(dialog());
    ASSERT_TRUE(reader()->waitForStarted(MostWaitMs));
    kill(static_cast<pid_t>(reader()->processId()), SIGSTOP); // as one that hangs
    emit dialog()->canceled();                                // what its button and Escape do
    EXPECT_EQ(told, QStringList{"cancelled"});
    EXPECT_EQ(reader()->state(), QProcess::NotRunning);
    QCoreApplication::processEvents();
    EXPECT_EQ(told, QStringList{"cancelled"});
    EXPECT_FALSE(scene);
}

TEST_F(Import, ReportsACrashedReaderInOneSentence)
{
    ASSERT_TRUE(endReaderBy(SIGKILL));
    EXPECT_EQ(told, QStringList{"failed"});
    EXPECT_TRUE(error.contains("lighthouse.glb” cannot be opened: it contradicts itself"))
        << qPrintable(error);
}

TEST_F(Import, ReportsAReaderThatNeverEnds)
{
    ASSERT_TRUE(endReaderBy(SIGXCPU));
    EXPECT_TRUE(error.contains("takes too long")) << qPrintable(error);
}

// One step of the importer asserts that every face has corners, and ends its process where one has none.
TEST_F(Import, AFaceWithoutCornersIsRefusedBeforeAnyStep)
{
    const ModelFiles files;
    QByteArray model = contentOf(shippedModel("rainbow.ply"));
    const int face = model.lastIndexOf("\n3 ");
    ASSERT_GT(face, 0);
    model[face + 1] = '0';
    import.start(files.write("face.ply", model));
    ASSERT_TRUE(waitForEnd());
    EXPECT_TRUE(error.contains("face.ply” cannot be opened: it is not a whole model")) << qPrintable(error);
}

TEST_F(Import, AFewBytesThatAskForAllMemoryAreRefused)
{
    const ModelFiles files;
    import.start(files.write("many.off", "OFF\n1400000000 1 0\n0 0 0\n0 0 1\n0 1 0\n3 0 1 2\n"));
    ASSERT_TRUE(waitForEnd());
#if defined(__SANITIZE_ADDRESS__) ||                                                                         \
    defined(__SANITIZE_THREAD__) // which end the reader before it can report why
    const char* const sentence = "many.off” cannot be opened";
#else
    const char* const sentence = "many.off” cannot be opened: it asks for more memory";
#endif
    EXPECT_TRUE(error.contains(sentence)) << qPrintable(error);
}

// Some readers crash on it.
TEST(BadModels, GarbageInEveryFormatIsRefused)
{
    const ModelFiles files;
    QByteArray garbage;
    for (int i = 0; i < 3000; ++i)
        garbage += static_cast<char>((i * 7919) >> 3);
    QWidget window;
    for (const QString& ending : modelEndings()) {
        const QString path = files.write(qPrintable("garbage." + ending), garbage);
        ModelImport import(&window);
        QString error;
        bool done = false;
        QObject::connect(&import, &ModelImport::failed, [&](const QString& sentence) {
            error = sentence;
            done = true;
        });
        QObject::connect(&import, &ModelImport::finished, [&] { done = true; });
        import.start(path);
        ASSERT_TRUE(waitFor([&] { return done; })) << qPrintable(path);
        EXPECT_TRUE(error.contains(path + "” cannot be opened: ")) << qPrintable(path + error);
        EXPECT_TRUE(error.endsWith('.') && !error.contains('\n')) << qPrintable(error);
    }
}

TEST_F(Import, ShowsHowFarItIs)
{
    import.start(shippedModel("lighthouse.glb"));
    int highest = 0;
    ASSERT_TRUE(waitFor([&] {
        highest = std::max(highest, dialog() ? dialog()->value() : 0);
        return !told.isEmpty();
    }));
    EXPECT_GT(highest, 0);
}

TEST_F(Import, NothingIsLeftInTheFolderOfTemporaryFiles)
{
    const QTemporaryDir temporary;
    qputenv("TMPDIR", temporary.path().toLocal8Bit());
    {
        QWidget other;
        ModelImport one(&other);
        bool done = false;
        QObject::connect(&one, &ModelImport::finished, [&] { done = true; });
        one.start(shippedModel("rainbow.ply"));
        EXPECT_TRUE(QDir(temporary.path()).isEmpty()) << "nor while it reads, in case it is killed";
        ASSERT_TRUE(waitFor([&] { return done; }));
    }
    qunsetenv("TMPDIR");
    EXPECT_TRUE(QDir(temporary.path()).isEmpty());
}

TEST(ImportEnd, MayBeDeletedWhileItReads)
{
    QWidget window;
    for (int i = 0; i < 5; ++i) {
        ModelImport import(&window);
        import.start(shippedModel("lighthouse.glb"));
        auto* reader = import.findChild<QProcess*>();
        ASSERT_TRUE(reader->waitForStarted(MostWaitMs));
        kill(static_cast<pid_t>(reader->processId()), SIGSTOP); // as one that hangs
    }
    QCoreApplication::processEvents();
}

} // namespace
