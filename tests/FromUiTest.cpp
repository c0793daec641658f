// Designer forms, converted, loaded as dialog files and built: each widget,
// layout and menu arrives as the control that does its job, with its texts
// and values.

#include "TestSupport.h"
#include "UiFormConverter.h"

#include <SoTopLevelDialog.h>

#include <Inventor/fields/SoMFString.h>
#include <Inventor/fields/SoSFString.h>
#include <Inventor/misc/SoChildList.h>

#include <QBuffer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

// Pieces of a form, as Designer writes them.
std::string prop(const char* key, const char* kind, const std::string& value, const char* tag = "property")
{
  return std::string("<") + tag + " name=\"" + key + "\"><" + kind + ">" + value + "</" + kind + "></" + tag + ">";
}
std::string text(const std::string& value) { return prop("text", "string", value); }
std::string on(const char* key) { return prop(key, "bool", "true"); }
std::string tagged(const char* tag, const char* type, const char* name, const std::string& inside)
{
  return std::string("<") + tag + " class=\"" + type + "\" name=\"" + name + "\">" + inside + "</" + tag + ">";
}
std::string widget(const char* type, const char* name, const std::string& in = "") { return tagged("widget", type, name, in); }
std::string layout(const char* type, const char* name, const std::string& in) { return tagged("layout", type, name, in); }
std::string item(const std::string& in, const std::string& cell = "") { return "<item " + cell + ">" + in + "</item>"; }
std::string margins(const char* margin)
{
  return prop("leftMargin", "number", margin) + prop("topMargin", "number", margin) +
         prop("rightMargin", "number", margin) + prop("bottomMargin", "number", margin);
}

struct Expected {
  const char* id;
  const char* type; // null: no node has this identifier
  std::vector<std::pair<const char*, std::string>> fields; // "children": the types of the children
};

struct Case {
  const char* name;
  std::string items;  // the items of the central widget's vertical layout
  std::string window; // menu bar and actions beside the central widget
  int warnings;
  std::vector<Expected> expected;
};

void PrintTo(const Case& form, std::ostream* out) { *out << form.name; }

// The interface nodes among a node's children, which the kit's parts follow.
std::string childTypes(SoFormwright* node)
{
  std::string types;
  SoChildList* children = node->getChildren();
  for (int i = 0; children && i < children->getLength(); ++i)
    if ((*children)[i]->isOfType(SoFormwright::getClassTypeId()))
      types += std::string(types.empty() ? "" : " ") + (*children)[i]->getTypeId().getName().getString();
  return types;
}

std::string fieldText(SoFormwright* node, const std::string& name)
{
  if (name == "children")
    return childTypes(node);
  SoField* field = node->getField(name.c_str());
  if (!field)
    return "no field " + name;
  if (auto* texts = dynamic_cast<SoMFString*>(field)) {
    std::string joined;
    for (int i = 0; i < texts->getNum(); ++i)
      joined += std::string(i ? "," : "") + (*texts)[i].getString();
    return joined;
  }
  if (auto* single = dynamic_cast<SoSFString*>(field))
    return single->getValue().getString();
  SbString value;
  field->get(value);
  return value.getString();
}

