// SPDX-License-Identifier: MIT
// A program on OpenSceneGraph as a user might have one, to be inspected by the tests:
//
//   scopix-osg-program --write FILE.osgt     writes the scene of the tests
//   scopix-osg-program [--inspect] [--by-hand] [--on-demand] [--composite] [--restless] [--polite]
//                      [--watchful]
//
// --inspect links the adapter in one line, --by-hand calls the traversals itself, --on-demand draws when
// something has changed only, --composite has two views, and --restless replaces nodes all the time. Ends
// when its window is closed.
#include <scopix/live/osg/LiveOsg.h>

#include <osg/Geometry>
#include <osg/LOD>
#include <osg/LightSource>
#include <osg/Material>
#include <osg/MatrixTransform>
#include <osg/PositionAttitudeTransform>
#include <osg/Sequence>
#include <osg/ShapeDrawable>
#include <osg/Switch>
#include <osg/Texture2D>
#include <osgDB/WriteFile>
#include <osgGA/TrackballManipulator>
#include <osgText/Text>
#include <osgViewer/CompositeViewer>
#include <osgViewer/Viewer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace
{

template <class T>
osg::ref_ptr<T> named(T* made, const char* name)
{
    made->setName(name);
    return made;
}

osg::ref_ptr<osg::Node> ball(const char* name, const osg::Vec3& center)
{
    auto drawable = named(new osg::ShapeDrawable(new osg::Sphere(center, 0.3F)), name);
    drawable->setColor({0, 0, 1, 1});
    return drawable;
}

osg::ref_ptr<osg::Texture2D> chequered()
{
    osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(8, 8, 1, GL_RGB, GL_UNSIGNED_BYTE);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x)
            std::fill_n(image->data(x, y), 3, (x + y) % 2 ? 255 : 128);
    image->setWriteHint(osg::Image::STORE_INLINE);
    return named(new osg::Texture2D(image), "chequered");
}

template <class Array>
osg::ref_ptr<Array> arrayOf(std::initializer_list<typename Array::ElementDataType> elements)
{
    osg::ref_ptr<Array> array = new Array;
    array->assign(elements.begin(), elements.end());
    return array;
}

osg::ref_ptr<osg::Node> square()
{
    const auto corners = arrayOf<osg::Vec3Array>({{-1, 0, -1}, {1, 0, -1}, {1, 0, 1}, {-1, 0, 1}});
    const auto normals = arrayOf<osg::Vec3Array>({{0, -1, 0}});
    const auto colors = arrayOf<osg::Vec4Array>({{1, 0, 0, 1}});
    const auto places = arrayOf<osg::Vec2Array>({{0, 0}, {1, 0}, {1, 1}, {0, 1}});
    auto geometry = named(new osg::Geometry, "square");
    geometry->setVertexArray(corners);
    geometry->setNormalArray(normals, osg::Array::BIND_OVERALL);
    geometry->setColorArray(colors, osg::Array::BIND_OVERALL);
    geometry->setTexCoordArray(0, places, osg::Array::BIND_PER_VERTEX);
    geometry->addPrimitiveSet(
        new osg::DrawElementsUShort(GL_TRIANGLES, 6, std::vector<GLushort>{0, 1, 2, 0, 2, 3}.data()));
    osg::StateSet* state = geometry->getOrCreateStateSet();
    osg::ref_ptr<osg::Material> material = named(new osg::Material, "red");
    material->setDiffuse(osg::Material::FRONT_AND_BACK, {1, 0, 0, 1});
    material->setAmbient(osg::Material::FRONT_AND_BACK, {1, 0, 0, 1});
    state->setAttributeAndModes(material);
    state->setTextureAttributeAndModes(0, chequered());
    state->addUniform(new osg::Uniform("strength", 0.5F));
    state->addUniform(new osg::Uniform("tint", osg::Vec4(1, 1, 1, 1)));
    state->setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    return geometry;
}

osg::ref_ptr<osg::Group> makeScene()
{
    auto world = named(new osg::Group, "world");
    auto mover = named(new osg::MatrixTransform, "mover");
    mover->addChild(square());
    auto poser = named(new osg::PositionAttitudeTransform, "poser");
    poser->setPosition({0.5, 1, 0.5});
    poser->addChild(ball("ball", {}));
    auto chooser = named(new osg::Switch, "chooser");
    chooser->addChild(ball("left", {-2, 1, 0}), true);
    chooser->addChild(ball("right", {2, 1, 0}), false);
    auto levels = named(new osg::LOD, "levels");
    levels->addChild(ball("near", {0, 1, 2}), 0, 10);
    levels->addChild(ball("far", {0, 1, -2}), 10, 1000);
    auto turns = named(new osg::Sequence, "turns");
    turns->addChild(ball("first", {-2, 1, 2}), 0.25);
    turns->addChild(ball("second", {2, 1, 2}), 0.5);
    auto lamp = named(new osg::LightSource, "lamp");
    auto words = named(new osgText::Text, "words");
    words->setText("hello");
    words->setCharacterSize(0.5F);
    words->setPosition({-2, 1, -2});
    for (const osg::ref_ptr<osg::Node>& child :
         std::vector<osg::ref_ptr<osg::Node>>{mover, poser, chooser, levels, turns, lamp, words})
        world->addChild(child);
    return world;
}

