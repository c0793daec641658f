#pragma once

#include <Inventor/SbColor.h>
#include <Inventor/SbVec3f.h>
#include <Inventor/SbViewportRegion.h>

#include <QImage>
#include <QOpenGLWidget>

#include <cstdint>
#include <memory>

class QEvent;
class QKeyEvent;
class QMouseEvent;
class SoCamera;
class SoGLRenderAction;
class SoHandleEventAction;
class SoNode;
class SoNodeSensor;
class SoSensor;
class SoSeparator;

namespace Formwright {

class SoQtEventTranslator;

// A widget that shows a scene graph through a camera of its own and lets the
// user work it: mouse and key input reach the scene as the toolkit's events,
// so draggers, dialogs and event callbacks in it respond as in any viewer.
// A dialog put into the scene needs no build of its own: the viewer measures
// the scene whenever it changes, which builds the dialog in its 3D form. It
// can also render the scene to an image without being shown.
class SoQtSceneViewer : public QOpenGLWidget {
public:
  explicit SoQtSceneViewer(QWidget* parent = nullptr);
  ~SoQtSceneViewer() override;

  // The scene is referenced while shown, and seen through the viewer's
  // camera and headlight.
  void setSceneGraph(SoNode* scene);
  SoNode* getSceneGraph() const { return m_scene; }
  SoCamera* getCamera() const { return m_camera; }
  // Moves the camera so that the whole scene fills the drawing area.
  void viewAll();
  // Puts the camera straight above a point, looking down the z axis, so that
  // the plane through the point parallel to the screen shows pixelsPerUnit
  // widget pixels for each scene unit at the widget's present size.
  void viewFromAbove(const SbVec3f& point, float pixelsPerUnit);
  // The drawing area in device pixels, with the origin at its lower left.
  SbViewportRegion getViewportRegion() const;

  // Draws the scene at the widget's size into an image, through a context
  // of its own: the widget need not be shown. A null image when no OpenGL
  // context can be had.
  QImage renderToImage();

  // Hands one Qt input event to the scene; true when a node in the scene
  // handled it.
  bool processEvent(QEvent* event);

protected:
  bool event(QEvent* event) override;
  void initializeGL() override;
  void paintGL() override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

private:
  void render(const SbViewportRegion& viewport, uint32_t cacheContext);
  void fitToScene();
  void releaseContext();
  static void sceneChangedCB(void* data, SoSensor* sensor);

  SoSeparator* m_root;
  SoCamera* m_camera;
  SoNode* m_scene = nullptr;
  SoNodeSensor* m_sceneSensor;
  SoGLRenderAction* m_renderAction;
  // One action for every event, so that a node that grabs the events of a
  // drag keeps them until it lets go.
  SoHandleEventAction* m_eventAction;
  std::unique_ptr<SoQtEventTranslator> m_translator;
  // A dark grey, against which the light plates of dialogs stand out.
  const SbColor m_background{0.23f, 0.25f, 0.29f};
  uint32_t m_cacheContext;
  // The scene notifies while the viewer draws or measures it, when it builds
  // its parts on first sight: that must not ask for another drawing.
  bool m_busy = false;
  // The scene changed since it was last measured.
  bool m_fitPending = false;
};

}
