// SPDX-License-Identifier: MIT
#include "Gallery.h"

#include "EdSFBitMaskWidget.h"
#include "EdSFBoolWidget.h"
#include "EdSFBox3sWidget.h"
#include "EdSFColorWidget.h"
#include "EdSFDoubleWidget.h"
#include "EdSFEnumWidget.h"
#include "EdSFFilePathStringWidget.h"
#include "EdSFFloatWidget.h"
#include "EdSFImageWidget.h"
#include "EdSFInt32Widget.h"
#include "EdSFLineWidget.h"
#include "EdSFMatrixWidget.h"
#include "EdSFNameWidget.h"
#include "EdSFPlaneWidget.h"
#include "EdSFRotationWidget.h"
#include "EdSFShortWidget.h"
#include "EdSFStringWidget.h"
#include "EdSFUInt32Widget.h"
#include "EdSFUShortWidget.h"
#include "EdSFVec2fWidget.h"
#include "EdSFVec2i32Widget.h"
#include "EdSFVec2sWidget.h"
#include "EdSFVec3fWidget.h"
#include "EdSFVec4fWidget.h"

#include <QDockWidget>

namespace
{

template <class... Editors>
std::vector<std::unique_ptr<SpxEditor>> make()
{
    std::vector<std::unique_ptr<SpxEditor>> editors;
    (editors.push_back(std::make_unique<Editors>()), ...);
    return editors;
}

SoFieldContainer* newNode()
{
    return dynamic_cast<SoFieldContainer*>(SoType::fromName("FieldGallery").createInstance());
}

} // namespace

Gallery::Gallery()
    : m_gallery(newNode())
    , m_editors(
          make<EdSFBitMaskWidget, EdSFBoolWidget, EdSFBox3sWidget, EdSFColorWidget, EdSFEnumWidget,
               EdSFDoubleWidget, EdSFFilePathStringWidget, EdSFFloatWidget, EdSFImageWidget, EdSFInt32Widget,
               EdSFLineWidget, EdSFMatrixWidget, EdSFNameWidget, EdSFPlaneWidget, EdSFRotationWidget,
               EdSFShortWidget, EdSFStringWidget, EdSFUInt32Widget, EdSFUShortWidget, EdSFVec2fWidget,
               EdSFVec2i32Widget, EdSFVec2sWidget, EdSFVec3fWidget, EdSFVec4fWidget>())
{
}

void Gallery::SetUp()
{
    ASSERT_TRUE(m_gallery);
    m_fields = singleFieldsOf(m_gallery.get());
    ASSERT_GE(m_fields.size(), 29U);
    QList<SpxExtension*> extensions;
    for (const auto& editor : m_editors) {
        editor->load();
        extensions << editor.get();
    }
    m_host.control(extensions);
    m_host.start(m_dock);
    m_host.window().resize(480, 320);
    m_host.window().show();
    m_host.takeLog();
}

void Gallery::TearDown()
{
    showNothing();
    m_host.stop(m_dock);
    for (const auto& editor : m_editors)
        editor->unload();
}

SoFieldContainer* Gallery::addNode()
{
    m_nodes.emplace_back(newNode());
    return m_nodes.back().get();
}

std::vector<SoSField*> Gallery::singleFieldsOf(const SoFieldContainer* node)
{
    std::vector<SoSField*> fields;
    const SoFieldData* data = node->getFieldData();
    for (int i = 0; SoField* field = data->getField(node, i); ++i) {
        if (auto* single = dynamic_cast<SoSField*>(field))
            fields.push_back(single);
    }
    return fields;
}

SoSField* Gallery::fieldOf(const SoFieldContainer* node, const std::string& type)
{
    for (SoSField* field : singleFieldsOf(node)) {
        if (typeOf(field) == type)
            return field;
    }
    ADD_FAILURE() << "no field of type " << type;
    return nullptr;
}

QWidget* Gallery::show(SoSField* field)
{
    m_host.select(field);
    TestHost::pump();
    return m_host.window().findChild<QDockWidget*>()->widget();
}

void Gallery::showNothing()
{
    m_host.select(static_cast<SoField*>(nullptr));
    TestHost::pump();
}

void Gallery::reload()
{
    showNothing();
    for (const auto& editor : m_editors) {
        editor->unload();
        editor->load();
    }
}

void Gallery::undoAll()
{
    while (m_host.undo()) {
    }
    TestHost::pump();
}

void Gallery::redoAll()
{
    while (m_host.redo()) {
    }
    TestHost::pump();
}
