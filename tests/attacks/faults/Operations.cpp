// SPDX-License-Identifier: MIT
#include "Operations.h"

#include "document/Autosave.h"
#include "document/CounterBackup.h"
#include "document/RecentFiles.h"
#include "document/SceneDocument.h"
#include "model/ModelFile.h"
#include "model/ModelReadResult.h"
#include "plugins/PluginLibrary.h"
#include "plugins/PluginRecords.h"
#include "profiles/ProfileList.h"
#include "services/HostServices.h"
#include "settings/DataDirectory.h"
#include "settings/Preferences.h"
#include "viewport/Screenshot.h"
#include "viewport/TextureImageLoader.h"

#include <xsg/fields/SoSFImage.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>

#include <QtWidgets>

using namespace scopix;

namespace
{

const QString Scene = QStringLiteral("/scene.xsg");
const QString Profiles = QStringLiteral("/profiles.json");
const QString Picture = QStringLiteral("/picture.png");
const QString Recent = QStringLiteral("/window.ini");
const QString Library = QStringLiteral("/libPlugin.so");
const QString PreferencesFile = QStringLiteral("/preferences.conf");
const QString Model = QStringLiteral("/model.result");
const QString Counters = QStringLiteral("/counters.xml");

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(content);
}

QByteArray encoded(const QString& path)
{
    return QFile::encodeName(path);
}

// Larger than the buffers of any stream.
SoRef<SoNode> makeScene(float transparency)
{
    SoRef<SoSeparator> root(new SoSeparator);
    for (int i = 0; i < 400; ++i) {
        auto* material = new SoMaterial;
        material->transparency.setValue(transparency);
        root->addChild(material);
    }
    return SoRef<SoNode>(root.get());
}

QByteArray sceneText(float transparency)
{
    return QByteArray::fromStdString(SoSceneFile::writeText(makeScene(transparency).get()));
}

void prepareScene(const QString& folder)
{
    write(folder + Scene, sceneText(0.25F));
}

Outcome saveScene(const QString& folder)
{
    HostServices services;
    SceneDocument document(services);
    document.begin(makeScene(0.75F).get(), folder + Scene, QStringLiteral("scene.xsg"));
    const QString error = document.save(folder + Scene);
    return {error.isEmpty(), error, {}};
}

Outcome readScene(const QString& folder)
{
    std::string error;
    const SoRef<SoNode> scene = SoSceneFile::read(encoded(folder + Scene).toStdString(), error);
    return {scene.get() != nullptr, QString::fromStdString(error),
            scene ? QByteArray::fromStdString(SoSceneFile::writeText(scene.get())) : QByteArray()};
}

// The scene or model that is open has unsaved edits.
Outcome autosave(const QString& folder)
{
    HostServices services;
    SceneDocument document(services);
    document.begin(makeScene(0.25F).get(), folder + Scene, QStringLiteral("scene.xsg"));
    Autosave autosave(document, folder + QStringLiteral("/recovery"));
    Outcome outcome;
    QObject::connect(&autosave, &Autosave::failed,
                     [&](const QString& sentence) { outcome.sentence = sentence; });
    autosave.setPause(1);
    autosave.start();
    document.beginModified(makeScene(0.75F).get(), folder + Scene, QStringLiteral("scene.xsg"));
    const QDir recovery(folder + QStringLiteral("/recovery"));
    const auto isWritten = [&] { return !recovery.entryList({QStringLiteral("*.xsg")}).isEmpty(); };
    QDeadlineTimer patience(30000);
    while (!isWritten() && outcome.sentence.isEmpty() && !patience.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 1);
    outcome.isDone = isWritten();
    if (outcome.isDone)
        outcome.sentence.clear();
    return outcome;
}

void prepareProfiles(const QString& folder)
{
    write(folder + Profiles, R"({"active": "Mine", "profiles": [
        {"name": "Mine", "editors": "all", "tools": ["SpxDefaults/Console"]}]})");
}

