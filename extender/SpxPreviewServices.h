// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

#include <QList>
#include <QObject>
#include <QString>

class SoField;
class SoFieldContainer;

/// What a host may offer beyond SpxServices: showing what edited fields held before, for comparison by eye.
/// "Before" is when the scene was opened or last saved, as far as the undo history reaches. While former
/// values show, nothing can be edited, undone or redone; no step is made, nothing counts as modified, and
/// whatever is written to files has the present values. Showing the present values again gives each field
/// every bit and both flags back.
///
/// The scene really holds the former values meanwhile, so that views and editors show them by themselves. The
/// host ends it before the scene is saved or another one is opened. GUI thread only.
class SPX_API SpxPreviewServices : public QObject
{
    Q_OBJECT

public:
    /// Null where the host does not offer this.
    static SpxPreviewServices* getInstance();

    /// The fields with edits since the scene was opened or last saved, of one node, or of all (null), in no
    /// particular order.
    virtual QList<SoField*> getEditedFields(const SoFieldContainer* node = nullptr) const = 0;
    /// Shows what these held before, instead of what shows already. Fields without edits, and those that
    /// follow another one, are left out. False where nothing is left to show; then the present values show.
    virtual bool showFormer(const QList<SoField*>& fields) = 0;
    virtual void showPresent() = 0;
    virtual bool isShowingFormer() const = 0;
    /// To be asked before an edit writes: true while former values show, and tells the user why nothing can
    /// be edited. SpxFieldEdit and SpxFieldGesture ask by themselves.
    virtual bool refusesEdit() = 0;

signals:
    void formerShown(bool shown);
    /// An edit was refused; one sentence for the user.
    void editRefused(const QString& sentence);

protected:
    SpxPreviewServices();
    ~SpxPreviewServices() override;
};
