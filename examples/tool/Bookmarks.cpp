// SPDX-License-Identifier: MIT
// A tool: a dock that lists nodes to come back to, with an entry in menus and a column in the scene tree.
#include <scopix/SpxContextMenus.h>
#include <scopix/SpxExtension.h>
#include <scopix/SpxPlugin.h>
#include <scopix/SpxPluginNote.h>
#include <scopix/SpxSceneServices.h>
#include <scopix/SpxShell.h>
#include <scopix/SpxShellMenus.h>
#include <scopix/SpxTreeColumns.h>
#include <scopix/editing/SpxText.h>
#include <scopix/editing/SpxWatcher.h>
#include <xsg/nodes/base/SoNode.h>

#include <QAction>
#include <QCoreApplication>
#include <QDockWidget>
#include <QListWidget>
#include <QMenu>
#include <QPointer>

#include <algorithm>
#include <memory>
#include <vector>

SPX_PLUGIN_NOTE("Bookmarks", "1.0.0")

namespace
{

QString captionOf(const SoFieldContainer& node)
{
    const QString name = SpxText::toQString(node.getName());
    return name.isEmpty() ? SpxText::toQString(node.getTypeId().getName()) : name;
}

class BookmarksDock : public SpxExtension, public SpxContextMenuProvider, public SpxTreeColumnProvider
{
    Q_DECLARE_TR_FUNCTIONS(BookmarksDock)

public:
    BookmarksDock()
    {
        setName("Bookmarks");
        setDescription("Lists nodes to come back to.");
        setVersion("1.0.0");
    }

    // --- What every tool does

    void load() override
    {
        m_list = new QListWidget;
        m_list->setAccessibleName(tr("Bookmarks"));
        m_dock = new QDockWidget(tr("Bookmarks"));
        m_dock->setObjectName("bookmarksDock"); // the name by which the host remembers its place
        m_dock->setWidget(m_list);
        connect(m_list, &QListWidget::itemActivated, this, &BookmarksDock::goTo);

        m_add = new QAction(tr("&Bookmark"), this);
        m_add->setObjectName("bookmarkAction"); // the name by which a key of the user's is remembered
        m_add->setShortcut(Qt::CTRL + Qt::SHIFT + Qt::Key_B);
        connect(m_add, &QAction::triggered, this, &BookmarksDock::toggleSelected);
    }

    void unload() override
    {
        m_bookmarks.clear();
        delete m_add;
        delete m_dock;
    }

    void activate() override
    {
        SpxExtension::activate();
        SpxShell::getInstance()->addDockWidget(m_dock, Qt::LeftDockWidgetArea);
        if (auto* menus = SpxShellMenus::getInstance())
            menus->addMenuAction(SpxShellMenus::Menu::Edit, m_add);
        if (auto* menus = SpxContextMenus::getInstance())
            menus->addProvider(this);
        if (auto* columns = SpxTreeColumns::getInstance())
            columns->addColumns(this);
        SpxShell::getInstance()->attachExtension(this, true);
    }

    void deactivate() override
    {
        SpxExtension::deactivate();
        if (auto* columns = SpxTreeColumns::getInstance())
            columns->removeColumns(this);
        if (auto* menus = SpxContextMenus::getInstance())
            menus->removeProvider(this);
        if (auto* menus = SpxShellMenus::getInstance())
            menus->removeMenuAction(m_add);
        SpxShell::getInstance()->removeDockWidget(m_dock);
        SpxShell::getInstance()->detachExtension(this);
    }

    void show() override
    {
        SpxExtension::show();
        m_dock->show();
    }

    void hide() override
    {
        SpxExtension::hide();
        m_dock->hide();
    }

    // --- What it offers elsewhere

    void addNodeEntries(QMenu& menu, const QList<SoFieldContainer*>&) override
    {
        menu.addAction(m_add->text(), m_add, &QAction::trigger);
    }

