#include "SoQtSceneViewer.h"

#include "SoQtEventTranslator.h"

#include <Inventor/actions/SoGetBoundingBoxAction.h>
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
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <limits>

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
  , m_translator(std::make_unique<SoQtEventTranslator>())
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

void SoQtSceneViewer::viewFromAbove(const SbVec3f& point, float pixelsPerUnit)
{
  // The toolkit fits the camera's angle to the shorter side of the drawing
  // area, so that the scale is set by that side.
  const float shortSide = static_cast<float>(qMax(1, qMin(width(), height()))) / pixelsPerUnit;
  const auto* camera = static_cast<SoPerspectiveCamera*>(m_camera);
  const float distance = shortSide / 2 / std::tan(camera->heightAngle.getValue() / 2);
  m_camera->orientation.setValue(SbRotation::identity());
  m_camera->position.setValue(point + SbVec3f(0.0f, 0.0f, distance));
  m_camera->focalDistance = distance;
  // Picks made before the next drawing need the planes round the new view.
  fitToScene();
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
  if (m_fitPending)
    fitToScene();
  render(getViewportRegion(), m_cacheContext);
}

void SoQtSceneViewer::fitToScene()
{
  m_fitPending = false;
  m_busy = true;
  // Measuring the scene also builds every dialog in it that has not been
  // built yet.
  SoGetBoundingBoxAction measure(getViewportRegion());
  measure.apply(m_root);
  const SbBox3f box = measure.getBoundingBox();
  if (!box.isEmpty()) {
    const SbVec3f eye = m_camera->position.getValue();
    SbVec3f sight;
    m_camera->orientation.getValue().multVec(SbVec3f(0.0f, 0.0f, -1.0f), sight);
    float nearest = std::numeric_limits<float>::max();
    float farthest = -nearest;
    for (int corner = 0; corner < 8; ++corner) {
      const SbVec3f point((corner & 1 ? box.getMax() : box.getMin())[0], (corner & 2 ? box.getMax() : box.getMin())[1],
                          (corner & 4 ? box.getMax() : box.getMin())[2]);
      const float distance = (point - eye).dot(sight);
      nearest = std::min(nearest, distance);
      farthest = std::max(farthest, distance);
    }
    // With nothing in front of the camera there is nothing to fit. A little
    // room on both sides keeps faces on the bounds from being clipped, and
    // the near plane stays far enough from the eye for the depth buffer.
    if (farthest > 0.0f) {
      farthest *= 1.01f;
      m_camera->farDistance = farthest;
      m_camera->nearDistance = std::max(nearest * 0.99f, farthest * 0.001f);
    }
  }
  m_busy = false;
}

void SoQtSceneViewer::render(const SbViewportRegion& viewport, uint32_t cacheContext)
{
  QOpenGLFunctions* gl = QOpenGLContext::currentContext()->functions();
  const SbVec2s size = viewport.getViewportSizePixels();
  gl->glViewport(0, 0, size[0], size[1]);
  gl->glClearColor(m_background[0], m_background[1], m_background[2], 1.0f);
  gl->glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
  gl->glEnable(GL_DEPTH_TEST);
  m_busy = true;
  m_renderAction->setViewportRegion(viewport);
  m_renderAction->setCacheContext(cacheContext);
  m_renderAction->apply(m_root);
  m_busy = false;
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
  if (m_fitPending)
    fitToScene();
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
  const SoEvent* translated = m_translator->translate(event, getViewportRegion().getViewportSizePixels()[1], ratio);
  if (!translated)
    return false;
  // A pick is clipped by the camera's planes as a drawing is.
  if (m_fitPending)
    fitToScene();
  m_eventAction->setViewportRegion(getViewportRegion());
  m_eventAction->setEvent(translated);
  m_eventAction->apply(m_root);
  return m_eventAction->isHandled();
}

// Tab and Shift+Tab are offered to the scene before they move the keyboard
// focus on to the next widget, as Qt would do before any key handler.
bool SoQtSceneViewer::event(QEvent* event)
{
  if (event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool tab = key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
    if (tab && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
      if (processEvent(event))
        return true;
      const bool forward = key->key() == Qt::Key_Tab && !(key->modifiers() & Qt::ShiftModifier);
      event->setAccepted(focusNextPrevChild(forward));
      return event->isAccepted();
    }
  }
  return QOpenGLWidget::event(event);
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
  if (viewer->m_busy)
    return;
  // The sensor fires inside every single edit: the scene is measured once
  // the whole change is made, and before it is drawn.
  if (!viewer->m_fitPending) {
    viewer->m_fitPending = true;
    QTimer::singleShot(0, viewer, [viewer] {
      if (viewer->m_fitPending)
        viewer->fitToScene();
    });
  }
  viewer->update();
}

}
