// SPDX-License-Identifier: MIT
#include "panels/SceneFinder.h"

#include <scopix/SpxSentence.h>

#include <QElapsedTimer>
#include <QPointer>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr int PieceMs = 8; // half a frame, so that a search never shows in what moves
constexpr int NodesBetweenLooks = 64;
// A scene that moves changes with every frame; what it shows is found again twice a second.
constexpr int RepeatMs = 500;

} // namespace

SceneFinder::SceneFinder(QObject* parent)
    : QObject(parent)
    , m_sensor(sceneChanged, this)
{
    m_repeat.setSingleShot(true);
    m_repeat.setInterval(RepeatMs);
    connect(&m_pieces, &QTimer::timeout, this, &SceneFinder::advance);
    connect(&m_repeat, &QTimer::timeout, this, &SceneFinder::beginAgain);
}

SceneFinder::~SceneFinder() = default;

void SceneFinder::setRoot(SoNode* root)
{
    m_root = root;
    begin();
}

void SceneFinder::setQuery(const QString& text)
{
    m_text = text;
    m_query = SoQuery(text.toStdString());
    begin();
}

QString SceneFinder::getError() const
{
    return m_isElsewhere ? QString() : SpxSentence::translated(m_query.getError());
}

const std::vector<SoRef<SoNode>>& SceneFinder::getFound() const
{
    return m_isElsewhere ? m_foundElsewhere : m_shown.getFound();
}

bool SceneFinder::isFound(const SoNode* node) const
{
    const auto is = [node](const SoRef<SoNode>& each) { return each.get() == node; };
    return m_isElsewhere ? std::any_of(m_foundElsewhere.begin(), m_foundElsewhere.end(), is)
                         : m_shown.isFound(node);
}

bool SceneFinder::beginElsewhere()
{
    const int search = ++m_searches;
    const QPointer<SceneFinder> self(this);
    m_foundElsewhere.clear();
    m_hasCome = false;
    m_isElsewhere = m_elsewhere && !m_text.trimmed().isEmpty() &&
                    m_elsewhere(m_text.trimmed(), [self, search](const std::vector<SoNode*>& found) {
                        if (!self || self->m_searches != search)
                            return;
                        self->m_foundElsewhere.assign(found.begin(), found.end());
                        self->m_hasCome = true;
                        emit self->foundChanged();
                    });
    return m_isElsewhere;
}

void SceneFinder::begin()
{
    m_repeat.stop();
    m_repeats = false;
    m_repeated = SoQuerySearch();
    if (beginElsewhere()) {
        m_shown = SoQuerySearch();
        m_sensor.detach();
        m_pieces.stop();
        emit foundChanged();
        return;
    }
    m_shown = SoQuerySearch(m_query, m_root.get());
    if (hasQuery())
        m_sensor.attach(m_root.get());
    else
        m_sensor.detach();
    if (m_shown.isFinished())
        m_pieces.stop();
    else
        m_pieces.start(0);
    emit foundChanged();
}

void SceneFinder::sceneChanged(void* self, SoSensor* /*sensor*/)
{
    auto* finder = static_cast<SceneFinder*>(self);
    if (!finder->m_repeat.isActive())
        finder->m_repeat.start();
}

void SceneFinder::beginAgain()
{
    if (m_pieces.isActive()) // this one first: it would never end otherwise
        return m_repeat.start();
    m_repeats = true;
    m_repeated = SoQuerySearch(m_query, m_root.get());
    m_pieces.start(0);
}

void SceneFinder::advance()
{
    QElapsedTimer elapsed;
    elapsed.start();
    SoQuerySearch& search = m_repeats ? m_repeated : m_shown;
    const std::size_t before = search.getFound().size();
    while (search.advance(NodesBetweenLooks) && elapsed.elapsed() < PieceMs) {
    }
    const bool finished = search.isFinished();
    const bool foundMore = search.getFound().size() > before;
    if (finished)
        m_pieces.stop();
    if (m_repeats && finished) {
        m_shown = std::move(m_repeated);
        m_repeated = SoQuerySearch();
        m_repeats = false;
    } else if (m_repeats || (!finished && !foundMore)) {
        return;
    }
    emit foundChanged();
}

} // namespace scopix
