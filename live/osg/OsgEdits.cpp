// SPDX-License-Identifier: MIT
#include "OsgEdits.h"

#include <osg/Drawable>
#include <osg/ShapeDrawable>
#include <osg/Texture>

#include <algorithm>
#include <set>

namespace scopix::live
{

namespace
{

/// One more than the greatest vertex that is drawn; none where a number is negative.
std::optional<std::size_t> verticesUsed(const osg::PrimitiveSet& set)
{
    if (const auto* arrays = dynamic_cast<const osg::DrawArrays*>(&set)) {
        if (arrays->getFirst() < 0 || arrays->getCount() < 0)
            return std::nullopt;
        return std::size_t(arrays->getFirst()) + std::size_t(arrays->getCount());
    }
    if (const auto* lengths = dynamic_cast<const osg::DrawArrayLengths*>(&set)) {
        const bool negative = std::any_of(lengths->begin(), lengths->end(), [](int n) { return n < 0; });
        if (lengths->getFirst() < 0 || negative)
            return std::nullopt;
        std::size_t end = std::size_t(lengths->getFirst());
        for (int length : *lengths)
            end += std::size_t(length);
        return end;
    }
    std::size_t end = 0;
    for (unsigned i = 0; i < set.getNumIndices(); ++i)
        end = std::max(end, std::size_t(set.index(i)) + 1);
    return end;
}

bool hasEnough(const osg::Array* array, std::size_t vertices, std::size_t sets)
{
    if (!array)
        return true;
    switch (array->getBinding()) {
    case osg::Array::BIND_PER_VERTEX:
        return array->getNumElements() >= vertices;
    case osg::Array::BIND_PER_PRIMITIVE_SET:
        return array->getNumElements() >= sets;
    case osg::Array::BIND_OVERALL:
        return array->getNumElements() >= 1;
    default:
        return true;
    }
}

bool haveEnough(const osg::Geometry::ArrayList& arrays, std::size_t vertices, std::size_t sets)
{
    return std::all_of(arrays.begin(), arrays.end(),
                       [&](const auto& array) { return hasEnough(array.get(), vertices, sets); });
}

bool areSafe(const std::vector<osg::ref_ptr<osg::Object>>& objects)
{
    return std::all_of(objects.begin(), objects.end(), [](const auto& object) {
        const auto* geometry = dynamic_cast<const osg::Geometry*>(object.get());
        const auto* sequence = dynamic_cast<const osg::Sequence*>(object.get());
        return (!geometry || isWithinArrays(*geometry)) && (!sequence || isWithinChildren(*sequence));
    });
}

/// Makes the next frame draw the object as it is now.
void touch(osg::Object& object)
{
    if (auto* data = dynamic_cast<osg::BufferData*>(&object))
        data->dirty();
    if (auto* drawable = dynamic_cast<osg::Drawable*>(&object))
        drawable->dirtyGLObjects();
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

bool isWithinArrays(const osg::Geometry& geometry)
{
    std::size_t vertices = 0;
    for (const auto& set : geometry.getPrimitiveSetList()) {
        const auto used = set ? verticesUsed(*set) : 0;
        if (!used)
            return false;
        vertices = std::max(vertices, *used);
    }
    const std::size_t sets = geometry.getNumPrimitiveSets();
    const osg::Array* positions = geometry.getVertexArray();
    return vertices <= (positions ? positions->getNumElements() : 0) &&
           hasEnough(geometry.getNormalArray(), vertices, sets) &&
           hasEnough(geometry.getColorArray(), vertices, sets) &&
           hasEnough(geometry.getSecondaryColorArray(), vertices, sets) &&
           hasEnough(geometry.getFogCoordArray(), vertices, sets) &&
           haveEnough(geometry.getTexCoordArrayList(), vertices, sets) &&
           haveEnough(geometry.getVertexAttribArrayList(), vertices, sets);
}

bool isWithinChildren(const osg::Sequence& sequence)
{
    osg::Sequence::LoopMode mode{};
    int begin = 0;
    int end = 0;
    sequence.getInterval(mode, begin, end);
    const std::vector<double>& times = sequence.getTimeList();
    const auto count = int(std::min<std::size_t>(times.size(), sequence.getNumChildren()));
    const bool positive = std::all_of(times.begin(), times.end(), [](double time) { return time > 0; });
    return positive && begin < std::max(count, 1) && end < std::max(count, 1);
}

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
}

WriteResult OsgEdits::write(NodeId id, const std::string& name, const Value& value)
{
    const osg::ref_ptr<osg::Object> object = m_objects.find(id);
    if (!object)
        return refused("“" + name + "” cannot be set, since its object has ended.");
    const OsgProperty* property = m_classes.find(*object, name);
    if (!property)
        return refused("Objects of type “" + object->getCompoundClassName() + "” have no “" + name + "”.");
    if (!m_viewers.waitForDrawing())
        return refused("The program was still drawing after two seconds; try again.");

    const Objects touched = touchedBy(id);
    const bool wasSafe = areSafe(touched);
    const std::optional<Value> before = property->read(*object, m_objects);
    WriteResult result = refused(property->write(*object, value, m_objects));
    if (result.refusal.empty() && wasSafe && before && !areSafe(touched)) {
        property->write(*object, *before, m_objects);
        result.refusal = "“" + name + "” cannot be set so, since the program would draw more than there is.";
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
