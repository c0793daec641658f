// The loader comparison is only fair if its three contenders make the same
// dialog: the hand-written build the very widgets, layouts and spacers of
// Formwright's build, and the .ui file the same visible controls.

#include "BenchmarkDialog.h"
#include "HandBuiltDialog.h"
#include "TestSupport.h"

#include <SoTopLevelDialog.h>

#include <QFrame>
#include <QLayout>
#include <QWidget>
#include <QXmlStreamReader>

#include <algorithm>
#include <map>
#include <memory>

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

// Forty controls: every kind four times, in two rows.
TEST(BenchmarkFairness, theThreeContendersMakeTheSameDialog)
{
  const BenchmarkDialog dialog(40);
  SoSeparator* root = readScene(dialog.formwrightText());
  ASSERT_NE(root, nullptr);
  auto* formwright = static_cast<SoTopLevelDialog*>(root->getChild(0));
  formwright->buildDialog(nullptr, 0);
  const std::unique_ptr<QWidget> hand(HandBuiltDialog::build(dialog));

  EXPECT_EQ(everything(hand.get()), everything(formwright->getBaseWidget()));
  const Census visible = visibleControls(formwright->getBaseWidget());
  EXPECT_EQ(uiVisibleControls(dialog.uiText()), visible);
  // Every kind of control was built: a tree missing one would compare
  // equal too.
  for (const auto& [kind, count] : Census{{"QComboBox", 4}, {"QRadioButton", 12}, {"QTextEdit", 4}, {"Line", 4},
                                          {"QSlider", 8}, {"QPushButton", 4}})
    EXPECT_EQ(visible.count(kind) ? visible.at(kind) : 0, count) << kind;
  formwright->destroyWidget();
}

}
