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

LiveActs::LiveActs(QMenu& menu, const Parts& parts)
    : m_parts(parts)
    , m_picture(new LivePicture(parts.view))
{
    m_picture->hide();
    addActions(menu);
    connect(&menu, &QMenu::aboutToShow, this, &LiveActs::updateActions);
    connect(&parts.files.getDocument(), &SceneDocument::rootChanged, this, &LiveActs::rootChanged);
    connect(&parts.services, &HostServices::selectionChanged, this, [this] {
        if (m_scene)
            m_scene->follow(m_parts.services.getSelectedNodes());
    });
    connect(&parts.tree, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        auto* node = dynamic_cast<LiveNode*>(m_parts.tree.getModel().nodeAt(index));
        if (m_scene && node && node->getScene() == m_scene.get())
            m_scene->fold(*node);
    });
    connect(m_picture, &LivePicture::clicked, this, &LiveActs::pick);
    connect(m_picture, &LivePicture::offerTaken, this, &LiveActs::launchAgain);
    connect(m_picture, &LivePicture::wanted, this, [this](const QSize& size) {
        if (m_scene && m_scene->getState() != LiveScene::State::Ended)
            m_scene->getLink().showPictures(static_cast<std::uint32_t>(size.width()),
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

void LiveActs::updateActions()
{
    const bool isAttached = m_scene && m_scene->getState() != LiveScene::State::Ended;
    m_launchAgain->setEnabled(!m_launched.command.isEmpty());
    m_detach->setEnabled(isAttached);
    m_takeBack->setEnabled(isAttached && !m_scene->getEdits().getChanges().isEmpty());
    m_look->setEnabled(isAttached && m_scene->getLink().abilities().camera);
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
    if (!problem.isEmpty())
        return fail(problem);
    if (!m_parts.files.confirmDiscard()) {
        emit attached(false);
        return;
    }
    show(std::move(link));
    m_isLaunched = !launched.command.isEmpty();
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

void LiveActs::show(std::unique_ptr<LiveLink> link)
{
    leave();
    m_parts.view.setLogsFrames(false); // it is hidden
    m_scene = std::make_unique<LiveScene>(std::move(link), m_parts.services);
    LiveLink& to = m_scene->getLink();
    connectScene();
    m_parts.files.getDocument().beginExternal(
        m_scene->getRoot(), tr("%1, process %2").arg(m_scene->getName()).arg(to.program().pid));
    m_counters = std::make_unique<LiveCounters>(to.program().name, to.counters());
    if (!to.counters().empty())
        to.showCounters(true);
    m_isReady = false;
    m_picture->setPicture({});
    m_picture->setGrey(false);
    m_picture->setOffer({});
    m_picture->setNote(to.abilities().picture ? QString()
                                              : tr("“%1” shows no picture here.").arg(m_scene->getName()));
    m_picture->show();
    m_picture->raise();
    m_pulse.start(PulseMs);
    m_scene->whenUnfolded(static_cast<LiveNode&>(*m_scene->getRoot()), [this] {
        if (!m_scene->getLink().abilities().picture || !m_picture->isVisible())
            ready();
    });
}

void LiveActs::connectScene()
{
    connect(m_scene.get(), &LiveScene::told, &m_parts.notifier, &UserNotifier::info);
    connect(m_scene.get(), &LiveScene::fieldsCame, this, &LiveActs::fieldsCame);
    connect(m_scene.get(), &LiveScene::stateChanged, this, &LiveActs::stateChanged);
    connect(m_scene.get(), &LiveScene::inserted, this, &LiveActs::inserted);
    connect(m_scene.get(), &LiveScene::remarked, this, [this] { m_parts.fields.lookAgain(); });
    connect(m_scene.get(), &LiveScene::countersRead, this, [this](const std::vector<double>& values) {
        if (m_counters)
            m_counters->show(values);
    });
    connect(m_scene.get(), &LiveScene::pictureShown, this, [this](const QImage& picture) {
        m_picture->setPicture(picture);
        ready();
    });
}

void LiveActs::inserted(const QList<SoPath>& paths)
{
    m_parts.tree.getModel().followNow();
    m_parts.services.selectPaths(paths);
}

void LiveActs::ready()
{
    if (std::exchange(m_isReady, true))
        return;
    m_parts.tree.expandToDepth(0);
    m_parts.notifier.info(tr("Attached to “%1”.").arg(m_scene->getName()));
    findWanted();
}

void LiveActs::findWanted()
{
    const QString text = std::exchange(m_wanted, {});
    const auto found = [this, text](const std::vector<SoNode*>& nodes) { showWanted(nodes, text); };
    if (text.isEmpty() || !find(text, found))
        showWanted({}, text);
}

// The first that is called so, or else whose type is.
void LiveActs::showWanted(const std::vector<SoNode*>& found, const QString& text)
{
    const auto isCalled = [&text](const SoNode* node) { return toQString(node->getName()) == text; };
    const auto isOfType = [&text](const SoNode* node) { return typeText(node->getTypeId()) == text; };
    auto wanted = std::find_if(found.begin(), found.end(), isCalled);
    if (wanted == found.end())
        wanted = std::find_if(found.begin(), found.end(), isOfType);
    auto* node = wanted == found.end() ? nullptr : dynamic_cast<LiveNode*>(*wanted);
    const auto end = [this] {
        emit attached(true);
        offerChanges();
    };
    if (node)
        m_scene->whenShown(*node, end);
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
    if (!m_scene || m_scene->getState() != LiveScene::State::Attached)
        return;
    if (!m_scene->getLink().abilities().pick)
        return m_parts.notifier.info(
            tr("“%1” does not tell what is under a place of its picture.").arg(m_scene->getName()));
    const QPointer<LiveScene> scene(m_scene.get());
    m_scene->getLink().pick(place.x(), place.y(), [this, scene](const live::PickResult& result) {
        if (!scene || m_scene.get() != scene)
            return;
        if (!result.hit)
            return m_parts.services.clearSelection();
        scene->findPath(result.path, [this](const SoPath& path) {
            m_parts.tree.getModel().followNow();
            m_parts.tree.selectPath(path);
        });
    });
}

void LiveActs::lookAtSelected()
{
    const auto* node = dynamic_cast<const LiveNode*>(m_parts.services.selectedNode());
    if (!node || node->getScene() != m_scene.get())
        return m_parts.notifier.info(tr("No node is selected: select one in the tree or in the view first."));
    const QPointer<LiveScene> scene(m_scene.get());
    m_scene->getLink().box(node->getId(), [this, scene](const std::optional<live::Value>& box) {
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

bool LiveActs::find(const QString& query, const std::function<void(const std::vector<SoNode*>&)>& found)
{
    if (!m_scene || m_scene->getState() != LiveScene::State::Attached || !m_scene->getLink().abilities().find)
        return false;
    const QPointer<LiveScene> scene(m_scene.get());
    using Paths = std::vector<std::vector<live::NodeId>>;
    m_scene->getLink().find(query.toStdString(), MostFound, [scene, found](const Paths& paths) {
        auto nodes = std::make_shared<std::vector<SoNode*>>();
        auto left = std::make_shared<std::size_t>(paths.size());
        if (paths.empty())
            found({});
        for (const auto& path : paths) {
            scene->findPath(path,
                            [nodes, left, found, length = static_cast<int>(path.size())](const SoPath& way) {
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
    if (!m_scene || m_scene->getState() == LiveScene::State::Ended)
        return m_pulse.stop();
    showFramesWhereWanted();
    LiveLink& link = m_scene->getLink();
    const double waiting = link.secondsWaiting();
    m_scene->setSilent(waiting > SilentSeconds);
    if (waiting == 0.0)
        link.node(0, [](const std::optional<live::NodeInfo>&) {});
}

void LiveActs::showFramesWhereWanted()
{
    const bool isWanted = SoFrameLog::getInstance().isOn();
    if (std::exchange(m_showsFrames, isWanted) != isWanted)
        m_scene->getLink().showFrames(isWanted);
}

void LiveActs::stateChanged()
{
    const LiveScene::State state = m_scene->getState();
    m_picture->setGrey(state != LiveScene::State::Attached);
    m_picture->setNote({});
    if (state == LiveScene::State::Silent) {
        const QString sentence = tr("“%1” has not answered for 2 seconds; what it showed last stays, and "
                                    "cannot be edited before it answers again.")
                                     .arg(m_scene->getName());
        m_picture->setNote(sentence);
        m_parts.notifier.info(sentence);
    } else if (state == LiveScene::State::Ended) {
        showEnd();
    }
    m_parts.tree.viewport()->update();
    m_parts.fields.lookAgain();
    updateActions();
}

void LiveActs::showEnd()
{
    m_pulse.stop();
    keepChanges();
    const int count = static_cast<int>(m_scene->getEdits().getChanges().getCount());
    QString sentence = m_scene->getEnd();
    if (count > 0)
        sentence +=
            QLatin1Char(' ') +
            tr("Kept for when you attach to “%1” again: %2.").arg(m_scene->getName(), changesText(count));
    m_picture->setNote(sentence);
    m_picture->setOffer(m_isLaunched ? tr("Launch Again") : QString());
    m_parts.notifier.info(sentence);
    if (!std::exchange(m_isReady, true))
        emit attached(false);
}

void LiveActs::detach()
{
    if (m_scene)
        m_scene->detach();
}

void LiveActs::rootChanged(const SoNode* root)
{
    if (m_scene && m_scene->getRoot() != root)
        leave();
}

// Its nodes may be in use until the event loop runs.
void LiveActs::leave()
{
    if (!m_scene)
        return;
    m_pulse.stop();
    keepChanges();
    m_isLaunched = m_showsFrames = false;
    m_parts.view.setLogsFrames(true);
    LiveScene* scene = m_scene.release();
    scene->disconnect(this);
    scene->disconnect(&m_parts.notifier);
    scene->detach();
    scene->setParent(this);
    scene->deleteLater();
    m_counters.reset();
    m_picture->hide();
    m_isReady = true;
}

// --- Changes that outlive the program

void LiveActs::keepChanges()
{
    if (m_scene->getEdits().getChanges().isEmpty())
        return;
    m_kept = m_scene->getEdits().getChanges().getAll();
    m_keptName = m_scene->getName();
    m_keptProcess = m_scene->getLink().program().pid;
}

void LiveActs::offerChanges()
{
    const bool isMeant = !m_kept.empty() && m_keptName == m_scene->getName() &&
                         m_keptProcess != m_scene->getLink().program().pid && m_parts.notifier.isAttended();
    if (!isMeant)
        return;
    auto* box = new QMessageBox(QMessageBox::Question, QApplication::applicationDisplayName(),
                                tr("Apply %1 of the last run of “%2” again?")
                                    .arg(changesText(static_cast<int>(m_kept.size())), m_keptName),
                                QMessageBox::NoButton, &m_parts.window);
    box->setObjectName(QStringLiteral("applyLiveChanges"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    const QAbstractButton* yes = box->addButton(tr("&Apply"), QMessageBox::AcceptRole);
    box->addButton(tr("&Leave It as It Is"), QMessageBox::RejectRole);
    connect(box, &QMessageBox::buttonClicked, this, [this, yes](const QAbstractButton* button) {
        const Changes changes = std::exchange(m_kept, {});
        if (button == yes && m_scene)
            apply(changes, false);
    });
    box->open();
}

void LiveActs::takeBack()
{
    if (m_scene)
        apply(m_scene->getEdits().getChanges().getAll(), true);
}

void LiveActs::apply(const Changes& changes, bool isBefore)
{
    auto* replay = new LiveReplay(*m_scene, m_parts.services, changes,
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
