// SPDX-License-Identifier: MIT
#include "window/LiveActs.h"

#include "live/LiveCounters.h"
#include "live/LiveReplay.h"
#include "live/LiveScene.h"
#include "live/SocketLink.h"
#include "panels/FieldListView.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "support/OwnLibrary.h"
#include "support/Printable.h"
#include "support/UserNotifier.h"
#include "text/NodeText.h"
#include "viewport/SceneView.h"
#include "window/AttachDialog.h"
#include "window/SceneFiles.h"

#include <xsg/core/SoField.h>
#include <xsg/frames/SoFrameLog.h>
#include <xsg/values/SbRotation.h>

#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace scopix
{

namespace
{

constexpr int PulseMs = 500;
constexpr double SilentSeconds = 2;
constexpr std::uint32_t MostFound = 1000;

// Beside the host's own library.
QStringList preloadedLibraries()
{
    return {OwnLibrary::folder() + QStringLiteral("/libscopix-live-osg.so")};
}

QString changesText(int count)
{
    return count == 1 ? LiveActs::tr("1 change") : LiveActs::tr("%L1 changes").arg(count);
}

// From the same side as before, so far away that the box is seen as a whole.
live::Camera cameraAt(live::Camera camera, const double* box)
{
    double centre[3];
    double radius = 0;
    for (int i = 0; i < 3; ++i) {
        centre[i] = (box[i] + box[i + 3]) / 2;
        radius += (box[i + 3] - centre[i]) * (box[i + 3] - centre[i]);
    }
    radius = std::max(std::sqrt(radius), 1e-6);
    const float turn[] = {static_cast<float>(camera.rotation[0]), static_cast<float>(camera.rotation[1]),
                          static_cast<float>(camera.rotation[2]), static_cast<float>(camera.rotation[3])};
    const SbVec3f ahead = SbRotation(turn).multVec(SbVec3f(0, 0, -1));
    const double half = camera.verticalAngle > 0 ? camera.verticalAngle / 2 : 0.4;
    const double distance = radius / std::sin(half);
    for (int i = 0; i < 3; ++i)
        camera.position[i] = centre[i] - distance * static_cast<double>(ahead[i]);
    camera.height = 2 * radius;
    return camera;
}

} // namespace

// A program, and what is shown of it when it is in front.
struct LiveActs::Attached {
    Attached(OpenScene& at, std::unique_ptr<LiveScene> live)
        : place(at)
        , scene(std::move(live))
        , counters(scene->getLink().program().name, scene->getLink().counters())
    {
    }
    bool isOver() const { return scene->getState() == LiveScene::State::Ended; }

    OpenScene& place;
    std::unique_ptr<LiveScene> scene;
    LiveCounters counters;
    QImage picture; // null until the first came
    QString note;
    bool isLaunched = false; // from here, by the latest order
    bool isReady = false;
    bool showsFrames = false; // to whoever looks at frames here
};

LiveActs::LiveActs(QMenu& menu, const Parts& parts)
    : m_parts(parts)
    , m_picture(new LivePicture(parts.view))
{
    m_picture->hide();
    addActions(menu);
    connect(&menu, &QMenu::aboutToShow, this, &LiveActs::updateActions);
    OpenScenes& scenes = parts.files.getScenes();
    connect(&scenes, &OpenScenes::rootChanged, this, &LiveActs::rootChanged);
    connect(&scenes, &OpenScenes::aboutToLeave, this, &LiveActs::rest);
    connect(&scenes, &OpenScenes::entered, this, [this] {
        if (LiveScene* scene = getScene())
            scene->setInFront(true);
    });
    connect(&scenes, &OpenScenes::aboutToRemove, this, [this](const OpenScene& scene) {
        if (const Attached* attached = findAttached(scene))
            leave(*attached);
    });
    connect(&parts.services, &HostServices::selectionChanged, this, [this] {
        if (LiveScene* scene = getScene())
            scene->follow(m_parts.services.getSelectedNodes());
    });
    connect(&parts.tree, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        auto* node = dynamic_cast<LiveNode*>(m_parts.tree.getModel().nodeAt(index));
        LiveScene* scene = getScene();
        if (scene && node && node->getScene() == scene)
            scene->fold(*node);
    });
    connect(m_picture, &LivePicture::clicked, this, &LiveActs::pick);
    connect(m_picture, &LivePicture::offerTaken, this, &LiveActs::launchAgain);
    connect(m_picture, &LivePicture::wanted, this, [this](const QSize& size) {
        LiveScene* scene = getScene();
        if (scene && scene->getState() != LiveScene::State::Ended)
            scene->getLink().showPictures(static_cast<std::uint32_t>(size.width()),
                                          static_cast<std::uint32_t>(size.height()));
    });
    connect(&m_pulse, &QTimer::timeout, this, &LiveActs::checkPulse);
    updateActions();
}