std::vector<Case> cases()
{
  auto cell = [](int row, int column, const char* more = "") {
    return "row=\"" + std::to_string(row) + "\" column=\"" + std::to_string(column) + "\" " + more;
  };
  // A grid lists its cells in any order; the choices read top to bottom.
  const std::string radios = layout("QGridLayout", "qualityLayout",
                                    item(widget("QRadioButton", "best", text("Best")), cell(2, 0)) +
                                      item(widget("QRadioButton", "draft", text("&amp;Draft")), cell(0, 0)) +
                                      item(widget("QRadioButton", "normal", text("Normal") + on("checked")), cell(1, 0)));
  const std::string file = widget("QMenu", "menuFile",
                                  prop("title", "string", "&amp;File") +
                                    widget("QMenu", "menuRecent", prop("title", "string", "Recent") +
                                                                    "<addaction name=\"actionClear\"/>") +
                                    "<addaction name=\"actionOpen\"/><addaction name=\"menuRecent\"/>"
                                    "<addaction name=\"separator\"/><addaction name=\"actionGrid\"/>"
                                    "<addaction name=\"actionDelete\"/><addaction name=\"actionKeys\"/>");
  auto action = [](const char* name, const std::string& inside) {
    return std::string("<action name=\"") + name + "\">" + inside + "</action>";
  };
  const std::string actions =
    action("actionOpen", text("&amp;Open...") + prop("shortcut", "string", "Ctrl+O")) + action("actionClear", text("Clear")) +
    action("actionGrid", text("Grid") + on("checkable") + on("checked") + prop("shortcut", "string", "Ctrl+Shift+G")) +
    action("actionDelete", text("Delete") + prop("shortcut", "string", "Ctrl+Alt+Del")) +
    action("actionKeys", text("Keys") + prop("shortcut", "string", "Meta+Shift+F2"));

  const std::string tabs = widget(
    "QTabWidget", "pages",
    prop("currentIndex", "number", "1") +
      widget("QWidget", "first",
             prop("title", "string", "&amp;First", "attribute") +
               layout("QVBoxLayout", "firstLayout", item(widget("Line", "line")))) +
      widget("QWidget", "second",
             prop("title", "string", "Second", "attribute") +
               layout("QHBoxLayout", "secondLayout", item(widget("QCalendarWidget", "day")))));
  const std::string grid =
    layout("QGridLayout", "grid",
           prop("verticalSpacing", "number", "2") + item(widget("QPushButton", "a"), cell(0, 0)) +
             item(widget("QPushButton", "b"), cell(0, 1)) + item(widget("QPushButton", "c"), cell(1, 0)));
  const std::string form = layout(
    "QFormLayout", "fields",
    item(widget("QLabel", "nameLabel", text("&amp;Name:") + prop("buddy", "cstring", "name")), cell(0, 0)) +
      item(widget("QLineEdit", "name"), cell(0, 1)) +
      item(widget("QLabel", "copiesLabel", text("&lt;html&gt;&lt;body&gt;&lt;p&gt;&lt;b&gt;Copies:&lt;/b&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;")), cell(1, 0)) + item(widget("QSpinBox", "copies"), cell(1, 1)) +
      item(widget("QCheckBox", "wide", text("Wide")), cell(2, 0, "colspan=\"2\"")));

  return {
    {"Controls",
     item(widget("QLabel", "hint", text("Hello"))) +
       item(widget("QLabel", "styled", text("&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;b&gt;Bold&lt;/b&gt; &amp;amp;&lt;/p&gt;"
                                           "&lt;p&gt;next&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;"))) + item(widget("QPushButton", "apply", text("&amp;Apply"))) +
       item(widget("QCheckBox", "binary", text("Binary") + on("checked"))) +
       item(widget("QComboBox", "units",
                   prop("currentIndex", "number", "2") + item(text("mm")) + item(text("in")) + item(text("pt")))) +
       item(widget("QGroupBox", "quality", prop("title", "string", "&amp;Quality") + radios)) +
       item(widget("QLineEdit", "name", text("a \\&quot;b&quot; \\c"))) +
       item(widget("QTextEdit", "notes", prop("plainText", "string", "one\ntwo"))) +
       item(widget("QPlainTextEdit", "log", prop("plainText", "string", "x") + on("readOnly"))) +
       item(widget("QSpinBox", "copies",
                   prop("minimum", "number", "1") + prop("maximum", "number", "12") + prop("value", "number", "3") +
                     prop("suffix", "string", " %"))) +
       item(widget("QSlider", "zoom")) +
       item(widget("QDialogButtonBox", "box", prop("standardButtons", "set", "QDialogButtonBox::Cancel|QDialogButtonBox::Ok"))) +
       item(widget("QDoubleSpinBox", "scale",
                   prop("minimum", "double", "0.5") + prop("maximum", "double", "2") + prop("value", "double", "1.25") +
                     prop("decimals", "number", "1"))),
     "", 1,
     {{"form", "TopLevelDialog",
       {{"auditorID", "form"}, {"label", "Form \"one\" \\ two"}, {"margin", "5"}, {"rowSpacing", "4"}}},
      {"hint", "DialogLabel", {{"label", "Hello"}}},
      {"styled", "DialogLabel", {{"label", "Bold &\nnext"}}},
      {"apply", "DialogPushButton", {{"buttonLabel", "Apply"}}},
      {"binary", "DialogCheckBox", {{"label", "Binary"}, {"state", "TRUE"}}},
      {"units", "DialogComboBox", {{"items", "mm,in,pt"}, {"selectedItem", "2"}}},
      {"quality", "DialogRadioButtons", {{"label", "Quality"}, {"items", "Draft,Normal,Best"}, {"selectedItem", "1"}}},
      {"normal", nullptr, {}},
      {"name", "DialogEditText", {{"editText", "a \\\"b\" \\c"}, {"multiLine", "FALSE"}}},
      {"notes", "DialogEditText", {{"editText", "one\ntwo"}, {"multiLine", "TRUE"}}},
      {"log", "DialogEditText", {{"multiLine", "TRUE"}, {"editable", "FALSE"}}},
      {"copies", "DialogIntegerSlider", {{"min", "1"}, {"max", "12"}, {"value", "3"}, {"format", "%d %%"}}},
      {"zoom", "DialogIntegerSlider", {{"min", "0"}, {"max", "99"}, {"value", "0"}}},
      {"scale", "DialogRealSlider", {{"min", "0.5"}, {"max", "2"}, {"value", "1.25"}, {"format", "%.1f"}}},
      {"box", "ColumnDialog", {{"children", "DialogPushButton DialogPushButton"}}},
      {"box.Ok", "DialogPushButton", {{"buttonLabel", "OK"}}},
      {"box.Cancel", "DialogPushButton", {{"buttonLabel", "Cancel"}}}}},
    {"Layouts",
     item(tabs) +
       item(layout("QHBoxLayout", "row",
                   prop("spacing", "number", "7") + margins("3") + item(widget("QLabel", "a")) +
                     item(layout("QVBoxLayout", "column", item(grid) + item("<spacer name=\"gap\"/>"))))) +
       item(form),
     "", 2,
     {{"pages", "TabDialog", {{"selectedPage", "1"}, {"children", "RowDialog ColumnDialog"}}},
      {"first", "RowDialog", {{"label", "First"}, {"children", "DialogSeparator"}}},
      {"second", "ColumnDialog", {{"label", "Second"}, {"children", "DialogCustom"}}},
      {"row", "ColumnDialog", {{"columnSpacing", "7"}, {"margin", "3"}, {"children", "DialogLabel RowDialog"}}},
      {"column", "RowDialog", {{"rowSpacing", "7"}, {"margin", "0"}, {"children", "RowDialog"}}},
      {"grid", "RowDialog", {{"rowSpacing", "2"}, {"children", "ColumnDialog DialogPushButton"}}},
      {"fields", "RowDialog", {{"children", "DialogEditText DialogIntegerSlider DialogCheckBox"}}},
      {"name", "DialogEditText", {{"label", "Name:"}, {"labelVisibility", "TRUE"}}},
      {"copies", "DialogIntegerSlider", {{"label", "Copies:"}, {"labelVisibility", "TRUE"}}},
      {"nameLabel", nullptr, {}}}},
    {"Menus", "", widget("QMenuBar", "bar", file + "<addaction name=\"menuFile\"/>") + actions, 0,
     {{"form", "TopLevelDialog", {{"children", "MenuBar"}}},
      {"menuFile", "MenuPopup",
       {{"label", "File"}, {"children", "MenuPushButton MenuPopup MenuSeparator MenuCheckBox MenuPushButton MenuPushButton"}}},
      {"menuRecent", "MenuPopup", {{"label", "Recent"}, {"children", "MenuPushButton"}}},
      {"actionOpen", "MenuPushButton", {{"label", "Open..."}, {"accelerator", "Ctrl+O"}}},
      {"actionGrid", "MenuCheckBox", {{"state", "TRUE"}, {"accelerator", "Shift+Ctrl+G"}}},
      {"actionDelete", "MenuPushButton", {{"accelerator", "Alt+Ctrl+Del"}}},
      {"actionKeys", "MenuPushButton", {{"accelerator", "Meta+Shift+F2"}}}}},
  };
}

