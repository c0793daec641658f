#pragma once

#include "SoDialogChoice.h"
#include "SoDialogWidgetList.h"

#include <Inventor/lists/SoNodeList.h>

#include <memory>

class SoDialogQRadioButtons;

// A column of mutually exclusive buttons in a group box whose title is the
// node's label. The label thus takes no part in a group's label column.
class SoDialogRadioButtons : public SoDialogChoice {
  SO_FORMWRIGHT_HEADER(SoDialogRadioButtons)
  SO_FORMWRIGHT_SKIN_HEADER(DialogRadioButtons)

public:
  SoDialogRadioButtons();

  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void destroyWidget() override;
  void updateFromSensor(SoSensor* sensor) override;
  // The title is drawn by the group box itself: nothing to do.
  void drawLabel();
  void resetSize() override;
  void updateLabelWidget();
  // The buttons are stacked by the group box's layout: nothing to place.
  void updateRadioButtonsWidget();
  void change3DLabel() override;
  void change3DLabelAlignment() override;

protected:
  ~SoDialogRadioButtons() override;

  // The real choices as of the last change of the list.
  int32_t numButtons = 0;
  // The QRadioButton objects, by index.
  SoDialogWidgetList buttonWidgets;
  // The heights of the buttons in the 3D form, with their bounds, each array
  // `numButtonSizes` long; null until computed.
  std::unique_ptr<SbVec2i32[]> buttonSizes;
  std::unique_ptr<SbVec2i32[]> buttonMinSizes;
  std::unique_ptr<SbVec2i32[]> buttonMaxSizes;
  int32_t numButtonSizes = 0;
  // The button that the spreading of heights comes to next.
  int32_t nextButton = 0;
  // The widest button text and the sum of their heights, with margins.
  SbVec2i32 buttonsSize{0, 0};
  // 1 only while the list of items changes, for the 3D form.
  int32_t itemsChanging = 0;

  // The 3D form. The catalog parts make the first item; further items are
  // plain nodes of the same shape that share its translations, scales and
  // looks. `itemsSep` is a switch, which hides the items when none is left.
  SoSFNode frameSep;
  SoSFNode frame;
  SoSFNode labelSep;
  SoSFNode labelSwitch;
  SoSFNode labelProp;
  SoSFNode itemsSep;
  SoSFNode itemSep;
  SoSFNode itemFrameSep;
  SoSFNode itemFrame;
  SoSFNode itemBtnSep;
  SoSFNode itemBtnSwtch;
  SoSFNode stateOff;
  SoSFNode stateOn;
  SoSFNode itemTextSep;
  SoSFNode itemTextProp;
  SoText3* labelText = nullptr;
  SoTranslation* labelTranslation = nullptr;
  SoScale* frameScale = nullptr;
  SoTransform* frameTransform = nullptr;
  // Places the first item; the step walks down one item between items.
  SoTranslation* itemsTranslation = nullptr;
  SoTranslation* itemStepTranslation = nullptr;
  SoScale* itemScale = nullptr;
  SoTransform* itemTransform = nullptr;
  SoScale* btnScale = nullptr;
  SoTranslation* btnTranslation = nullptr;
  SoTranslation* textTranslation = nullptr;
  // One entry per item shown, in order.
  SoNodeList itemSeparators;
  SoNodeList itemTexts;
  SoNodeList itemSwitches;
  // The first item's measured text box; empty until measured.
  SbBox3f itemBBox;

  void change3DItems() override;
  // Mends a selection out of range, then shows the selected item.
  void change3DSelectedItem() override;
  void change3DLabelVisibility() override;
  // A release after a press on an item chooses it, and tells the auditors
  // even when it was chosen already.
  virtual void draggerFinishCallback3D();

private:
  // Spreads the height of the 3D form over the buttons, a pixel at a time
  // and button after button, each within its bounds.
  void computeNewButtonsHeight(SbVec2i32& size);
  void createLabelWidget();
  void createRadioButtonsWidget(int index);
  SbVec2i32 getComponentInitSize() override;
  SbVec2i32 getLabelInitSize() override;
  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;
  void changeItemText(int index, SbString text);
  void changeItems() override;
  // Both a selection past the end and a negative one are mended, silently.
  void changeSelectedItem() override;
  void changeLabel() override;
  void changeLabelVisibility() override;
  void changeLabelAlignment() override;
  SoDialogQRadioButtons* bridge() const;
  void create3DDialogRadioButtons();
  void update3DRadioButtons();
  // The frame and the title across its top.
  void update3DLabel();
  static void finishCB3D(void* data, SoDragger* dragger);
  // Adds the nodes of one more item below the others.
  void add3DItem(int index);
};
