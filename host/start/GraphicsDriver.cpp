// SPDX-License-Identifier: MIT
#include "start/GraphicsDriver.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QStringList>

namespace scopix
{

QString graphicsDriver()
{
    QOffscreenSurface surface;
    surface.create();
    QOpenGLContext context;
    if (!context.create() || !context.makeCurrent(&surface))
        return {};
    QStringList texts;
    for (const GLenum name : {GL_VERSION, GL_RENDERER, GL_VENDOR})
        texts += QString::fromLatin1(reinterpret_cast<const char*>(context.functions()->glGetString(name)));
    context.doneCurrent();
    texts.removeAll({});
    return texts.join(QStringLiteral(", "));
}

} // namespace scopix
