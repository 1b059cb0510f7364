// SPDX-License-Identifier: MIT
#include "changes/FileComparison.h"

#include "changes/PatchCommand.h"

#include <xsg/changes/SceneDiff.h>
#include <xsg/core/SoField.h>

#include <algorithm>

#include <ctime>

namespace scopix
{

namespace
{

using Kind = xsg::SceneChange::Kind;

constexpr qint64 QuickMs = 100;
constexpr int TextLimit = 80;

// What this thread has computed: a machine that is busy with others makes no scene slow.
qint64 computedMs()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return qint64{time.tv_sec} * 1000 + time.tv_nsec / 1'000'000;
}

QString toText(const std::string& text)
{
    const QString all = QString::fromStdString(text);
    return all.size() > TextLimit ? all.left(TextLimit - 1) + QStringLiteral("…") : all;
}

std::string lineStart(const xsg::SceneChange& change)
{
    return std::string(xsg::SceneChange::nameOf(change.kind)) + " " + change.path.toText();
}

} // namespace

FileComparison::FileComparison(SoNode* scene, SoNode* other, const QString& name, QObject* parent)
    : ChangeSource(parent)
    , m_scene(scene)
    , m_other(other)
    , m_name(name)
{
}

void FileComparison::noteEdit()
{
    m_isStale = true;
    ++m_version;
    emit changed();
}

void FileComparison::update()
{
    if (m_isStale && !m_isSlow)
        compareAgain();
}

void FileComparison::compareAgain(const std::function<void(double)>& goOn)
{
    const qint64 before = computedMs();
    m_changes = xsg::compareScenes(m_scene.get(), m_other.get(), goOn);
    m_isSlow = computedMs() - before > QuickMs;
    m_isStale = false;
    ++m_version;
    m_list.clear();
    m_index.clear();
    for (std::size_t i = 0; i < m_changes.size(); ++i) {
        const int next = static_cast<int>(m_numbers.size());
        const int number = m_numbers.emplace(lineStart(m_changes[i]), next).first->second;
        ChangeKey key{ChangeKey::Kind::Line, nullptr, nullptr, number};
        if (!m_index.emplace(key, i).second)
            continue;
        m_list.push_back(key);
    }
    if (m_isSlow)
        emit changed();
}

const xsg::SceneChange* FileComparison::changeOf(const ChangeKey& key) const
{
    const auto found = m_index.find(key);
    return found == m_index.end() ? nullptr : &m_changes[found->second];
}

ChangeSource::Text FileComparison::describe(const ChangeKey& key) const
{
    const xsg::SceneChange* change = changeOf(key);
    if (!change)
        return {};
    const QString path = QString::fromStdString(change->path.toText());
    const QString line = QString::fromStdString(xsg::PatchText::writeLine(*change)).left(4 * TextLimit);
    switch (change->kind) {
    case Kind::Set:
        return {path, change->value ? toText(*change->value) : tr("default"), toText(change->was), line};
    case Kind::Remove:
        return {path, tr("not there"), tr("there"), line};
    case Kind::Insert:
        return {path, change->type.empty() ? tr("there") : toText(change->type), tr("not there"), line};
    case Kind::Replace:
        return {path, change->type.empty() ? tr("another node") : toText(change->type), tr("another node"),
                line};
    case Kind::Rename:
        return {path, toText(change->name.value_or("")), toText(change->was), line};
    case Kind::Move:
        return {path, tr("here"), toText(change->from.toText()), line};
    default:
        return {path, change->after ? tr("after %1").arg(toText(change->after->label)) : tr("first"),
                tr("elsewhere in its group"), line};
    }
}

void FileComparison::sortByScene(ChangeKeys& keys) const
{
    std::sort(keys.begin(), keys.end(),
              [this](const ChangeKey& a, const ChangeKey& b) { return m_index.at(a) < m_index.at(b); });
}

SoNode* FileComparison::nodeOf(const ChangeKey& key) const
{
    const xsg::SceneChange* change = changeOf(key);
    if (!change)
        return nullptr;
    xsg::SceneLookup lookup(m_scene.get());
    SbSentence problem;
    SoNode* node = lookup.find(change->path.withoutField(), problem);
    if (!node && change->kind == Kind::Move)
        node = lookup.find(change->from, problem);
    return node || change->path.getSteps().empty() ? node : lookup.find(change->path.getParent(), problem);
}

SoField* FileComparison::fieldOf(const ChangeKey& key) const
{
    const xsg::SceneChange* change = changeOf(key);
    if (!change || change->kind != Kind::Set)
        return nullptr;
    xsg::SceneLookup lookup(m_scene.get());
    SbSentence problem;
    return lookup.findField(change->path, problem);
}

xsg::SceneChanges FileComparison::makePatch(const ChangeKeySet& keys)
{
    xsg::SceneChanges chosen;
    for (const xsg::SceneChange& change : m_changes) {
        const auto number = m_numbers.find(lineStart(change));
        if (keys.count({ChangeKey::Kind::Line, nullptr, nullptr, number->second}) > 0)
            chosen.push_back(change);
    }
    return chosen;
}

ChangeAct FileComparison::revert(const ChangeKeySet& keys)
{
    auto result = std::make_shared<xsg::PatchResult>();
    auto command = std::make_unique<PatchCommand>(makePatch(keys), m_scene.get(), result);
    const QString name = keys.size() == 1 ? tr("Take over %1").arg(describe(*keys.begin()).path)
                                          : tr("Take Over %1 Changes").arg(keys.size());
    return {std::move(command), name, {}, result};
}

QString FileComparison::baselineName() const
{
    return m_isStale && m_isSlow ? tr("“%1” before the last edits; choose More ▸ Compare Again").arg(m_name)
                                 : tr("“%1”").arg(m_name);
}

} // namespace scopix
