#include "HandBuiltDialog.h"

#include "BenchmarkDialog.h"
#include "HandBuiltFrame.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpacerItem>
#include <QTextEdit>

#include <algorithm>

namespace {
using Kind = BenchmarkDialog::Kind;

const QFont& dialogFont()
{
  static const QFont font("Microsoft Sans Serif", 8);
  return font;
}

template <class W>
W* fontedChild(QWidget* parent)
{
  auto* widget = new W(parent);
  widget->setFont(dialogFont());
  return widget;
}

QLabel* sideLabel(HandBuiltFrame* frame, const std::string& text)
{
  auto* label = fontedChild<QLabel>(frame);
  label->setText(QString::fromStdString(text));
  label->setAlignment(Qt::AlignRight);
  frame->setSideLabel(label);
  return label;
}

int preferredHeight(Kind kind)
{
  if (kind == Kind::MultiLineEdit)
    return 60;
  if (kind == Kind::RadioButtons)
    return 90;
  return 28;
}

// A frame inside a box layout of its own, beside a spacer, as each control
// of Formwright's build stands.
void place(QBoxLayout* parent, QWidget* frame, QBoxLayout* own, QSpacerItem* spacer)
{
  own->setSpacing(0);
  own->setContentsMargins(0, 0, 0, 0);
  parent->addLayout(own, 0);
  own->addWidget(frame, 0);
  own->addItem(spacer);
}

void buildControl(QWidget* row, QBoxLayout* rowLayout, const BenchmarkDialog::Control& control, int labelColumn)
{
  const QString text = QString::fromStdString(control.label);
  auto* frame = new HandBuiltFrame(row, QSize(labelColumn + 170, preferredHeight(control.kind)), labelColumn);
  switch (control.kind) {
  case Kind::Label: {
    auto* label = fontedChild<QLabel>(frame);
    label->setText(text);
    label->setAlignment(Qt::AlignRight);
    frame->addPiece(label, 0);
    break;
  }
  case Kind::PushButton: {
    auto* button = fontedChild<QPushButton>(frame);
    button->setText("Apply");
    sideLabel(frame, control.label);
    frame->addPiece(button, 0);
    break;
  }
  case Kind::CheckBox: {
    auto* box = fontedChild<QCheckBox>(frame);
    box->setText("Enabled");
    sideLabel(frame, control.label);
    frame->addPiece(box, 0);
    break;
  }
  case Kind::LineEdit: {
    sideLabel(frame, control.label);
    auto* edit = fontedChild<QLineEdit>(frame);
    edit->setText("untitled");
    frame->addPiece(edit, 0);
    break;
  }
  case Kind::MultiLineEdit: {
    sideLabel(frame, control.label);
    auto* edit = fontedChild<QTextEdit>(frame);
    edit->setPlainText("notes");
    frame->addPiece(edit, 0);
    break;
  }
  case Kind::ComboBox: {
    // Given to the frame first: a combo box whose font changes makes its
    // popup list at once.
    frame->setFont(dialogFont());
    auto* combo = new QComboBox(frame);
    for (const std::string& choice : BenchmarkDialog::choices())
      combo->addItem(QString::fromStdString(choice));
    sideLabel(frame, control.label);
    frame->addPiece(combo, 0);
    break;
  }
  case Kind::RadioButtons: {
    auto* group = new QButtonGroup(frame);
    auto* box = fontedChild<QGroupBox>(frame);
    box->setTitle(text);
    auto* layout = new QVBoxLayout(box);
    int id = 0;
    for (const std::string& choice : BenchmarkDialog::choices()) {
      auto* button = fontedChild<QRadioButton>(box);
      button->setText(QString::fromStdString(choice));
      layout->addWidget(button);
      group->addButton(button, id++);
    }
    group->button(0)->setChecked(true);
    frame->addPiece(box, 0);
    break;
  }
  case Kind::IntegerSlider:
  case Kind::RealSlider: {
    auto* edit = fontedChild<QLineEdit>(frame);
    edit->setText(control.kind == Kind::IntegerSlider ? "3" : "0.500");
    // The bar is drawn by the application, as Formwright draws its own.
    auto* bar = new QWidget(frame);
    sideLabel(frame, control.label);
    auto* toggle = fontedChild<QCheckBox>(frame);
    frame->addPiece(edit, 50);
    frame->addPiece(bar, 0);
    frame->addPiece(toggle, 20);
    break;
  }
  case Kind::Separator: {
    auto* line = new QFrame(frame);
    line->setFrameShadow(QFrame::Sunken);
    line->setFrameShape(QFrame::HLine);
    frame->addPiece(line, 0);
    break;
  }
  }
  place(rowLayout, frame, new QHBoxLayout, new QSpacerItem(0, 20, QSizePolicy::Fixed, QSizePolicy::Minimum));
}
}

QWidget* HandBuiltDialog::build(const BenchmarkDialog& dialog)
{
  auto* window = new QWidget;
  window->setWindowTitle("Benchmark");
  auto* windowLayout = new QVBoxLayout(window);
  windowLayout->setContentsMargins(0, 0, 0, 0);
  windowLayout->setSpacing(0);

  auto* column = new QFrame(window);
  place(windowLayout, column, new QHBoxLayout, new QSpacerItem(0, 20, QSizePolicy::Fixed, QSizePolicy::Minimum));
  auto* columnLayout = new QHBoxLayout(column);
  columnLayout->setContentsMargins(0, 0, 0, 0);
  columnLayout->setSpacing(0);

  const QFontMetrics metrics(dialogFont());
  for (const std::vector<BenchmarkDialog::Control>& controls : dialog.rows()) {
    auto* row = new QFrame(column);
    place(columnLayout, row, new QVBoxLayout, new QSpacerItem(20, 0, QSizePolicy::Minimum, QSizePolicy::Fixed));
    auto* rowLayout = new QVBoxLayout(row);
    rowLayout->setContentsMargins(0, 0, 0, 0);
    rowLayout->setSpacing(0);
    int labelColumn = 0;
    for (const BenchmarkDialog::Control& control : controls)
      labelColumn = std::max(labelColumn, metrics.horizontalAdvance(QString::fromStdString(control.label)) + 3);
    for (const BenchmarkDialog::Control& control : controls)
      buildControl(row, rowLayout, control, labelColumn);
  }
  return window;
}
