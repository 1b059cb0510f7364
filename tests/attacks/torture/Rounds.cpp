// SPDX-License-Identifier: MIT
#include "Rounds.h"

#include <xsg/files/SoSceneFile.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <cstring>
#include <sys/stat.h>

namespace torture
{

namespace
{

constexpr qint64 MostMemory = qint64{2} << 30;
constexpr int LongestSentence = 3000;

#if defined __SANITIZE_ADDRESS__ || defined __SANITIZE_THREAD__
constexpr bool IsInstrumented = true; // which takes memory and time, and wants to be loaded first
#else
constexpr bool IsInstrumented = false;
#endif

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList filesIn(const QStringList& folders, const QStringList& patterns)
{
    constexpr qint64 Largest = 400000; // so that a round takes a second
    QStringList files;
    for (const QString& folder : folders) {
        QDirIterator all(folder, patterns, QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            all.next();
            if (all.fileInfo().size() > 0 && all.fileInfo().size() < Largest)
                files += all.filePath();
        }
    }
    files.sort();
    return files;
}

QString inSource(const char* path)
{
    return QStringLiteral(SCOPIX_SOURCE_DIR "/") + QLatin1String(path);
}

const QStringList& scenes()
{
    static const QStringList files = filesIn({inSource("data/scenes"), inSource("tests/xsg/pictures/scenes"),
                                              inSource("tests/host/earlier/saved")},
                                             {"*.xsg"});
    return files;
}

const QStringList& models()
{
    static const QStringList files =
        filesIn({inSource("data/models"), "/usr/share/assimp/models"},
                {"*.glb", "*.gltf", "*.obj", "*.stl", "*.ply", "*.dae", "*.fbx", "*.3ds", "*.x", "*.off"});
    return files;
}

const QStringList& pictures()
{
    static const QStringList files = filesIn({inSource("data/models"), inSource("host/theme/icons"),
                                              inSource("docs/pictures"), "/usr/share/assimp/models"},
                                             {"*.png", "*.svg", "*.jpg", "*.bmp", "*.tga"});
    return files;
}

bool isProfiles(const QByteArray& text)
{
    return QJsonDocument::fromJson(text).object().value("profiles").toArray().size() >= 3;
}

} // namespace

struct Round::Kind {
    const char* name;
    void (Round::*attack)();
};

const QList<Round::Kind>& Round::table()
{
    static const QList<Kind> kinds{
        {"scene", &Round::openScene},
        {"model", &Round::openModel},
        {"picture", &Round::openPicture},
        {"profiles", &Round::readProfiles},
        {"settings", &Round::readSettings},
        {"plugin", &Round::loadPlugin},
        {"kill-save", &Round::killWhileSaving},
        {"kill-autosave", &Round::killWhileEditing},
        {"kill-import", &Round::killWhileImporting},
        {"kill-profiles", &Round::killWhileProfilesAreWritten},
        {"two", &Round::runTwo},
        {"fault", &Round::failOneCall},
        {"each-call", &Round::failEachCall},
        {"each-allocation", &Round::failEachAllocation},
    };
    return kinds;
}

QStringList Round::kinds()
{
    QStringList names;
    for (const Kind& each : table())
        names += QLatin1String(each.name);
    return names;
}

Round::Round(const QString& kind, quint64 seed)
    : m_kind(kind)
    , m_random(seed)
{
}

QStringList Round::run()
{
    for (const Kind& each : table()) {
        if (m_kind == QLatin1String(each.name))
            (this->*each.attack)();
    }
    return m_wrong;
}

void Round::expect(bool isTrue, const QString& what)
{
    if (!isTrue)
        m_wrong += what;
}

QString Round::write(const QString& name, const QByteArray& content)
{
    QDir().mkpath(QFileInfo(at(name)).path());
    QFile file(at(name));
    expect(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(),
           name + " cannot be written");
    return at(name);
}

// Large enough for saving it to take a while.
QString Round::writeScene()
{
    QByteArray text =
        "#Xsg V1.0 utf8\nSeparator {\n    Material \"Paint\" { transparency: 0.5 }\n    Cube {}\n";
    for (quint64 left = below(m_random, 3000); left > 0; --left)
        text += "    Material { diffuseColor: [ 1 0 0, 0 1 0 ] }\n";
    return write("work/scene.xsg", text + "}\n");
}

QString Round::writeProfiles()
{
    return write("scopix/profiles.json", R"({"active": "Default", "profiles": [
        {"name": "Default", "editors": "all", "tools": "all"}, {"name": "A", "editors": "all", "tools": []},
        {"name": "B", "editors": [], "tools": "all"}]})");
}

