// SPDX-License-Identifier: MIT
// How long the window does not answer while a large scene is opened, given up and kept: the longest time for
// which no event came through, and the time that the whole took. Takes the number of nodes to open, 1,000,000
// unless given. Run it with QT_QPA_PLATFORM=offscreen where there is no display.
#include "document/Autosave.h"
#include "services/HostServices.h"
#include "support/SetText.h"
#include "support/UserNotifier.h"
#include "viewport/SceneView.h"
#include "window/MainWindow.h"
#include "world_scene.h"

#include <xsg/core/SoField.h>
#include <xsg/files/SoSceneFile.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <QApplication>
#include <QBasicTimer>
#include <QElapsedTimer>
#include <QProgressDialog>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace scopix;

namespace
{

constexpr int NodesPerSeparator = 3;
constexpr int KeptNodes = 100'000;

// Comes with every turn of the event loop, and notes the longest time between two.
class Beat : public QObject
{
public:
    Beat() { m_timer.start(0, this); }
    void begin()
    {
        m_whole.start();
        m_sinceLast.start();
        m_longest = 0;
    }
    void end(const char* what)
    {
        beat();
        std::printf("%-46s %8.1f ms, the longest hold %7.1f ms\n", what,
                    static_cast<double>(m_whole.nsecsElapsed()) / 1e6, static_cast<double>(m_longest) / 1e6);
        std::fflush(stdout);
        begin();
    }

protected:
    void timerEvent(QTimerEvent* /*event*/) override { beat(); }

private:
    void beat()
    {
        m_longest = std::max(m_longest, m_sinceLast.nsecsElapsed());
        m_sinceLast.start();
    }

    QBasicTimer m_timer;
    QElapsedTimer m_whole;
    QElapsedTimer m_sinceLast;
    qint64 m_longest = 0;
};

template <class Condition>
void runUntil(Condition condition)
{
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void turns(int count)
{
    for (int i = 0; i < count; ++i)
        QCoreApplication::processEvents();
}

QString writeWorld(const QTemporaryDir& folder, int nodes)
{
    const QString path = folder.filePath(QString::number(nodes) + QStringLiteral(".xsg"));
    std::string error;
    SoSceneFile::write(makeWorld(nodes / NodesPerSeparator).get(), path.toStdString(), error);
    return path;
}

class Session
{
public:
    Session()
    {
        QObject::connect(&m_window, &HostWindow::openFinished,
                         [this](bool good) { m_opened += good ? 1 : 0; });
        QObject::connect(&m_window.getFiles().getDocument(), &SceneDocument::rootChanged,
                         [this](SoNode* /*root*/) { m_beat.end("  it is read, and the views have it"); });
        m_window.show();
        turns(10);
    }
    void open(const QString& path)
    {
        const int before = m_opened;
        m_beat.begin();
        m_window.openFile(path);
        runUntil([&] { return m_opened > before; });
        m_beat.end("  what was open before goes");
        drawn();
        m_beat.end("  the view has drawn it");
        view().getCamera().position.setValue(view().getCamera().position.getValue() + SbVec3f(1, 0, 0));
        view().setWireframe(false);
        drawn();
        m_beat.end("  and once more, from another place");
    }
    void cancel(const QString& path)
    {
        m_beat.begin();
        m_window.getFiles().open(path);
        const auto dialog = [&] { return m_window.findChild<QProgressDialog*>("importProgress"); };
        runUntil([&] { return !dialog() || dialog()->value() >= 50; });
        m_beat.end("  half of it is read");
        if (dialog())
            emit dialog()->canceled();
        m_beat.end("  it is given up");
        turns(5000);
        m_beat.end("  and what was read of it goes");
    }
    void keep()
    {
        Autosave& autosave = m_window.getFiles().getAutosave();
        autosave.setPause(1);
        autosave.start();
        m_beat.begin();
        edit("1 2 3");
        auto* writer = autosave.findChild<SnapshotWriter*>();
        runUntil([&] { return writer->isBusy(); });
        runUntil([&] { return !writer->isBusy(); });
        m_beat.end("  the first edit: a snapshot");
        std::printf("%-46s %8lld ms, the longest moment %5lld ms\n", "    of that, making the text",
                    static_cast<long long>(writer->getLastBlockedMs()),
                    static_cast<long long>(writer->getLongestBlockMs()));
        m_beat.begin();
        edit("4 5 6");
        autosave.keepNow();
        m_beat.end("  another one, on the disk at once");
        autosave.drop();
        drawn();
    }

private:
    SceneView& view() { return *m_window.findChild<SceneView*>(); }
    // Until nothing is left to draw.
    void drawn()
    {
        for (int before = -1; before != view().getDrawCount();) {
            before = view().getDrawCount();
            turns(10);
            runUntil([&] { return !view().isDrawing(); });
        }
    }
    void edit(const char* value)
    {
        m_window.selectField(QStringLiteral("Transform"), QStringLiteral("translation"));
        m_services.executeCommand(new SetText(m_services.selectedField(), value));
        SoSensorQueue::getInstance().process();
    }

    UserNotifier m_notifier;
    HostServices m_services;
    MainWindow m_window{m_services, m_notifier};
    Beat m_beat;
    int m_opened = 0;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    qputenv("XDG_CONFIG_HOME", folder.path().toLocal8Bit());
    const int nodes = argc > 1 ? std::atoi(argv[1]) : 1'000'000;
    const QString large = writeWorld(folder, nodes);
    const QString kept = writeWorld(folder, KeptNodes);
    Session session;
    std::printf("A scene of %d nodes is opened and given up:\n", nodes);
    session.cancel(large);
    std::printf("A scene of %d nodes is opened and edited:\n", KeptNodes);
    session.open(kept);
    session.keep();
    std::printf("A scene of %d nodes is opened:\n", nodes);
    session.open(large);
    return 0;
}