LiveActs::~LiveActs() = default;

void LiveActs::addActions(QMenu& menu)
{
    const auto add = [&](const QString& text, const char* name, void (LiveActs::*act)(), int key) {
        QAction* action = menu.addAction(text, this, act, key);
        action->setObjectName(QLatin1String(name));
        return action;
    };
    m_attach = add(tr("A&ttach to a Program…"), "attachAction", &LiveActs::askForProgram, Qt::Key_F7);
    add(tr("La&unch a Program…"), "launchAction", &LiveActs::askForLaunch, Qt::CTRL + Qt::SHIFT + Qt::Key_F7);
    m_launchAgain =
        add(tr("Launch A&gain"), "launchAgainAction", &LiveActs::launchAgain, Qt::CTRL + Qt::ALT + Qt::Key_L);
    m_detach = add(tr("&Detach"), "detachAction", &LiveActs::detach, Qt::SHIFT + Qt::Key_F7);
    m_takeBack =
        add(tr("Take My Changes &Back"), "takeBackAction", &LiveActs::takeBack, Qt::CTRL + Qt::Key_F7);
    m_look = add(tr("&Look at the Selected Node in the Program"), "lookAtAction", &LiveActs::lookAtSelected,
                 Qt::Key_F8);
}

LiveScene* LiveActs::getScene() const
{
    return m_front ? m_front->scene.get() : nullptr;
}

LiveActs::Attached* LiveActs::findAttached(const OpenScene& scene) const
{
    const auto found = std::find_if(m_all.begin(), m_all.end(),
                                    [&scene](const auto& each) { return &each->place == &scene; });
    return found == m_all.end() ? nullptr : found->get();
}

LiveActs::Attached* LiveActs::findAttached(const LiveScene* scene) const
{
    const auto found = std::find_if(m_all.begin(), m_all.end(),
                                    [scene](const auto& each) { return each->scene.get() == scene; });
    return found == m_all.end() ? nullptr : found->get();
}

void LiveActs::updateActions()
{
    LiveScene* scene = getScene();
    const bool isAttached = scene && scene->getState() != LiveScene::State::Ended;
    m_launchAgain->setEnabled(!m_launched.command.isEmpty());
    m_detach->setEnabled(isAttached);
    m_takeBack->setEnabled(isAttached && !scene->getEdits().getChanges().isEmpty());
    m_look->setEnabled(isAttached && scene->getLink().abilities().camera);
}

// --- Attaching

void LiveActs::attach(const QString& word)
{
    QString problem;
    const auto program = findProgram(word, problem);
    if (program)
        attachTo(QString::fromStdString(program->socketPath));
    else
        fail(problem);
}

void LiveActs::askForLaunch()
{
    LaunchDialog dialog(m_launched, &m_parts.window);
    if (dialog.exec() == QDialog::Accepted)
        launch(dialog.getOrder());
}

