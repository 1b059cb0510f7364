// SPDX-License-Identifier: MIT
#include "OsgEdits.h"

#include "OsgArrays.h"

#include <osg/Drawable>
#include <osg/Sequence>
#include <osg/ShapeDrawable>
#include <osg/Texture>

#include <algorithm>
#include <set>

namespace scopix::live
{

namespace
{

/// Shorter times let a sequence go round again and again within one frame.
constexpr double shortestTime = 1e-6;

bool isShownForAWhile(const osg::Sequence& sequence, double time)
{
    const bool runs = sequence.getMode() == osg::Sequence::START;
    float speed = 0;
    int repeats = 0;
    sequence.getDuration(speed, repeats);
    return time >= shortestTime && (!runs || time * double(speed) >= shortestTime);
}

bool comesToAnEnd(const osg::Sequence& sequence)
{
    const std::vector<double>& times = sequence.getTimeList();
    const double last = sequence.getLastFrameTime();
    return std::all_of(times.begin(), times.end(),
                       [&](double time) { return isShownForAWhile(sequence, time); }) &&
           (last <= 0 || isShownForAWhile(sequence, last));
}

bool isWithinChildren(const osg::Sequence& sequence)
{
    osg::Sequence::LoopMode mode{};
    int begin = 0;
    int end = 0;
    sequence.getInterval(mode, begin, end);
    const auto count = int(std::min<std::size_t>(sequence.getTimeList().size(), sequence.getNumChildren()));
    return begin < std::max(count, 1) && end < std::max(count, 1);
}

/// Why a property is not set so that the program would not survive to draw the object; empty where it would.
std::string dangerOf(const osg::Object& object, const std::string& property)
{
    const auto* geometry = dynamic_cast<const osg::Geometry*>(&object);
    const auto* sequence = dynamic_cast<const osg::Sequence*>(&object);
    if (geometry && !isWithinArrays(*geometry))
        return Sentence("“%1” cannot be set so, since the program would draw more than there is.",
                        {property});
    if (sequence && !isWithinChildren(*sequence))
        return Sentence(
            "“%1” cannot be set so, since the sequence would show children that it does not have.",
            {property});
    if (sequence && !comesToAnEnd(*sequence))
        return Sentence("“%1” cannot be set so, since the sequence would never come to the end of a frame; "
                        "each child needs some time, and a sequence that runs a speed above 0.",
                        {property});
    return {};
}

std::string dangerOf(const std::vector<osg::ref_ptr<osg::Object>>& objects, const std::string& property)
{
    for (const auto& object : objects)
        if (const std::string danger = object ? dangerOf(*object, property) : std::string(); !danger.empty())
            return danger;
    return {};
}

/// Makes the next frame draw the object as it is now.
void touch(osg::Object& object)
{
    if (auto* data = dynamic_cast<osg::BufferData*>(&object))
        data->dirty();
    if (auto* drawable = dynamic_cast<osg::Drawable*>(&object))
        drawable->dirtyGLObjects();
    if (auto* geometry = dynamic_cast<osg::Geometry*>(&object))
        renewArrays(*geometry);
    if (auto* node = dynamic_cast<osg::Node*>(&object))
        node->dirtyBound();
    if (auto* texture = dynamic_cast<osg::Texture*>(&object))
        texture->dirtyTextureParameters();
}

/// A drawable of a shape makes its arrays of it once.
void rebuild(osg::Object& object)
{
    if (auto* drawable = dynamic_cast<osg::ShapeDrawable*>(&object))
        drawable->build();
}

bool describesShape(const osg::Object& object)
{
    return dynamic_cast<const osg::Shape*>(&object) || dynamic_cast<const osg::TessellationHints*>(&object);
}

WriteResult refused(const std::string& why)
{
    WriteResult result;
    result.refusal = why;
    return result;
}

} // namespace

OsgEdits::OsgEdits(OsgObjects& objects, OsgClasses& classes, OsgViewers& viewers)
    : m_objects(objects)
    , m_classes(classes)
    , m_viewers(viewers)
{
}

/// The object, what it is a property of, and so on up to nodes, whose own owners are not drawn otherwise.
OsgEdits::Objects OsgEdits::touchedBy(NodeId id) const
{
    Objects all{m_objects.find(id)};
    std::set<osg::Object*> known{all.front()};
    for (std::size_t i = 0; i < all.size(); ++i)
        if (!dynamic_cast<osg::Node*>(all[i].get()))
            for (const auto& owner : m_objects.owners(m_objects.id(all[i])))
                if (known.insert(owner).second)
                    all.push_back(owner);
    return all;
}

void OsgEdits::copyValues(osg::Object& from, osg::Object& to)
{
    for (const auto& property : m_classes.propertiesOf(from)) {
        const PropertyInfo info = property->info(from);
        if (!info.writable || info.kind == ValueKind::Object)
            continue;
        const std::optional<Value> value = property->read(from, m_objects);
        if (value && property->read(to, m_objects) != value)
            property->write(to, *value, m_objects);
    }
    if (auto* geometry = dynamic_cast<osg::Geometry*>(&to))
        renewArrays(*geometry);
}

WriteResult OsgEdits::write(NodeId id, const std::string& name, const Value& value)
{
    const osg::ref_ptr<osg::Object> object = m_objects.find(id);
    if (!object)
        return refused(Sentence("“%1” cannot be set, since its object has ended.", {name}));
    const OsgProperty* property = m_classes.find(*object, name);
    if (!property)
        return refused(
            Sentence("Objects of type “%1” have no “%2”.", {object->getCompoundClassName(), name}));
    if (!m_viewers.waitForDrawing())
        return refused(Sentence("The program was still drawing after two seconds; try again."));

    const Objects touched = touchedBy(id);
    const bool wasSafe = dangerOf(touched, name).empty();
    const std::optional<Value> before = property->read(*object, m_objects);
    WriteResult result = refused(property->write(*object, value, m_objects));
    const std::string danger = wasSafe && before ? dangerOf(touched, name) : std::string();
    if (result.refusal.empty() && !danger.empty()) {
        property->write(*object, *before, m_objects);
        result.refusal = danger;
    }
    for (const auto& one : touched) {
        if (describesShape(*object))
            rebuild(*one);
        touch(*one);
    }
    m_viewers.requestRedraw();
    result.taken = result.refusal.empty();
    result.value = property->read(*object, m_objects).value_or(Value());
    return result;
}

} // namespace scopix::live
