// SPDX-License-Identifier: MIT
#pragma once

#include "EditedField.h"
#include "SpxFieldEditorDockWin.h"

#include <xsg/core/SoFieldContainer.h>
#include <xsg/core/SoSField.h>

#include <memory>
#include <vector>

/// Every editor of single values in a host, with the dock that picks among them, and nodes that have a field
/// of every type.
class Gallery : public testing::Test
{
protected:
    Gallery();

    void SetUp() override;
    void TearDown() override;

    /// A further node; it lives as long as the test.
    SoFieldContainer* addNode();
    static std::vector<SoSField*> singleFieldsOf(const SoFieldContainer* node);
    static SoSField* fieldOf(const SoFieldContainer* node, const std::string& type);
    static std::string typeOf(const SoField* field) { return field->getTypeId().getName().getString(); }

    /// Shows the field; its editor's widget.
    QWidget* show(SoSField* field);
    void showNothing();
    /// Unloads all editors and loads them again.
    void reload();

    int commands() const { return int(m_host.log().size()); }
    void undoAll();
    void redoAll();

    SoRef<SoFieldContainer> m_gallery;
    std::vector<SoSField*> m_fields; // the single values of m_gallery
    TestHost m_host;
    std::vector<std::unique_ptr<SpxEditor>> m_editors;

private:
    std::vector<SoRef<SoFieldContainer>> m_nodes;
    SpxFieldEditorDockWin m_dock;
};
