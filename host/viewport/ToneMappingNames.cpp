// SPDX-License-Identifier: MIT
#include "viewport/ToneMappingNames.h"

namespace scopix
{

using ToneMapping = SoRenderer::ToneMapping;

QString nameOf(ToneMapping toneMapping)
{
    switch (toneMapping) {
    case ToneMapping::None:
        return QStringLiteral("none");
    case ToneMapping::Filmic:
        return QStringLiteral("filmic");
    case ToneMapping::Neutral:
        break;
    }
    return QStringLiteral("neutral");
}

std::optional<ToneMapping> toneMappingNamed(const QString& name)
{
    for (const ToneMapping each : {ToneMapping::None, ToneMapping::Neutral, ToneMapping::Filmic}) {
        if (nameOf(each) == name)
            return each;
    }
    return {};
}

} // namespace scopix
