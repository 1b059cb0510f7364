// SPDX-License-Identifier: MIT
#include "import/AnyImport.h"

#include "import/ModelImport.h"
#include "import/SceneImport.h"

#include <QFileInfo>

namespace scopix
{

FileImport* makeImport(const QString& path, QWidget* window, QObject* parent,
                       std::function<void(const SoRef<SoNode>&)> finished)
{
    if (QFileInfo(path).suffix().toLower() == QLatin1String("xsg")) {
        auto* import = new SceneImport(window, parent);
        QObject::connect(import, &SceneImport::finished, import, finished);
        return import;
    }
    auto* import = new ModelImport(window, parent);
    QObject::connect(import, &ModelImport::finished, import,
                     [finished = std::move(finished)](const SoRef<SoSeparator>& scene) {
                         finished(SoRef<SoNode>(scene.get()));
                     });
    return import;
}

} // namespace scopix
