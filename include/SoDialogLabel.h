#pragma once

#include "SoDialogComponent.h"

class SoDialogQLabel;

// A line or block of text. Unlike every other node, its label is
// left-aligned unless the dialog file says otherwise.
class SoDialogLabel : public SoDialogComponent {
  SO_FORMWRIGHT_HEADER(SoDialogLabel)

public:
  SoDialogLabel();

  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void destroyWidget() override;
  // Places the text in the frame, centred on the frame's height.
  void updateLabelWidget();

  // The text is the component itself: a label takes no part in the label
  // column of its container.
  SbVec2i32 getLabelInitSize() override;
  SbVec2i32 getComponentInitSize() override;
  // The text broken to the control's width, one value per shown line.
  void change3DLabel() override;
  void change3DLabelAlignment() override;

protected:
  ~SoDialogLabel() override;

  void changeLabel() override;
  void changeLabelAlignment() override;
  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;

  // The text's pixel size, its width corrected by the label column.
  SbVec2i32 labelPixelSize{0, 0};

  SoSFNode labelSep;
  SoSFNode labelProp;
  SoText3* labelText = nullptr;
  SoTranslation* labelTranslation = nullptr;

private:
  void createLabelWidget();
  void create3DDialogLabel();
  // Places the text by its measured box and the alignment.
  void update3DLabel();

  SoDialogQLabel* bridge() const;
};
