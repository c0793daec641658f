#pragma once

#include "SoFormwright.h"

class SoTranslation;

// What may sit directly in a window: any component, or a menu bar.
class SoTopComponent : public SoFormwright {
  SO_FORMWRIGHT_HEADER(SoTopComponent)

public:
  SoTopComponent();

  // The current, minimum and maximum pixel size of the node.
  virtual void getSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max);

  // Places the node's 3D form at the origin given by its window: the
  // translation is reused when the form already starts with one.
  void addTranslation(SoTranslation* translation);

protected:
  ~SoTopComponent() override;
};
