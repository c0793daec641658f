// Formwright against Qt's run-time .ui loader and against C++ written by
// hand, on the same dialog of N controls, in one process and one run:
//   formwright-loader-comparison [--benchmark_filter=...]
// Each iteration of `openDialog/N` runs the three contenders one after the
// other, in an order that turns round, so that the load of a shared machine
// falls on all three alike; the table at the end gives their medians.

#include "BenchmarkDialog.h"
#include "HandBuiltDialog.h"

#include <SoColumnDialog.h>
#include <SoDialogEditText.h>
#include <SoDialogLabel.h>
#include <SoFormwright.h>
#include <SoRowDialog.h>
#include <SoTopLevelDialog.h>

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QUiLoader>
#include <QWidget>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <malloc.h>
#include <sys/resource.h>
#include <map>
#include <memory>
#include <tuple>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

// Both clocks: wall time is what a person waits, and the time the main
// thread spends on the processor is what a busy shared machine disturbs
// least. All the work of opening a dialog is done on the main thread.
struct Stopwatch {
  Clock::time_point wallStart = Clock::now();
  double cpuStart = threadSeconds();
  long faultStart = threadFaults();

  // Pages touched for the first time: memory that no earlier opening
  // touched and gave back.
  static long threadFaults()
  {
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_minflt;
  }

  static double threadSeconds()
  {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
  }
  double wall() const { return std::chrono::duration<double>(Clock::now() - wallStart).count(); }
  double cpu() const { return threadSeconds() - cpuStart; }
  double faults() const { return static_cast<double>(threadFaults() - faultStart); }
};

