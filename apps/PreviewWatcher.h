#pragma once

#include <QFileSystemWatcher>
#include <QString>
#include <QTimer>

#include <functional>

// Calls back once a file has been saved. An editor may save in several
// writes, or write a new file and rename it over the old one, which ends a
// watch on the old one: the call waits until the writes have settled and
// the file is back, and then watches the file anew.
class PreviewWatcher {
public:
  PreviewWatcher(const QString& file, std::function<void()> saved);

private:
  void settled();

  QString m_file;
  std::function<void()> m_saved;
  QFileSystemWatcher m_watcher;
  QTimer m_settling;
};
