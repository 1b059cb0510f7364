// SPDX-License-Identifier: MIT
#include "window/NodeEditing.h"

#include "document/TexturePaths.h"
#include "panels/BranchMimeData.h"
#include "panels/SceneTreeView.h"
#include "panels/TypeChooser.h"
#include "services/HostServices.h"
#include "structure/BranchText.h"
#include "structure/SceneStates.h"
#include "support/LongWork.h"
#include "support/UserNotifier.h"
#include "text/NodeText.h"
#include "window/SceneFiles.h"

#include <scopix/SpxEditedFields.h>

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QPointer>
#include <QScopedValueRollback>
#include <QUuid>

#include <algorithm>
#include <optional>

namespace scopix
{

namespace
{

// Tells that the clipboard still holds what this window has put there.
QString keyType()
{
    return QStringLiteral("application/x-scopix-copy");
}

// Where relative names of pictures in the text start.
QString folderType()
{
    return QStringLiteral("application/x-scopix-folder");
}

// X11 hands over what is dropped in one message, and takes the program for broken where that is longer than
// 16 MiB.
constexpr std::size_t MostDropped = std::size_t{8} << 20;

structure::Act refusedDrop()
{
    structure::Act act;
    act.refusal =
        NodeEditing::tr("Nothing was dropped, since its place has gone meanwhile; drop it elsewhere.");
    return act;
}

} // namespace

NodeEditing::NodeEditing(HostServices& services, SceneFiles& files, SceneTreeView& tree, SceneStates& states,
                         UserNotifier& notifier, QObject* parent)
    : QObject(parent)
    , m_services(services)
    , m_files(files)
    , m_tree(tree)
    , m_states(states)
    , m_notifier(notifier)
    , m_program(files, states, notifier)
{
    connect(&m_files.getScenes(), &OpenScenes::rootChanged, this, [this] { m_copied.clear(); });
    m_services.history().setLock(
        [this](const SoFieldContainer& container) { return m_states.refusalOf(container); });
    connect(&m_services.history(), &UndoHistory::refused, &m_notifier, &UserNotifier::info);
}

NodeEditing::~NodeEditing()
{
    m_services.history().setLock({});
}

void NodeEditing::serve(SceneTreeView& tree)
{
    connect(&tree, &SceneTreeView::nameEntered, this, &NodeEditing::rename);
    connect(&tree, &SceneTreeView::dropped, this, &NodeEditing::drop);
    tree.setTextMaker([self = QPointer<NodeEditing>(this)](const Paths& paths) {
        return self ? self->textToDrop(paths) : QString();
    });
}

void NodeEditing::tell(const QString& sentence)
{
    if (!sentence.isEmpty())
        m_notifier.info(sentence);
}

void NodeEditing::tellNothingSelected()
{
    tell(tr("No node is selected: select one in the tree or in the view first."));
}

bool NodeEditing::perform(structure::Act act)
{
    const QString lock = act.command ? m_states.refusalOf(*act.command) : QString();
    if (!act.command || !lock.isEmpty()) {
        tell(act.command ? lock : act.refusal);
        return false;
    }
    m_services.executeCommand(act.command.release(), act.name);
    showAfter(act.selection);
    return true;
}

// False where the user cancels it.
bool NodeEditing::runLong(const QString& what, const std::function<void()>& work)
{
    QWidget* window = m_notifier.isAttended() ? m_tree.window() : nullptr;
    return LongWork::runStill(window, what, m_files.getDocument().getRoot(), work);
}

void NodeEditing::performCopying(const std::function<structure::Act()>& think)
{
    structure::Act act;
    if (runLong(tr("Copying…"), [&] { act = think(); }))
        perform(std::move(act));
    else
        tell(tr("Copying was cancelled; nothing has changed."));
}

bool NodeEditing::areThere(const Paths& paths) const
{
    return areInScene(paths, m_files.getDocument().getRoot());
}

void NodeEditing::showAfter(const Paths& selection)
{
    m_tree.getModel().followNow();
    if (!selection.isEmpty())
        m_services.selectPaths(selection);
}

Paths NodeEditing::selected() const
{
    return m_services.getSelectedPaths();
}

std::vector<SoNode*> NodeEditing::selectedNodes() const
{
    return tailsOf(selected());
}

SoPath NodeEditing::placeForNew() const
{
    const Paths paths = selected();
    if (!paths.isEmpty())
        return paths.last();
    SoPath path;
    if (SoNode* root = m_files.getDocument().getRoot())
        path.append(root);
    return path;
}

void NodeEditing::remove()
{
    perform(structure::remove(selected()));
}

void NodeEditing::duplicate()
{
    const Paths paths = selected();
    if (ProgramEditing::isFor(paths))
        return m_program.duplicate(topmost(paths, paths.front().getHead()));
    performCopying([this] { return structure::duplicate(selected(), LongWork::goOn); });
}

void NodeEditing::group()
{
    if (ProgramEditing::isFor(selected()))
        return m_program.group(structure::actedOn(selected()));
    perform(structure::group(selected(), makerOf(SoGroup::getClassTypeId())));
}

void NodeEditing::ungroup()
{
    if (ProgramEditing::isFor(selected()))
        return m_program.ungroup(structure::actedOn(selected()));
    perform(structure::ungroup(selected()));
}

void NodeEditing::makeUnique()
{
    if (ProgramEditing::isFor(selected()))
        return m_program.makeUnique(structure::actedOn(selected()));
    performCopying([this] { return structure::makeUnique(selected(), LongWork::goOn); });
}

void NodeEditing::reorder(int by)
{
    perform(structure::reorder(selected(), by));
}

void NodeEditing::moveOut()
{
    perform(structure::moveOut(selected()));
}

void NodeEditing::moveIn()
{
    perform(structure::moveIn(selected()));
}

structure::MakeNode NodeEditing::makerOf(SoType type) const
{
    return [this, make = structure::makeOfType(type)] {
        SoRef<SoNode> node = make();
        m_services.applyUserDefaults(*node);
        return node;
    };
}

void NodeEditing::askTypesToAdd(const std::function<void(const std::vector<SoType>&)>& answer)
{
    const SoPath place = placeForNew();
    if (ProgramEditing::isFor(place))
        return m_program.askTypesToAdd(place, answer);
    answer(TypeChooser::typesToAdd());
}

void NodeEditing::add(SoType type)
{
    const SoPath place = placeForNew();
    if (ProgramEditing::isFor(place))
        return m_program.add(place, type);
    insert({makerOf(type)()}, tr("Add %1").arg(toQString(type.getName())));
}

void NodeEditing::insert(const std::vector<SoRef<SoNode>>& nodes, const QString& stepName)
{
    perform(structure::add(placeForNew(), nodes, stepName));
}

void NodeEditing::askTypesToPutAbove(const std::function<void(const std::vector<SoType>&)>& answer)
{
    const Paths paths = structure::actedOn(selected());
    if (ProgramEditing::isFor(paths))
        return m_program.askTypesToPutAbove(paths, answer);
    answer(TypeChooser::typesToAdd());
}

void NodeEditing::insertAbove(SoType type)
{
    const Paths paths = structure::actedOn(selected());
    if (ProgramEditing::isFor(paths))
        return m_program.insertAbove(paths, type);
    perform(structure::insertAbove(selected(), makerOf(type)));
}

void NodeEditing::rename(const SoPath& path, const QString& name)
{
    perform(structure::rename(path, name));
}

// --- Clipboard

bool NodeEditing::putOnClipboard()
{
    Paths copied;
    QString text;
    const bool isDone = runLong(tr("Copying…"), [&] {
        const Paths paths = selected();
        copied = paths.isEmpty() ? paths : topmost(paths, paths.front().getHead());
        if (!copied.isEmpty())
            text = QString::fromStdString(writeBranches(tailsOf(copied), LongWork::goOn));
    });
    if (!isDone) {
        tell(tr("Copying was cancelled; the clipboard holds what it held."));
        return false;
    }
    m_copied = copied;
    if (m_copied.isEmpty()) {
        tellNothingSelected();
        return false;
    }
    m_copiedKey = QUuid::createUuid().toByteArray();
    auto* data = new QMimeData;
    data->setText(text);
    data->setData(keyType(), m_copiedKey);
    data->setData(folderType(), QFileInfo(m_files.getDocument().getPath()).absolutePath().toUtf8());
    QGuiApplication::clipboard()->setMimeData(data);
    return true;
}

void NodeEditing::copy()
{
    if (putOnClipboard())
        tell(tr("%n node(s) copied.", nullptr, m_copied.size()));
}

void NodeEditing::cut()
{
    const structure::Act act = structure::remove(selected(), structure::Deed::Cut);
    if (!act.command)
        tell(act.refusal);
    else if (putOnClipboard()) // meanwhile something may have gone
        perform(structure::remove(selected(), structure::Deed::Cut));
}

std::vector<SoRef<SoNode>> NodeEditing::readText(const QMimeData& data)
{
    // Which is another's, and may go while it is read.
    const std::string text = data.text().toStdString();
    const QString folder = data.hasFormat(folderType())
                               ? QString::fromUtf8(data.data(folderType()))
                               : QFileInfo(m_files.getDocument().getPath()).absolutePath();
    BranchReading read;
    if (!runLong(tr("Pasting…"), [&] { read = readBranches(text, LongWork::goOn); }))
        read.error = tr("Pasting was cancelled; nothing has changed.");
    if (read.nodes.empty())
        tell(read.error);
    for (const auto& node : read.nodes)
        setPictureFolder(node.get(), folder);
    return read.nodes;
}

bool NodeEditing::holdsOwnCopy(const QMimeData* data) const
{
    return !m_copied.isEmpty() && data && data->data(keyType()) == m_copiedKey;
}

void NodeEditing::pasteInProgram(const SoPath& place)
{
    if (holdsOwnCopy(QGuiApplication::clipboard()->mimeData()) && ProgramEditing::isFor(m_copied))
        return m_program.paste(place, m_copied);
    tell(tr("Only nodes that were copied from this program, in this window, can be pasted into it."));
}

void NodeEditing::paste()
{
    const SoPath place = placeForNew();
    if (ProgramEditing::isFor(place))
        return pasteInProgram(place);
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    const auto nodes = data ? readText(*data) : std::vector<SoRef<SoNode>>();
    if (nodes.size() == 1)
        insert(nodes, tr("Paste “%1”").arg(nodeText(*nodes.front())));
    else if (!nodes.empty())
        insert(nodes, tr("Paste %1 Nodes").arg(nodes.size()));
}

void NodeEditing::pasteShared()
{
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (!holdsOwnCopy(data))
        return tell(
            tr("Only nodes that were copied in this window, in this scene, can be pasted as shared ones."));
    const std::vector<SoNode*> nodes = tailsOf(m_copied);
    insert({nodes.begin(), nodes.end()}, structure::nameOf(structure::Deed::Share, m_copied));
}

void NodeEditing::drop(const QMimeData& data, const SoPath& group, int index, Qt::DropAction action)
{
    using structure::Transfer;
    const auto* branches = qobject_cast<const BranchMimeData*>(&data);
    if (branches && branches->getPaths().front().getHead() == m_files.getDocument().getRoot()) {
        const Transfer how = action == Qt::CopyAction   ? Transfer::Copy
                             : action == Qt::LinkAction ? Transfer::Share
                                                        : Transfer::Move;
        if (how == Transfer::Copy && ProgramEditing::isFor(group))
            return m_program.drop(group, index, branches->getPaths());
        const Paths paths = branches->getPaths();
        performCopying([&] { return transfer(paths, group, index, how); });
        return;
    }
    const auto nodes = readText(data);
    if (!nodes.empty())
        perform(addDropped(group, nodes));
}

QString NodeEditing::textToDrop(const Paths& given)
{
    if (m_isHandingOver)
        return {}; // it is asked for once more while it is made
    const QScopedValueRollback<bool> handingOver(m_isHandingOver, true);
    const Paths paths = given; // the drag may end meanwhile
    std::optional<std::string> text;
    if (!runLong(tr("Handing over what was dropped…"),
                 [&] { text = writeShortBranches(tailsOf(paths), MostDropped, LongWork::goOn); }))
        tell(tr("Nothing was handed over to the other program: it was cancelled."));
    else if (!text)
        tell(tr("Nothing was handed over to the other program: the text of what was dropped is too long for "
                "that. Copy it here, and paste it there."));
    return text ? QString::fromStdString(*text) : QString();
}

// While a large branch is copied or read, its place may go.
structure::Act NodeEditing::transfer(const Paths& paths, const SoPath& group, int index,
                                     structure::Transfer how)
{
    if (areThere(paths) && areThere({group}))
        return structure::transfer(paths, group, index, how, LongWork::goOn);
    return refusedDrop();
}

structure::Act NodeEditing::addDropped(const SoPath& group, const std::vector<SoRef<SoNode>>& nodes)
{
    const QString name = tr("Drop %n Node(s)", nullptr, static_cast<int>(nodes.size()));
    return areThere({group}) ? structure::add(group, nodes, name) : refusedDrop();
}

// --- What is seen

void NodeEditing::toggleHidden(const Paths& paths)
{
    const std::vector<SoNode*> nodes = tailsOf(paths);
    const auto isSeen = [this](SoNode* node) {
        return SceneStates::canBeHidden(*node) && !m_states.isHidden(node);
    };
    if (nodes.empty())
        return tellNothingSelected();
    if (std::none_of(nodes.begin(), nodes.end(),
                     [](SoNode* node) { return SceneStates::canBeHidden(*node); }))
        return tell(tr("“%1” cannot be hidden: it only sets something for other nodes.")
                        .arg(nodeText(*nodes.front())));
    m_states.setHidden(nodes, std::any_of(nodes.begin(), nodes.end(), isSeen));
}

void NodeEditing::showAll()
{
    m_states.showAll();
}

void NodeEditing::toggleIsolated()
{
    const std::vector<SoNode*> nodes = selectedNodes();
    if (m_states.getHiding().isIsolating())
        return m_states.isolate({});
    if (nodes.empty())
        return tellNothingSelected();
    m_states.isolate({nodes.begin(), nodes.end()});
    tell(tr("Only what is selected is seen; press / again to see the rest."));
}

void NodeEditing::toggleLocked()
{
    const std::vector<SoNode*> nodes = selectedNodes();
    if (nodes.empty())
        return tellNothingSelected();
    m_states.setLocked(nodes, !std::all_of(nodes.begin(), nodes.end(),
                                           [this](SoNode* node) { return m_states.isLocked(node); }));
}

void NodeEditing::makePermanent()
{
    const std::vector<SoNode*> hidden = m_states.findHidden(m_files.getDocument().getRoot());
    if (perform(structure::switchOff(m_files.getDocument().getRoot(), hidden)))
        m_states.setHidden(hidden, false);
}

} // namespace scopix
