// SPDX-License-Identifier: MIT
#include "reader/GltfLosses.h"

#include "reader/Sentences.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QMap>

#include <algorithm>

namespace scopix
{

namespace
{

// What is shown or read, or is counted by what the importer says of it.
const char* const Known[] = {"KHR_binary_glTF",       "KHR_draco_mesh_compression",
                             "KHR_lights_punctual",   "KHR_materials_clearcoat",
                             "KHR_materials_common",  "KHR_materials_emissive_strength",
                             "KHR_materials_ior",     "KHR_materials_pbrSpecularGlossiness",
                             "KHR_materials_sheen",   "KHR_materials_transmission",
                             "KHR_materials_unlit",   "KHR_materials_volume",
                             "KHR_mesh_quantization", "KHR_texture_transform"};

bool isKnown(const QString& name)
{
    return std::any_of(std::begin(Known), std::end(Known),
                       [&](const char* known) { return name == QLatin1String(known); });
}

using Uses = QMap<QString, unsigned>;

void count(const QJsonValue& value, Uses& uses)
{
    if (value.isArray()) {
        for (const QJsonValue& each : value.toArray())
            count(each, uses);
        return;
    }
    const QJsonObject object = value.toObject();
    for (auto each = object.begin(); each != object.end(); ++each) {
        const QJsonObject extensions =
            each.key() == QLatin1String("extensions") ? each.value().toObject() : QJsonObject();
        for (const QString& name : extensions.keys())
            uses[name] += isKnown(name) ? 0 : 1;
        count(each.value(), uses);
    }
}

} // namespace

QStringList extensionLosses(const QJsonObject& text)
{
    const auto tr = [](const char* sentence) { return QCoreApplication::translate("LeftOut", sentence); };
    Uses uses;
    count(text, uses);
    QStringList sentences;
    for (auto each = uses.begin(); each != uses.end(); ++each)
        addCounted(sentences, each.value(),
                   tr("What the file says once by the extension “%1” is left out.").arg(each.key()),
                   tr("What the file says %1 times by the extension “%2” is left out.")
                       .arg(QStringLiteral("%1"), each.key()));
    return sentences;
}

} // namespace scopix
