// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxEditor.h>

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

    /// Puts the editor for this object into the dock, after the one that was there has been released. Without
    /// an object or an editor the dock stays hidden.
    void showEditorOf(SoTypedObject* object);

private:
    virtual void connectTo(SpxServices* services) = 0;
    virtual void disconnectFrom(SpxServices* services) = 0;
    SpxEditor* editorFor(SoType type) const;
    void releaseEditor();

    QPointer<QDockWidget> m_dock; // the extension's own, also while the shell is its parent
    QPointer<SpxEditor> m_editor; // not owned
};
