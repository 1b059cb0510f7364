// SPDX-License-Identifier: MIT
#include "viewport/ViewSurface.h"

#include "viewport/PictureInPieces.h"
#include "viewport/TextureImageLoader.h"

#include <scopix/SpxSentence.h>
#include <xsg/render/SoOffscreenRenderer.h>

#include <QBackingStore>
#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>
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

// The widget's own buffer takes pictures that are finished; where Qt clears it, the last one is put back.
QSurfaceFormat widgetFormat()
{
    QSurfaceFormat format = surfaceFormat();
    format.setSamples(0);
    return format;
}

class GlSurface : public QOpenGLWidget, public ViewSurface
{
public:
    GlSurface(QWidget* parent, Prepare prepare, Drawn drawn)
        : QOpenGLWidget(parent)
        , m_pictures(*this, std::move(prepare), std::move(drawn))
    {
        m_renderer.setFittingImageReader(TextureImageLoader::read);
        setFormat(widgetFormat());
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    ~GlSurface() override
    {
        releaseGl();
        disconnect(m_contextGoes); // the base destroys the context when nothing of this class is left
    }

    QWidget* getWidget() override { return this; }
    void redraw() override { m_pictures.redraw(); }
    int getDrawCount() const override { return m_pictures.getDrawCount(); }
    bool isUnfinished() const override { return m_pictures.isUnfinished(); }

protected:
    void initializeGL() override
    {
        // Comes again with a new context when the widget moves to another window.
        m_contextGoes =
            connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, [this] { releaseGl(); });
        m_pictures.redraw();
    }
    // Comes for what is shown in the window, other than paintGL(), which also serves pictures of the widget.
    void paintEvent(QPaintEvent* event) override
    {
        m_mayPause = true;
        QOpenGLWidget::paintEvent(event);
        m_mayPause = false;
    }
    void paintGL() override
    {
        const QSize size = pixelSize(*this);
        prepareCanvas(size);
        const bool isNew =
            m_pictures.draw(m_renderer, size, m_mayPause, [&](const ViewContent& content, auto until) {
                m_canvas->bind();
                return m_renderer.renderPart(content.root, content.camera, size.width(), size.height(),
                                             until);
            });
        if (isNew) {
            if (!m_shown || m_shown->size() != size)
                m_shown = std::make_unique<QOpenGLFramebufferObject>(size);
            QOpenGLFramebufferObject::blitFramebuffer(m_shown.get(), m_canvas.get());
        }
        QOpenGLFramebufferObject::bindDefault();
        if (m_pictures.hasPicture())
            QOpenGLFramebufferObject::blitFramebuffer(nullptr, QRect({}, size), m_shown.get(),
                                                      QRect({}, m_shown->size()), GL_COLOR_BUFFER_BIT,
                                                      GL_LINEAR);
        else
            clear();
        QOpenGLFramebufferObject::bindDefault();
    }

private:
    void prepareCanvas(const QSize& size)
    {
        if (m_canvas && m_canvas->size() == size)
            return;
        QOpenGLFramebufferObjectFormat format;
        format.setAttachment(QOpenGLFramebufferObject::Depth);
        format.setSamples(Samples);
        m_canvas = std::make_unique<QOpenGLFramebufferObject>(size, format);
    }
    void clear()
    {
        const QColor ground = m_pictures.getGround();
        QOpenGLFunctions* gl = context()->functions();
        gl->glClearColor(static_cast<float>(ground.redF()), static_cast<float>(ground.greenF()),
                         static_cast<float>(ground.blueF()), 1);
        gl->glClear(GL_COLOR_BUFFER_BIT);
    }
    void releaseGl()
    {
        if (!context())
            return;
        makeCurrent();
        m_renderer.releaseGL();
        m_canvas.reset();
        m_shown.reset();
        m_pictures.forget();
        doneCurrent();
    }

    PictureInPieces m_pictures;
    SoRenderer m_renderer;
    std::unique_ptr<QOpenGLFramebufferObject> m_canvas;
    std::unique_ptr<QOpenGLFramebufferObject> m_shown; // the last one that was finished
    QMetaObject::Connection m_contextGoes;
    bool m_mayPause = false;
};

class ImageSurface : public QWidget, public ViewSurface
{
public:
    ImageSurface(QWidget* parent, Prepare prepare, Drawn drawn)
        : QWidget(parent)
        , m_pictures(*this, std::move(prepare), std::move(drawn))
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_OpaquePaintEvent);
        m_renderer.setSamples(Samples);
        m_renderer.getRenderer().setFittingImageReader(TextureImageLoader::read);
    }

    QWidget* getWidget() override { return this; }
    void redraw() override { m_pictures.redraw(); }
    int getDrawCount() const override { return m_pictures.getDrawCount(); }
    bool isUnfinished() const override { return m_pictures.isUnfinished(); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        draw(pixelSize(*this));
        QPainter painter(this);
        if (m_pictures.hasPicture()) {
            painter.drawImage(rect(), m_picture);
            return;
        }
        painter.fillRect(rect(), m_pictures.isUnfinished() ? m_pictures.getGround() : palette().window());
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                         SpxSentence::translated(m_renderer.getError()));
    }

private:
    // Whether this goes into the window, and not into a picture of the widget, which has to be complete.
    bool isForWindow() const
    {
        const QBackingStore* store = backingStore();
        return store && redirected(nullptr) == const_cast<QBackingStore*>(store)->paintDevice();
    }
    void draw(const QSize& size)
    {
        const bool isNew = m_pictures.draw(
            m_renderer.getRenderer(), size, isForWindow(), [&](const ViewContent& content, auto until) {
                return m_renderer.renderPart(content.root, content.camera, size.width(), size.height(), until,
                                             m_pixels);
            });
        if (isNew)
            m_picture = QImage(m_pixels.rgba.data(), m_pixels.width, m_pixels.height, 4 * m_pixels.width,
                               QImage::Format_RGBX8888);
    }

    PictureInPieces m_pictures;
    SoOffscreenRenderer m_renderer;
    SoPixels m_pixels; // what m_picture shows
    QImage m_picture;
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
