// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxContextMenus.h>
#include <scopix/SpxGuide.h>
#include <scopix/SpxSceneDisplay.h>
#include <scopix/SpxSettings.h>
#include <scopix/SpxShell.h>
#include <scopix/SpxShellMenus.h>
#include <scopix/SpxTreeColumns.h>
#include <scopix/SpxViewLook.h>

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>

#include <functional>

class QAction;
class QMainWindow;
class QMenu;
class QWidget;

namespace scopix
{

/// The shell that extensions see, over a QMainWindow. Names docks and tool bars, so that their places can be
/// saved; keeps the place of one that is removed for when it comes back; returns every widget without a
/// parent. Knows which extension owns which widget and lets the user show and hide them. GUI thread only.
class HostShell : public QObject,
                  public SpxShell,
                  public SpxShellMenus,
                  public SpxContextMenus,
                  public SpxGuide,
                  public SpxViewLook,
                  public SpxSceneDisplay,
                  public SpxTreeColumns,
                  public SpxSettings
{
    Q_OBJECT

public:
    /// The window must outlive the shell.
    explicit HostShell(QMainWindow& window);
    ~HostShell() override;

    void addDockWidget(QDockWidget* dock, Qt::DockWidgetArea area) override;
    void removeDockWidget(QDockWidget* dock) override;
    void attachExtension(SpxExtension* extension, bool attach) override;
    void detachExtension(SpxExtension* extension) override;
    void addToolBar(QToolBar* toolBar, Qt::ToolBarArea area) override;
    void removeToolBar(QToolBar* toolBar) override;

    /// Without them, entries of extensions stand nowhere, and only their shortcuts act.
    void setMenus(QMenu* edit, QMenu* view);
    void addMenuAction(Menu menu, QAction* action) override;
    void removeMenuAction(QAction* action) override;
    bool raiseDocksOf(const char* extension) override;

    void addProvider(SpxContextMenuProvider* provider) override;
    void removeProvider(SpxContextMenuProvider* provider) override;
    void fillNodeMenu(QMenu& menu, const QList<SoFieldContainer*>& nodes,
                      const SpxContextMenuProvider* except = nullptr) override;
    void fillFieldMenu(QMenu& menu, SoField& field, const SpxContextMenuProvider* except = nullptr) override;

    using Find = std::function<void(const QString& query)>;
    using ShowHelp = std::function<bool(const QString& page, const QString& section)>;
    /// What does the work of find() and showHelp().
    void setGuide(Find find, ShowHelp showHelp);
    void find(const QString& query) override;
    bool showHelp(const QString& page, const QString& section) override;

    void addChoice(const void* owner, const Choice& choice) override;
    void removeChoices(const void* owner) override;
    std::vector<Choice> getChoices() const override;

    using Look = std::function<std::pair<const SoCamera*, QSize>()>;
    /// What knows how the 3D view looks at the scene.
    void setLook(Look look) { m_look = std::move(look); }
    const SoCamera* getViewCamera() const override;
    QSize getViewSize() const override;

    /// What shows the scene; it must outlive the shell's users.
    void setDisplay(SpxSceneDisplay* display) { m_display = display; }
    QList<SoNode*> getHiddenNodes() const override;
    void setHidden(SoNode* node, bool hidden) override;
    void setShapeColors(const SoShapeColors& colors) override;
    void setOverdrawShown(bool on) override;
    QList<SoNode*> getIsolatedNodes() const override;

    /// treeColumnsChanged() and treeValuesChanged() tell of them.
    const QList<SpxTreeColumnProvider*>& getTreeColumns() const { return m_treeColumns; }
    void addColumns(SpxTreeColumnProvider* provider) override;
    void removeColumns(SpxTreeColumnProvider* provider) override;
    void updateColumns(SpxTreeColumnProvider* provider) override;

    /// Those that are active now, in the order in which they were attached.
    const QList<SpxExtension*>& extensions() const { return m_extensions; }

    /// What the user knows the extension by: the title of its dock or tool bar, or else its name.
    QString captionOf(const SpxExtension* extension) const;

    /// The extension whose activate() runs now, to which the widgets belong that it adds; null afterwards.
    void setActivating(SpxExtension* extension) { m_activating = extension; }
    /// Removes what the extension left behind. The extension may already be destroyed.
    void forget(const SpxExtension* extension);

    /// The user shows or hides the widgets of an extension.
    void setShown(SpxExtension* extension, bool shown);
    bool isHiddenByPerson(const SpxExtension* extension) const;
    /// The extension of this name stays hidden until the user shows it from the menu; in this session only.
    void keepHiddenAtFirst(const QString& name) { m_waiting.insert(name); }
    /// As if the user had hidden the extension of this name, as long as nothing else is known of what the
    /// user wants: until then, forgetFirstLook() shows it again.
    void hideAtFirst(const QString& name);
    void forgetFirstLook();
    /// The dock of this object name comes up folded to its title, until there is something to say in it.
    void foldAtFirst(const QString& dock) { m_foldAtFirst.insert(dock); }
    /// All docks at the bottom.
    void setBottomFolded(bool folded);
    bool isBottomFolded() const;
    /// The object names of the docks that are folded now.
    QStringList foldedDocks() const;
    bool comesUpHidden(const SpxExtension* extension) const;

    /// While no dock of this area is shown, a sheet with these words keeps its place, so that what is in the
    /// middle neither moves nor changes its size when docks come and go.
    void keepPlaceOf(Qt::DockWidgetArea area, const QString& words);

    /// Where everything stands, and which tools the user has hidden.
    QByteArray saveLayout() const;
    /// False when the text is no layout; nothing changes then.
    bool restoreLayout(const QByteArray& layout);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void extensionsChanged();
    void treeColumnsChanged();
    void treeValuesChanged();
    /// An extension threw; one sentence.
    void failed(const QString& sentence);

private:
    struct Owned {
        QPointer<QWidget> widget;
        SpxExtension* owner; // null when nobody said
        QMetaObject::Connection toggled;
    };
    struct ToolBarPlace {
        Qt::ToolBarArea area;
        bool shown;
    };

    using AddEntries = std::function<void(SpxContextMenuProvider&)>;
    void fillMenu(QMenu& menu, const SpxContextMenuProvider* except, const AddEntries& addEntries);
    QList<QDockWidget*> bottomDocks() const;
    bool isInPlaceholdersArea(const QDockWidget* dock) const;
    void joinPlaceholder(QDockWidget* dock);
    void updatePlaceholder();
    bool sharesPlaceWithFocus(QDockWidget* dock) const;
    void stackOnAnother(QDockWidget* dock, Qt::DockWidgetArea area);
    void track(QWidget* widget, const QAction* toggle);
    void untrack(const QWidget* widget);
    SpxExtension* ownerOf(const QObject* widget) const;
    void nameWidget(QWidget* widget) const;
    void removeWidget(QWidget* widget);
    void personClosed(SpxExtension* extension);

    QMainWindow& m_window;
    std::vector<std::pair<const void*, Choice>> m_choices; // with their owners
    QList<SpxExtension*> m_extensions;
    QList<Owned> m_owned;
    QHash<QString, bool> m_dockShown; // docks that went, by name
    QHash<QString, ToolBarPlace> m_toolBarPlaces;
    QSet<QString> m_hiddenByPerson; // names of extensions
    QSet<QString> m_hiddenAtFirst;  // those of them that nobody has hidden
    QSet<QString> m_waiting;        // names of those that nobody has asked for yet
    SpxExtension* m_activating = nullptr;
    QPointer<QDockWidget> m_placeholder; // the window's
    Qt::DockWidgetArea m_placeholderArea = Qt::NoDockWidgetArea;
    QPointer<QMenu> m_editMenu;
    QPointer<QMenu> m_viewMenu;
    QSet<QString> m_foldAtFirst; // docks that have not come up yet
    QList<SpxContextMenuProvider*> m_providers;
    QList<SpxTreeColumnProvider*> m_treeColumns;
    SpxSceneDisplay* m_display = nullptr;
    Find m_find;
    Look m_look;
    ShowHelp m_showHelp;
};

} // namespace scopix
