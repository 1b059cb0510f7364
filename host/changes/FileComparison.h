// SPDX-License-Identifier: MIT
#pragma once

#include "changes/ChangeSource.h"

#include <xsg/paths/ChildTable.h>

#include <functional>
#include <map>

namespace scopix
{

/// What differs between the open scene and another one, by a full comparison, line by line as a patch has it;
/// reverting a line takes it over from the other scene. Compares again after edits, by itself where that is
/// quick, else when asked to. GUI thread only.
class FileComparison : public ChangeSource
{
    Q_OBJECT

public:
    /// Keeps both alive.
    FileComparison(SoNode* scene, SoNode* other, const QString& name, QObject* parent = nullptr);

    /// The scene has been edited since.
    void noteEdit();
    /// `goOn` as of xsg::compareScenes(); what it throws leaves all as it was.
    void compareAgain(const std::function<void(double)>& goOn = {});
    bool isStale() const { return m_isStale; }

    void update() override;
    const ChangeKeys& list() const override { return m_list; }
    quint64 listVersion() const override { return m_version; }
    Text describe(const ChangeKey& key) const override;
    quint64 versionOf(const ChangeKey& /*key*/) const override { return m_version; }
    qint64 timeOf(const ChangeKey& /*key*/) const override { return 0; }
    int sizeOf(const ChangeKey& /*key*/) const override { return 1; }
    void sortByScene(ChangeKeys& keys) const override;
    SoNode* nodeOf(const ChangeKey& key) const override;
    SoField* fieldOf(const ChangeKey& key) const override;
    ChangeAct revert(const ChangeKeySet& keys) override;
    xsg::SceneChanges makePatch(const ChangeKeySet& keys) override;
    QList<SoField*> fieldsOf(const ChangeKeySet& /*keys*/) const override { return {}; }
    void writeFormer(const std::set<SoField*>& /*fields*/) override {}
    QString baselineName() const override;
    QString revertText() const override { return tr("Take Over"); }

private:
    const xsg::SceneChange* changeOf(const ChangeKey& key) const;

    SoRef<SoNode> m_scene;
    SoRef<SoNode> m_other;
    QString m_name;
    xsg::SceneChanges m_changes; // that make the scene the other one
    ChangeKeys m_list;
    std::map<ChangeKey, std::size_t> m_index;
    std::map<std::string, int> m_numbers; // of lines, as long as this lives
    quint64 m_version = 0;
    bool m_isStale = true;
    bool m_isSlow = false;
};

} // namespace scopix