void LiveActs::launchAgain()
{
    if (m_launched.command.isEmpty())
        return m_parts.notifier.info(tr("No program was launched from this window yet."));
    launch(LaunchOrder(m_launched));
}

void LiveActs::launch(const LaunchOrder& order)
{
    m_launched = order;
    updateActions();
    delete m_launch;
    m_launch = new LiveLaunch(this);
    connect(m_launch, &LiveLaunch::found, this, [this, order](const QString& socket) {
        m_launch->deleteLater();
        attachTo(socket, order);
    });
    connect(m_launch, &LiveLaunch::failed, this, [this](const QString& sentence) {
        m_launch->deleteLater();
        fail(sentence);
    });
    m_launch->start(order.command, preloadedLibraries(), order.folder);
}

void LiveActs::attachTo(const QString& socketPath, const LaunchOrder& launched)
{
    auto link = std::make_unique<SocketLink>();
    const QString problem = link->connectTo(socketPath);
    if (problem.isEmpty())
        show(std::move(link), !launched.command.isEmpty());
    else
        fail(problem);
}

void LiveActs::fail(const QString& sentence)
{
    m_parts.notifier.error(sentence);
    emit attached(false);
}

void LiveActs::askForProgram()
{
    AttachDialog dialog(&m_parts.window);
    if (dialog.exec() == QDialog::Accepted && !dialog.chosenSocket().isEmpty())
        attachTo(dialog.chosenSocket());
}

// One that has ended makes room; everything else stays open.
OpenScene& LiveActs::placeForAnother()
{
    OpenScenes& scenes = m_parts.files.getScenes();
    return m_front && m_front->isOver() ? scenes.getFront() : scenes.add();
}

void LiveActs::show(std::unique_ptr<LiveLink> link, bool isLaunched)
{
    OpenScene& place = placeForAnother();
    if (const Attached* ended = findAttached(place))
        leave(*ended);
    LiveLink& to = *link;
    m_all.push_back(
        std::make_unique<Attached>(place, std::make_unique<LiveScene>(std::move(link), m_parts.services)));
    Attached& attached = *m_all.back();
    attached.isLaunched = isLaunched;
    LiveScene& scene = *attached.scene;
    if (!to.abilities().picture)
        attached.note = tr("“%1” shows no picture here.").arg(scene.getName());
    connectScene(attached);
    place.getDocument().beginExternal(scene.getRoot(),
                                      tr("%1, process %2").arg(scene.getName()).arg(to.program().pid));
    if (!to.counters().empty())
        to.showCounters(true);
    m_pulse.start(PulseMs);
    scene.getWays().whenUnfolded(scene.getRootNode(), [this, live = &scene] {
        if (Attached* still = findAttached(live))
            unfolded(*still);
    });
}

// Where a picture is on its way, it is waited for.
void LiveActs::unfolded(Attached& attached)
{
    if (!attached.scene->getLink().abilities().picture || !isFront(attached) || !m_picture->isVisible())
        ready(attached);
}

void LiveActs::connectScene(Attached& attached)
{
    LiveScene* scene = attached.scene.get();
    connect(scene, &LiveScene::told, &m_parts.notifier, &UserNotifier::info);
    connect(scene, &LiveScene::fieldsCame, this, &LiveActs::fieldsCame);
    connect(scene, &LiveScene::stateChanged, this, [this, &attached] { stateChanged(attached); });
    connect(scene, &LiveScene::inserted, this, &LiveActs::inserted);
    connect(scene, &LiveScene::remarked, this, [this] { m_parts.fields.lookAgain(); });
    connect(scene, &LiveScene::countersRead, this,
            [&attached](const std::vector<double>& values) { attached.counters.show(values); });
    connect(scene, &LiveScene::pictureShown, this, [this, &attached](const QImage& picture) {
        attached.picture = picture;
        if (isFront(attached))
            m_picture->setPicture(picture);
        ready(attached);
    });
}