class FromUi : public ::testing::TestWithParam<Case> {};

TEST_P(FromUi, convertedFormLoadsAndBuildsWithEachWidgetAsItsControl)
{
  const Case& form = GetParam();
  QByteArray ui = QByteArray::fromStdString(
    "<?xml version=\"1.0\"?><ui version=\"4.0\">" +
    widget("QMainWindow", "form",
           prop("windowTitle", "string", "Form &quot;one&quot; \\ two") +
             widget("QWidget", "central",
                    layout("QVBoxLayout", "top", prop("spacing", "number", "4") + margins("5") + form.items)) +
             form.window) +
    "</ui>");
  QBuffer input(&ui);
  input.open(QIODevice::ReadOnly);
  UiFormConverter converter;
  ASSERT_TRUE(converter.convert(input)) << converter.problems().join("\n").toStdString();
  EXPECT_EQ(converter.warnings().size(), form.warnings) << converter.warnings().join("\n").toStdString();

  QTemporaryDir dir;
  QFile out(dir.filePath(QString(form.name) + ".scn"));
  ASSERT_TRUE(out.open(QIODevice::WriteOnly) && out.write(converter.dialogText("form.ui").toUtf8()) > 0);
  out.close();
  DebugMessages messages(true);
  auto* dialog = static_cast<SoTopLevelDialog*>(
    SoFormwright::loadFromFile(SbString(out.fileName().toUtf8().constData()), "form"));
  ASSERT_NE(dialog, nullptr) << messages.joined();
  dialog->buildDialog(nullptr, 0);
  EXPECT_EQ(messages.count(), 0u) << messages.joined();

  for (const Expected& expected : form.expected) {
    SoFormwright* node = std::string(expected.id) == "form" ? dialog : dialog->searchForAuditorId(expected.id);
    if (!expected.type) {
      EXPECT_EQ(node, nullptr) << expected.id;
      continue;
    }
    ASSERT_NE(node, nullptr) << expected.id;
    EXPECT_STREQ(node->getTypeId().getName().getString(), expected.type) << expected.id;
    for (const auto& field : expected.fields)
      EXPECT_EQ(fieldText(node, field.first), field.second) << expected.id << "." << field.first;
  }
  dialog->destroyWidget();
}

INSTANTIATE_TEST_SUITE_P(Mappings, FromUi, ::testing::ValuesIn(cases()),
                         [](const ::testing::TestParamInfo<Case>& info) { return std::string(info.param.name); });

// What is no form gives status 1 and one line for the problem.
TEST(FromUiProgram, refusesWhatIsNoDesignerForm)
{
  QTemporaryDir dir;
  for (const char* content : {"just words\n", "<svg/>", "<ui version=\"4.0\"/>"}) {
    QFile file(dir.filePath("form.ui"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(content);
    file.close();
    QProcess process;
    process.start(FORMWRIGHT_FROM_UI, {file.fileName()});
    ASSERT_TRUE(process.waitForFinished(30000));
    EXPECT_EQ(process.exitCode(), 1) << content;
    EXPECT_EQ(process.readAllStandardError().count('\n'), 1) << content;
    EXPECT_TRUE(process.readAllStandardOutput().isEmpty()) << content;
  }
}

} // namespace
