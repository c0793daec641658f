#pragma once

#include <Inventor/SbBox2s.h>

#include <QWidget>

#include <utility>
#include <vector>

class QOpenGLFunctions_1_0;

namespace Formwright {

// A horizontal bar with a thumb that the user drags, drawn with OpenGL. Its
// value is normalised: 0 with the thumb at the bar's left end, 1 at its
// right end. Callbacks hear of the user's moves as they happen and of the
// value where a move ends; a value set by the program tells nobody.
//
// A derived class draws bar and thumb in `redraw`, in pixels with the origin
// at the bottom left. The drawing goes to a frame buffer off the screen and
// is shown as an image, so the slider needs no OpenGL window and appears in
// grabs of its window. Where no OpenGL context can be made, as with Qt's
// off-screen platform without a display, the bar stays blank and works all
// the same.
class SoQtBasicSlider : public QWidget {
public:
  typedef void Callback(void* data, float value);

  explicit SoQtBasicSlider(QWidget* parent);

  QWidget* getWidget() { return this; }

  // Adding a callback twice with the same data keeps one.
  void addValueChangedCallback(Callback* callback, void* data);
  void removeValueChangedCallback(Callback* callback, void* data);
  void addFinishCallback(Callback* callback, void* data);
  void removeFinishCallback(Callback* callback, void* data);

  float getValue() const { return m_value; }
  // A value outside 0 to 1 is kept; the thumb stops at the bar's end.
  void setValue(float value);

protected:
  // Draws the slider with the OpenGL context current.
  virtual void redraw() = 0;

  // The bar and the thumb, in the pixels of `redraw`, both ends included.
  const SbBox2s& getBarBox() const { return m_bar; }
  const SbBox2s& getThumbBox() const { return m_thumb; }
  // The OpenGL functions of the current context, while `redraw` runs.
  QOpenGLFunctions_1_0* gl() const { return m_gl; }

  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

private:
  using CallbackList = std::vector<std::pair<Callback*, void*>>;
  static void addCallback(CallbackList& list, Callback* callback, void* data);
  static void removeCallback(CallbackList& list, Callback* callback, void* data);
  static void callAll(CallbackList list, float value);

  // Renders a frame of the slider as an image; a null image without OpenGL.
  QImage renderFrame();
  void placeThumb();
  // Moves the thumb's left edge to `x` as far as the bar allows, telling the
  // value-changed callbacks of a new value.
  void dragThumbTo(int x);

  float m_value = 0.0f;
  SbBox2s m_bar;
  SbBox2s m_thumb;
  CallbackList m_valueChangedCallbacks;
  CallbackList m_finishCallbacks;
  bool m_dragging = false;
  // Whether the thumb has moved since the press.
  bool m_moved = false;
  // Where in the thumb the mouse holds it.
  int m_grabOffset = 0;
  QOpenGLFunctions_1_0* m_gl = nullptr;
};

}
