// SPDX-License-Identifier: MIT
// Whatever a session says while it is given bad input is in the user's language, and standard error says it
// once. In the pseudo-language a text that nobody can translate has plain words.
#include "WholeWindow.h"

#include "language/Languages.h"
#include "settings/Preferences.h"
#include "support/UserNotifier.h"
#include "window/MainWindow.h"

#include <xsg/core/SoPreferences.h>
#include <xsg/counters/SoPerfAccumCounter.h>
#include <xsg/counters/SoPerfCounterManager.h>
#include <xsg/errors/SoMemoryError.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace scopix;

namespace
{

struct BadFile {
    const char* name;
    const char* content;
};
const BadFile BadFiles[] = {
    {"no.xsg", "nothing of the kind"},
    {"open.xsg", "#Xsg V1.0 utf8\nCube {"},
    {"field.xsg", "#Xsg V1.0 utf8\nCube { nothing: 1\n}"},
    {"value.xsg", "#Xsg V1.0 utf8\nCube { width: wide\n}"},
    {"twice.xsg", "#Xsg V1.0 utf8\nSeparator { Cube @a {} Cube @a {} }"},
    {"no.xsgpatch", "nothing of the kind"},
    {"damaged.glb", "glTF"},
    {"empty.glb", ""},
    {"damaged.gltf", "{ \"asset\": "},
    {"older.gltf", "{ \"asset\": { \"version\": \"1.0\" } }"},
    {"empty.obj", "# nothing\n"},
    {"damaged.ply", "ply\nformat ascii 1.0\nelement vertex 3\nend_header\n1"},
    {"damaged.stl", "solid"},
    {"no.fbx", "nothing of the kind"},
    {"of.unknown", "kind"},
    {"without-ending", "of kind"},
    {"texture.xsg", "#Xsg V1.0 utf8\nSeparator { Texture2 { fileName: \"nowhere.png\" } Cube {} }"},
};

/// A session without plug-ins, as one is where nobody has set up a console.
class Said : public testing::Test
{
protected:
    Said()
    {
        for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            qputenv(variable, m_folder.path().toUtf8());
        Languages::begin();
    }
    ~Said() override
    {
        m_session.reset();
        delete Languages::instance();
        for (const char* name : {"XSG_PREFERENCES", "XSG_TEST_BOOL", "XSG_TEST_INT", "XSG_TEST_FLOAT"})
            qunsetenv(name);
    }
    void begin(const QString& language)
    {
        Languages::instance()->speak(language);
        m_session = std::make_unique<HostSession>(
            [this](HostServices& services, UserNotifier& notifier) {
                auto made = std::make_unique<MainWindow>(services, notifier);
                m_window = made.get();
                QObject::connect(&notifier, &UserNotifier::told,
                                 [this](const QString& text) { m_told += text; });
                return made;
            },
            ProfileFile(m_folder.filePath(QStringLiteral("profiles.json"))));
        m_session->notifier().setAttended(false);
        m_window->show();
    }
    QString put(const BadFile& bad)
    {
        const QString path = m_folder.filePath(QString::fromLatin1(bad.name));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bad.content);
        return path;
    }
    void open(const QString& path)
    {
        bool ended = false;
        const auto connection =
            QObject::connect(m_window, &HostWindow::openFinished, [&ended] { ended = true; });
        m_window->openFile(path);
        EXPECT_TRUE(waitFor([&] { return ended; })) << qPrintable(path);
        QObject::disconnect(connection);
        m_window->grab(); // missing pictures are noticed where they are drawn
    }
    // What is not of the program: paths, names, and what importers say (decisions.md: system-words).
    QString withoutNames(QString text) const
    {
        for (const char* words : {"(OBJ-file is too small)", "(File is too small)"})
            text.remove(QLatin1String(words));
        for (const QString& name : QDir(m_folder.path()).entryList(QDir::Files))
            text.remove(m_folder.filePath(name)).remove(name);
        return text.remove(m_folder.path());
    }
    // But for what Qt's offscreen platform has to say.
    static QStringList linesOf(const std::string& text)
    {
        static const QRegularExpression ours(QStringLiteral("^(?!This plugin does not support |$)"));
        return QString::fromStdString(text).split('\n').filter(ours);
    }
    // Accents are on every word that can be translated.
    static bool hasPlainWords(const QString& text)
    {
        static const QRegularExpression words(QStringLiteral("\\b[A-Za-z]{3,}(?: [a-z]+){2,}"));
        return words.match(text).hasMatch();
    }

    QTemporaryDir m_folder;
    QStringList m_told;
    MainWindow* m_window = nullptr;
    std::unique_ptr<HostSession> m_session;
};

void postAllThatNobodyCanCause()
{
    for (const char* name : {"XSG_TEST_BOOL", "XSG_TEST_INT", "XSG_TEST_FLOAT"})
        qputenv(name, "nonsense");
    SoPreferences::getBool("XSG_TEST_BOOL", false);
    SoPreferences::getInt("XSG_TEST_INT", 1);
    SoPreferences::getFloat("XSG_TEST_FLOAT", 1);
    auto* counter = new SoPerfAccumCounter("said", "", "", 0, true); // which the manager keeps
    SoPerfCounterManager::getInstance()->registerCounter(counter);
    counter->setFirstParent("said");
}

} // namespace

TEST_F(Said, IsInTheUsersLanguageWhateverIsWrong)
{
    testing::internal::CaptureStderr();
    const QString preferences = put({"wrong.conf", "no setting at all\n"});
    qputenv("XSG_PREFERENCES", preferences.toUtf8());
    begin(QStringLiteral("qps"));
    m_session->notifier().setPrintsPostedErrors(true);
    postAllThatNobodyCanCause();
    for (const BadFile& each : BadFiles)
        open(put(each));
    open(m_folder.path());
    open(m_folder.filePath(QStringLiteral("missing.xsg")));
    m_session.reset();
    const QStringList printed = linesOf(testing::internal::GetCapturedStderr());
    EXPECT_GE(printed.size(), 20) << printed.join('\n').toStdString();
    for (const QString& each : printed + m_told)
        EXPECT_FALSE(hasPlainWords(withoutNames(each))) << each.toStdString();
}

TEST_F(Said, StandsOnceOnStandardErrorWithoutAConsole)
{
    for (const bool isAttended : {true, false}) {
        testing::internal::CaptureStderr();
        begin(QStringLiteral("de"));
        m_session->notifier().setPrintsPostedErrors(!isAttended);
        for (int i = 0; i < 2; ++i)
            open(put(BadFiles[0]));
        m_session.reset();
        const QStringList printed = linesOf(testing::internal::GetCapturedStderr());
        ASSERT_EQ(printed.size(), 2) << printed.join('\n').toStdString();
        for (const QString& each : printed)
            EXPECT_TRUE(each.startsWith("scopix: ") && each.contains("das ist keine Szenendatei"))
                << each.toStdString();
    }
}

TEST_F(Said, IsSaidByTheLibraryAgainAfterTheSession)
{
    begin(QStringLiteral("de"));
    m_session.reset();
    testing::internal::CaptureStderr();
    SoMemoryError::post("a texture", 7);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "No memory for a texture: 7 bytes were asked for.\n");
}
