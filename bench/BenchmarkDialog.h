#pragma once

// One dialog of a given number of controls, described once and written out
// in the forms that the benchmarks compare: a dialog file for Formwright and
// an equivalent .ui file for Qt's run-time loader. The hand-written build of
// the same tree reads the description directly.

#include <string>
#include <vector>

class BenchmarkDialog {
public:
  enum class Kind {
    Label,
    PushButton,
    CheckBox,
    LineEdit,
    MultiLineEdit,
    ComboBox,
    RadioButtons,
    IntegerSlider,
    RealSlider,
    Separator
  };

  // Which kinds follow each other: every kind, or one of the two dialogs
  // whose first openings are compared with the loader's.
  enum class Mix {
    EveryKind,
    // Labelled check boxes, push buttons, combo boxes, one-line edit texts,
    // integer sliders and labels.
    Mixed,
    LabelsAndCheckBoxes
  };

  struct Control {
    Kind kind;
    std::string label;
  };

  // The three entries of every combo box and every set of radio buttons.
  static const std::vector<std::string>& choices();

  // `controls` controls of the kinds of `mix` in turn, in `rows` rows
  // (vertical stacks) side by side in one column container inside a window.
  // Dialogs of other `variant`s have other label texts, so that no text
  // measured for one is already known when another is opened.
  explicit BenchmarkDialog(int controls, int rows = 2, int variant = 0, Mix mix = Mix::EveryKind);

  static const char* nameOf(Mix mix);

  int controlCount() const { return m_controlCount; }
  const std::vector<std::vector<Control>>& rows() const { return m_rows; }

  std::string formwrightText() const;
  std::string uiText() const;

private:
  int m_controlCount;
  std::vector<std::vector<Control>> m_rows;
};