double median(std::vector<double> values)
{
  std::sort(values.begin(), values.end());
  const size_t middle = values.size() / 2;
  return values.size() % 2 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

using Mix = BenchmarkDialog::Mix;

// A dialog of one mix and size.
using Shape = std::pair<Mix, int>;

// The dialog of N controls, written once as both files.
struct DialogFiles {
  BenchmarkDialog dialog;
  Mix mix;
  std::string formwrightPath;
  QString uiPath;

  Shape shape() const { return {mix, dialog.controlCount()}; }
};

QTemporaryDir& fileDirectory()
{
  static QTemporaryDir directory;
  return directory;
}

// Each variant of a shape is written once and kept.
const DialogFiles& filesFor(Shape shape, int variant = 0)
{
  static std::map<std::tuple<Mix, int, int>, std::unique_ptr<DialogFiles>> files;
  std::unique_ptr<DialogFiles>& entry = files[{shape.first, shape.second, variant}];
  if (!entry) {
    const QString base = fileDirectory().filePath(
      QString("dialog%1-%2-%3").arg(static_cast<int>(shape.first)).arg(shape.second).arg(variant));
    entry.reset(new DialogFiles{BenchmarkDialog(shape.second, 2, variant, shape.first), shape.first,
                                (base + ".scn").toStdString(), base + ".ui"});
    std::ofstream(entry->formwrightPath) << entry->dialog.formwrightText();
    std::ofstream(entry->uiPath.toStdString()) << entry->dialog.uiText();
  }
  return *entry;
}

// The read does what SoFormwright::loadFromFile does on a file's first
// load; the file cache would hand later iterations the tree already built.
SoTopLevelDialog* formwrightRead(const DialogFiles& files)
{
  SoInput input;
  input.openFile(files.formwrightPath.c_str());
  SoSeparator* root = SoDB::readAll(&input);
  root->ref();
  auto* dialog = static_cast<SoTopLevelDialog*>(root->getChild(0));
  dialog->ref();
  root->unref();
  return dialog;
}

SoTopLevelDialog* formwrightOpen(const DialogFiles& files)
{
  SoTopLevelDialog* dialog = formwrightRead(files);
  dialog->buildDialog(nullptr, 0);
  dialog->show();
  QCoreApplication::processEvents();
  return dialog;
}

// Painting is a large part of a first show, and it grows with the window:
// the loaded and the hand-built window open at the size that Formwright's
// negotiation gives the same dialog, as their authors would have set it.
std::map<Shape, QSize>& windowSizes()
{
  static std::map<Shape, QSize> sizes;
  return sizes;
}

void sizeLikeFormwright(QWidget* window, Shape shape)
{
  const auto found = windowSizes().find(shape);
  if (found != windowSizes().end())
    window->resize(found->second);
}

// Interface nodes stay in memory after their last reference, by design:
// only the window can go.
void formwrightClose(SoTopLevelDialog* dialog, Shape shape)
{
  windowSizes().emplace(shape, dialog->getBaseWidget()->size());
  delete dialog->getBaseWidget();
}

QUiLoader& uiLoader()
{
  static QUiLoader loader;
  return loader;
}

QWidget* loaderOpen(const DialogFiles& files)
{
  QFile file(files.uiPath);
  file.open(QFile::ReadOnly);
  QWidget* window = uiLoader().load(&file);
  sizeLikeFormwright(window, files.shape());
  window->show();
  QCoreApplication::processEvents();
  return window;
}

QWidget* handOpen(const DialogFiles& files)
{
  QWidget* window = HandBuiltDialog::build(files.dialog);
  sizeLikeFormwright(window, files.shape());
  window->show();
  QCoreApplication::processEvents();
  return window;
}

// Seconds per dialog, as medians.
struct Medians {
  double formwright;
  double loader;
  double hand;
};

struct Figures {
  Medians cpu;
  Medians wall;
  Medians faults;
};

std::map<Shape, Figures>& table()
{
  static std::map<Shape, Figures> figures;
  return figures;
}

struct Samples {
  std::vector<double> cpu;
  std::vector<double> wall;
  std::vector<double> faults;

  void add(const Stopwatch& watch)
  {
    cpu.push_back(watch.cpu());
    wall.push_back(watch.wall());
    faults.push_back(watch.faults());
  }
};

void openDialog(benchmark::State& state)
{
  const int controls = static_cast<int>(state.range(1));
  const Shape shape{static_cast<Mix>(state.range(0)), controls};
  // Everything each contender meets on its first run, Qt's plugins and
  // styles among them, is paid before the timing starts.
  const DialogFiles& warmUp = filesFor(shape);
  formwrightClose(formwrightOpen(warmUp), shape);
  delete loaderOpen(warmUp);
  delete handOpen(warmUp);

  Samples formwright, loader, hand;
  int turn = 0;
  for (auto _ : state) {
    // Texts new to the process, as on the first opening of a dialog: no
    // contender finds the widths of its labels already measured. Only the
    // contenders' own times count: writing the files is not timed.
    const DialogFiles& files = filesFor(shape, turn + 1);
    for (int step = 0; step < 3; ++step) {
      const int contender = (turn + step) % 3;
      const Stopwatch watch;
      if (contender == 0) {
        SoTopLevelDialog* dialog = formwrightOpen(files);
        formwright.add(watch);
        formwrightClose(dialog, shape);
      } else if (contender == 1) {
        QWidget* window = loaderOpen(files);
        loader.add(watch);
        delete window;
      } else {
        QWidget* window = handOpen(files);
        hand.add(watch);
        delete window;
      }
    }
    ++turn;
    state.SetIterationTime(formwright.cpu.back());
  }
  const Figures figures{{median(formwright.cpu), median(loader.cpu), median(hand.cpu)},
                        {median(formwright.wall), median(loader.wall), median(hand.wall)},
                        {median(formwright.faults), median(loader.faults), median(hand.faults)}};
  table()[shape] = figures;
  const Medians& m = figures.cpu;
  state.counters["fw_us_per_control"] = 1e6 * m.formwright / controls;
  state.counters["loader_us_per_control"] = 1e6 * m.loader / controls;
  state.counters["hand_us_per_control"] = 1e6 * m.hand / controls;
  state.counters["fw_over_loader"] = m.formwright / m.loader;
  state.counters["fw_over_hand"] = m.formwright / m.hand;
}
// Both dialogs compared with the loader, at one size.
void bothMixes(benchmark::internal::Benchmark* benchmark, int controls, int iterations)
{
  for (const Mix mix : {Mix::Mixed, Mix::LabelsAndCheckBoxes})
    benchmark->Args({static_cast<int>(mix), controls});
  benchmark->Iterations(iterations)->UseManualTime()->Unit(benchmark::kMillisecond);
}
BENCHMARK(openDialog)->Apply([](benchmark::internal::Benchmark* b) { bothMixes(b, 10, 201); });
BENCHMARK(openDialog)->Apply([](benchmark::internal::Benchmark* b) { bothMixes(b, 100, 61); });
BENCHMARK(openDialog)->Apply([](benchmark::internal::Benchmark* b) { bothMixes(b, 1000, 15); });
BENCHMARK(openDialog)->Apply([](benchmark::internal::Benchmark* b) { bothMixes(b, 10000, 5); });

// The dialog of every kind in turn, for the benchmarks on a built dialog.
Shape everyKind(int controls)
{
  return {Mix::EveryKind, controls};
}

// A field set by the application until its widget shows the value, against
// the widget's own setter.
void setFieldValue(benchmark::State& state)
{
  auto* dialog = formwrightOpen(filesFor(everyKind(10)));
  // The fourth control of every ten is a one-line edit text.
  auto* row = static_cast<SoRowDialog*>(static_cast<SoColumnDialog*>(dialog->getChild(0))->getChild(0));
  auto* edit = static_cast<SoDialogEditText*>(row->getChild(3));
  auto* shown = dialog->getBaseWidget()->findChild<QLineEdit*>();
  int i = 0;
  for (auto _ : state)
    edit->editText = (i++ % 2) ? "first" : "second";
  if (shown->text() != QString(edit->editText.getValue().getString()))
    state.SkipWithError("the widget does not show the field's value");
  formwrightClose(dialog, everyKind(10));
}
BENCHMARK(setFieldValue);

void setWidgetText(benchmark::State& state)
{
  QLineEdit edit;
  edit.show();
  int i = 0;
  for (auto _ : state)
    edit.setText((i++ % 2) ? "first" : "second");
}
BENCHMARK(setWidgetText);

// One label added to the first row of a built dialog, which builds it
// again; the label is taken out untimed.
void rebuildAfterAddingAChild(benchmark::State& state)
{
  const Shape shape = everyKind(static_cast<int>(state.range(0)));
  SoTopLevelDialog* dialog = formwrightOpen(filesFor(shape));
  auto* row = static_cast<SoRowDialog*>(static_cast<SoColumnDialog*>(dialog->getChild(0))->getChild(0));
  for (auto _ : state) {
    auto* extra = new SoDialogLabel;
    extra->label = "Extra";
    row->addChild(extra);
    state.PauseTiming();
    row->removeChild(row->getNumChildren() - 1);
    state.ResumeTiming();
  }
  formwrightClose(dialog, shape);
}
BENCHMARK(rebuildAfterAddingAChild)->Arg(10)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

long residentBytes()
{
  long pages = 0, resident = 0;
  if (FILE* statm = std::fopen("/proc/self/statm", "r")) {
    if (std::fscanf(statm, "%ld %ld", &pages, &resident) != 2)
      resident = 0;
    std::fclose(statm);
  }
  return resident * sysconf(_SC_PAGESIZE);
}

long heapBytes()
{
  const struct mallinfo2 info = mallinfo2();
  return static_cast<long>(info.uordblks + info.hblkhd);
}

struct MemoryFigures {
  double nodesResident, nodesHeap, formwrightResident, formwrightHeap, loaderResident, loaderHeap;
};

// Both dialogs stay open until both are measured, so that neither takes
// memory the other gave back.
MemoryFigures measureMemory(int controls)
{
  const Shape shape{Mix::Mixed, controls};
  const DialogFiles& files = filesFor(shape);
  const long resident0 = residentBytes(), heap0 = heapBytes();
  SoTopLevelDialog* dialog = formwrightRead(files);
  const long residentRead = residentBytes(), heapRead = heapBytes();
  dialog->buildDialog(nullptr, 0);
  dialog->show();
  QCoreApplication::processEvents();
  const long resident1 = residentBytes(), heap1 = heapBytes();
  windowSizes().emplace(shape, dialog->getBaseWidget()->size());
  QWidget* window = loaderOpen(files);
  const long resident2 = residentBytes(), heap2 = heapBytes();
  formwrightClose(dialog, shape);
  delete window;
  const double n = controls;
  return {(residentRead - resident0) / n, (heapRead - heap0) / n, (resident1 - resident0) / n,
          (heap1 - heap0) / n, (resident2 - resident1) / n, (heap2 - heap1) / n};
}

void printMedians(const char* clock, Medians Figures::*which)
{
  std::printf("\nMedians of interleaved runs, %s: load + build + show + one processEvents\n", clock);
  std::printf("%-24s %8s %14s %14s %14s %12s %12s\n", "dialog", "N", "Formwright", "QUiLoader", "hand-written",
              "FW/loader", "FW/hand");
  std::printf("%-24s %8s %14s %14s %14s %12s %12s\n", "", "", "us/control", "us/control", "us/control", "", "");
  for (const auto& [shape, figures] : table()) {
    const int controls = shape.second;
    const Medians& m = figures.*which;
    std::printf("%-24s %8d %14.2f %14.2f %14.2f %12.2f %12.2f\n", BenchmarkDialog::nameOf(shape.first), controls,
                1e6 * m.formwright / controls, 1e6 * m.loader / controls, 1e6 * m.hand / controls,
                m.formwright / m.loader, m.formwright / m.hand);
  }
  for (const Mix mix : {Mix::Mixed, Mix::LabelsAndCheckBoxes}) {
    if (!table().count({mix, 1000}) || !table().count({mix, 10000}))
      continue;
    const Medians& small = table()[{mix, 1000}].*which;
    const Medians& large = table()[{mix, 10000}].*which;
    std::printf("Growth from 1,000 to 10,000 controls, %s: Formwright %.1fx, QUiLoader %.1fx, hand-written %.1fx\n",
                BenchmarkDialog::nameOf(mix), large.formwright / small.formwright, large.loader / small.loader,
                large.hand / small.hand);
  }
}

void printFaults()
{
  std::printf("\nMedian minor page faults per opening\n%-24s %8s %14s %14s %14s\n", "dialog", "N", "Formwright",
              "QUiLoader", "hand-written");
  for (const auto& [shape, figures] : table())
    std::printf("%-24s %8d %14.0f %14.0f %14.0f\n", BenchmarkDialog::nameOf(shape.first), shape.second,
                figures.faults.formwright, figures.faults.loader, figures.faults.hand);
}

void printTable(const MemoryFigures& memory, int memoryControls)
{
  printMedians("processor time of the main thread", &Figures::cpu);
  printMedians("wall time", &Figures::wall);
  printFaults();
  const QSize window = windowSizes()[{Mix::Mixed, memoryControls}];
  std::printf("\nMemory per control, the mixed dialog at N = %d, window of %dx%d pixels shown (its pixels: %.1f KiB per control)\n",
              memoryControls, window.width(), window.height(),
              4.0 * window.width() * window.height() / memoryControls / 1024);
  std::printf("  Formwright: %.1f KiB resident, %.1f KiB heap; of which the nodes read: %.1f KiB resident, "
              "%.1f KiB heap\n",
              memory.formwrightResident / 1024, memory.formwrightHeap / 1024, memory.nodesResident / 1024,
              memory.nodesHeap / 1024);
  std::printf("  QUiLoader:  %.1f KiB resident, %.1f KiB heap\n", memory.loaderResident / 1024,
              memory.loaderHeap / 1024);
}

// The offscreen platform says of every window shown that it cannot raise
// it; the table would drown in that.
QtMessageHandler standardHandler = nullptr;

void dropPlatformNotes(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
  if (!message.startsWith("This plugin does not support"))
    standardHandler(type, context, message);
}

}

int main(int argc, char** argv)
{
  standardHandler = qInstallMessageHandler(dropPlatformNotes);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  SoFormwright::init();
  benchmark::Initialize(&argc, argv);
  // Measured first, on a heap that no earlier run has left holes in.
  const int memoryControls = 1000;
  formwrightClose(formwrightOpen(filesFor(everyKind(10))), everyKind(10));
  delete loaderOpen(filesFor(everyKind(10)));
  const MemoryFigures memory = measureMemory(memoryControls);
  benchmark::RunSpecifiedBenchmarks();
  printTable(memory, memoryControls);
  benchmark::Shutdown();
  return 0;
}