Outcome writeProfiles(const QString& folder)
{
    ProfileList list{ProfileFile(folder + Profiles)};
    Outcome outcome;
    QObject::connect(&list, &ProfileList::failed, [&](const QString& text) { outcome.sentence = text; });
    list.read();
    if (outcome.sentence.isEmpty())
        list.setProfiles({{QStringLiteral("Mine"), {true, {}}, {true, {}}},
                          {QStringLiteral("New"), {true, {}}, {false, {QStringLiteral("A/B")}}}},
                         QStringLiteral("New"));
    outcome.isDone = outcome.sentence.isEmpty();
    return outcome;
}

Outcome readProfiles(const QString& folder)
{
    ProfileList list{ProfileFile(folder + Profiles)};
    Outcome outcome;
    QObject::connect(&list, &ProfileList::failed, [&](const QString& text) { outcome.sentence = text; });
    list.read();
    outcome.isDone = outcome.sentence.isEmpty();
    for (const auto& profile : list.profiles())
        outcome.found += profile->name().toUtf8() + '\n';
    return outcome;
}

void prepareRecent(const QString& folder)
{
    write(folder + Recent, "[General]\nrecentFiles=/a.xsg\n");
}

Outcome writeRecent(const QString& folder)
{
    RecentFiles recent(folder + Recent);
    recent.add(QStringLiteral("/b.xsg"));
    return {RecentFiles(folder + Recent).list().contains(QStringLiteral("/b.xsg")), {}, {}};
}

QImage makePicture(int size)
{
    QImage image(size, size, QImage::Format_RGB32);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x)
            image.setPixel(x, y, qRgb(x * 31 % 256, y * 57 % 256, x * y % 256));
    }
    return image;
}

void preparePicture(const QString& folder)
{
    makePicture(100).save(folder + Picture);
}

Outcome writeScreenshot(const QString& folder)
{
    QLabel window;
    window.setPixmap(QPixmap::fromImage(makePicture(120)));
    const QString error = saveScreenshot(window, folder + Picture);
    return {error.isEmpty(), error, {}};
}

Outcome readPicture(const QString& folder)
{
    SoSFImage image;
    const auto whole = [](const SoImageSize& size, int /*bytesPerPixel*/) { return size; };
    const bool isRead = TextureImageLoader::read(encoded(folder + Picture).constData(), whole, image);
    SbString text;
    image.get(text);
    return {isRead, {}, isRead ? QByteArray(text.getString()) : QByteArray()};
}

void prepareLibrary(const QString& folder)
{
    QFile::copy(QStringLiteral(TEST_PLUGIN), folder + Library);
    QFile::setPermissions(folder + Library, QFile::ReadOwner | QFile::WriteOwner);
}

Outcome checkLibrary(const QString& folder)
{
    const QString reason = PluginLibrary::whyNot(folder + Library);
    return {reason.isEmpty(), reason, {}};
}

Outcome loadLibrary(const QString& folder)
{
    QString reason;
    const auto library = PluginLibrary::load(folder + Library, reason);
    return {library != nullptr, reason, {}};
}

Outcome writeRecord(const QString& folder)
{
    const PluginRecords records(folder + QStringLiteral("/plugins"));
    const auto start = records.begin(folder + Library);
    records.write(folder + Library, {true, QStringLiteral("a reason")});
    const auto found = records.find(folder + Library);
    return {found && found->isQuarantined, {}, {}};
}

void prepareModel(const QString& folder)
{
    ModelReadResult model;
    model.data.meshes.resize(1);
    model.data.meshes[0].index.resize(30000);
    QFile file(folder + Model);
    file.open(QIODevice::WriteOnly);
    writeModelFile(model, file);
}

Outcome readModel(const QString& folder)
{
    ModelReadResult model;
    QFile file(folder + Model);
    const bool isRead = file.open(QIODevice::ReadOnly) && readModelFile(file, model);
    return {isRead, {}, isRead ? QByteArray::number(qulonglong(model.data.meshes.at(0).index.size())) : ""};
}