void LiveActs::inserted(const QList<SoPath>& paths)
{
    m_parts.tree.getModel().followNow();
    m_parts.services.selectPaths(paths);
}

// What is shown of the program in front, from the first moment on as it was when it was in front last.
void LiveActs::showPicture()
{
    m_picture->hide();
    m_parts.view.setLogsFrames(!m_front); // it is hidden
    if (!m_front)
        return;
    m_picture->setPicture(m_front->picture);
    showState(*m_front);
    m_picture->show();
    m_picture->raise();
}

void LiveActs::showState(const Attached& attached)
{
    m_picture->setGrey(attached.scene->getState() != LiveScene::State::Attached);
    m_picture->setNote(attached.note);
    m_picture->setOffer(attached.isOver() && attached.isLaunched ? tr("Launch Again") : QString());
}

void LiveActs::ready(Attached& attached)
{
    if (std::exchange(attached.isReady, true))
        return;
    if (isFront(attached))
        m_parts.tree.expandToDepth(0);
    m_parts.notifier.info(tr("Attached to “%1”.").arg(attached.scene->getName()));
    findWanted(*attached.scene);
}

void LiveActs::findWanted(LiveScene& scene)
{
    const QString text = std::exchange(m_wanted, {});
    const QPointer<LiveScene> in(&scene);
    const auto found = [this, in, text](const std::vector<SoNode*>& nodes) {
        if (in)
            showWanted(*in, nodes, text);
    };
    if (text.isEmpty() || !findIn(scene, text, found))
        showWanted(scene, {}, text);
}

// The first that is called so, or else whose type is.
void LiveActs::showWanted(LiveScene& scene, const std::vector<SoNode*>& found, const QString& text)
{
    const auto isCalled = [&text](const SoNode* node) { return toQString(node->getName()) == text; };
    const auto isOfType = [&text](const SoNode* node) { return typeText(node->getTypeId()) == text; };
    auto wanted = std::find_if(found.begin(), found.end(), isCalled);
    if (wanted == found.end())
        wanted = std::find_if(found.begin(), found.end(), isOfType);
    auto* node = wanted == found.end() ? nullptr : dynamic_cast<LiveNode*>(*wanted);
    const auto end = [this, to = &scene] { // which outlives what it waits for
        emit attached(true);
        offerChanges(*to);
    };
    if (node)
        scene.whenShown(*node, end);
    else
        end();
}

// What is shown anew has to be asked for its fields by everybody.
void LiveActs::fieldsCame(SoFieldContainer* node)
{
    if (!m_parts.services.getSelectedNodes().contains(node))
        return;
    const QList<SoPath> paths = m_parts.services.getSelectedPaths();
    m_parts.services.clearSelection();
    if (paths.isEmpty())
        m_parts.services.select(node);
    else
        m_parts.services.selectPaths(paths);
}

// --- In the program's picture

void LiveActs::pick(const QPointF& place)
{
    const QPointer<LiveScene> scene(getScene());
    if (!scene || scene->getState() != LiveScene::State::Attached)
        return;
    if (!scene->getLink().abilities().pick)
        return m_parts.notifier.info(
            tr("“%1” does not tell what is under a place of its picture.").arg(scene->getName()));
    scene->getLink().pick(place.x(), place.y(), [this, scene](const live::PickResult& result) {
        if (!scene || getScene() != scene)
            return;
        if (!result.hit)
            return m_parts.services.clearSelection();
        scene->getWays().find(result.path, [this, scene](const SoPath& path) {
            if (getScene() != scene)
                return;
            m_parts.tree.getModel().followNow();
            m_parts.tree.selectPath(path);
        });
    });
}