osg::ref_ptr<osg::GraphicsContext::Traits> windowTraits()
{
    osg::ref_ptr<osg::GraphicsContext::Traits> traits = new osg::GraphicsContext::Traits;
    traits->readDISPLAY();
    traits->setUndefinedScreenDetailsToDefaultScreen();
    traits->width = 320;
    traits->height = 240;
    traits->doubleBuffer = true;
    traits->windowDecoration = true;
    return traits;
}

void setUp(osgViewer::View& view, osg::GraphicsContext& window, int x, int width, osg::Node& scene)
{
    osg::Camera& camera = *view.getCamera();
    camera.setGraphicsContext(&window);
    camera.setViewport(x, 0, width, 240);
    camera.setProjectionMatrixAsPerspective(30, double(width) / 240, 1, 1000);
    view.setCameraManipulator(new osgGA::TrackballManipulator);
    view.setSceneData(&scene);
}

/// Ends nodes that an inspector may look at, and has new ones in their places.
void replaceSome(osg::Group& world)
{
    static int count = 0;
    if (++count % 3 == 0 && world.getNumChildren() > 0) {
        world.removeChild(world.getNumChildren() - 1);
        world.insertChild(0, ball("restless", {float(count % 7), 0, 0}));
    }
}

/// Draws slowly, and ends the program where the vertices change meanwhile.
class WatchfulDrawing : public osg::Drawable::DrawCallback
{
public:
    void drawImplementation(osg::RenderInfo& info, const osg::Drawable* drawable) const override
    {
        const auto* corners = static_cast<const osg::Vec3Array*>(drawable->asGeometry()->getVertexArray());
        const std::vector<osg::Vec3> before = corners->asVector();
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(3);
        while (std::chrono::steady_clock::now() < end)
            if (corners->asVector() != before)
                std::_Exit(3);
        drawable->drawImplementation(info);
    }
};

void watchDrawing(osg::Node& mover)
{
    osg::Drawable* square = mover.asGroup()->getChild(0)->asDrawable();
    square->setUseDisplayList(false);
    square->setDataVariance(osg::Object::STATIC);
    square->setDrawCallback(new WatchfulDrawing);
}

struct Manner {
    bool byHand = false;
    bool restless = false;
    bool polite = false;
};

int draw(osgViewer::ViewerBase& viewer, const Manner& manner, osg::Group& world)
{
    std::puts("running");
    std::fflush(stdout);
    if (!manner.byHand && !manner.restless && !manner.polite)
        return viewer.run();
    if (!viewer.isRealized())
        viewer.realize();
    while (!viewer.done() && world.getName() != "leave") {
        if (manner.restless)
            replaceSome(world);
        if (!manner.byHand) {
            viewer.frame();
            continue;
        }
        viewer.advance();
        viewer.eventTraversal();
        viewer.updateTraversal();
        viewer.renderingTraversals();
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const auto has = [&](const char* name) {
        return std::find(arguments.begin(), arguments.end(), name) != arguments.end();
    };
    const osg::ref_ptr<osg::Group> scene = makeScene();
    if (has("--write"))
        return osgDB::writeNodeFile(*scene, arguments.back()) ? 0 : 1;

    const osg::ref_ptr<osg::GraphicsContext> window =
        osg::GraphicsContext::createGraphicsContext(windowTraits());
    if (!window)
        return 1;
    osgViewer::Viewer single;
    osgViewer::CompositeViewer several;
    osg::ref_ptr<osgViewer::View> left = new osgViewer::View;
    osg::ref_ptr<osgViewer::View> right = new osgViewer::View;
    osgViewer::ViewerBase& viewer =
        has("--composite") ? static_cast<osgViewer::ViewerBase&>(several) : single;
    if (has("--composite")) {
        setUp(*left, *window, 0, 160, *scene);
        setUp(*right, *window, 160, 160, *makeScene());
        several.addView(left);
        several.addView(right);
    } else {
        setUp(single, *window, 0, 320, *scene);
    }
    if (has("--watchful"))
        watchDrawing(*scene->getChild(0));
    if (has("--on-demand"))
        viewer.setRunFrameScheme(osgViewer::ViewerBase::ON_DEMAND);
    if (has("--inspect"))
        scopix::live::inspect(viewer);
    Manner manner;
    manner.byHand = has("--by-hand");
    manner.restless = has("--restless");
    manner.polite = has("--polite");
    return draw(viewer, manner, *scene);
}
