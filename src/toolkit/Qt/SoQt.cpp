#include "SoQt.h"

#include <Inventor/SoDB.h>
#include <Inventor/SoInteraction.h>
#include <Inventor/nodekits/SoNodeKit.h>
#include <QApplication>
#include <QWidget>

namespace Formwright {

QWidget* SoQt::s_mainWidget = nullptr;

void SoQt::init(QWidget* mainWidget)
{
  SoDB::init();
  SoNodeKit::init();
  SoInteraction::init();
  s_mainWidget = mainWidget;
}

QWidget* SoQt::getTopLevelWidget()
{
  return s_mainWidget;
}

void SoQt::show(QWidget* widget)
{
  // A window that was minimised comes back to the front as well.
  widget->show();
  widget->raise();
}

void SoQt::hide(QWidget* widget)
{
  widget->hide();
}

void SoQt::mainLoop()
{
  QApplication::exec();
}

void SoQt::exitMainLoop()
{
  QApplication::quit();
}

}
