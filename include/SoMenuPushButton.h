#pragma once

#include "SoMenuItem.h"

#include <Inventor/fields/SoSFString.h>

class SoMenuPushButtonAuditor;
class SoMenuQPushButton;
class SoScale;
class SoTransform;

// A menu entry that acts when chosen. Its label is the entry's text.
class SoMenuPushButton : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuPushButton)
  SO_FORMWRIGHT_SKIN_HEADER(MenuPushButton)

public:
  // The key that chooses the entry, as getKeyCombination reads it.
  SoSFString accelerator;

  SoMenuPushButton();

  void addAuditor(SoMenuPushButtonAuditor* auditor);
  void removeAuditor(SoMenuPushButtonAuditor* auditor);
  void applyDlgCptAuditor();

  void buildMenu(void* menuParent, int is2D, int position) override;
  void updateFromSensor(SoSensor* sensor) override;
  // The entry was chosen: its auditors hear of it.
  void menuEvent(void* data, int id) override;
  void change3DLabel() override;

protected:
  // The entry's action stays in its menu, inert.
  ~SoMenuPushButton() override;

  void changeLabel() override;
  void changeEnable() override;
  // The entry was chosen in the scene: its auditors hear of it.
  virtual void draggerFinishCallback3D();

  SoSFNode btnSep;
  SoSFNode btnSwtch;
  SoSFNode released;
  SoSFNode pressed;

  SoMenuQPushButton* menuItem = nullptr;
  SoFieldSensor* acceleratorSensor = nullptr;

private:
  void insertMenuItem(int position);
  void changeAccelerator();
  void create3DPushButton(int position);
  void update3DPushButton();
  void change3DButtonState(int pressedNow);
  static void startCB3D(void* data, SoDragger* dragger);
  static void finishCB3D(void* data, SoDragger* dragger);

  SoScale* buttonScale = nullptr;
  SoTransform* buttonTransform = nullptr;
};
