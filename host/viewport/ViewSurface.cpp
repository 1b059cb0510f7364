// SPDX-License-Identifier: MIT
#include "viewport/ViewSurface.h"

#include "viewport/TextureImageLoader.h"

#include <xsg/render/SoOffscreenRenderer.h>

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLWidget>
#include <QPainter>
#include <QWidget>

#include <cmath>

namespace scopix
{

namespace
{

constexpr int Samples = 4;

QSurfaceFormat surfaceFormat()
{
    QSurfaceFormat format;
    format.setVersion(3, 3);
    format.setProfile(QSurfaceFormat::CoreProfile);
    format.setDepthBufferSize(24);
    format.setSamples(Samples);
    format.setOption(QSurfaceFormat::DeprecatedFunctions); // without it, no line is wider than one pixel
    format.setOption(QSurfaceFormat::DebugContext, SoRenderer::wantsDebugContext());
    return format;
}

QSize pixelSize(const QWidget& widget)
{
    return widget.size() * widget.devicePixelRatioF();
}

class GlSurface : public QOpenGLWidget, public ViewSurface
{
public:
    GlSurface(QWidget* parent, Prepare prepare, Drawn drawn)
        : QOpenGLWidget(parent)
        , m_prepare(std::move(prepare))
        , m_drawn(std::move(drawn))
    {
        m_renderer.setFittingImageReader(TextureImageLoader::read);
        setFormat(surfaceFormat());
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    ~GlSurface() override
    {
        releaseGl();
        disconnect(m_contextGoes); // the base destroys the context when nothing of this class is left
    }

    QWidget* getWidget() override { return this; }
    void redraw() override { update(); }
    int getDrawCount() const override { return m_drawCount; }

protected:
    void initializeGL() override
    {
        // Comes again with a new context when the widget moves to another window.
        m_contextGoes =
            connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, [this] { releaseGl(); });
    }
    void paintGL() override
    {
        const QSize size = pixelSize(*this);
        const ViewContent content = m_prepare(m_renderer);
        m_renderer.render(content.root, content.camera, size.width(), size.height());
        ++m_drawCount;
        m_drawn(m_renderer);
    }

private:
    void releaseGl()
    {
        if (!context())
            return;
        makeCurrent();
        m_renderer.releaseGL();
        doneCurrent();
    }

    Prepare m_prepare;
    Drawn m_drawn;
    SoRenderer m_renderer;
    QMetaObject::Connection m_contextGoes;
    int m_drawCount = 0;
};

class ImageSurface : public QWidget, public ViewSurface
{
public:
    ImageSurface(QWidget* parent, Prepare prepare, Drawn drawn)
        : QWidget(parent)
        , m_prepare(std::move(prepare))
        , m_drawn(std::move(drawn))
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_OpaquePaintEvent);
        m_renderer.setSamples(Samples);
        m_renderer.getRenderer().setFittingImageReader(TextureImageLoader::read);
    }

    QWidget* getWidget() override { return this; }
    void redraw() override
    {
        m_valid = false;
        update();
    }
    int getDrawCount() const override { return m_drawCount; }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        const QSize size = pixelSize(*this);
        if (!m_valid || m_pixels.width != size.width() || m_pixels.height != size.height())
            draw(size);
        QPainter painter(this);
        if (m_picture.isNull()) {
            painter.fillRect(rect(), palette().window());
            painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                             QString::fromStdString(m_renderer.getErrorText()));
        } else {
            painter.drawImage(rect(), m_picture);
        }
    }

private:
    void draw(const QSize& size)
    {
        const ViewContent content = m_prepare(m_renderer.getRenderer());
        m_picture = QImage();
        m_valid = true;
        ++m_drawCount;
        if (m_renderer.render(content.root, content.camera, size.width(), size.height(), m_pixels))
            m_picture = QImage(m_pixels.rgba.data(), m_pixels.width, m_pixels.height, 4 * m_pixels.width,
                               QImage::Format_RGBX8888);
        m_pixels.width = size.width();
        m_pixels.height = size.height();
        m_drawn(m_renderer.getRenderer());
    }

    Prepare m_prepare;
    Drawn m_drawn;
    SoOffscreenRenderer m_renderer;
    SoPixels m_pixels; // what m_picture shows
    QImage m_picture;
    bool m_valid = false;
    int m_drawCount = 0;
};

bool makesOpenGL()
{
    const QString platform = QGuiApplication::platformName();
    if (platform == QLatin1String("offscreen") || platform == QLatin1String("minimal"))
        return false;
    QOpenGLContext context;
    context.setFormat(surfaceFormat());
    QOffscreenSurface surface;
    surface.setFormat(surfaceFormat());
    surface.create();
    if (!context.create() || !context.makeCurrent(&surface))
        return false;
    const bool isRecent = context.format().version() >= qMakePair(3, 3);
    context.doneCurrent();
    return isRecent;
}

} // namespace

bool ViewSurface::hasOpenGL()
{
    static const bool known = makesOpenGL();
    return known;
}

ViewSurface* ViewSurface::make(QWidget* parent, Prepare prepare, Drawn drawn, bool withOpenGL)
{
    if (withOpenGL && hasOpenGL())
        return new GlSurface(parent, std::move(prepare), std::move(drawn));
    return new ImageSurface(parent, std::move(prepare), std::move(drawn));
}

} // namespace scopix