// The program with somebody in it who works without a pause.
QStringList Round::actor(const QStringList& arguments) const
{
    return QStringList{SCOPIX_PROGRAM, "--plugin", TORTURE_PLUGIN} + arguments;
}

Ended Round::open(const QStringList& arguments, const Process::Environment& environment)
{
    Process process(m_folder->path(), QStringList{SCOPIX_PROGRAM, "--quit"} + arguments, environment);
    const Ended ended = process.end();
    check(ended);
    return ended;
}

void Round::check(const Ended& ended)
{
    expect(ended.wasInTime, "it took too long");
    expect(ended.signal == 0 || ended.wasKilled || !ended.wasInTime,
           QStringLiteral("it was ended by a signal: ") + QLatin1String(strsignal(ended.signal)));
    expect(ended.signal != 0 || ended.status == 0 || ended.status == 1,
           QStringLiteral("its exit status is %1").arg(ended.status));
    expect(ended.status != 1 || !ended.said.isEmpty(), "it does not say what went wrong");
    // What is opened may leave out things of several kinds, each told in a line.
    expect(ended.status == 0 || ended.said.size() <= 1,
           "it says more than a sentence: " + ended.said.join(" | "));
    expect(QSet<QString>(ended.said.begin(), ended.said.end()).size() == ended.said.size(),
           "it says the same twice: " + ended.said.join(" | "));
    expect(IsInstrumented || ended.memory < MostMemory,
           QStringLiteral("it took %1 MiB").arg(ended.memory >> 20));
    expect(!ended.leftChildren, "it left a process behind");
    for (const QString& sentence : ended.said) {
        expect(sentence.size() < LongestSentence, "it says very much: " + sentence.left(200));
        for (const QChar c : sentence)
            expect(c >= QLatin1Char(' '), "it says a control character: " + sentence.left(200));
    }
    expectNothingLeft();
}

void Round::expectNothingLeft()
{
    const QDir temporary(at("tmp"));
    const QStringList left = temporary.entryList(QDir::Files | QDir::Hidden | QDir::System);
    expect(left.isEmpty(), "temporary files are left: " + left.join(' '));
}

void Round::expectScene(const QString& name)
{
    std::string error;
    expect(SoSceneFile::read(QFile::encodeName(at(name)).toStdString(), error).get() != nullptr,
           name + " is not whole: " + QString::fromStdString(error));
}

void Round::openScene()
{
    const QString scene = oneOf(m_random, scenes());
    const QString path = write("work/scene.xsg", mutated(contentOf(scene), m_random));
    const QByteArray content = contentOf(path);
    open({path});
    expect(contentOf(path) == content, "it changed the file that it opened");
}

void Round::openModel()
{
    const QString model = oneOf(m_random, models());
    const QFileInfo file(model);
    for (const QFileInfo& beside : file.dir().entryInfoList({file.completeBaseName() + ".*"}, QDir::Files))
        QFile::copy(beside.filePath(), write("work/" + beside.fileName(), contentOf(beside.filePath())));
    open({write("work/" + file.fileName(), mutated(contentOf(model), m_random))});
}

