#pragma once

#include "SoDialogChoice.h"

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

  SoDialogQComboBox* comboBoxWidget = nullptr;

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
};
