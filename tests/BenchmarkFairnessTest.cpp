// The loader comparison is only fair if its three contenders make the same
// dialog: the hand-written build the very widgets, layouts and spacers of
// Formwright's build, and the .ui file the same visible controls.

#include "BenchmarkDialog.h"
#include "HandBuiltDialog.h"
#include "TestSupport.h"

#include <SoTopLevelDialog.h>

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/nodes/SoSeparator.h>

#include <QFrame>
#include <QLayout>
#include <QWidget>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <string>

namespace {

using Census = std::map<std::string, int>;

// The Qt class that a widget is, or that a class of the library or of the
// benchmark derives from.
std::string qtClassOf(const QObject* object)
{
  const QMetaObject* meta = object->metaObject();
  while (meta->className()[0] != 'Q')
    meta = meta->superClass();
  return meta->className();
}

void countLayout(QLayout* layout, Census& census)
{
  ++census[qtClassOf(layout)];
  for (int i = 0; i < layout->count(); ++i) {
    QLayoutItem* item = layout->itemAt(i);
    if (item->spacerItem())
      ++census["spacer"];
    else if (item->layout())
      countLayout(item->layout(), census);
  }
}

// Every widget below the window, Qt's own inner ones included, and every
// layout and spacer.
Census everything(QWidget* window)
{
  Census census;
  const QList<QWidget*> widgets = window->findChildren<QWidget*>();
  for (QWidget* widget : widgets)
    ++census[qtClassOf(widget)];
  countLayout(window->layout(), census);
  for (QWidget* widget : widgets)
    if (widget->layout())
      countLayout(widget->layout(), census);
  return census;
}

// The controls that a person sees, named as a .ui file names them: a line
// is a frame drawn as a line, and a bar of plain QWidget stands for a slider.
Census visibleControls(QWidget* window)
{
  static const char* const controls[] = {"QLabel",    "QPushButton", "QCheckBox",    "QLineEdit",
                                         "QTextEdit", "QComboBox",   "QRadioButton", "QGroupBox"};
  Census census;
  for (QWidget* widget : window->findChildren<QWidget*>()) {
    const std::string name = qtClassOf(widget);
    if (name == "QFrame") {
      const QFrame::Shape shape = static_cast<QFrame*>(widget)->frameShape();
      if (shape == QFrame::HLine || shape == QFrame::VLine)
        ++census["Line"];
    } else if (name == "QWidget") {
      if (!widget->objectName().startsWith("qt_"))
        ++census["QSlider"];
    } else if (std::find(std::begin(controls), std::end(controls), name) != std::end(controls)) {
      ++census[name];
    }
  }
  return census;
}

Census uiVisibleControls(const std::string& ui)
{
  Census census;
  QXmlStreamReader reader(QByteArray::fromStdString(ui));
  while (!reader.atEnd())
    if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("widget")) {
      const std::string name = reader.attributes().value("class").toString().toStdString();
      if (name != "QWidget" && name != "QFrame")
        ++census[name];
    }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  return census;
}

class BenchmarkFairness : public ::testing::Test {
protected:
  // Forty controls: every kind four times, in two rows.
  BenchmarkFairness() : dialog(40)
  {
    const std::string text = dialog.formwrightText();
    SoInput input;
    input.setBuffer(text.data(), text.size());
    SoSeparator* root = SoDB::readAll(&input);
    root->ref();
    formwright = static_cast<SoTopLevelDialog*>(root->getChild(0));
    formwright->ref();
    heldForTheRun().push_back(formwright);
    root->unref();
    formwright->buildDialog(nullptr, 0);
    hand.reset(HandBuiltDialog::build(dialog));
  }
  ~BenchmarkFairness() override { delete formwright->getBaseWidget(); }

  BenchmarkDialog dialog;
  SoTopLevelDialog* formwright = nullptr;
  std::unique_ptr<QWidget> hand;
};

TEST_F(BenchmarkFairness, handWrittenBuildMakesFormwrightsWidgetsLayoutsAndSpacers)
{
  const Census built = everything(formwright->getBaseWidget());
  EXPECT_EQ(everything(hand.get()), built);
  // Every kind of control was built: a tree missing one would compare
  // equal too.
  EXPECT_EQ(built.at("QComboBox"), 4);
  EXPECT_EQ(built.at("QRadioButton"), 12);
  EXPECT_EQ(built.at("QTextEdit"), 4);
}

TEST_F(BenchmarkFairness, uiFileHoldsTheVisibleControlsOfFormwrightsBuild)
{
  const Census built = visibleControls(formwright->getBaseWidget());
  EXPECT_EQ(uiVisibleControls(dialog.uiText()), built);
  EXPECT_EQ(built.at("Line"), 4);
  EXPECT_EQ(built.at("QSlider"), 8);
  // A label of every control but the separators: the radio buttons' is
  // their box's title.
  EXPECT_EQ(built.at("QLabel"), 32);
}

}