void Round::openPicture()
{
    const QString picture = oneOf(m_random, pictures());
    const QString name = "picture." + QFileInfo(picture).suffix();
    write("work/" + name, mutated(contentOf(picture), m_random));
    const QString scene = write("work/scene.xsg", "#Xsg V1.0 utf8\nSeparator {\n    Texture2 { filename: \"" +
                                                      name.toUtf8() + "\" }\n    Cube {}\n}\n");
    open({scene, "--screenshot", at("work/out.png")});
}

// What is damaged is kept under another name.
void Round::readProfiles()
{
    const QByteArray content = mutated(contentOf(writeProfiles()), m_random);
    write("scopix/profiles.json", content);
    open({});
    bool isKept = false;
    for (const QFileInfo& file : QDir(at("scopix")).entryInfoList({"profiles*.json"}, QDir::Files))
        isKept = isKept || contentOf(file.filePath()) == content;
    expect(isKept, "the profiles are gone");
}

// What cannot be understood is as if it were not there, or is told in a sentence for each file.
void Round::readSettings()
{
    write("scopix/window.ini",
          mutated("[General]\ngeometry=@ByteArray(\x1\xd9\xd0\xcb)\nrecentFiles=/a.xsg, /b.xsg\n", m_random));
    open({});
    QFile::remove(at("scopix/window.ini"));
    write("scopix/preferences.conf", mutated("XSG_PERFCOUNTER_ENABLE = 1 # up to here\nA = b\n", m_random));
    open({});
}

// A library that may be anything is given two starts: the first may end in its code.
void Round::loadPlugin()
{
    const QByteArray library = mutated(contentOf(TEST_PLUGIN), m_random);
    const QString path = write("scopix/plugins/libBad.so", library);
    chmod(QFile::encodeName(path).constData(), 0644);
    Process first(m_folder->path(), {SCOPIX_PROGRAM, "--quit"});
    const bool hasEnded = first.end().wasInTime;
    expect(hasEnded, "a start with a bad plug-in took too long");
    const Ended second = open({});
    expect(second.said.isEmpty() || second.said[0].contains("libBad.so"), "it does not say which");
}

void Round::killAnywhere(Process& process)
{
    process.waitFor(100 + int(below(m_random, 2500)));
    endKilled(process);
}

// What has no name is gone with the process; what lies beside a scene goes when that is saved again.
void Round::endKilled(Process& process)
{
    process.kill();
    check(process.end());
    // A kill while the plug-in was loading is not what is looked at here.
    QDir(at("scopix/plugins")).removeRecursively();
}

void Round::saveOnce()
{
    const QString scene = at("work/scene.xsg");
    Process process(m_folder->path(), actor({scene, "--select", "Paint.transparency"}),
                    {{"SCOPIX_TORTURE", "once"}});
    check(process.end());
    expectScene("work/scene.xsg");
    const QStringList left = QDir(at("work")).entryList(QDir::Files | QDir::Hidden);
    expect(left == QStringList{"scene.xsg"}, "saving leaves files: " + left.join(' '));
}

void Round::killWhileSaving()
{
    const QString scene = writeScene();
    for (int i = 0; i < 2; ++i) {
        Process process(m_folder->path(), actor({scene, "--select", "Paint.transparency"}),
                        {{"SCOPIX_TORTURE", "save"}});
        killAnywhere(process);
        expectScene("work/scene.xsg");
    }
    saveOnce();
}

void Round::killWhileEditing()
{
    const QString scene = writeScene();
    const QByteArray before = contentOf(scene);
    Process process(m_folder->path(), actor({scene, "--select", "Paint.transparency"}),
                    {{"SCOPIX_TORTURE", "edit"}});
    process.waitFor(2000 + int(below(m_random, 3000)));
    endKilled(process);
    expect(contentOf(scene) == before, "a scene that nobody saved has changed");
    for (const QString& name : QDir(at("scopix/recovery")).entryList({"*.xsg"}))
        expectScene("scopix/recovery/" + name);
    open({});
    damageRecovery();
    saveOnce();
}

