#pragma once

#include "SoMenuItem.h"

#include <Inventor/fields/SoSFString.h>

class SoMenuPushButtonAuditor;
class SoMenuQPushButton;

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

protected:
  // The entry's action stays in its menu, inert.
  ~SoMenuPushButton() override;

  void changeLabel() override;
  void changeEnable() override;

  SoMenuQPushButton* menuItem = nullptr;
  SoFieldSensor* acceleratorSensor = nullptr;

private:
  void insertMenuItem(int position);
  void changeAccelerator();
};
