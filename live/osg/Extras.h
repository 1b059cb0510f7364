// SPDX-License-Identifier: MIT
#pragma once

#include "ExtraProperties.h"

#include <functional>
#include <type_traits>

namespace scopix::live
{

/// Adds properties of one class, where the object is of it.
template <class C>
class Extras
{
public:
    Extras(OsgProperties& properties, const osg::Object& object)
        : m_properties(properties)
        , m_isOne(dynamic_cast<const C*>(&object) != nullptr)
    {
    }

    /// A property with a value of its own type.
    template <class Get, class Set>
    Extras& value(PropertyInfo info, Get get, Set set)
    {
        using T = std::decay_t<decltype(get(std::declval<C&>()))>;
        if (info.kind == ValueKind::None)
            info.kind = PackedAs<T>::kind;
        const ValueKind kind = info.kind;
        return call(
            std::move(info), [get, kind](C& object, OsgObjects&) { return packedAs<T>(get(object), kind); },
            [set](C& object, const Value& value, OsgObjects&) {
                set(object, *unpackedAs<T>(value));
                return std::string();
            });
    }

    Extras& text(PropertyInfo info, std::function<std::string(C&)> get,
                 std::function<void(C&, const std::string&)> set)
    {
        info.kind = ValueKind::String;
        return call(
            std::move(info), [get](C& object, OsgObjects&) { return packedText(get(object)); },
            [set](C& object, const Value& value, OsgObjects&) -> std::string {
                const auto texts = unpackedTexts(value);
                if (!texts || texts->size() != 1)
                    return Sentence("The text is damaged.");
                set(object, texts->front());
                return {};
            });
    }

    Extras& choice(PropertyInfo info, std::vector<NamedNumber> names, std::function<int(C&)> get,
                   std::function<void(C&, int)> set)
    {
        info.meaning = Meaning::Enumeration;
        info.names = std::move(names);
        return value(std::move(info), get, set);
    }

    /// A list that is shown as objects; it cannot be set.
    Extras& objects(const std::string& name, std::function<void(C&, std::vector<osg::Object*>&)> get)
    {
        PropertyInfo info;
        info.name = name;
        info.kind = ValueKind::Object;
        info.list = true;
        return call(
            std::move(info),
            [get](C& object, OsgObjects& objects) {
                std::vector<osg::Object*> all;
                get(object, all);
                std::vector<NodeId> ids;
                for (osg::Object* one : all)
                    ids.push_back(objects.id(one, objects.id(&object)));
                return packedIds(ids);
            },
            nullptr);
    }

    /// A list with as many elements as the object wants: `set` says with a sentence why not.
    template <class T>
    Extras& list(const std::string& name, std::function<std::vector<T>(C&)> get,
                 std::function<std::string(C&, const std::vector<T>&)> set)
    {
        PropertyInfo info;
        info.name = name;
        info.kind = PackedAs<T>::kind;
        info.list = true;
        return call(
            std::move(info),
            [get](C& object, OsgObjects&) {
                Value value{PackedAs<T>::kind, true, {}};
                for (const T& one : get(object)) {
                    const Value element = packedAs<T>(one);
                    value.bytes.insert(value.bytes.end(), element.bytes.begin(), element.bytes.end());
                }
                return value;
            },
            [set](C& object, const Value& value, OsgObjects&) {
                std::vector<T> all;
                constexpr std::size_t size = sizeof(typename PackedAs<T>::Stored);
                for (std::size_t i = 0; i + size <= value.bytes.size(); i += size)
                    all.push_back(*unpackedAs<T>(
                        {value.kind, false, {value.bytes.data() + i, value.bytes.data() + i + size}}));
                return set(object, all);
            });
    }

    template <class Get, class Set>
    Extras& call(PropertyInfo info, Get get, Set set)
    {
        if (!m_isOne)
            return *this;
        CallProperty::Reader reader = [get](osg::Object& object,
                                            OsgObjects& objects) -> std::optional<Value> {
            return get(dynamic_cast<C&>(object), objects);
        };
        CallProperty::Writer writer;
        if constexpr (!std::is_same_v<Set, std::nullptr_t>)
            writer = [set](osg::Object& object, const Value& value, OsgObjects& objects) {
                return std::string(set(dynamic_cast<C&>(object), value, objects));
            };
        m_properties.push_back(std::make_unique<CallProperty>(std::move(info), reader, writer));
        return *this;
    }

private:
    OsgProperties& m_properties;
    bool m_isOne;
};

inline PropertyInfo named(const std::string& name, const std::string& documentation = {},
                          ValueKind kind = ValueKind::None)
{
    PropertyInfo info;
    info.name = name;
    info.documentation = documentation;
    info.kind = kind;
    return info;
}

inline PropertyInfo ranged(PropertyInfo info, double least, double greatest)
{
    info.least = least;
    info.greatest = greatest;
    return info;
}

// Each adds what it knows of the object, if anything.
void addMaterial(OsgProperties& properties, const osg::Object& object);
void addStateSet(OsgProperties& properties, const osg::Object& object);
void addTexture(OsgProperties& properties, const osg::Object& object);
void addImage(OsgProperties& properties, const osg::Object& object);
void addGroups(OsgProperties& properties, const osg::Object& object);
void addGeometry(OsgProperties& properties, const osg::Object& object);
void addTexts(OsgProperties& properties, const osg::Object& object);
void addData(OsgProperties& properties, const osg::Object& object);

} // namespace scopix::live
