// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/query/SoQuerySearch.h>
#include <xsg/sensors/SoNodeSensor.h>

#include <QObject>
#include <QString>
#include <QTimer>

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

    void setRoot(SoNode* root);
    void setQuery(const QString& text);
    bool hasQuery() const { return !m_query.isEmpty(); }
    /// What is wrong with the query, or empty.
    QString getError() const;

    /// In the scene's order.
    const std::vector<SoRef<SoNode>>& getFound() const { return m_shown.getFound(); }
    bool isFound(const SoNode* node) const { return m_shown.isFound(node); }
    /// False while more may still be found.
    bool isFinished() const { return m_shown.isFinished(); }

signals:
    /// More was found, the search ended, or another one began.
    void foundChanged();

private:
    static void sceneChanged(void* self, SoSensor* sensor);
    void begin();
    void beginAgain();
    void advance();

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
