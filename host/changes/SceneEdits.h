// SPDX-License-Identifier: MIT
#pragma once

#include "changes/ChangeSource.h"
#include "changes/ChildrenEdit.h"
#include "changes/FirstPlaces.h"
#include "structure/StructureWatch.h"
#include "undo/EditWatch.h"

#include <xsg/core/SoChangeListener.h>

#include <functional>
#include <map>
#include <memory>
#include <unordered_map>
#include <unordered_set>

namespace scopix
{

class FieldEdit;
class UndoHistory;

/// What the user has changed in a scene since it was opened: fields, names and children, each with what was
/// there before. It hears of each edit before that happens, of undo and redo too, and of nothing else, so it
/// never walks the scene and costs what the changes cost. What anybody else writes is no change of the
/// user's; a value that the user has changed and somebody else has written since is marked so. Keeps alive
/// what was removed, and no other node. GUI thread only.
class SceneEdits : public ChangeSource, private EditWatch, private StructureWatch, private SoChangeListener
{
    Q_OBJECT

public:
    /// Becomes its watch; the history must outlive this.
    explicit SceneEdits(UndoHistory& history, QObject* parent = nullptr);
    ~SceneEdits() override;

    /// The scene as it is now is what the user starts from; null ends it.
    void begin(SoNode* root, const QString& baselineName);
    SoNode* getRoot() const { return m_root; }
    /// Hears of the edits from now on, in place of the one that did before.
    void listen();
    /// What differs is to stay as it was told last while this is true: other values show for a while.
    void setHold(std::function<bool()> isHeld) { m_isHeld = std::move(isHeld); }

    void update() override;
    const ChangeKeys& list() const override { return m_list; }
    quint64 listVersion() const override { return m_listVersion; }
    Text describe(const ChangeKey& key) const override;
    quint64 versionOf(const ChangeKey& key) const override;
    qint64 timeOf(const ChangeKey& key) const override;
    int sizeOf(const ChangeKey& key) const override;
    void sortByScene(ChangeKeys& keys) const override;
    SoNode* nodeOf(const ChangeKey& key) const override;
    SoField* fieldOf(const ChangeKey& key) const override;
    bool canSetFormer(const ChangeKey& key) const override;
    QString setFormer(const ChangeKey& key, const QString& text) override;
    ChangeAct revert(const ChangeKeySet& keys) override;
    xsg::SceneChanges makePatch(const ChangeKeySet& keys) override;
    bool canShowFormer() const override { return true; }
    QList<SoField*> fieldsOf(const ChangeKeySet& keys) const override;
    void writeFormer(const std::set<SoField*>& fields) override;
    QString baselineName() const override { return m_baselineName; }

    /// As of the last update(): something of the node itself differs.
    bool isChanged(const SoNode* node) const { return m_marked.count(node) > 0; }
    /// A copy of the scene as it was.
    SoRef<SoNode> makeFormerScene() const;
    /// About, in bytes.
    std::size_t bytes() const;

private:
    struct FieldEntry {
        std::unique_ptr<FieldEdit> edit;
        quint64 number = 0; // in which order they came
        quint64 version = 0;
        qint64 time = 0;
        bool isStale = true;
        bool isNew = true;         // nobody has looked yet whether it differs
        bool isElsewhere = false;  // written by somebody else since
        bool isConnected = false;  // or disconnected, by an edit
        SoField* source = nullptr; // which it then followed before; null: none
        int count = -1;            // of a list, as edits left it
    };
    struct NameEntry {
        SbName before;
        quint64 number = 0;
        qint64 time = 0;
    };
    struct GroupEntry {
        std::unique_ptr<ChildrenEdit> edit;
        quint64 number = 0;
        qint64 time = 0;
    };
    struct StructureRow {
        SoNode* node = nullptr;
        SoGroup* from = nullptr;
        SoGroup* to = nullptr;
        const GroupEntry* entry = nullptr;
    };
    using Links = std::map<std::pair<const SoNode*, SoGroup*>, int>; // how often
    using Memo = std::unordered_map<const SoNode*, bool>;

    // EditWatch
    void aboutToWrite(SoField& field, int start, int removed) override;
    // EditWatch and StructureWatch
    void aboutToConnect(SoField& field) override;
    // EditWatch
    void aboutToRun() override;
    void hasRun() override;
    // StructureWatch
    void aboutToChangeChildren(SoGroup& group, int start, int removed) override;
    void aboutToRename(SoNode& node) override;
    // SoChangeListener
    void changed(const SoNotification& change) override;
    void subjectDestroyed() override;

    static void dyingCallback(void* self, SoFieldContainer* container);
    void forget(const SoFieldContainer* container);
    void clear();
    void noticeLater();

    FieldEntry& entryFor(SoField& field);
    void noteEdit(SoField& field, FieldEntry& entry);
    void forgetSources(const SoFieldContainer* container);
    static bool hasOtherSource(const FieldEntry& entry, const SoField& field);
    static bool isLost(const FieldEntry& entry, const SoField& field);
    void compareFields();
    void compareStructure();
    void addRows(const std::vector<SoNode*>& order, const Links& came, const Links& gone);
    bool isShown(const StructureRow& row, ChangeKey& key);
    bool isBelow(const SoNode& node);
    bool wasBelow(const SoNode& node);
    std::vector<const SoNode*> formerParents(const SoNode& node) const;
    bool stood(const SoNode& node) { return isBelow(node) && wasBelow(node); }
    void makeList();
    const FieldEntry* entryOf(const ChangeKey& key) const;
    const StructureRow* rowOf(const ChangeKey& key) const;
    QString withSource(const QString& value, const SoField* source) const;
    ChildrenEdit::Children childrenWithout(const ChildrenEdit& edit, const ChangeKeySet& keys) const;
    std::vector<const ChildrenEdit*> groupsOf(const ChangeKeySet& keys) const;
    bool isPlainPatch(const ChangeKeySet& keys) const;
    xsg::SceneChanges patchOfFields(const ChangeKeySet& keys) const;
    xsg::SceneChanges patchOfScenes(const ChangeKeySet& keys) const;
    SoRef<SoNode> copyWithout(const ChangeKeySet* keys) const;
    QString orderText(const ChildrenEdit::Children& children) const;

    UndoHistory& m_history;
    SoNode* m_root = nullptr;
    QString m_baselineName;
    std::function<bool()> m_isHeld;
    std::unordered_map<SoField*, FieldEntry> m_fields;
    std::unordered_map<const SoFieldContainer*, std::vector<SoField*>> m_fieldsOf;
    std::unordered_set<SoField*> m_connected; // those of them that follow others, or did
    std::unordered_map<SoNode*, NameEntry> m_names;
    std::unordered_map<SoGroup*, GroupEntry> m_groups;

    // As of the last update():
    std::map<ChangeKey, StructureRow> m_rows;
    Links m_came;
    Links m_gone;
    ChangeKeys m_list;
    std::unordered_set<const SoNode*> m_marked;

    std::vector<SoField*> m_stale;
    Memo m_isBelow;
    Memo m_wasBelow;
    mutable FirstPlaces m_places;
    StructureWatch* m_watchBefore = nullptr;
    int m_runs = 0;
    const SoField* m_announced = nullptr;
    quint64 m_number = 0;
    quint64 m_version = 0;
    quint64 m_structureVersion = 0;
    quint64 m_listVersion = 0;
    bool m_isStructureStale = false;
    bool m_isListStale = false;
    bool m_isNoticed = false;
};

} // namespace scopix