void LiveActs::lookAtSelected()
{
    const auto* node = dynamic_cast<const LiveNode*>(m_parts.services.selectedNode());
    const QPointer<LiveScene> scene(getScene());
    if (!node || !scene || node->getScene() != scene)
        return m_parts.notifier.info(tr("No node is selected: select one in the tree or in the view first."));
    scene->getLink().box(node->getId(), [this, scene](const std::optional<live::Value>& box) {
        double corners[6];
        if (!scene || !box || box->bytes.size() != sizeof corners)
            return m_parts.notifier.info(tr("The selected node has no extent that could be looked at."));
        std::memcpy(corners, box->bytes.data(), sizeof corners);
        const std::vector<double> kept(corners, corners + 6);
        scene->getLink().camera([scene, kept](const std::optional<live::Camera>& camera) {
            if (scene && camera)
                scene->getLink().lookFrom(cameraAt(*camera, kept.data()), [](bool) {});
        });
    });
}

bool LiveActs::find(const QString& query, const Found& found)
{
    LiveScene* scene = getScene();
    return scene && findIn(*scene, query, [this, in = QPointer<LiveScene>(scene), found](const auto& nodes) {
               if (in && getScene() == in)
                   found(nodes);
           });
}

bool LiveActs::findIn(LiveScene& in, const QString& query, const Found& found)
{
    if (in.getState() != LiveScene::State::Attached || !in.getLink().abilities().find)
        return false;
    const QPointer<LiveScene> scene(&in);
    using Paths = std::vector<std::vector<live::NodeId>>;
    scene->getLink().find(query.toStdString(), MostFound, [scene, found](const Paths& paths) {
        auto nodes = std::make_shared<std::vector<SoNode*>>();
        auto left = std::make_shared<std::size_t>(paths.size());
        if (paths.empty())
            found({});
        for (const auto& path : paths) {
            scene->getWays().find(
                path, [nodes, left, found, length = static_cast<int>(path.size())](const SoPath& way) {
                    if (way.getLength() == length + 1)
                        nodes->push_back(way.getTail());
                    if (--*left == 0)
                        found(*nodes);
                });
        }
    });
    return true;
}

// --- Ends

void LiveActs::checkPulse()
{
    bool isAnyAlive = false;
    for (const auto& each : m_all) {
        if (each->isOver())
            continue;
        isAnyAlive = true;
        showFramesWhereWanted(*each);
        LiveLink& link = each->scene->getLink();
        const double waiting = link.secondsWaiting();
        each->scene->setSilent(waiting > SilentSeconds);
        if (waiting == 0.0)
            link.node(0, [](const std::optional<live::NodeInfo>&) {});
    }
    if (!isAnyAlive)
        m_pulse.stop();
}

void LiveActs::showFramesWhereWanted(Attached& attached)
{
    const bool isWanted = isFront(attached) && SoFrameLog::getInstance().isOn();
    if (std::exchange(attached.showsFrames, isWanted) != isWanted)
        attached.scene->getLink().showFrames(isWanted);
}

void LiveActs::stateChanged(Attached& attached)
{
    const LiveScene::State state = attached.scene->getState();
    attached.note.clear();
    if (state == LiveScene::State::Silent)
        showSilence(attached);
    else if (state == LiveScene::State::Ended)
        showEnd(attached);
    if (isFront(attached))
        showState(attached);
    m_parts.tree.viewport()->update();
    m_parts.fields.lookAgain();
    updateActions();
}

void LiveActs::showSilence(Attached& attached)
{
    attached.note = tr("“%1” has not answered for 2 seconds; what it showed last stays, and "
                       "cannot be edited before it answers again.")
                        .arg(attached.scene->getName());
    m_parts.notifier.info(attached.note);
}

void LiveActs::showEnd(Attached& attached)
{
    keepChanges(attached);
    const int count = static_cast<int>(attached.scene->getEdits().getChanges().getCount());
    attached.note = attached.scene->getEnd();
    if (count > 0)
        attached.note += QLatin1Char(' ') + tr("Kept for when you attach to “%1” again: %2.")
                                                .arg(attached.scene->getName(), changesText(count));
    m_parts.notifier.info(attached.note);
    if (!std::exchange(attached.isReady, true))
        emit this->attached(false);
}

