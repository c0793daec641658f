#include "BenchmarkDialog.h"

#include <sstream>

namespace {
using Kind = BenchmarkDialog::Kind;

const std::vector<Kind>& kindsOf(BenchmarkDialog::Mix mix)
{
  static const std::vector<Kind> every{Kind::Label,        Kind::PushButton,    Kind::CheckBox,   Kind::LineEdit,
                                       Kind::MultiLineEdit, Kind::ComboBox,      Kind::RadioButtons,
                                       Kind::IntegerSlider, Kind::RealSlider,    Kind::Separator};
  static const std::vector<Kind> mixed{Kind::CheckBox, Kind::PushButton,    Kind::ComboBox,
                                       Kind::LineEdit, Kind::IntegerSlider, Kind::Label};
  static const std::vector<Kind> labelsAndCheckBoxes{Kind::Label, Kind::CheckBox};
  switch (mix) {
  case BenchmarkDialog::Mix::Mixed:
    return mixed;
  case BenchmarkDialog::Mix::LabelsAndCheckBoxes:
    return labelsAndCheckBoxes;
  default:
    return every;
  }
}

// Labels from one word to a short sentence, so that the label columns are
// measured on texts of varied length.
std::string labelFor(int index, int variant)
{
  static const char* const words[] = {"Setting", "of", "the", "export", "pass"};
  std::string text = "Item " + std::to_string(index) + "." + std::to_string(variant);
  for (int i = 0; i < index % 5; ++i)
    text += std::string(" ") + words[i];
  return text + ":";
}

// Qt Designer's text of a property of type string.
std::string uiString(const char* name, const std::string& value)
{
  return "<property name=\"" + std::string(name) + "\"><string>" + value + "</string></property>";
}

class UiWriter {
public:
  explicit UiWriter(std::ostringstream& out) : m_out(out) {}

  void openWidget(const char* className)
  {
    m_out << "<widget class=\"" << className << "\" name=\"w" << m_next++ << "\">";
  }
  void closeWidget() { m_out << "</widget>\n"; }
  void openLayout(const char* className)
  {
    m_out << "<layout class=\"" << className << "\" name=\"l" << m_next++ << "\">"
          << "<property name=\"spacing\"><number>0</number></property>"
          << "<property name=\"leftMargin\"><number>0</number></property>"
          << "<property name=\"topMargin\"><number>0</number></property>"
          << "<property name=\"rightMargin\"><number>0</number></property>"
          << "<property name=\"bottomMargin\"><number>0</number></property>";
  }
  void closeLayout() { m_out << "</layout>"; }
  void openItem(const char* place = "") { m_out << "<item" << place << ">"; }
  void closeItem() { m_out << "</item>\n"; }

