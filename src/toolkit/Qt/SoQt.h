#pragma once

class QWidget;

// The binding's classes live in a namespace of our own: an application may
// also link the scene-graph toolkit's own Qt binding, whose classes carry the
// same names, and the dynamic linker would then bind one library's calls to
// the other's symbols.
namespace Formwright {

// The few services of a Qt binding that dialogs need: the application's main
// widget, showing and hiding top-level widgets, and an event loop for
// programs that have none of their own.
class SoQt {
public:
  // Starts the toolkit for a Qt application whose main widget is
  // `mainWidget`. A QApplication must exist.
  static void init(QWidget* mainWidget);
  static QWidget* getTopLevelWidget();
  static void show(QWidget* widget);
  static void hide(QWidget* widget);
  static void mainLoop();
  static void exitMainLoop();

private:
  static QWidget* s_mainWidget;
};

}