void LiveActs::detach()
{
    if (LiveScene* scene = getScene())
        scene->detach();
}

void LiveActs::rootChanged(const SoNode* root)
{
    Attached* here = findAttached(m_parts.files.getScenes().getFront());
    if (here && here->scene->getRoot() != root) {
        leave(*here);
        here = nullptr;
    }
    m_front = here;
    showPicture();
}

// Another scene comes to the front: what was edited goes to the program first, and nothing is looked at.
void LiveActs::rest()
{
    if (!m_front)
        return;
    m_front->scene->getEdits().flush(true);
    m_front->scene->setInFront(false);
    m_picture->hide();
    if (!m_front->isOver() && std::exchange(m_front->showsFrames, false))
        m_front->scene->getLink().showFrames(false);
}

// Its nodes may be in use until the event loop runs.
void LiveActs::leave(const Attached& attached)
{
    keepChanges(attached);
    if (isFront(attached)) {
        m_front = nullptr;
        showPicture();
    }
    const auto at = std::find_if(m_all.begin(), m_all.end(),
                                 [&attached](const auto& each) { return each.get() == &attached; });
    LiveScene* scene = (*at)->scene.release();
    scene->disconnect(this);
    scene->disconnect(&m_parts.notifier);
    scene->detach();
    scene->setParent(this);
    scene->deleteLater();
    m_all.erase(at);
}

// --- Changes that outlive the program

void LiveActs::keepChanges(const Attached& attached)
{
    const LiveChanges& changes = attached.scene->getEdits().getChanges();
    if (!changes.isEmpty())
        m_kept[attached.scene->getName()] = {changes.getAll(), attached.scene->getLink().program().pid};
}

void LiveActs::offerChanges(LiveScene& scene)
{
    const QString name = scene.getName();
    const auto kept = m_kept.find(name);
    if (kept == m_kept.end() || kept->second.process == scene.getLink().program().pid ||
        !m_parts.notifier.isAttended())
        return;
    auto* box = new QMessageBox(QMessageBox::Question, QApplication::applicationDisplayName(),
                                tr("Apply %1 of the last run of “%2” again?")
                                    .arg(changesText(static_cast<int>(kept->second.changes.size())), name),
                                QMessageBox::NoButton, &m_parts.window);
    box->setObjectName(QStringLiteral("applyLiveChanges"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    const QAbstractButton* yes = box->addButton(tr("&Apply"), QMessageBox::AcceptRole);
    box->addButton(tr("&Leave It as It Is"), QMessageBox::RejectRole);
    const QPointer<LiveScene> to(&scene);
    connect(box, &QMessageBox::buttonClicked, this, [this, yes, to, name](const QAbstractButton* button) {
        const Changes changes = std::exchange(m_kept[name].changes, {});
        m_kept.erase(name);
        if (button == yes && to && findAttached(to))
            apply(*to, changes, false);
    });
    box->open();
}

void LiveActs::takeBack()
{
    if (LiveScene* scene = getScene())
        apply(*scene, scene->getEdits().getChanges().getAll(), true);
}

void LiveActs::apply(LiveScene& scene, const Changes& changes, bool isBefore)
{
    auto* replay = new LiveReplay(scene, m_parts.services, changes,
                                  isBefore ? LiveReplay::Which::Before : LiveReplay::Which::After);
    connect(replay, &LiveReplay::finished, this, [this](int written, const QStringList& missing) {
        for (const QString& path : missing)
            UserNotifier::note(path,
                               tr("A change of the last run does not fit here any more and is left out."));
        m_parts.notifier.info(
            missing.isEmpty()
                ? tr("Written to the program: %1.").arg(changesText(written))
                : tr("Written to the program: %1; the console lists those that do not fit any more.")
                      .arg(changesText(written)));
    });
    replay->start();
}

} // namespace scopix
