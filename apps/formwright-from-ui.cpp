// formwright-from-ui FILE.ui: writes the dialog file that does the job of a
// Designer form to standard output. Warnings about what could not be carried
// over go to standard error; a file that is no form gives status 1 and one
// line per problem.

#include "UiFormConverter.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <cstdio>

int main(int argc, char** argv)
{
  QTextStream err(stderr);
  if (argc != 2) {
    err << "usage: formwright-from-ui FILE.ui\n";
    return 2;
  }
  const QString path = QFile::decodeName(argv[1]);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    err << path << ": " << file.errorString() << "\n";
    return 1;
  }
  UiFormConverter converter;
  const bool converted = converter.convert(file);
  for (const QString& problem : converter.problems())
    err << path << ": " << problem << "\n";
  for (const QString& warning : converter.warnings())
    err << path << ": warning: " << warning << "\n";
  if (!converted)
    return 1;
  QTextStream out(stdout);
  out.setEncoding(QStringConverter::Utf8);
  out << converter.dialogText(QFileInfo(path).fileName());
  return 0;
}
