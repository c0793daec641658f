#pragma once

#include "SoDialogComponent.h"

#include <Inventor/fields/SoMFString.h>
#include <Inventor/fields/SoSFInt32.h>

class SoDialogChoiceAuditor;

// The base of controls that choose one entry of a list. `items` is never
// truly empty while a control is shown: a list with no real entry holds one
// empty string, the placeholder, and counts zero choices.
class SoDialogChoice : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogChoice)

public:
  SoMFString items;
  // The index of the chosen entry.
  SoSFInt32 selectedItem;

  SoDialogChoice();

  void addAuditor(SoDialogChoiceAuditor* auditor);
  void removeAuditor(SoDialogChoiceAuditor* auditor);

  // The first entry added to an empty list takes the placeholder's place.
  void addItem(SbString text);
  // An index past the end appends, a negative one prepends.
  void insertItem(int index, SbString text);
  // An index that names no real entry changes nothing.
  void removeItem(int index);

  QWidget* getLabelWidget() override;
  void updateFromSensor(SoSensor* sensor) override;
  void destroyWidget() override;
  // The user chose entry `index`. The auditors run with the sensor off, so
  // that a change they make to `selectedItem` does not reach the widget.
  void eventNotify(unsigned int index, unsigned long long data) override;
  void applyDlgCptAuditor();

protected:
  ~SoDialogChoice() override;

  virtual void changeItems();
  virtual void changeSelectedItem();
  // The 3D form; empty until the in-scene presentation is built.
  virtual void change3DSelectedItem();
  virtual void change3DItems();

  // Reads the length of `items` again, and puts the placeholder back into a
  // list that has become empty.
  void fixItemsNumber();
  // The entries that are real choices, the placeholder aside.
  int32_t getRealItemCount() const { return itemCount - isEmptyList; }
  // Puts a `selectedItem` out of range back to the last selection shown, or
  // to 0 if that is out of range too, with the sensor off; returns the
  // selection to show, which becomes the last one shown.
  int32_t mendSelectedItem();

  // The length of `items` as last read.
  int32_t itemCount = 1;
  // 1 while `items` holds only the placeholder.
  int32_t isEmptyList = 1;
  SoFieldSensor* itemsSensor = nullptr;
  SoFieldSensor* selectedItemSensor = nullptr;
  // The selection that the 3D form last showed.
  int32_t lastSelectedItem = 0;

private:
  // Clears the empty-list flag once `items` holds a real entry, whoever
  // wrote it: a dialog file, the application or the library.
  void noteRealItems();
  // Reads the length of `items` again, with the flag to match.
  void readItemCount();
};
