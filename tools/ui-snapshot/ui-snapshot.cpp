// ui-snapshot FORM.ui PICTURE.png: draws a Designer form as Qt builds it, so
// that a form can be shown beside the dialog converted from it.

#include <QApplication>
#include <QFile>
#include <QTextStream>
#include <QUiLoader>
#include <QWidget>

int main(int argc, char** argv)
{
  QApplication app(argc, argv);
  QTextStream err(stderr);
  if (argc != 3) {
    err << "usage: ui-snapshot FORM.ui PICTURE.png\n";
    return 2;
  }
  QFile file(QFile::decodeName(argv[1]));
  QUiLoader loader;
  QWidget* form = file.open(QIODevice::ReadOnly) ? loader.load(&file) : nullptr;
  if (!form) {
    err << argv[1] << ": " << (loader.errorString().isEmpty() ? file.errorString() : loader.errorString()) << "\n";
    return 1;
  }
  // Shown once, so that a main window lays out its menu bar and centre.
  form->show();
  QApplication::processEvents();
  const bool saved = form->grab().save(QFile::decodeName(argv[2]));
  delete form;
  return saved ? 0 : 1;
}
