// SPDX-License-Identifier: MIT
// A program with a scene of its own invention, made inspectable: stars with planets with moons. The adapter
// is all there is to write.
#include <scopix/live/adapter/Adapter.h>
#include <scopix/live/server/Server.h>
#include <scopix/live/values/LivePacking.h>

#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <thread>

namespace live = scopix::live;

struct Body {
    std::string name;
    float radius = 1;
    double angle = 0;
    std::vector<std::unique_ptr<Body>> moons;
};

class SkyAdapter : public live::Adapter
{
public:
    explicit SkyAdapter(Body& star)
        : m_star(star)
    {
    }
    std::string sceneGraphName() const override { return "Sky 1.0"; }
    live::Abilities abilities() const override
    {
        live::Abilities abilities;
        abilities.write = true;
        return abilities;
    }
    std::vector<live::NodeInfo> roots() override { return {infoOf(m_star)}; }
    std::optional<live::NodeInfo> node(live::NodeId id) override
    {
        const Body* body = bodyOf(id);
        return body ? std::optional(infoOf(*body)) : std::nullopt;
    }
    std::vector<live::NodeInfo> children(live::NodeId id, std::uint32_t first, std::uint32_t count) override
    {
        std::vector<live::NodeInfo> infos;
        if (const Body* body = bodyOf(id))
            for (std::size_t i = first; i < body->moons.size() && infos.size() < count; ++i)
                infos.push_back(infoOf(*body->moons[i]));
        return infos;
    }
    std::vector<std::vector<live::NodeId>> pathsTo(live::NodeId id, std::uint32_t limit) override
    {
        std::vector<live::NodeId> path = {id};
        while (m_parents.count(path.front()))
            path.insert(path.begin(), m_parents[path.front()]);
        if (limit == 0 || !bodyOf(id))
            return {};
        return {path};
    }
    std::vector<live::PropertyInfo> properties(live::NodeId) override
    {
        live::PropertyInfo radius{"radius", live::ValueKind::Float};
        radius.writable = true;
        radius.least = 0.1;
        radius.documentation = "How far the surface is from the centre";
        live::PropertyInfo angle{"angle", live::ValueKind::Double};
        angle.meaning = live::Meaning::Angle;
        return {radius, angle};
    }
    std::optional<live::Value> value(live::NodeId id, const std::string& property) override
    {
        const Body* body = bodyOf(id);
        if (body && property == "radius")
            return live::packed(live::ValueKind::Float, body->radius);
        if (body && property == "angle")
            return live::packed(live::ValueKind::Double, body->angle);
        return std::nullopt;
    }
    live::WriteResult write(live::NodeId id, const std::string& property, const live::Value& value) override
    {
        Body* body = bodyOf(id);
        const std::optional<float> radius = live::unpacked<float>(value);
        if (!body || property != "radius" || !radius || !std::isfinite(*radius))
            return {false, {}, "“" + property + "” cannot be set to that."};
        body->radius = std::max(*radius, 0.1F);
        return {true, live::packed(live::ValueKind::Float, body->radius), {}};
    }
    void watch(live::NodeId id, bool values) override { m_watched[id] = values; }
    void unwatch(live::NodeId id) override { m_watched.erase(id); }
    live::AdapterChanges takeChanges() override // the server sends only what differs
    {
        live::AdapterChanges changes;
        for (const auto& [id, values] : m_watched)
            if (values)
                changes.properties.push_back({id, "angle"});
        return changes;
    }

private:
    live::NodeInfo infoOf(const Body& body)
    {
        const auto [known, isNew] = m_ids.try_emplace(&body, m_ids.size() + 1);
        m_bodies[known->second] = const_cast<Body*>(&body);
        for (const auto& moon : body.moons)
            m_parents[m_ids.try_emplace(moon.get(), m_ids.size() + 1).first->second] = known->second;
        const auto count = static_cast<std::uint32_t>(body.moons.size());
        return {known->second, "Body", body.name, count, &body == &m_star ? 0U : 1U, true};
    }
    Body* bodyOf(live::NodeId id) { return m_bodies.count(id) ? m_bodies[id] : nullptr; }

    Body& m_star;
    std::map<const Body*, live::NodeId> m_ids;
    std::map<live::NodeId, Body*> m_bodies;
    std::map<live::NodeId, live::NodeId> m_parents;
    std::map<live::NodeId, bool> m_watched;
};

int main(int argc, char** argv)
{
    Body sun{"Sun", 10, 0, {}};
    for (const char* name : {"Mercury", "Venus", "Earth"})
        sun.moons.push_back(std::make_unique<Body>(Body{name, 2, 0, {}}));
    sun.moons.back()->moons.push_back(std::make_unique<Body>(Body{"Moon", 0.5F, 0, {}}));

    SkyAdapter adapter(sun);
    live::Server server(adapter, "sky");
    std::puts(server.problem().empty() ? server.socketPath().c_str() : server.problem().c_str());
    std::fflush(stdout);

    const long frames = argc > 1 ? std::strtol(argv[1], nullptr, 10) : 1000000;
    for (long frame = 0; frame < frames; ++frame) {
        sun.moons[2]->angle = 0.01 * static_cast<double>(frame);
        server.betweenFrames();
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}
