// Memory over many starts and ends of the library, each with a dialog file
// read, built as a window and let go:
//   formwright-lifecycle-memory [FILE] [CYCLES] [WARM_UP]
// (examples/export.scn, 1,000 and 50 by default).
//
// Interface nodes stay in memory when their file is let go, on purpose, so
// some growth per cycle is designed. Two more runs of the same cycles tell
// how much: one only reads the file (the bare nodes kept), and one frees the
// nodes on their last reference as the fuzz target does (what grows then is
// kept by nothing that the design keeps). Resident memory is given for the
// first run, which starts from a fresh process; the heap, in bytes handed out
// and not freed, for all three.

#include <SoFormwright.h>
#include <SoTopLevelDialog.h>

#include "SoFormwrightClassList.h"

#include <Inventor/errors/SoDebugError.h>

#include <QApplication>
#include <QWidget>

#include <malloc.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace {

struct Memory {
  double residentKiB;
  double heapKiB;
};

Memory now()
{
  long pages = 0;
  long resident = 0;
  std::ifstream statm("/proc/self/statm");
  statm >> pages >> resident;
  const struct mallinfo2 heap = mallinfo2();
  return {static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024.0,
          static_cast<double>(heap.uordblks + heap.hblkhd) / 1024.0};
}

template <class Node>
class FreedNode : public Node {
public:
  static void* create() { return new FreedNode; }

protected:
  void destroy() override { SoBase::destroy(); }
};

#define FORMWRIGHT_FREE_ON_LAST_UNREF(K) SoType::overrideType(K::getClassTypeId(), &FreedNode<K>::create);

enum class Cycle { Built, ReadOnly, BuiltAndFreed };

// One cycle as an application goes through it.
bool cycle(const SbString& file, Cycle kind)
{
  SoFormwright::init();
  if (kind == Cycle::BuiltAndFreed) {
    SO_FORMWRIGHT_FOR_EACH_CLASS(FORMWRIGHT_FREE_ON_LAST_UNREF)
  }
  SoFormwright* node = SoFormwright::loadFromFile(file, SbString());
  if (!node || !node->isOfType(SoTopLevelDialog::getClassTypeId())) {
    SoFormwright::finish();
    return false;
  }
  if (kind != Cycle::ReadOnly) {
    auto* dialog = static_cast<SoTopLevelDialog*>(node);
    dialog->buildDialog(nullptr, 0);
    // A freed window node deletes its window itself.
    if (kind == Cycle::Built)
      delete dialog->getBaseWidget();
  }
  SoFormwright::finish();
  // What an application's event loop does between two dialogs.
  QCoreApplication::processEvents();
  return true;
}

struct Run {
  Memory warm;
  Memory end;
  double heapPerCycle(int measured) const { return (end.heapKiB - warm.heapKiB) / measured; }
};

// `cycles` cycles; the figures after `warmUp` of them and at the end.
bool run(const SbString& file, Cycle kind, int cycles, int warmUp, Run& figures)
{
  for (int i = 1; i <= cycles; ++i) {
    if (!cycle(file, kind))
      return false;
    if (i == warmUp)
      figures.warm = now();
  }
  figures.end = now();
  return true;
}

void quiet(const SoError*, void*) {}

}

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  const SbString file = argc > 1 ? argv[1] : FORMWRIGHT_EXAMPLES "/export.scn";
  const int cycles = argc > 2 ? std::atoi(argv[2]) : 1000;
  const int warmUp = argc > 3 ? std::atoi(argv[3]) : 50;
  if (cycles <= warmUp || warmUp < 1) {
    std::fprintf(stderr, "usage: formwright-lifecycle-memory [FILE] [CYCLES] [WARM_UP], CYCLES > WARM_UP >= 1\n");
    return 2;
  }
  // The first init starts the scene-graph toolkit, which stays, as in an
  // application; so does the message handler set on it.
  SoFormwright::init();
  SoDebugError::setHandlerCallback(quiet, nullptr);
  SoFormwright::finish();

  Run built{};
  Run readOnly{};
  Run freed{};
  if (!run(file, Cycle::Built, cycles, warmUp, built) || !run(file, Cycle::ReadOnly, cycles, warmUp, readOnly) ||
      !run(file, Cycle::BuiltAndFreed, cycles, warmUp, freed)) {
    std::fprintf(stderr, "%s holds no window at its top\n", file.getString());
    return 1;
  }
  const int measured = cycles - warmUp;
  const double rssGrowth = built.end.residentKiB - built.warm.residentKiB;
  std::printf("%d cycles of init, loadFromFile(%s), buildDialog, window deleted, finish\n", cycles,
              file.getString());
  std::printf("resident after %d cycles  %8.0f KiB\n", warmUp, built.warm.residentKiB);
  std::printf("resident at the end       %8.0f KiB  (%+.1f %%, %+.2f KiB a cycle)\n", built.end.residentKiB,
              100.0 * rssGrowth / built.warm.residentKiB, rssGrowth / measured);
  std::printf("heap growth a cycle, from cycle %d on:\n", warmUp);
  std::printf("  read, built, let go                 %8.2f KiB\n", built.heapPerCycle(measured));
  std::printf("  only read, let go (bare nodes kept) %8.2f KiB\n", readOnly.heapPerCycle(measured));
  std::printf("  read, built, nodes freed            %8.2f KiB\n", freed.heapPerCycle(measured));
  // What freeing the nodes takes away is what they kept.
  const double total = built.heapPerCycle(measured);
  const double beyond = freed.heapPerCycle(measured);
  const double bare = readOnly.heapPerCycle(measured);
  if (total > 0.0)
    std::printf("held by the nodes kept on purpose: %.1f %% of the growth (the bare nodes %.1f %%, what their builds "
                "hung on them %.1f %%); beyond them %.2f KiB a cycle\n",
                100.0 * (total - beyond) / total, 100.0 * bare / total, 100.0 * (total - beyond - bare) / total,
                beyond);
  return 0;
}
