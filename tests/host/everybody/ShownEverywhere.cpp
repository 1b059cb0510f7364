// SPDX-License-Identifier: MIT
#include "ShownEverywhere.h"

#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldData.h>
#include <xsg/nodes/base/SoNode.h>
#include <xsg/types/SoType.h>

#include <QtWidgets>

namespace
{

constexpr const char* Properties[] = {
    "text",      "title",           "windowTitle",     "toolTip",
    "statusTip", "placeholderText", "accessibleName",  "accessibleDescription",
    "suffix",    "prefix",          "specialValueText"};

// The docks and tool bars of the default extensions, by the names that scripts find them by.
bool isOfDefaults(const QObject& object)
{
    static const QStringList Names{"Console", "Performance Counter", "Field Editor", "Profile Selector",
                                   "Node Editor"};
    const auto* entry = qobject_cast<const QAction*>(&object);
    if (entry && Names.contains(entry->text()))
        return true;
    for (const QObject* each = &object; each; each = each->parent()) {
        const auto* dock = qobject_cast<const QDockWidget*>(each);
        const auto* bar = qobject_cast<const QToolBar*>(each);
        if ((dock && each == &object && Names.contains(dock->windowTitle())) ||
            (dock && dock->windowTitle() != Names.last() && Names.contains(dock->windowTitle())) ||
            (bar && bar->objectName() != "mainToolBar"))
            return true;
    }
    return false;
}

// Parts of Qt's own widgets, which its own catalogues translate.
bool isOfQt(const QObject& object)
{
    const QString name = object.objectName();
    return name.startsWith("qt_dockwidget_") || name.startsWith("qt_keysequenceedit_") ||
           name.startsWith("Scroll");
}

QString pathOf(const QObject& object)
{
    QStringList parts;
    for (const QObject* each = &object; each && parts.size() < 5; each = each->parent())
        parts.prepend(each->metaObject()->className() + QString(each->objectName().isEmpty() ? "" : "#") +
                      each->objectName());
    return parts.join(" > ");
}

void add(const QObject& object, std::vector<ShownText>& texts)
{
    if (isOfQt(object))
        return;
    const bool isPrescribed = isOfDefaults(object);
    const auto note = [&](const QString& text, const char* what) {
        if (!text.isEmpty())
            texts.push_back({text, pathOf(object) + '.' + what, isPrescribed});
    };
    for (const char* property : Properties) {
        const bool isTyped = qobject_cast<const QLineEdit*>(&object) && qstrcmp(property, "text") == 0;
        if (!isTyped)
            note(object.property(property).toString(), property);
    }
    if (const auto* combo = qobject_cast<const QComboBox*>(&object))
        for (int i = 0; i < combo->count(); ++i)
            note(combo->itemText(i), "item");
    if (const auto* list = qobject_cast<const QListWidget*>(&object))
        for (int i = 0; i < list->count(); ++i)
            note(list->item(i)->text(), "item");
    if (const auto* header = qobject_cast<const QHeaderView*>(&object); header && header->model())
        for (int i = 0; i < header->count(); ++i)
            note(header->model()->headerData(i, header->orientation()).toString(), "header");
}

QSet<QString> namesOfTheLibrary()
{
    QSet<QString> names{"Scopix", "Blender", "Godot",   "Maya",    "Deutsch", "English", "Material",
                        "X",      "Y",       "Z",       "RGB",     "HSV",     "sRGB",    "MiB",
                        "ms",     "pt",      "Default", "Classic", "Euler",   "hex",     "lin",
                        "x",      "y",       "z",       "F1",      "Tab",     "Ctrl",    "Shift",
                        "Alt",    "Esc",     "Del",     "Ins",     "Up",      "Down"};
    for (const SoType type : SoType::getAllDerivedFrom(SoField::getClassTypeId()))
        names.insert(type.getName().getString());
    for (const SoType type : SoType::getAllDerivedFrom(SoFieldContainer::getClassTypeId())) {
        names.insert(type.getName().getString());
        if (!type.canCreateInstance())
            continue;
        const SoRef<SoFieldContainer> made(static_cast<SoFieldContainer*>(type.createInstance()));
        for (int i = 0; made && i < made->getFieldData()->getNumFields(); ++i)
            names.insert(made->getFieldData()->getFieldName(i).getString());
    }
    return names;
}

// Names of nodes and of counters.
bool isData(const ShownText& text)
{
    return text.text.startsWith("<span style") || text.where.contains("#breadcrumb") ||
           text.where.contains("#curveInput") || text.where.contains("#nodeTitle");
}

} // namespace

std::vector<ShownText> textsShown(QWidget& window)
{
    std::vector<ShownText> texts;
    for (auto* menu : window.findChildren<QMenu*>())
        emit menu->aboutToShow();
    add(window, texts);
    for (auto* each : window.findChildren<QObject*>()) {
        if (qobject_cast<QWidget*>(each) || qobject_cast<QAction*>(each))
            add(*each, texts);
    }
    return texts;
}

bool isOfThisSystem(const ShownText& text)
{
    static const QSet<QString> Names = namesOfTheLibrary();
    static const QRegularExpression Word("[^\\W\\d_][\\w]*");
    if (text.isPrescribed || isData(text))
        return true;
    for (auto each = Word.globalMatch(text.text); each.hasNext();) {
        if (!Names.contains(each.next().captured()))
            return false;
    }
    return true;
}
