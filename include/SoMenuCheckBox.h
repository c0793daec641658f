#pragma once

#include "SoMenuItem.h"

#include <Inventor/fields/SoSFBool.h>
#include <Inventor/fields/SoSFString.h>

class SoMenuCheckBoxAuditor;
class SoMenuQCheckBox;
class SoTranslation;

// A menu entry with a check mark, which each choice turns over.
class SoMenuCheckBox : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuCheckBox)
  SO_FORMWRIGHT_SKIN_HEADER(MenuCheckBox)

public:
  SoSFBool state;
  // The entry's text while checked; `label` while not, or when empty.
  SoSFString onString;
  // The key that chooses the entry, as getKeyCombination reads it.
  SoSFString accelerator;

  SoMenuCheckBox();

  void addAuditor(SoMenuCheckBoxAuditor* auditor);
  void removeAuditor(SoMenuCheckBoxAuditor* auditor);
  void applyDlgCptAuditor();

  // The first build takes the text and accelerator only: the mark and the
  // enabled state wait for their fields' next change.
  void buildMenu(void* menuParent, int is2D, int position) override;
  void updateFromSensor(SoSensor* sensor) override;
  // The entry was chosen: `state` turns over, and the auditors hear of it
  // while the field is unwatched, so that a value they set stays unshown.
  void menuEvent(void* data, int id) override;
  // As wide as the longer of its two texts, with room for the mark.
  SbVec2i32 getItemInitSize() override;
  void change3DLabel() override;

protected:
  // The entry's action stays in its menu, inert.
  ~SoMenuCheckBox() override;

  void changeLabel() override;
  void changeEnable() override;
  void change3DState();
  void change3DOnString();
  // The entry was chosen in the scene: its state turns, its auditors hear of
  // it and its menu closes.
  virtual void draggerFinishCallback3D();
  SbString shown3DLabel() const override;

  SoSFNode chkSep;
  SoSFNode chkSwtch;
  SoSFNode stateOff;
  SoSFNode stateOn;

  SoMenuQCheckBox* menuItem = nullptr;
  SoFieldSensor* stateSensor = nullptr;
  SoFieldSensor* onStringSensor = nullptr;
  SoFieldSensor* acceleratorSensor = nullptr;

private:
  void insertMenuItem(int position);
  void changeState();
  void changeOnString();
  void changeAccelerator();
  void create3DCheckBox(int position);
  void update3DCheckBox();
  static void finishCB3D(void* data, SoDragger* dragger);

  SoTranslation* markTranslation = nullptr;
};
