// The other contender of the whole-process comparison: a program that
// starts, opens a .ui file with Qt's run-time loader, lets Qt paint it once
// and ends.
//   uiloader-open-dialog FILE.ui [WIDTH HEIGHT]
// The window is given the size that Formwright's negotiation gives the same
// dialog, as its author would have set it: painting grows with the area.

#include <QApplication>
#include <QFile>
#include <QUiLoader>
#include <QWidget>

#include <cstdlib>

int main(int argc, char** argv)
{
  if (argc < 2)
    return 2;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QFile file(argv[1]);
  if (!file.open(QFile::ReadOnly))
    return 1;
  QUiLoader loader;
  // Left to the process's end, as the window of an application that quits.
  QWidget* window = loader.load(&file);
  if (!window)
    return 1;
  if (argc > 3)
    window->resize(std::atoi(argv[2]), std::atoi(argv[3]));
  window->show();
  QCoreApplication::processEvents();
  return 0;
}
