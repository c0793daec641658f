#pragma once

// Helpers for the tests of the controls: nodes built stand-alone into a
// plain widget, and the expected places of their pieces.

#include "TestSupport.h"

#include <SoDialogComponent.h>
#include <SoFormwright.h>

#include <QApplication>
#include <QBoxLayout>
#include <QFontMetrics>
#include <QFrame>
#include <QPointer>
#include <QRect>
#include <QResizeEvent>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

// A window-like parent with a vertical layout, into which stand-alone
// controls build.
struct ControlWindow {
  QWidget widget;
  QVBoxLayout* layout = new QVBoxLayout(&widget);

  template <class Node>
  void build(Node* node, int mode = 1)
  {
    SbVec2i32 useSize(0, 0), size(0, 0);
    node->buildWidget(&widget, useSize, size, mode);
  }
  // Shows the window, so that keys and clicks reach it; false when it never
  // came up.
  bool show()
  {
    widget.show();
    return QTest::qWaitForWindowExposed(&widget);
  }
  template <class Widget>
  Widget* find(const char* objectName) const
  {
    return widget.findChild<Widget*>(objectName);
  }
  // The direct widget children of `parent`, in the order they were made.
  static std::vector<QWidget*> childWidgets(const QWidget* parent)
  {
    std::vector<QWidget*> widgets;
    for (QObject* child : parent->children())
      if (child->isWidgetType())
        widgets.push_back(static_cast<QWidget*>(child));
    return widgets;
  }
};

// A component of a chosen natural size that, like a control, can make a
// frame of its own once its layout stands.
class ProbeComponent : public SoDialogComponent {
public:
  using SoDialogComponent::buildMode;
  using SoDialogComponent::componentInitSize;
  using SoDialogComponent::componentLayout;
  using SoDialogComponent::componentSize;
  using SoDialogComponent::labelSize;
  using SoDialogComponent::layoutSpacer;

  SbVec2i32 initSize{40, 20};
  bool makesFrame = false;
  int enabledState = -1;

  void build(QWidget* parent, int mode = 1, SbVec2i32 useSize = SbVec2i32(0, 0), SbVec2i32 size = SbVec2i32(0, 0))
  {
    buildWidget(parent, useSize, size, mode);
  }
  SbVec2i32 getComponentInitSize() override { return initSize; }
  void changeWidgetEnable(int enabled) override { enabledState = enabled; }

protected:
  void updateComponentWidget() override
  {
    if (!makesFrame || componentWidget != parentWidget)
      return;
    componentWidget = new QFrame(componentWidget);
    componentWidget->setObjectName("probeFrame");
    componentLayout->addWidget(componentWidget, 0);
    componentLayout->addItem(layoutSpacer);
  }
};

// A component whose natural size is given outright, so that it survives the
// forgetting of sizes that a rebuild does; its label is hidden.
class SizedLeaf : public SoDialogComponent {
public:
  SbVec2i32 natural{100, 30};

protected:
  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override
  {
    size = natural;
    min = natural;
    max.setValue(32767, 32767);
  }
};

inline SizedLeaf* makeFixedLeaf(int width = 100, int height = 30)
{
  auto* leaf = makeNode<SizedLeaf>();
  leaf->natural.setValue(width, height);
  leaf->labelVisibility = FALSE;
  return leaf;
}

// The pixel size of a text as the library measures a one-line label.
inline SbVec2i32 textPixels(const char* text)
{
  const QFontMetrics metrics(SoFormwright::getFormwrightFont());
  return SbVec2i32(metrics.horizontalAdvance(QString::fromUtf8(text)) + 3, metrics.height() + 3);
}

// What Qt tells a frame when its layout gives it a new size.
inline void resizeFrame(QWidget* frame, int width, int height)
{
  QResizeEvent event(QSize(width, height), frame->size());
  QApplication::sendEvent(frame, &event);
}

// The label at the left of a labelled control and its body beside it.
inline QRect expectedSideLabel(int frameHeight, int labelColumnWidth, int textHeight)
{
  return QRect(3, 3 + (frameHeight - 3 - textHeight) / 2, labelColumnWidth, textHeight);
}
inline QRect expectedBody(int frameWidth, int frameHeight, int labelColumnWidth, bool labelVisible)
{
  if (labelVisible)
    return QRect(labelColumnWidth + 4, 3, frameWidth - 6 - labelColumnWidth - 2, frameHeight - 6);
  return QRect(2, 3, frameWidth - 6, frameHeight - 6);
}

// Resized by its layout, a control with its label in a column beside its
// body shows both in their places; a hidden label leaves the body its room.
inline void expectLabelBesideBody(SoDialogComponent* node, QWidget* label, QWidget* body, SbVec2i32 labelSize)
{
  resizeFrame(node->getWidget(), 240, 33);
  EXPECT_EQ(SbVec2i32(node->width.getValue(), node->height.getValue()), SbVec2i32(240, 33));
  EXPECT_EQ(label->geometry(), expectedSideLabel(33, labelSize[0], labelSize[1]));
  EXPECT_EQ(body->geometry(), expectedBody(240, 33, labelSize[0], true));
  node->labelVisibility = FALSE;
  EXPECT_TRUE(label->isHidden());
  EXPECT_EQ(body->geometry(), expectedBody(240, 33, labelSize[0], false));
  node->labelVisibility = TRUE;
  EXPECT_EQ(body->geometry(), expectedBody(240, 33, labelSize[0], true));
}

// A second build only refreshes; destroyWidget deletes the one frame and
// forgets it; the next build makes a new one.
inline void expectOneFrameThroughRebuilds(ControlWindow& window, SoDialogComponent* node, const char* frameName)
{
  SbVec2i32 useSize(0, 0), size(0, 0);
  node->buildWidget(&window.widget, useSize, size, 1);
  node->buildWidget(&window.widget, useSize, size, 1);
  EXPECT_EQ(window.widget.findChildren<QFrame*>(frameName).size(), 1) << frameName;
  QPointer<QWidget> frame = node->getWidget();
  node->destroyWidget();
  EXPECT_TRUE(frame.isNull()) << frameName;
  EXPECT_EQ(node->getWidget(), nullptr) << frameName;
  node->buildWidget(&window.widget, useSize, size, 1);
  EXPECT_EQ(window.widget.findChildren<QFrame*>(frameName).size(), 1) << frameName;
}
