#pragma once

#include "SoMenuItem.h"

#include <Inventor/fields/SoMFString.h>
#include <Inventor/fields/SoSFInt32.h>
#include <Inventor/lists/SoNodeList.h>

#include <cstdint>

class SoMenuQRadioButtons;
class SoMenuRadioButtonsAuditor;
class SoScale;
class SoTranslation;

// A group of mutually exclusive entries, one per value of `items`, standing
// one after the other in their menu. The node's own label shows nowhere.
class SoMenuRadioButtons : public SoMenuItem {
  SO_FORMWRIGHT_HEADER(SoMenuRadioButtons)
  SO_FORMWRIGHT_SKIN_HEADER(MenuRadioButtons)

public:
  SoMFString items;
  // The index of the checked entry. A value outside the items is kept, and
  // then no entry is checked.
  SoSFInt32 selectedItem;
  // The key of each entry, by index, as getKeyCombination reads it; entries
  // past the end of the list have none.
  SoMFString accelerators;

  SoMenuRadioButtons();

  void addAuditor(SoMenuRadioButtonsAuditor* auditor);
  void removeAuditor(SoMenuRadioButtonsAuditor* auditor);
  void applyDlgCptAuditor();

  // Entry i gets the action number getId() + i. The enabled state waits for
  // the field's next change.
  void buildMenu(void* menuParent, int is2D, int position) override;
  void updateFromSensor(SoSensor* sensor) override;
  // Entry `id` - getId() was chosen: it becomes `selectedItem`, the
  // auditors hear of it, and then the marks follow the field, which also
  // undoes Qt's own unchecking of an entry chosen again.
  void menuEvent(void* data, int id) override;
  // As wide as the widest item, with room for the mark; 18 a line.
  SbVec2i32 getItemInitSize() override;
  void setItemSize(SbVec2i32 size, int force) override;

protected:
  // The entries' actions stay in their menu, inert.
  ~SoMenuRadioButtons() override;

  void changeLabel() override;
  void changeEnable() override;
  void change3DSelectedItem();
  // Items come and go at the end; texts and the popup's layout follow.
  void change3DItems();
  SbString shown3DLabel() const override;

  SoSFNode radioSep;
  SoSFNode itemsSep;
  SoSFNode itemSwtch;
  SoSFNode stateOff;
  SoSFNode stateOn;

  // One entry per item of the scene form.
  SoNodeList itemSeparators;
  SoNodeList itemSwitches;
  SoNodeList itemTexts;
  SoNodeList itemTextTranslations;

  SoFieldSensor* selectedItemSensor = nullptr;
  SoFieldSensor* itemsSensor = nullptr;
  SoFieldSensor* acceleratorsSensor = nullptr;
  // One bridge per entry, `numItems` of them, or null before the first
  // widget build.
  SoMenuQRadioButtons** menuItems = nullptr;
  int32_t numItems = 0;
  int32_t previousNumItems = 0;

private:
  void insertMenuItem(int position);
  void changeSelectedItem();
  // The group is made anew at the end of its menu, with new action numbers.
  void changeItems();
  // Takes the group's actions out of their menu.
  void deleteBridges();
  void changeAccelerators();
  void create3DRadioButtons(int position);
  void update3DRadioButtons();
  void add3DItem(int index);
  static void finishCB3D(void* data, SoDragger* dragger);

  SoTranslation* firstItemTranslation = nullptr;
  SoTranslation* markTranslation = nullptr;
  SoScale* markScale = nullptr;
};
