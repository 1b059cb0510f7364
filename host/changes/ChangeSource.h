// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>
#include <xsg/changes/PatchApplication.h>

#include <QList>
#include <QObject>
#include <QString>

#include <memory>
#include <set>
#include <tuple>
#include <vector>

class SoField;
class SoNode;

namespace scopix
{

/// Names one change of a list for as long as it is there. The pointers are compared only.
struct ChangeKey {
    enum class Kind { Field, Rename, Insert, Remove, Move, Order, Line };

    Kind kind = Kind::Field;
    const void* subject = nullptr;
    const void* place = nullptr;
    int number = 0;

    bool operator<(const ChangeKey& other) const
    {
        return std::tie(kind, subject, place, number) <
               std::tie(other.kind, other.subject, other.place, other.number);
    }
    bool operator==(const ChangeKey& other) const { return !(*this < other) && !(other < *this); }
};

using ChangeKeys = std::vector<ChangeKey>;
using ChangeKeySet = std::set<ChangeKey>;

/// Something to be done, or one sentence on why it cannot be.
struct ChangeAct {
    std::unique_ptr<SpxCommand> command;
    QString name = {}; // of the step
    QString refusal = {};
    std::shared_ptr<xsg::PatchResult> result = {}; // of a patch, once it is done
};

/// What differs between a scene as it is and what it is compared with: as it was opened, another file, or
/// whatever a subclass knows. Lists, panels and marks need no more than this. Keys are of use until the next
/// update(). GUI thread only.
class ChangeSource : public QObject
{
    Q_OBJECT

public:
    struct Text {
        QString path;
        QString before;
        QString after;
        QString note = {};        // for a tool tip
        bool isUncertain = false; // it is not as edits left it
    };

    using QObject::QObject;

    /// Looks what differs now; cheap where little has changed since the last time.
    virtual void update() = 0;
    /// As of the last update(), in the order in which they came.
    virtual const ChangeKeys& list() const = 0;
    /// Grows when the list may hold others.
    virtual quint64 listVersion() const = 0;
    virtual Text describe(const ChangeKey& key) const = 0;
    /// Grows when what describe() says may have changed.
    virtual quint64 versionOf(const ChangeKey& key) const = 0;
    /// When it was made last, in milliseconds since 1970; 0 where nobody knows.
    virtual qint64 timeOf(const ChangeKey& key) const = 0;
    /// How many values differ.
    virtual int sizeOf(const ChangeKey& key) const = 0;
    virtual void sortByScene(ChangeKeys& keys) const = 0;

    /// What to select; null where it is gone.
    virtual SoNode* nodeOf(const ChangeKey& key) const = 0;
    virtual SoField* fieldOf(const ChangeKey& key) const = 0;

    /// What a change says was there before may be corrected. The result is one sentence, or empty.
    virtual bool canSetFormer(const ChangeKey& /*key*/) const { return false; }
    virtual QString setFormer(const ChangeKey& /*key*/, const QString& /*text*/) { return {}; }

    /// Gives the scene back what it is compared with, as one command.
    virtual ChangeAct revert(const ChangeKeySet& keys) = 0;
    /// The same changes for other scenes, or for another time.
    virtual xsg::SceneChanges makePatch(const ChangeKeySet& keys) = 0;

    /// Fields whose former values can be shown, where any can, and writing them.
    virtual bool canShowFormer() const { return false; }
    virtual QList<SoField*> fieldsOf(const ChangeKeySet& keys) const = 0;
    virtual void writeFormer(const std::set<SoField*>& fields) = 0;

    /// "as it was opened", "“other.xsg”".
    virtual QString baselineName() const = 0;
    virtual QString revertText() const { return tr("Revert"); }

signals:
    /// update() is worth calling.
    void changed();
};

} // namespace scopix
