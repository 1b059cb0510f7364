// SPDX-License-Identifier: MIT
#include "reader/GltfAnimations.h"

#include "model/ModelData.h"
#include "reader/GltfFile.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

using Property = ModelMotion::Property;

QJsonArray list(const QJsonObject& from, const char* name)
{
    return from.value(QLatin1String(name)).toArray();
}

std::optional<Property> propertyOf(const QString& path)
{
    static const QMap<QString, Property> all{{"translation", Property::Translation},
                                             {"rotation", Property::Rotation},
                                             {"scale", Property::Scale},
                                             {"weights", Property::Weights}};
    const auto found = all.find(path);
    return found == all.end() ? std::nullopt : std::optional<Property>(*found);
}

ModelMotion::Between betweenOf(const QString& interpolation)
{
    if (interpolation == QLatin1String("STEP"))
        return ModelMotion::Between::Step;
    return interpolation == QLatin1String("CUBICSPLINE") ? ModelMotion::Between::Cubic
                                                         : ModelMotion::Between::Linear;
}

bool isGrowing(const std::vector<float>& times)
{
    return std::all_of(times.begin(), times.end(), [](float t) { return std::isfinite(t); }) &&
           std::adjacent_find(times.begin(), times.end(), std::greater_equal<>()) == times.end();
}

// Which node of the model is which of the file: both are trees in the same order, that of the model perhaps
// with a root of its own.
class NodeOrder
{
public:
    NodeOrder(const QJsonObject& text, const ModelData& model)
        : m_nodes(list(text, "nodes"))
        , m_places(m_nodes.size(), -1)
    {
        const QJsonObject scene =
            list(text, "scenes").at(text.value(QLatin1String("scene")).toInt()).toObject();
        walk(list(scene, "nodes"));
        const int more = int(model.nodes.size()) - m_count;
        m_isSame = more == 0 || more == 1;
        for (int i = 0; m_isSame && i < m_nodes.size(); ++i) {
            if (m_places[i] >= 0)
                m_isSame = hasName(model, m_places[i] += more, m_nodes.at(i).toObject());
        }
    }

    bool isSame() const { return m_isSame; }
    int placeOf(int node) const { return m_places.value(node, -1); }

private:
    void walk(const QJsonArray& roots)
    {
        std::vector<int> open;
        const auto push = [&](const QJsonArray& nodes) {
            for (int i = nodes.size(); i > 0; --i)
                open.push_back(nodes.at(i - 1).toInt(-1));
        };
        push(roots);
        while (!open.empty()) {
            const int node = open.back();
            open.pop_back();
            if (node < 0 || node >= m_places.size() || m_places[node] >= 0)
                continue;
            m_places[node] = m_count++;
            push(list(m_nodes.at(node).toObject(), "children"));
        }
    }

    // The importer makes names unique by what it appends.
    static bool hasName(const ModelData& model, int place, const QJsonObject& node)
    {
        const QString name = node.value(QLatin1String("name")).toString();
        return QString::fromStdString(model.nodes[static_cast<std::size_t>(place)].name).startsWith(name);
    }

    QJsonArray m_nodes;
    QVector<int> m_places;
    int m_count = 0;
    bool m_isSame = false;
};

class ClipReader
{
public:
    ClipReader(GltfFile& file, const NodeOrder& order)
        : m_file(file)
        , m_order(order)
    {
    }

    // Nothing where there is something that cannot be read.
    std::optional<ModelMotion::Clip> read(const QJsonObject& animation)
    {
        ModelMotion::Clip clip;
        clip.name = animation.value(QLatin1String("name")).toString().toStdString();
        const QJsonArray samplers = list(animation, "samplers");
        for (const QJsonValue& channel : list(animation, "channels")) {
            const QJsonObject target = channel.toObject().value(QLatin1String("target")).toObject();
            const auto property = propertyOf(target.value(QLatin1String("path")).toString());
            ModelMotion::Track track;
            track.node = m_order.placeOf(target.value(QLatin1String("node")).toInt(-1));
            if (!property || track.node < 0)
                continue;
            track.property = *property;
            const int sampler = channel.toObject().value(QLatin1String("sampler")).toInt(-1);
            if (!takeKeys(samplers.at(sampler).toObject(), track))
                return {};
            clip.seconds = std::max(clip.seconds, track.times.back());
            clip.tracks.push_back(std::move(track));
        }
        return clip;
    }

private:
    bool takeKeys(const QJsonObject& sampler, ModelMotion::Track& track)
    {
        auto times = m_file.read(sampler.value(QLatin1String("input")).toInt(-1));
        auto values = m_file.read(sampler.value(QLatin1String("output")).toInt(-1));
        if (!times || !values || times->values.empty() || !isGrowing(times->values))
            return false;
        track.between = betweenOf(sampler.value(QLatin1String("interpolation")).toString());
        const std::size_t keys =
            times->values.size() * (track.between == ModelMotion::Between::Cubic ? 3 : 1);
        const std::size_t width = track.property == Property::Rotation  ? 4
                                  : track.property == Property::Weights ? values->values.size() / keys
                                                                        : 3;
        if (width == 0 || values->values.size() != keys * width)
            return false;
        track.times = std::move(times->values);
        track.values = std::move(values->values);
        return true;
    }

    GltfFile& m_file;
    const NodeOrder& m_order;
};

} // namespace

void takeGltfAnimations(GltfFile& file, ModelData& model)
{
    if (model.motion.clips.empty())
        return;
    const NodeOrder order(file.getText(), model);
    if (!order.isSame())
        return;
    std::vector<ModelMotion::Clip> clips;
    for (const QJsonValue& animation : list(file.getText(), "animations")) {
        auto clip = ClipReader(file, order).read(animation.toObject());
        if (!clip)
            return;
        if (!clip->tracks.empty())
            clips.push_back(std::move(*clip));
    }
    model.motion.clips = std::move(clips);
}

} // namespace scopix
