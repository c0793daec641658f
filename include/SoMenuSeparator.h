#pragma once

#include "SoMenuItem.h"

class SoScale;

// A line between menu entries.
class SoMenuSeparator : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuSeparator)
  SO_FORMWRIGHT_SKIN_HEADER(MenuSeparator)

public:
  SoMenuSeparator();

  // Each widget build adds a line to the menu: the line is not kept.
  void buildMenu(void* menuParent, int is2D, int position) override;
  SbVec2i32 getItemInitSize() override;
  void setItemSize(SbVec2i32 size, int force) override;

protected:
  ~SoMenuSeparator() override;

  SoSFNode sepSep;
  SoSFNode sepFrame;

private:
  void create3DSeparator(int position);
  void update3DSeparator();

  SoScale* lineScale = nullptr;
};
