#include "SoQtBasicSlider.h"

#include <QCoreApplication>
#include <QImage>
#include <QMouseEvent>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <QOpenGLFunctions_1_0>
#include <QOpenGLVersionFunctionsFactory>
#include <QPainter>
#include <QPointer>

#include <algorithm>
#include <cmath>

namespace Formwright {

namespace {

const int kThumbWidth = 11;

// One context and surface serve every slider of the process. They are made
// at the first frame and go with the application object; a platform that
// cannot make them is not asked twice.
QOpenGLContext* sliderContext(QOffscreenSurface*& surface)
{
  static QPointer<QOpenGLContext> context;
  static QPointer<QOffscreenSurface> offscreen;
  static bool unavailable = false;
  if (unavailable)
    return nullptr;
  if (!context || !offscreen) {
    auto* made = new QOpenGLContext(QCoreApplication::instance());
    if (!made->create()) {
      delete made;
      unavailable = true;
      return nullptr;
    }
    auto* madeSurface = new QOffscreenSurface(nullptr, QCoreApplication::instance());
    madeSurface->setFormat(made->format());
    madeSurface->create();
    context = made;
    offscreen = madeSurface;
  }
  surface = offscreen;
  return context;
}

}

SoQtBasicSlider::SoQtBasicSlider(QWidget* parent) : QWidget(parent)
{
  placeThumb();
}

void SoQtBasicSlider::addCallback(CallbackList& list, Callback* callback, void* data)
{
  if (std::find(list.begin(), list.end(), std::make_pair(callback, data)) == list.end())
    list.emplace_back(callback, data);
}

void SoQtBasicSlider::removeCallback(CallbackList& list, Callback* callback, void* data)
{
  list.erase(std::remove(list.begin(), list.end(), std::make_pair(callback, data)), list.end());
}

// The list is a copy: a callback may add or remove callbacks.
void SoQtBasicSlider::callAll(CallbackList list, float value)
{
  for (const auto& [callback, data] : list)
    callback(data, value);
}

void SoQtBasicSlider::addValueChangedCallback(Callback* callback, void* data)
{
  addCallback(m_valueChangedCallbacks, callback, data);
}

void SoQtBasicSlider::removeValueChangedCallback(Callback* callback, void* data)
{
  removeCallback(m_valueChangedCallbacks, callback, data);
}

void SoQtBasicSlider::addFinishCallback(Callback* callback, void* data)
{
  addCallback(m_finishCallbacks, callback, data);
}

void SoQtBasicSlider::removeFinishCallback(Callback* callback, void* data)
{
  removeCallback(m_finishCallbacks, callback, data);
}

void SoQtBasicSlider::setValue(float value)
{
  m_value = value;
  placeThumb();
  update();
}

// The bar fills the widget. Its size is read afresh, as a hidden widget
// hears of a new size only when it is shown.
void SoQtBasicSlider::placeThumb()
{
  const int barWidth = width();
  m_bar.setBounds(0, 0, barWidth - 1, height() - 1);
  const int thumbWidth = std::min(kThumbWidth, barWidth);
  // A value outside the range, or none at all, stops at an end.
  const float shown = std::isnan(m_value) ? 0.0f : std::clamp(m_value, 0.0f, 1.0f);
  const int left = int(std::lround(shown * float(barWidth - thumbWidth)));
  m_thumb.setBounds(left, 0, left + thumbWidth - 1, height() - 1);
}

void SoQtBasicSlider::dragThumbTo(int x)
{
  const int barLeft = m_bar.getMin()[0];
  const int track = (m_bar.getMax()[0] - barLeft + 1) - (m_thumb.getMax()[0] - m_thumb.getMin()[0] + 1);
  // A thumb that stays on its pixel keeps its value: reading the value back
  // from the pixel would only add the pixel's rounding.
  if (std::clamp(x, barLeft, barLeft + std::max(track, 0)) == m_thumb.getMin()[0])
    return;
  const float value = track > 0 ? std::clamp(float(x - barLeft) / float(track), 0.0f, 1.0f) : 0.0f;
  if (value == m_value)
    return;
  m_moved = true;
  setValue(value);
  callAll(m_valueChangedCallbacks, value);
}

void SoQtBasicSlider::resizeEvent(QResizeEvent*)
{
  placeThumb();
}

void SoQtBasicSlider::mousePressEvent(QMouseEvent* event)
{
  if (event->button() != Qt::LeftButton)
    return;
  placeThumb();
  const int x = int(event->position().x());
  const bool onThumb = x >= m_thumb.getMin()[0] && x <= m_thumb.getMax()[0];
  // A press beside the thumb brings the thumb's middle to the mouse.
  m_grabOffset = onThumb ? x - m_thumb.getMin()[0] : (m_thumb.getMax()[0] - m_thumb.getMin()[0] + 1) / 2;
  m_dragging = true;
  m_moved = false;
  dragThumbTo(x - m_grabOffset);
}

void SoQtBasicSlider::mouseMoveEvent(QMouseEvent* event)
{
  if (m_dragging)
    dragThumbTo(int(event->position().x()) - m_grabOffset);
}

void SoQtBasicSlider::mouseReleaseEvent(QMouseEvent* event)
{
  if (!m_dragging || event->button() != Qt::LeftButton)
    return;
  dragThumbTo(int(event->position().x()) - m_grabOffset);
  m_dragging = false;
  // A press that never moved the thumb ends nothing.
  if (m_moved)
    callAll(m_finishCallbacks, m_value);
}

QImage SoQtBasicSlider::renderFrame()
{
  QOffscreenSurface* surface = nullptr;
  QOpenGLContext* context = sliderContext(surface);
  if (!context || !context->makeCurrent(surface))
    return QImage();
  m_gl = QOpenGLVersionFunctionsFactory::get<QOpenGLFunctions_1_0>(context);
  QImage image;
  if (m_gl) {
    const qreal ratio = devicePixelRatioF();
    QOpenGLFramebufferObject frame(size() * ratio);
    frame.bind();
    m_gl->glViewport(0, 0, frame.width(), frame.height());
    m_gl->glMatrixMode(GL_PROJECTION);
    m_gl->glLoadIdentity();
    m_gl->glOrtho(0, width(), 0, height(), -1, 1);
    m_gl->glMatrixMode(GL_MODELVIEW);
    m_gl->glLoadIdentity();
    const QColor background = palette().color(QPalette::Window);
    m_gl->glClearColor(background.redF(), background.greenF(), background.blueF(), 1.0f);
    m_gl->glClear(GL_COLOR_BUFFER_BIT);
    redraw();
    image = frame.toImage();
    image.setDevicePixelRatio(ratio);
    frame.release();
  }
  m_gl = nullptr;
  context->doneCurrent();
  return image;
}

void SoQtBasicSlider::paintEvent(QPaintEvent*)
{
  if (width() <= 0 || height() <= 0)
    return;
  const QImage image = renderFrame();
  if (!image.isNull())
    QPainter(this).drawImage(0, 0, image);
}

}
