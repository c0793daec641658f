#include "SoQtSceneViewer.h"

#include <Inventor/actions/SoGLRenderAction.h>
#include <Inventor/actions/SoHandleEventAction.h>
#include <Inventor/elements/SoGLCacheContextElement.h>
#include <Inventor/misc/SoContextHandler.h>
#include <Inventor/nodes/SoDirectionalLight.h>
#include <Inventor/nodes/SoPerspectiveCamera.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/sensors/SoNodeSensor.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions>
#include <QSurfaceFormat>

namespace Formwright {

namespace {

QSurfaceFormat sceneFormat()
{
  QSurfaceFormat format = QSurfaceFormat::defaultFormat();
  format.setDepthBufferSize(24);
  format.setSamples(4);
  return format;
}

}

SoQtSceneViewer::SoQtSceneViewer(QWidget* parent)
  : QOpenGLWidget(parent)
  , m_root(new SoSeparator)
  , m_camera(new SoPerspectiveCamera)
  , m_sceneSensor(new SoNodeSensor(sceneChangedCB, this))
  , m_renderAction(new SoGLRenderAction(SbViewportRegion()))
  , m_eventAction(new SoHandleEventAction(SbViewportRegion()))
  , m_cacheContext(SoGLCacheContextElement::getUniqueCacheContext())
{
  setFormat(sceneFormat());
  setFocusPolicy(Qt::StrongFocus);
  m_root->ref();
  m_root->addChild(m_camera);
  // A light from the viewer's side: it shines down the z axis, as the
  // camera looks while view-all keeps its orientation.
  m_root->addChild(new SoDirectionalLight);
  m_renderAction->setTransparencyType(SoGLRenderAction::SORTED_OBJECT_BLEND);
  m_sceneSensor->setPriority(0);
  m_sceneSensor->attach(m_root);
}

SoQtSceneViewer::~SoQtSceneViewer()
{
  releaseContext();
  delete m_sceneSensor;
  delete m_eventAction;
  delete m_renderAction;
  m_root->unref();
}

void SoQtSceneViewer::setSceneGraph(SoNode* scene)
{
  if (m_scene)
    m_root->removeChild(m_scene);
  m_scene = scene;
  if (m_scene)
    m_root->addChild(m_scene);
  viewAll();
}

void SoQtSceneViewer::viewAll()
{
  m_camera->viewAll(m_root, getViewportRegion());
}

SbViewportRegion SoQtSceneViewer::getViewportRegion() const
{
  const qreal ratio = devicePixelRatioF();
  return SbViewportRegion(static_cast<short>(qMax(1, qRound(width() * ratio))),
                          static_cast<short>(qMax(1, qRound(height() * ratio))));
}

void SoQtSceneViewer::initializeGL()
{
  // The widget's context is made afresh when it moves to another window.
  connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &SoQtSceneViewer::releaseContext,
          Qt::UniqueConnection);
}

void SoQtSceneViewer::releaseContext()
{
  if (!context())
    return;
  // What the toolkit made in the context goes with it, and a new context
  // starts with nothing kept.
  makeCurrent();
  SoContextHandler::destructingContext(m_cacheContext);
  doneCurrent();
  m_cacheContext = SoGLCacheContextElement::getUniqueCacheContext();
}

void SoQtSceneViewer::paintGL()
{
  render(getViewportRegion(), m_cacheContext);
}

void SoQtSceneViewer::render(const SbViewportRegion& viewport, uint32_t cacheContext)
{
  QOpenGLFunctions* gl = QOpenGLContext::currentContext()->functions();
  const SbVec2s size = viewport.getViewportSizePixels();
  gl->glViewport(0, 0, size[0], size[1]);
  gl->glClearColor(m_background[0], m_background[1], m_background[2], 1.0f);
  gl->glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
  gl->glEnable(GL_DEPTH_TEST);
  m_rendering = true;
  m_renderAction->setViewportRegion(viewport);
  m_renderAction->setCacheContext(cacheContext);
  m_renderAction->apply(m_root);
  m_rendering = false;
}

QImage SoQtSceneViewer::renderToImage()
{
  QOffscreenSurface surface;
  surface.setFormat(format());
  surface.create();
  QOpenGLContext context;
  context.setFormat(format());
  if (!surface.isValid() || !context.create() || !context.makeCurrent(&surface))
    return QImage();
  const SbViewportRegion viewport = getViewportRegion();
  const SbVec2s size = viewport.getViewportSizePixels();
  const uint32_t cacheContext = SoGLCacheContextElement::getUniqueCacheContext();
  QImage image;
  {
    QOpenGLFramebufferObjectFormat bufferFormat;
    bufferFormat.setAttachment(QOpenGLFramebufferObject::CombinedDepthStencil);
    bufferFormat.setSamples(format().samples());
    QOpenGLFramebufferObject buffer(size[0], size[1], bufferFormat);
    if (buffer.bind()) {
      render(viewport, cacheContext);
      image = buffer.toImage();
      buffer.release();
    }
  }
  // The context dies here: the toolkit lets go of what it made in it.
  SoContextHandler::destructingContext(cacheContext);
  context.doneCurrent();
  image.setDevicePixelRatio(devicePixelRatioF());
  return image;
}

// The viewer keeps every mouse event, handled or not, so that the moves and
// the release of a drag come to it as its press did; a key that the scene
// leaves goes on to the widget's parents, for their shortcuts.
bool SoQtSceneViewer::processEvent(QEvent* event)
{
  const qreal ratio = devicePixelRatioF();
  const SoEvent* translated = m_translator.translate(event, getViewportRegion().getViewportSizePixels()[1], ratio);
  if (!translated)
    return false;
  m_eventAction->setViewportRegion(getViewportRegion());
  m_eventAction->setEvent(translated);
  m_eventAction->apply(m_root);
  return m_eventAction->isHandled();
}

void SoQtSceneViewer::mousePressEvent(QMouseEvent* event)
{
  processEvent(event);
  event->accept();
}

void SoQtSceneViewer::mouseDoubleClickEvent(QMouseEvent* event)
{
  processEvent(event);
  event->accept();
}

void SoQtSceneViewer::mouseMoveEvent(QMouseEvent* event)
{
  processEvent(event);
  event->accept();
}

void SoQtSceneViewer::mouseReleaseEvent(QMouseEvent* event)
{
  processEvent(event);
  event->accept();
}

void SoQtSceneViewer::keyPressEvent(QKeyEvent* event)
{
  event->setAccepted(processEvent(event));
}

void SoQtSceneViewer::keyReleaseEvent(QKeyEvent* event)
{
  event->setAccepted(processEvent(event));
}

void SoQtSceneViewer::sceneChangedCB(void* data, SoSensor*)
{
  auto* viewer = static_cast<SoQtSceneViewer*>(data);
  if (!viewer->m_rendering)
    viewer->update();
}

}