Outcome writeModel(const QString& folder)
{
    ModelReadResult model;
    model.data.meshes.resize(1);
    model.data.meshes[0].index.resize(50000);
    QFile file(folder + QStringLiteral("/new.result"));
    const bool isWritten = file.open(QIODevice::WriteOnly) && writeModelFile(model, file) && file.flush();
    if (!isWritten)
        QFile::remove(file.fileName()); // as its reader does with what is not whole
    return {isWritten, {}, {}};
}

QByteArray countersFile(int profiles)
{
    return "<perfCounterModule>" + QByteArray("<profile/>").repeated(profiles) + "</perfCounterModule>";
}

void keepCounters(const QString& folder, int profiles)
{
    write(folder + Counters, countersFile(profiles));
    CounterBackup(folder + Counters).start();
}

void prepareCounters(const QString& folder)
{
    qputenv("XDG_CONFIG_HOME", encoded(folder + QStringLiteral("/settings")));
    keepCounters(folder, 1000);
    write(folder + Counters, countersFile(2000));
}

Outcome copyCounters(const QString& folder)
{
    CounterBackup(folder + Counters).start();
    return {true, {}, {}};
}

void damageCounters(const QString& folder)
{
    prepareCounters(folder);
    write(folder + Counters, countersFile(2000).chopped(5));
}

Outcome restoreCounters(const QString& folder)
{
    const QString error = CounterBackup(folder + Counters).restore();
    return {error.isEmpty(), error, {}};
}

void preparePreferences(const QString& folder)
{
    write(folder + PreferencesFile, "SCOPIX_TEST_VALUE = 17\n");
}

Outcome readPreferences(const QString& folder)
{
    qputenv("XSG_PREFERENCES", encoded(folder + PreferencesFile));
    Preferences::feed();
    return {true, {}, {}};
}

Outcome fillDataFolder(const QString& folder)
{
    qputenv("XDG_DATA_HOME", encoded(folder));
    const QString error = DataDirectory::ensure();
    return {error.isEmpty(), error, {}};
}

} // namespace

std::vector<Operation> allOperations()
{
    const auto nothing = [](const QString&) {};
    return {
        {"SaveScene", Operation::Writes, Operation::Speaks, prepareScene, saveScene},
        {"SaveNewScene", Operation::Writes, Operation::Speaks, nothing, saveScene},
        {"ReadScene", Operation::Reads, Operation::Speaks, prepareScene, readScene},
        {"Autosave", Operation::Writes, Operation::Speaks, nothing, autosave},
        {"WriteProfiles", Operation::Writes, Operation::Speaks, prepareProfiles, writeProfiles},
        {"ReadProfiles", Operation::Reads, Operation::Speaks, prepareProfiles, readProfiles},
        {"WriteRecentFiles", Operation::Writes, Operation::IsSilent, prepareRecent, writeRecent},
        {"WritePicture", Operation::Writes, Operation::Speaks, preparePicture, writeScreenshot},
        {"ReadPicture", Operation::Reads, Operation::IsSilent, preparePicture, readPicture},
        {"CheckPlugin", Operation::Reads, Operation::Speaks, prepareLibrary, checkLibrary},
        {"LoadPlugin", Operation::Reads, Operation::Speaks, prepareLibrary, loadLibrary},
        {"RememberPlugin", Operation::Writes, Operation::IsSilent, prepareLibrary, writeRecord},
        {"ReadModelResult", Operation::Reads, Operation::IsSilent, prepareModel, readModel},
        {"ReadPreferences", Operation::Reads, Operation::IsSilent, preparePreferences, readPreferences},
        {"FillDataFolder", Operation::Writes, Operation::Speaks, nothing, fillDataFolder},
        {"CopyCounters", Operation::Writes, Operation::IsSilent, prepareCounters, copyCounters},
        {"RestoreCounters", Operation::Writes, Operation::Speaks, damageCounters, restoreCounters},
        {"WriteModelResult", Operation::Writes, Operation::IsSilent, nothing, writeModel},
    };
}
