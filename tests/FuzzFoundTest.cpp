// Sequences of actions on built dialogs that once crashed the library, each
// cut down to what it needs.

#include "SceneTestSupport.h"

#include <SoDialogIntegerSlider.h>

#include <QWidget>

#include <gtest/gtest.h>

// The window deleted by the application takes the slider's bar with it; the
// slider keeps its value unbuilt and in a later scene build.
TEST(FuzzFound, aSliderOutlivesTheWindowQtDeleted)
{
  readScene("#Inventor V2.1 ascii\nDEF W TopLevelDialog { RowDialog { DEF S DialogIntegerSlider { min 0 max 10 value 5 } } }\n");
  auto* window = static_cast<SoTopLevelDialog*>(SoNode::getByName("W"));
  auto* slider = static_cast<SoDialogIntegerSlider*>(SoNode::getByName("S"));
  window->buildDialog(nullptr, 0);
  delete window->getBaseWidget();
  buildInScene(window);
  slider->value = 10;
  EXPECT_FLOAT_EQ(slider->getValue(), 1.0f);
}
