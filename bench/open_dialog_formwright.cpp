// One contender of the whole-process comparison: a program that starts,
// opens a dialog file as an application does, lets Qt paint it once and
// ends.
//   formwright-open-dialog FILE [--print-size]
// With --print-size it prints the window's size, which the loader's
// program is then given so that both paint the same area.

#include <SoFormwright.h>
#include <SoTopLevelDialog.h>

#include <QApplication>
#include <QWidget>

#include <cstdio>

int main(int argc, char** argv)
{
  if (argc < 2)
    return 2;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  SoFormwright::init();
  auto* dialog = static_cast<SoTopLevelDialog*>(SoFormwright::loadFromFile(argv[1], ""));
  if (!dialog || !dialog->isOfType(SoTopLevelDialog::getClassTypeId()))
    return 1;
  dialog->buildDialog(nullptr, 0);
  dialog->show();
  QCoreApplication::processEvents();
  if (argc > 2) {
    const QSize size = dialog->getBaseWidget()->size();
    std::printf("%d %d\n", size.width(), size.height());
  }
  // Like the loader's program, it ends with the window open: tearing a
  // window down is no part of opening it.
  return 0;
}