// The next start finds what it cannot give back, and works nevertheless.
void Round::damageRecovery()
{
    for (const QFileInfo& file : QDir(at("scopix/recovery")).entryInfoList(QDir::Files)) {
        if (below(m_random, 2) == 0 && file.suffix() != "lock")
            write("scopix/recovery/" + file.fileName(), mutated(contentOf(file.filePath()), m_random));
    }
}

void Round::killWhileImporting()
{
    Process process(m_folder->path(), {SCOPIX_PROGRAM, "--quit", inSource("data/models/lighthouse.glb")});
    process.waitFor(100 + int(below(m_random, 900)));
    endKilled(process);
    open({inSource("data/models/lighthouse.glb")});
}

void Round::killWhileProfilesAreWritten()
{
    writeProfiles();
    Process process(m_folder->path(), actor({}), {{"SCOPIX_TORTURE", "profiles"}});
    killAnywhere(process);
    expect(isProfiles(contentOf(at("scopix/profiles.json"))), "the profiles are not whole");
    open({});
    expect(isProfiles(contentOf(at("scopix/profiles.json"))), "the profiles are gone");
}

// Both save the same scene and choose profiles, and one of them is killed.
void Round::runTwo()
{
    const QString scene = writeScene();
    writeProfiles();
    const QByteArray act = below(m_random, 2) ? "save" : "profiles";
    const QStringList command = actor({scene, "--select", "Paint.transparency"});
    Process first(m_folder->path(), command, {{"SCOPIX_TORTURE", act}});
    Process second(m_folder->path(), command, {{"SCOPIX_TORTURE", act}});
    first.waitFor(100 + int(below(m_random, 2500)));
    first.kill();
    first.waitFor(patience());
    second.waitFor(int(below(m_random, 1000)));
    second.kill();
    second.waitFor(patience());
    endKilled(first);
    endKilled(second);
    expectScene("work/scene.xsg");
    expect(isProfiles(contentOf(at("scopix/profiles.json"))), "the profiles are not whole");
    saveOnce();
}

// One system call of the whole program fails on a file of the user's.
void Round::failOneCall()
{
    if (IsInstrumented)
        return;
    static const QList<QByteArray> calls{"open", "read", "write", "fsync", "rename", "close", "mmap"};
    static const QList<QByteArray> ways{"ENOSPC", "EIO", "EINTR", "short"};
    const QByteArray fault = oneOf(m_random, calls) + ':' + QByteArray::number(below(m_random, 30) + 1) +
                             ':' + oneOf(m_random, ways);
    const QString scene = writeScene();
    Process process(m_folder->path(), actor({scene, "--select", "Paint.transparency"}),
                    {{"SCOPIX_TORTURE", "once"},
                     {"LD_PRELOAD", FAILING_CALLS},
                     {"SCOPIX_FAIL", fault},
                     {"SCOPIX_FAIL_IN", QFile::encodeName(m_folder->path())}});
    Ended ended = process.end();
    ended.said.clear(); // of several things that could not be done each is said
    ended.status = ended.status == 1 ? 0 : ended.status;
    check(ended);
    expectScene("work/scene.xsg");
    expect(m_wrong.isEmpty(), "with SCOPIX_FAIL=" + fault);
}

void Round::failEachCall()
{
    for (const QString& test : QStringLiteral(FAULT_TESTS).split('|')) {
        Process process(m_folder->path(), {test, "--gtest_brief=1"}, {{"SCOPIX_ALL_FAULTS", "1"}});
        while (!process.waitFor(1000)) { // each of its cases has a limit of its own
        }
        const Ended ended = process.end();
        expect(ended.signal == 0 && ended.status == 0, "a writer or reader fails: see its log");
    }
}

void Round::failEachAllocation()
{
    Process process(m_folder->path(), {ALLOCATION_TEST, "--gtest_brief=1"});
    const Ended ended = process.end();
    expect(ended.signal == 0 && ended.status == 0, "an allocation that fails is not survived: see its log");
}

} // namespace torture
