#pragma once

// The 3D form, worked without a window: actions and synthetic events are
// applied to a scene with an orthographic camera in which one scene unit is
// one pixel of the viewport.

#include "TestSupport.h"

#include <SoFormMode.h>
#include <SoFormwright.h>
#include <SoTopLevelDialog.h>

#include <Inventor/SbViewportRegion.h>
#include <Inventor/SoPickedPoint.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoHandleEventAction.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/events/SoKeyboardEvent.h>
#include <Inventor/events/SoLocation2Event.h>
#include <Inventor/events/SoMouseButtonEvent.h>
#include <Inventor/nodekits/SoBaseKit.h>
#include <Inventor/nodes/SoOrthographicCamera.h>

#include <vector>

// A dialog in a scene, seen from above: the viewport's pixel (x, y), counted
// from its lower left corner, looks at the scene point (x, y - 400).
struct Scene {
  static const int kViewport = 400;
  SoSeparator* root = new SoSeparator;
  SbViewportRegion viewport{kViewport, kViewport};
  // One action for all events, as a viewer has: a dragger that grabs the
  // events of a press keeps them until its release.
  SoHandleEventAction action{viewport};

  Scene()
  {
    root->ref();
    auto* camera = new SoOrthographicCamera;
    camera->position.setValue(kViewport / 2.0f, -kViewport / 2.0f, 100.0f);
    camera->height = static_cast<float>(kViewport);
    camera->nearDistance = 1.0f;
    camera->farDistance = 200.0f;
    root->addChild(camera);
  }
  ~Scene() { root->unref(); }
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;

  // A scene point as an event position.
  static SbVec2s pixel(float x, float y) { return SbVec2s(static_cast<short>(x), static_cast<short>(y + kViewport)); }

  void button(SoButtonEvent::State state, float x, float y)
  {
    SoMouseButtonEvent event;
    event.setButton(SoMouseButtonEvent::BUTTON1);
    event.setState(state);
    event.setPosition(pixel(x, y));
    apply(event);
  }
  void move(float x, float y)
  {
    SoLocation2Event event;
    event.setPosition(pixel(x, y));
    apply(event);
  }
  void click(float x, float y)
  {
    button(SoButtonEvent::DOWN, x, y);
    button(SoButtonEvent::UP, x, y);
  }
  void click(const SbVec3f& point) { click(point[0], point[1]); }
  // A press and release of one key, with the pointer away from everything.
  void key(SoKeyboardEvent::Key key, bool shift = false)
  {
    for (SoButtonEvent::State state : {SoButtonEvent::DOWN, SoButtonEvent::UP}) {
      SoKeyboardEvent event;
      event.setKey(key);
      event.setState(state);
      event.setShiftDown(shift);
      event.setPosition(pixel(kViewport - 1.0f, -kViewport + 1.0f));
      apply(event);
    }
  }
  void type(std::initializer_list<SoKeyboardEvent::Key> keys)
  {
    for (SoKeyboardEvent::Key each : keys)
      key(each);
  }
  void apply(SoEvent& event)
  {
    event.setTime(SbTime::getTimeOfDay());
    action.setEvent(&event);
    action.apply(root);
  }
  // The deepest interface node under a scene point.
  SoFormwright* pickedNode(float x, float y)
  {
    SoRayPickAction pick(viewport);
    pick.setPoint(pixel(x, y));
    pick.apply(root);
    const SoPickedPoint* point = pick.getPickedPoint();
    if (!point)
      return nullptr;
    const std::vector<SoNode*> path = fullPathNodes(point->getPath());
    for (auto node = path.rbegin(); node != path.rend(); ++node)
      if ((*node)->isOfType(SoFormwright::getClassTypeId()))
        return static_cast<SoFormwright*>(*node);
    return nullptr;
  }
};

// Builds in the scene form as the application would, through the
// library-wide choice.
inline void buildInScene(SoTopLevelDialog* dialog)
{
  SoFormMode::setSceneForm(true);
  dialog->buildDialog(nullptr, 0);
  SoFormMode::setSceneForm(false);
}

// A node's geometry in the scene, and its centre.
inline SbBox3f boxOf(SoNode* node)
{
  SoGetBoundingBoxAction box{SbViewportRegion()};
  box.apply(node);
  return box.getBoundingBox();
}
inline SbVec3f centreOf(SoNode* node)
{
  return boxOf(node).getCenter();
}

// Where a node stands in the scene below `root`, every transform on its path
// counted; the kits' parts and the hidden children of switches are searched.
inline SbBox3f boxBelow(SoNode* root, SoNode* node)
{
  SoSearchAction search;
  search.setNode(node);
  search.setSearchingAll(TRUE);
  SoBaseKit::setSearchingChildren(TRUE);
  search.apply(root);
  SoBaseKit::setSearchingChildren(FALSE);
  SoGetBoundingBoxAction box{SbViewportRegion()};
  box.apply(search.getPath());
  return box.getBoundingBox();
}
