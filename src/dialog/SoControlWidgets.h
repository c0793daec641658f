#pragma once

// What the controls share in handling their Qt widgets: the text and
// alignment that the widgets take, the places of a control's pieces in its
// frame, and the end of a frame widget.

#include <SoDialogComponent.h>

#include "SoWidgetEvent.h"

#include <Inventor/SbString.h>

#include <QPointer>
#include <QRect>
#include <QString>
#include <QStringDecoder>
#include <QWidget>

#include <cstdint>

namespace SoControlWidgets {

// Field text holds the bytes of the dialog file: UTF-8 in files written
// today, Latin-1 in older ones. Bytes that are not valid UTF-8 are taken as
// Latin-1. Every text is measured and shown through this one decoding.
inline QString toWidgetText(const SbString& text)
{
  const QByteArrayView bytes(text.getString(), text.getLength());
  QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
  QString decoded = utf8.decode(bytes);
  if (utf8.hasError())
    return QString::fromLatin1(bytes);
  return decoded;
}

// The one-byte text that menu entries and accelerators travel in: characters
// outside Latin-1 become "?", and Qt reads the bytes back as UTF-8, so only
// ASCII arrives unchanged. Popup titles take the whole text instead.
inline QByteArray toNarrowText(const SbString& text)
{
  return toWidgetText(text).toLatin1();
}

// Only the horizontal part: the vertical place is the control's to choose.
inline Qt::Alignment toWidgetAlignment(int labelAlignment)
{
  if (labelAlignment == SoFormwright::RIGHT)
    return Qt::AlignRight;
  if (labelAlignment == SoFormwright::CENTER)
    return Qt::AlignHCenter;
  return Qt::AlignLeft;
}

// The label at the left of a control, as wide as the label column and
// centred on the frame's height. A text taller than the frame starts above
// the frame's margin: nothing clamps it.
inline QRect sideLabelPlace(int32_t frameHeight, int32_t labelColumnWidth, int32_t textHeight)
{
  return QRect(3, 3 + (frameHeight - 3 - textHeight) / 2, labelColumnWidth, textHeight);
}

// The body of a labelled control: beside the label column, or across the
// frame when the label is hidden.
inline QRect bodyPlace(int32_t frameWidth, int32_t frameHeight, int32_t labelColumnWidth, bool labelVisible)
{
  if (labelVisible)
    return QRect(labelColumnWidth + 4, 3, frameWidth - 6 - (labelColumnWidth + 2), frameHeight - 6);
  return QRect(2, 3, frameWidth - 6, frameHeight - 6);
}

// Deletes a control's own frame widget, which is also its component widget:
// both guards let go of it, so the component does not delete it again.
template <class Frame>
void deleteFrameWidget(QPointer<Frame>& frame, QPointer<QWidget>& componentWidget)
{
  if (componentWidget == frame)
    componentWidget = nullptr;
  SoWidgetEvent::deleteWidget(frame.data());
  frame = nullptr;
}

// A control's frame may shrink to `least` and no further, and is held at its
// size along a fixed axis. Set at every build, as the negotiation may have
// changed both since the frame was made.
inline void limitFrame(QWidget* frame, const SbVec2i32& least, const SoDialogComponent& node)
{
  frame->setMinimumSize(least[0], least[1]);
  if (node.fixedWidth.getValue())
    frame->setMaximumWidth(node.width.getValue());
  if (node.fixedHeight.getValue())
    frame->setMaximumHeight(node.height.getValue());
}

}
