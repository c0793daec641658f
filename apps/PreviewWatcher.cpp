#include "PreviewWatcher.h"

#include <QFileInfo>

#include <utility>

namespace {

// Long enough for the writes of one save, short enough to feel immediate.
const int kSettlingMilliseconds = 100;

}

PreviewWatcher::PreviewWatcher(const QString& file, std::function<void()> saved)
  : m_file(file), m_saved(std::move(saved))
{
  m_settling.setSingleShot(true);
  m_settling.setInterval(kSettlingMilliseconds);
  QObject::connect(&m_watcher, &QFileSystemWatcher::fileChanged, [this] { m_settling.start(); });
  QObject::connect(&m_settling, &QTimer::timeout, [this] { settled(); });
  m_watcher.addPath(m_file);
}

void PreviewWatcher::settled()
{
  // Between the removal of the old file and the arrival of the new one.
  if (!QFileInfo::exists(m_file)) {
    m_settling.start();
    return;
  }
  // The watch may still be on the file that a rename replaced.
  m_watcher.removePath(m_file);
  m_watcher.addPath(m_file);
  m_saved();
}
