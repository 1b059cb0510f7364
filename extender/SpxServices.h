// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

#include <QObject>

class SoField;
class SoFieldContainer;
class SpxCommand;

/// Selection and undo, as the host offers them to extensions. The host derives from it and makes
/// one instance. GUI thread only.
class SPX_API SpxServices : public QObject
{
    Q_OBJECT

public:
    /// Null while no host has made one.
    static SpxServices* getInstance();

    /// Takes the command over: runs execute() once and keeps it on the undo stack, which deletes it. The only
    /// way by which an edit becomes undoable.
    virtual void executeCommand(SpxCommand* command) = 0;

signals:
    /// The user selected a node or a field, or nothing (null). May be emitted again for the same one. A
    /// field's null comes before its node is destroyed.
    void selectedNodeChanged(SoFieldContainer* node);
    void selectedFieldChanged(SoField* field);

protected:
    SpxServices();
    ~SpxServices() override;
};
