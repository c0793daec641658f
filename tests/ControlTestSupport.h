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
