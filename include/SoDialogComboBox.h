#pragma once

#include "SoDialogChoice.h"

#include <Inventor/SbBox3f.h>
#include <Inventor/lists/SoNodeList.h>

class SoDialogQComboBox;

// A drop-down list of entries, with the node's label beside it. The entries
// are shown as typed, escapes and all.
class SoDialogComboBox : public SoDialogChoice {
  SO_FORMWRIGHT_HEADER(SoDialogComboBox)
  SO_FORMWRIGHT_SKIN_HEADER(DialogComboBox)

public:
  SoDialogComboBox();

  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void destroyWidget() override;
  // The list is as high as its first entry and sits in the middle of the
  // frame; it is not stretched to the frame's height.
  void updateComboBoxWidget();
  void updateLabelWidget();

protected:
  ~SoDialogComboBox() override;

  QPointer<SoDialogQComboBox> comboBoxWidget;

  // The 3D form: a frame with the selected item's text and a small button,
  // and below it a list of item blocks, hidden while the list is closed.
  // The catalog parts make the first item; further items are plain nodes of
  // the same shape that share its scale, text offset and looks.
  SoSFNode labelSep;
  SoSFNode labelSwitch;
  SoSFNode labelProp;
  SoSFNode frameSep;
  SoSFNode frame;
  SoSFNode textSep;
  SoSFNode textProp;
  SoSFNode buttonSep;
  SoSFNode buttonSwitch;
  SoSFNode buttonReleased;
  SoSFNode buttonPressed;
  SoSFNode itemsSwitch;
  SoSFNode itemStrucSep;
  SoSFNode itemSep;
  SoSFNode itemFrame;
  SoSFNode itemTextSep;
  SoSFNode itemTextProp;
  // Moves the frame and all that lies on it, the items included.
  SoTranslation* frameTranslation = nullptr;
  // The item blocks are always as large as the frame.
  SoScale* frameScale = nullptr;
  SoTransform* textTransform = nullptr;
  // Shared by the shown text and the items' texts.
  SoTranslation* textTranslation = nullptr;
  SoText3* selectedText = nullptr;
  SoTranslation* buttonTranslation = nullptr;
  // One item down; it stands before every item, so item i lies 22 * (i + 1)
  // below the frame's centre.
  SoTranslation* itemStep = nullptr;
  // Raises the open list above everything else in its dialog.
  SoTranslation* itemsLift = nullptr;
  SoTransform* itemTransform = nullptr;
  // One entry per item block, in order.
  SoNodeList itemSeparators;
  SoNodeList itemTexts;
  // The shown text's measured box; empty until measured.
  SbBox3f textBBox;
  int listOpen = 0;

  // Mends a selection out of range, then shows the selected item's text.
  void change3DSelectedItem() override;
  // Gives every item a block, adds and removes blocks as the list grows or
  // shrinks, and has the dialog laid out again when the count changed.
  void change3DItems() override;
  // A press on the frame, the text or the button opens the list; a press
  // on an open list chooses the item under it, if any, and closes the list.
  void draggerStartCallback3D();
  // Another control became active: the list closes.
  void set3DInactive() override;

private:
  void createLabelWidget();
  SbVec2i32 getComponentInitSize() override;
  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;
  void changeItems() override;
  // A selection past the end is pulled back to the last entry through the
  // field, so the application hears of it; a negative one is left alone.
  void changeSelectedItem() override;
  void changeLabel() override;
  void changeLabelVisibility() override;
  void changeLabelAlignment() override;
  void create3DDialogComboBox();
  void update3DComboBox();
  void update3DBody() override;
  static void startCB3D(void* data, SoDragger* dragger);
  void addItemBlock();
  void openList();
  void chooseAndClose(const SoPath* path);
};
