// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxEditor.h>

#include <QList>
#include <QPointer>

class QDockWidget;
class SpxServices;

/// Base of the extensions that show an editor for what the user selected: a dock widget at the right, and
/// the choice of the most specific editor among those that the active profile controls. GUI thread only.
class SpxEditorDock : public SpxExtension
{
    Q_OBJECT

public:
    ~SpxEditorDock() override;

    void activate() override;
    void deactivate() override;
    void hide() override;
    void load() override;
    void show() override;
    void unload() override;

protected:
    /// `title` names the extension and its dock.
    explicit SpxEditorDock(const char* title);

    /// Puts the editor for this object into the dock, after the one that was there has been released, and
    /// the editor itself from another dock that shows it. Without an object or an editor the dock stays
    /// hidden.
    void showEditorOf(SoTypedObject* object);

private:
    virtual void connectTo(SpxServices* services) = 0;
    virtual void disconnectFrom(SpxServices* services) = 0;
    /// Every dock there is.
    static QList<SpxEditorDock*>& docks();
    SpxEditor* editorFor(SoType type) const;
    void releaseEditor();
    void undock(SpxEditor* editor);

    QPointer<QDockWidget> m_dock; // the extension's own, also while the shell is its parent
    QPointer<SpxEditor> m_editor; // not owned
    int m_round = 0;              // another one for each object to show
};
