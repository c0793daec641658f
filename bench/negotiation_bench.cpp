// Figures for the work a dialog costs: measuring labels, negotiating the
// sizes of a large tree, and building its widgets or its scene form.
//   formwright-bench [--benchmark_filter=...]

#include <SoColumnDialog.h>
#include <SoDialogCheckBox.h>
#include <SoDialogLabel.h>
#include <SoFormMode.h>
#include <SoRowDialog.h>
#include <SoTopLevelDialog.h>

#include <QApplication>
#include <QWidget>
#include <benchmark/benchmark.h>

#include <string>

namespace {

// A window of `rows` rows, each a row of a label and two check boxes, in two
// columns.
SoTopLevelDialog* makeDialog(int rows)
{
  auto* dialog = new SoTopLevelDialog;
  dialog->ref();
  auto* columns = new SoColumnDialog;
  dialog->addChild(columns);
  for (int side = 0; side < 2; ++side) {
    auto* row = new SoRowDialog;
    columns->addChild(row);
    for (int i = 0; i < rows; ++i) {
      auto* label = new SoDialogLabel;
      label->label = ("Setting number " + std::to_string(i)).c_str();
      row->addChild(label);
      auto* check = new SoDialogCheckBox;
      check->label = "Enabled:";
      row->addChild(check);
    }
  }
  return dialog;
}

void labelPixelSize(benchmark::State& state)
{
  for (auto _ : state)
    benchmark::DoNotOptimize(SoFormwright::getLabelPixelSize("Surname of the owner:", nullptr));
}
BENCHMARK(labelPixelSize);

void buildDialog(benchmark::State& state)
{
  for (auto _ : state) {
    state.PauseTiming();
    SoTopLevelDialog* dialog = makeDialog(static_cast<int>(state.range(0)));
    state.ResumeTiming();
    dialog->buildDialog(nullptr, 0);
    state.PauseTiming();
    delete dialog->getBaseWidget();
    state.ResumeTiming();
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(buildDialog)->RangeMultiplier(4)->Range(4, 256)->Complexity()->Unit(benchmark::kMillisecond);

// A window holding `depth` columns, each inside the one before, around one
// label.
SoTopLevelDialog* makeNestedColumns(int depth)
{
  SoDialogComponent* nested = new SoDialogLabel;
  for (int level = 0; level < depth; ++level) {
    auto* column = new SoColumnDialog;
    column->addChild(nested);
    nested = column;
  }
  auto* dialog = new SoTopLevelDialog;
  dialog->ref();
  dialog->addChild(nested);
  return dialog;
}

// The scene form must stay linear in the depth of nesting.
void buildNestedColumnsInScene(benchmark::State& state)
{
  SoFormMode::setSceneForm(true);
  for (auto _ : state) {
    state.PauseTiming();
    SoTopLevelDialog* dialog = makeNestedColumns(static_cast<int>(state.range(0)));
    state.ResumeTiming();
    dialog->buildDialog(nullptr, 0);
    state.PauseTiming();
    dialog->unref();
    state.ResumeTiming();
  }
  SoFormMode::setSceneForm(false);
  state.SetComplexityN(state.range(0));
}
BENCHMARK(buildNestedColumnsInScene)->RangeMultiplier(4)->Range(64, 4096)->Complexity()->Unit(benchmark::kMillisecond);

void rebuildAfterAddingAChild(benchmark::State& state)
{
  SoTopLevelDialog* dialog = makeDialog(static_cast<int>(state.range(0)));
  dialog->buildDialog(nullptr, 0);
  auto* columns = static_cast<SoColumnDialog*>(dialog->getChild(0));
  for (auto _ : state) {
    auto* extra = new SoDialogLabel;
    extra->label = "Extra";
    columns->addChild(extra);
    columns->removeChild(columns->getNumChildren() - 1);
  }
}
BENCHMARK(rebuildAfterAddingAChild)->Arg(16)->Arg(64)->Unit(benchmark::kMillisecond);

}

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  SoFormwright::init();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