    int getNumColumns() const override { return 1; }
    QString getColumnKey(int) const override { return QString::fromLatin1("bookmarks.number"); }
    QString getColumnCaption(int) const override { return tr("Bookmark"); }
    bool isColumnShownAtFirst(int) const override { return false; }
    QVariant getColumnValue(int, const SoNode& node) const override
    {
        const int row = rowOf(&node);
        return row < 0 ? QVariant() : QVariant(row + 1);
    }

private:
    // A node may be destroyed at any time: the watcher says so, and forgets it by itself.
    using Bookmark = std::unique_ptr<SpxWatcher>;

    void toggleSelected()
    {
        auto* scene = SpxSceneServices::getInstance();
        if (!scene)
            return;
        for (SoFieldContainer* node : scene->getSelectedNodes()) {
            const int row = rowOf(node);
            if (row < 0)
                add(*node);
            else
                remove(row);
        }
    }

    void add(SoFieldContainer& node)
    {
        m_bookmarks.push_back(std::make_unique<SpxWatcher>());
        SpxWatcher* watcher = m_bookmarks.back().get();
        watcher->watch(&node);
        connect(watcher, &SpxWatcher::objectDestroyed, this, [this, watcher] { remove(rowOf(*watcher)); });
        connect(watcher, &SpxWatcher::changed, this, [this, watcher] { showName(rowOf(*watcher)); });
        m_list->addItem(captionOf(node));
        updateColumn();
    }

    void remove(int row)
    {
        delete m_list->takeItem(row);
        m_bookmarks.erase(m_bookmarks.begin() + row);
        updateColumn();
    }

    void showName(int row)
    {
        if (const SoFieldContainer* node = nodeAt(row))
            m_list->item(row)->setText(captionOf(*node));
    }

    void goTo(const QListWidgetItem* item)
    {
        SoFieldContainer* node = nodeAt(m_list->row(item));
        auto* scene = SpxSceneServices::getInstance();
        if (node && scene)
            scene->selectNode(node);
    }

    SoFieldContainer* nodeAt(int row) const
    {
        return dynamic_cast<SoFieldContainer*>(m_bookmarks[std::size_t(row)]->getObject());
    }

    // -1 for none.
    template <class Predicate>
    int findRow(Predicate&& predicate) const
    {
        const auto found = std::find_if(m_bookmarks.begin(), m_bookmarks.end(), predicate);
        return found == m_bookmarks.end() ? -1 : int(found - m_bookmarks.begin());
    }
    int rowOf(const SoTypedObject* node) const
    {
        return findRow([&](const Bookmark& each) { return each->getObject() == node; });
    }
    int rowOf(const SpxWatcher& watcher) const
    {
        return findRow([&](const Bookmark& each) { return each.get() == &watcher; });
    }

    void updateColumn()
    {
        if (auto* columns = SpxTreeColumns::getInstance())
            columns->updateColumns(this);
    }

    QPointer<QDockWidget> m_dock; // the tool's own, also while it is in the window
    QPointer<QListWidget> m_list;
    QAction* m_add = nullptr;
    std::vector<Bookmark> m_bookmarks; // in the order of the rows
};

class Bookmarks : public SpxPlugin
{
public:
    Bookmarks()
    {
        setName("Bookmarks");
        setDescription("Lists nodes to come back to.");
        setVersion("1.0.0");
    }

    bool load() override
    {
        addExtension(&m_dock);
        return SpxPlugin::load();
    }

private:
    BookmarksDock m_dock;
};

std::unique_ptr<Bookmarks> s_plugin;

} // namespace

extern "C" __attribute__((visibility("default"))) SpxPlugin* loadPlugin()
{
    s_plugin = std::make_unique<Bookmarks>();
    return s_plugin.get();
}

extern "C" __attribute__((visibility("default"))) void unloadPlugin()
{
    s_plugin.reset();
}
