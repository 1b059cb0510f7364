// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/query/SoQuerySearch.h>
#include <xsg/sensors/SoNodeSensor.h>

#include <QObject>
#include <QString>
#include <QTimer>

#include <functional>

namespace scopix
{

/// Looks for a query in the scene, in short pieces between events, and again when the scene has changed: what
/// was found stays until the repeated search has ended. GUI thread only.
class SceneFinder : public QObject
{
    Q_OBJECT

public:
    explicit SceneFinder(QObject* parent = nullptr);
    ~SceneFinder() override;

    /// Finds in place of the finder, for scenes that are not here as a whole: hands over what it found, later
    /// perhaps, or answers false where it does not know the scene.
    using Found = std::function<void(const std::vector<SoNode*>&)>;
    using FindElsewhere = std::function<bool(const QString& query, const Found& found)>;
    void setElsewhere(FindElsewhere elsewhere) { m_elsewhere = std::move(elsewhere); }
    const FindElsewhere& getElsewhere() const { return m_elsewhere; }

    void setRoot(SoNode* root);
    void setQuery(const QString& text);
    bool hasQuery() const { return !m_query.isEmpty(); }
    /// What is wrong with the query, or empty.
    QString getError() const;

    /// In the scene's order.
    const std::vector<SoRef<SoNode>>& getFound() const;
    bool isFound(const SoNode* node) const;
    /// False while more may still be found.
    bool isFinished() const { return m_isElsewhere ? m_hasCome : m_shown.isFinished(); }

signals:
    /// More was found, the search ended, or another one began.
    void foundChanged();

private:
    static void sceneChanged(void* self, SoSensor* sensor);
    void begin();
    bool beginElsewhere();
    void beginAgain();
    void advance();

    FindElsewhere m_elsewhere;
    bool m_isElsewhere = false; // the present search
    bool m_hasCome = false;     // what was found there
    int m_searches = 0;         // begun so far: an answer to an earlier one is too late
    std::vector<SoRef<SoNode>> m_foundElsewhere;
    QString m_text;
    SoQuery m_query;
    SoQuerySearch m_shown;
    SoQuerySearch m_repeated; // replaces the shown one when it has ended
    bool m_repeats = false;
    SoRef<SoNode> m_root;
    SoNodeSensor m_sensor;
    QTimer m_pieces;
    QTimer m_repeat;
};

} // namespace scopix