  void simple(const char* className, const std::string& properties = "")
  {
    openWidget(className);
    m_out << properties;
    closeWidget();
  }
  std::ostringstream& out() { return m_out; }

private:
  std::ostringstream& m_out;
  int m_next = 0;
};

void writeUiControl(UiWriter& ui, const BenchmarkDialog::Control& control, int row)
{
  const std::string place = " row=\"" + std::to_string(row) + "\" column=\"1\"";
  // These span the form: a label, a line, and radio buttons whose label is
  // the title of their box.
  if (control.kind == Kind::Label || control.kind == Kind::Separator || control.kind == Kind::RadioButtons) {
    ui.openItem((" row=\"" + std::to_string(row) + "\" column=\"0\" colspan=\"2\"").c_str());
    if (control.kind == Kind::Label) {
      ui.simple("QLabel", uiString("text", control.label));
    } else if (control.kind == Kind::Separator) {
      ui.simple("Line", "<property name=\"orientation\"><enum>Qt::Horizontal</enum></property>");
    } else {
      ui.openWidget("QGroupBox");
      ui.out() << uiString("title", control.label);
      ui.openLayout("QVBoxLayout");
      for (const std::string& choice : BenchmarkDialog::choices()) {
        ui.openItem();
        ui.simple("QRadioButton", uiString("text", choice));
        ui.closeItem();
      }
      ui.closeLayout();
      ui.closeWidget();
    }
    ui.closeItem();
    return;
  }
  ui.openItem((" row=\"" + std::to_string(row) + "\" column=\"0\"").c_str());
  ui.simple("QLabel", uiString("text", control.label));
  ui.closeItem();
  ui.openItem(place.c_str());
  switch (control.kind) {
  case Kind::PushButton:
    ui.simple("QPushButton", uiString("text", "Apply"));
    break;
  case Kind::CheckBox:
    ui.simple("QCheckBox", uiString("text", "Enabled"));
    break;
  case Kind::LineEdit:
    ui.simple("QLineEdit", uiString("text", "untitled"));
    break;
  case Kind::MultiLineEdit:
    ui.simple("QTextEdit", uiString("plainText", "notes"));
    break;
  case Kind::ComboBox:
    ui.openWidget("QComboBox");
    for (const std::string& choice : BenchmarkDialog::choices())
      ui.out() << "<item>" << uiString("text", choice) << "</item>";
    ui.closeWidget();
    break;
  case Kind::IntegerSlider:
  case Kind::RealSlider:
    // The value, the bar and the toggle of continuous updates, in a line.
    ui.openLayout("QHBoxLayout");
    ui.openItem();
    ui.simple("QLineEdit", uiString("text", control.kind == Kind::IntegerSlider ? "3" : "0.500"));
    ui.closeItem();
    ui.openItem();
    ui.simple("QSlider", "<property name=\"orientation\"><enum>Qt::Horizontal</enum></property>");
    ui.closeItem();
    ui.openItem();
    ui.simple("QCheckBox");
    ui.closeItem();
    ui.closeLayout();
    break;
  default:
    break;
  }
  ui.closeItem();
}

void writeFormwrightControl(std::ostringstream& out, const BenchmarkDialog::Control& control)
{
  const std::string label = "label \"" + control.label + "\"";
  std::string items = "items [";
  for (const std::string& choice : BenchmarkDialog::choices())
    items += " \"" + choice + "\"";
  items += " ]";
  switch (control.kind) {
  case Kind::Label:
    out << "DialogLabel { " << label << " }\n";
    break;
  case Kind::PushButton:
    out << "DialogPushButton { " << label << " buttonLabel \"Apply\" }\n";
    break;
  case Kind::CheckBox:
    out << "DialogCheckBox { " << label << " onString \"Enabled\" }\n";
    break;
  case Kind::LineEdit:
    out << "DialogEditText { " << label << " editText \"untitled\" }\n";
    break;
  case Kind::MultiLineEdit:
    out << "DialogEditText { " << label << " multiLine TRUE editText \"notes\" }\n";
    break;
  case Kind::ComboBox:
    out << "DialogComboBox { " << label << " " << items << " }\n";
    break;
  case Kind::RadioButtons:
    out << "DialogRadioButtons { " << label << " " << items << " }\n";
    break;
  case Kind::IntegerSlider:
    out << "DialogIntegerSlider { " << label << " min 0 max 10 value 3 }\n";
    break;
  case Kind::RealSlider:
    out << "DialogRealSlider { " << label << " min 0 max 1 value 0.5 }\n";
    break;
  case Kind::Separator:
    out << "DialogSeparator { }\n";
    break;
  }
}
}

const std::vector<std::string>& BenchmarkDialog::choices()
{
  static const std::vector<std::string> entries{"Draft", "Normal", "Best"};
  return entries;
}

BenchmarkDialog::BenchmarkDialog(int controls, int rows, int variant, Mix mix)
  : m_controlCount(controls), m_rows(rows)
{
  const std::vector<Kind>& kinds = kindsOf(mix);
  for (int i = 0; i < controls; ++i)
    m_rows[i * rows / controls].push_back(Control{kinds[i % kinds.size()], labelFor(i, variant)});
}

const char* BenchmarkDialog::nameOf(Mix mix)
{
  switch (mix) {
  case Mix::Mixed:
    return "mixed";
  case Mix::LabelsAndCheckBoxes:
    return "labels and check boxes";
  default:
    return "every kind";
  }
}

std::string BenchmarkDialog::formwrightText() const
{
  std::ostringstream out;
  out << "#Inventor V2.1 ascii\n\nTopLevelDialog {\nlabel \"Benchmark\"\nColumnDialog {\n";
  for (const std::vector<Control>& row : m_rows) {
    out << "RowDialog {\n";
    for (const Control& control : row)
      writeFormwrightControl(out, control);
    out << "}\n";
  }
  out << "}\n}\n";
  return out.str();
}

// The layout a .ui author gives the same dialog: the window stacks one
// container whose rows stand side by side, and each row is a form of
// labels and fields.
std::string BenchmarkDialog::uiText() const
{
  std::ostringstream out;
  UiWriter ui(out);
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ui version=\"4.0\"><class>Benchmark</class>\n";
  ui.openWidget("QWidget");
  out << uiString("windowTitle", "Benchmark");
  ui.openLayout("QVBoxLayout");
  ui.openItem();
  ui.openWidget("QFrame");
  ui.openLayout("QHBoxLayout");
  for (const std::vector<Control>& row : m_rows) {
    ui.openItem();
    ui.openWidget("QFrame");
    ui.openLayout("QFormLayout");
    for (size_t i = 0; i < row.size(); ++i)
      writeUiControl(ui, row[i], static_cast<int>(i));
    ui.closeLayout();
    ui.closeWidget();
    ui.closeItem();
  }
  ui.closeLayout();
  ui.closeWidget();
  ui.closeItem();
  ui.closeLayout();
  ui.closeWidget();
  out << "<resources/><connections/></ui>\n";
  return out.str();
}
