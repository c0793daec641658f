#pragma once

// A control's widget tells its node of the user's action from inside Qt's
// event on that widget, and the node's auditors, the application's code,
// run there too. Whatever widget they have the library delete then must
// outlive the event: Qt goes on using the widget once the handler returns.

#include <QObject>
#include <QWidget>

class SoWidgetEvent {
public:
  SoWidgetEvent() { ++depth(); }
  ~SoWidgetEvent() { --depth(); }
  SoWidgetEvent(const SoWidgetEvent&) = delete;
  SoWidgetEvent& operator=(const SoWidgetEvent&) = delete;

  // Deletes a widget at once, or, inside a widget's event, takes it out of
  // its window and out of sight, silences it, and deletes it once the event
  // is over.
  static void deleteWidget(QWidget* widget)
  {
    if (!widget)
      return;
    if (depth() == 0) {
      delete widget;
      return;
    }
    widget->hide();
    widget->setParent(nullptr);
    widget->blockSignals(true);
    for (QObject* child : widget->findChildren<QObject*>())
      child->blockSignals(true);
    widget->deleteLater();
  }

private:
  static int& depth()
  {
    static int inside = 0;
    return inside;
  }
};
