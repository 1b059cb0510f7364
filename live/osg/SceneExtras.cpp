// SPDX-License-Identifier: MIT
#include "Extras.h"

#include <osg/Billboard>
#include <osg/Geometry>
#include <osg/LOD>
#include <osg/Program>
#include <osg/Sequence>
#include <osg/Shader>
#include <osg/Switch>
#include <osgText/TextBase>

#include <algorithm>

namespace scopix::live
{

namespace
{

std::string wrongCount(std::size_t wanted)
{
    if (wanted == 1)
        return Sentence("This list has 1 element, one for each child, and no others can be set.");
    return Sentence("This list has %1 elements, one for each child, and no others can be set.",
                    {std::to_string(wanted)});
}

std::vector<float> rangesOf(const osg::LOD& lod, bool greatest)
{
    std::vector<float> ranges;
    for (unsigned i = 0; i < lod.getNumRanges(); ++i)
        ranges.push_back(greatest ? lod.getMaxRange(i) : lod.getMinRange(i));
    return ranges;
}

std::string setRanges(osg::LOD& lod, const std::vector<float>& ranges, bool greatest)
{
    if (ranges.size() != lod.getNumRanges())
        return wrongCount(lod.getNumRanges());
    for (unsigned i = 0; i < ranges.size(); ++i)
        lod.setRange(i, greatest ? lod.getMinRange(i) : ranges[i], greatest ? ranges[i] : lod.getMaxRange(i));
    return {};
}

template <class List>
void appendAll(List& list, std::vector<osg::Object*>& all)
{
    for (auto& one : list)
        all.push_back(one.get());
}

std::string utf8(const osgText::String& text)
{
    return text.createUTF8EncodedString();
}

} // namespace

void addGroups(OsgProperties& properties, const osg::Object& object)
{
    using osg::LOD;
    using osg::Sequence;
    using osg::Switch;
    Extras<Switch>(properties, object)
        .list<bool>(
            "Shown children", [](Switch& s) { return s.getValueList(); },
            [](Switch& s, const std::vector<bool>& shown) -> std::string {
                if (shown.size() != s.getNumChildren())
                    return wrongCount(s.getNumChildren());
                for (unsigned i = 0; i < shown.size(); ++i)
                    s.setValue(i, shown[i]);
                return {};
            });
    Extras<LOD>(properties, object)
        .list<float>(
            "Least ranges", [](LOD& lod) { return rangesOf(lod, false); },
            [](LOD& lod, const std::vector<float>& ranges) { return setRanges(lod, ranges, false); })
        .list<float>(
            "Greatest ranges", [](LOD& lod) { return rangesOf(lod, true); },
            [](LOD& lod, const std::vector<float>& ranges) { return setRanges(lod, ranges, true); });
    Extras<Sequence>(properties, object)
        .list<double>(
            "Times", [](Sequence& s) { return s.getTimeList(); },
            [](Sequence& s, const std::vector<double>& times) -> std::string {
                if (times.size() != s.getTimeList().size())
                    return wrongCount(s.getTimeList().size());
                for (unsigned i = 0; i < times.size(); ++i)
                    s.setTime(i, times[i]);
                return {};
            });
}

void addGeometry(OsgProperties& properties, const osg::Object& object)
{
    using G = osg::Geometry;
    Extras<G>(properties, object)
        .objects("PrimitiveSetList", [](G& g, auto& all) { appendAll(g.getPrimitiveSetList(), all); })
        .objects("TexCoordArrayList", [](G& g, auto& all) { appendAll(g.getTexCoordArrayList(), all); })
        .objects("VertexAttribArrayList",
                 [](G& g, auto& all) { appendAll(g.getVertexAttribArrayList(), all); });
}

void addTexts(OsgProperties& properties, const osg::Object& object)
{
    using T = osgText::TextBase;
    Extras<T>(properties, object)
        .text(
            named("Text"), [](T& t) { return utf8(t.getText()); },
            [](T& t, const std::string& text) { t.setText(text, osgText::String::ENCODING_UTF8); })
        .value(
            named("CharacterSize", "The height of the characters."),
            [](T& t) { return t.getCharacterHeight(); },
            [](T& t, float height) { t.setCharacterSize(height, t.getCharacterAspectRatio()); });
    Extras<osg::Shader>(properties, object)
        .text(
            named("ShaderSource", "The source in GLSL, which is compiled again once it is set."),
            [](osg::Shader& s) { return s.getShaderSource(); },
            [](osg::Shader& s, const std::string& source) { s.setShaderSource(source); });
    Extras<osg::Program>(properties, object).objects("Shaders", [](osg::Program& p, auto& all) {
        for (unsigned i = 0; i < p.getNumShaders(); ++i)
            all.push_back(p.getShader(i));
    });
}

} // namespace scopix::live
