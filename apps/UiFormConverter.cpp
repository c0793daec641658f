#include "UiFormConverter.h"

#include <QIODevice>
#include <QRegularExpression>

#include <algorithm>
#include <map>

namespace {

// Qt's own layout metrics for a style that sets none; a form may name others
// in its layout defaults.
constexpr int kQtLayoutSpacing = 6;
constexpr int kQtLayoutMargin = 9;
// What Qt gives a spin box or slider whose limits the form leaves alone.
constexpr int kQtIntegerMaximum = 99;
constexpr double kQtRealMaximum = 99.99;
constexpr int kQtRealDecimals = 2;

// The words that the library reads as modifiers anywhere in an accelerator,
// even inside a key's name.
const char* const kModifierWords[] = {"Ctrl", "CTRL", "ctrl", "Ctl", "Shift", "SHIFT", "shift",
                                      "Meta", "META", "Alt",  "ALT",  "alt"};

// The standard buttons of a button box, by Designer's names, with the texts
// Qt shows on them, in the order Qt lays them out: help and resets first,
// then accepting before rejecting.
const std::pair<const char*, const char*> kStandardButtons[] = {
  {"Help", "Help"},         {"RestoreDefaults", "Restore Defaults"}, {"Reset", "Reset"},   {"Ok", "OK"},
  {"Save", "Save"},         {"SaveAll", "Save All"},                 {"Open", "Open"},     {"Yes", "Yes"},
  {"YesToAll", "Yes to All"}, {"No", "No"},                          {"NoToAll", "No to All"},
  {"Abort", "Abort"},       {"Retry", "Retry"},                      {"Ignore", "Ignore"}, {"Apply", "Apply"},
  {"Discard", "Discard"},   {"Close", "Close"},                      {"Cancel", "Cancel"}};

// "&File" shows as "File"; "&&" is a plain ampersand.
QString withoutMnemonics(const QString& text)
{
  QString shown;
  for (int i = 0; i < text.size(); ++i) {
    if (text[i] == QLatin1Char('&') && i + 1 < text.size())
      ++i;
    shown += text[i];
  }
  return shown;
}

QString name(const UiElement& element)
{
  return element.attribute(QStringLiteral("name"));
}

int number(const UiElement& element, const QString& key, int fallback)
{
  bool ok = false;
  const int value = element.propertyText(key).trimmed().toInt(&ok);
  return ok ? value : fallback;
}

double real(const UiElement& element, const QString& key, double fallback)
{
  bool ok = false;
  const double value = element.propertyText(key).trimmed().toDouble(&ok);
  return ok ? value : fallback;
}

// The value box shows what the spin box showed: its prefix, the number as
// `number` formats it, and its suffix.
QString valueFormat(const UiElement& spinBox, const QString& number)
{
  auto literal = [&](const char* key) {
    return spinBox.propertyText(QLatin1String(key)).replace(QLatin1Char('%'), QLatin1String("%%"));
  };
  return literal("prefix") + number + literal("suffix");
}

bool isRichText(const QString& text)
{
  return text.startsWith(QLatin1String("<html>")) || text.startsWith(QLatin1String("<!DOCTYPE"));
}

// Designer writes styled text as a small HTML document. The dialog shows
// plain text, so the words and paragraphs are kept and the styling dropped.
QString withoutMarkup(QString html)
{
  html.remove(QRegularExpression(QStringLiteral("<head>.*</head>"), QRegularExpression::DotMatchesEverythingOption));
  html.replace(QRegularExpression(QStringLiteral("</p>\\s*<p[^>]*>|<br ?/?>")), QStringLiteral("\n"));
  html.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
  const std::pair<const char*, const char*> entities[] = {
    {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&#39;", "'"}, {"&nbsp;", " "}, {"&amp;", "&"}};
  for (const auto& entity : entities)
    html.replace(QLatin1String(entity.first), QLatin1String(entity.second));
  return html.trimmed();
}

int itemNumber(const UiElement& item, const char* key)
{
  return item.attribute(QLatin1String(key)).toInt();
}

// The controls that show a label of their own beside their body.
bool takesLabel(const DialogNode& node)
{
  static const QStringList types = {"DialogPushButton",  "DialogCheckBox",      "DialogComboBox",  "DialogRadioButtons",
                                    "DialogEditText",    "DialogIntegerSlider", "DialogRealSlider"};
  return types.contains(node.type);
}

// Controls side by side; a single one needs no column around it.
DialogNode sideBySide(std::vector<DialogNode> cells, int columnSpacing)
{
  if (cells.size() == 1)
    return std::move(cells.front());
  DialogNode columns(QStringLiteral("ColumnDialog"));
  columns.setNumber(QStringLiteral("columnSpacing"), columnSpacing);
  columns.children = std::move(cells);
  return columns;
}

// A row of a form: its label goes to the field's own label column; a field
// that has none gets the label as a control beside it.
DialogNode labelledField(DialogNode field, const QString& label, int columnSpacing)
{
  if (takesLabel(field)) {
    // The box's own text moves onto the box, as the row's label takes its place.
    const QString boxText = field.takeField(QStringLiteral("label"));
    if (field.type == QLatin1String("DialogCheckBox") && !boxText.isEmpty())
      field.setWord(QStringLiteral("onString"), boxText);
    field.takeField(QStringLiteral("labelVisibility"));
    DialogNode labelled(field.type);
    labelled.setText(QStringLiteral("label"), label);
    labelled.fields.insert(labelled.fields.end(), field.fields.begin(), field.fields.end());
    labelled.setBool(QStringLiteral("labelVisibility"), true);
    labelled.children = std::move(field.children);
    return labelled;
  }
  DialogNode text(QStringLiteral("DialogLabel"));
  text.setText(QStringLiteral("label"), label);
  std::vector<DialogNode> cells;
  cells.push_back(std::move(text));
  cells.push_back(std::move(field));
  return sideBySide(std::move(cells), columnSpacing);
}

} // namespace

bool UiFormConverter::convert(QIODevice& input)
{
  m_problems.clear();
  m_warnings.clear();
  m_dialog.reset();
  m_actions.clear();
  m_form = UiElement();
  if (!UiElement::read(input, m_form, m_problems))
    return false;
  if (m_form.name != QLatin1String("ui")) {
    m_problems << QStringLiteral("line %1: the document is <%2>, not a Designer form <ui>")
                    .arg(m_form.line)
                    .arg(m_form.name);
    return false;
  }
  const UiElement* top = m_form.child(QStringLiteral("widget"));
  if (!top) {
    m_problems << QStringLiteral("line %1: the form holds no widget").arg(m_form.line);
    return false;
  }
  readFormSettings(m_form);
  collectActions(*top);
  m_dialog = convertTopLevel(*top);
  return true;
}

QString UiFormConverter::dialogText(const QString& source) const
{
  if (!m_dialog)
    return QString();
  return QStringLiteral("#Inventor V2.1 ascii\n\n# Converted from the Designer form %1.\n").arg(source) +
         m_dialog->write();
}

void UiFormConverter::readFormSettings(const UiElement& ui)
{
  m_defaultSpacing = kQtLayoutSpacing;
  m_defaultMargin = kQtLayoutMargin;
  if (const UiElement* defaults = ui.child(QStringLiteral("layoutdefault"))) {
    m_defaultSpacing = defaults->attribute(QStringLiteral("spacing")).toInt();
    m_defaultMargin = defaults->attribute(QStringLiteral("margin")).toInt();
  }
  m_baseClasses.clear();
  if (const UiElement* custom = ui.child(QStringLiteral("customwidgets")))
    for (const UiElement* widget : custom->children(QStringLiteral("customwidget"))) {
      const UiElement* type = widget->child(QStringLiteral("class"));
      const UiElement* base = widget->child(QStringLiteral("extends"));
      if (type && base)
        m_baseClasses.insert(type->text.trimmed(), base->text.trimmed());
    }
}

void UiFormConverter::collectActions(const UiElement& element)
{
  for (const UiElement& child : element.elements) {
    if (child.name == QLatin1String("action"))
      m_actions.insert(name(child), &child);
    collectActions(child);
  }
}

QString UiFormConverter::widgetClass(const UiElement& widget) const
{
  QString type = widget.attribute(QStringLiteral("class"));
  // A promoted widget does the job of the class it extends; a loop of
  // promotions ends after a few steps.
  for (int step = 0; step < 8 && m_baseClasses.contains(type); ++step)
    type = m_baseClasses.value(type);
  return type;
}

QString UiFormConverter::shownText(const UiElement& widget, const QString& key)
{
  const QString text = widget.propertyText(key);
  if (!isRichText(text))
    return text;
  warn(widget, QStringLiteral("the styling of the text of \"%1\" is dropped; its words are kept").arg(name(widget)));
  return withoutMarkup(text);
}

void UiFormConverter::warn(const UiElement& at, const QString& message)
{
  m_warnings << QStringLiteral("line %1: %2").arg(at.line).arg(message);
}

DialogNode UiFormConverter::convertTopLevel(const UiElement& top)
{
  DialogNode dialog(QStringLiteral("TopLevelDialog"));
  if (top.property(QStringLiteral("windowTitle")))
    dialog.setText(QStringLiteral("label"), top.propertyText(QStringLiteral("windowTitle")));
  dialog.setText(QStringLiteral("auditorID"), name(top));

  const UiElement* content = &top;
  if (widgetClass(top) == QLatin1String("QMainWindow")) {
    content = nullptr;
    for (const UiElement* child : top.children(QStringLiteral("widget"))) {
      const QString type = widgetClass(*child);
      if (type == QLatin1String("QMenuBar"))
        dialog.children.insert(dialog.children.begin(), convertMenuBar(*child));
      else if (type == QLatin1String("QStatusBar") || type == QLatin1String("QToolBar") ||
               type == QLatin1String("QDockWidget"))
        warn(*child, QStringLiteral("%1 \"%2\" has no counterpart in a dialog and is left out").arg(type, name(*child)));
      else
        content = child;
    }
  }
  if (content)
    fillFromLayout(dialog, *content);
  return dialog;
}

void UiFormConverter::fillFromLayout(DialogNode& dialog, const UiElement& content)
{
  const UiElement* layout = content.child(QStringLiteral("layout"));
  if (!layout) {
    const std::vector<const UiElement*> widgets = contentWidgets(content);
    for (const UiElement* widget : widgets)
      dialog.children.push_back(convertWidget(*widget));
    if (!widgets.empty())
      warn(content, QStringLiteral("\"%1\" has no layout: its widgets are stacked in file order").arg(name(content)));
    return;
  }
  DialogNode body = convertLayout(*layout, QString(), QString(), true, m_defaultSpacing);
  const QString margin = body.takeField(QStringLiteral("margin"));
  if (!margin.isEmpty())
    dialog.setWord(QStringLiteral("margin"), margin);
  // The window stacks its children itself, so a vertical layout needs no
  // container of its own.
  if (body.type == QLatin1String("RowDialog")) {
    body.takeField(QStringLiteral("auditorID"));
    for (const auto& field : body.fields)
      dialog.setWord(field.first, field.second);
    for (DialogNode& child : body.children)
      dialog.children.push_back(std::move(child));
  } else {
    dialog.children.push_back(std::move(body));
  }
}

int UiFormConverter::layoutMargin(const UiElement& layout, int fallback)
{
  const int all = number(layout, QStringLiteral("margin"), fallback);
  int margins[] = {number(layout, QStringLiteral("leftMargin"), all), number(layout, QStringLiteral("topMargin"), all),
                   number(layout, QStringLiteral("rightMargin"), all),
                   number(layout, QStringLiteral("bottomMargin"), all)};
  const int largest = *std::max_element(std::begin(margins), std::end(margins));
  if (*std::min_element(std::begin(margins), std::end(margins)) != largest)
    warn(layout, QStringLiteral("\"%1\" has margins of different widths; one margin of %2 is kept all round")
                   .arg(name(layout))
                   .arg(largest));
  return largest;
}

DialogNode UiFormConverter::convertLayout(const UiElement& layout, const QString& label, const QString& auditorId,
                                          bool onWidget, int inheritedSpacing)
{
  const QString type = layout.attribute(QStringLiteral("class"));
  const int spacing = number(layout, QStringLiteral("spacing"), onWidget ? m_defaultSpacing : inheritedSpacing);
  const int rowSpacing = number(layout, QStringLiteral("verticalSpacing"), spacing);
  const int columnSpacing = number(layout, QStringLiteral("horizontalSpacing"), spacing);
  const bool horizontal = type == QLatin1String("QHBoxLayout");

  DialogNode group(horizontal ? QStringLiteral("ColumnDialog") : QStringLiteral("RowDialog"));
  if (!label.isEmpty())
    group.setText(QStringLiteral("label"), label);
  group.setText(QStringLiteral("auditorID"), auditorId.isEmpty() ? name(layout) : auditorId);
  const int margin = layoutMargin(layout, onWidget ? m_defaultMargin : 0);
  if (margin)
    group.setNumber(QStringLiteral("margin"), margin);
  group.setNumber(horizontal ? QStringLiteral("columnSpacing") : QStringLiteral("rowSpacing"),
                  horizontal ? columnSpacing : rowSpacing);

  if (type == QLatin1String("QGridLayout"))
    addGridRows(group, layout, columnSpacing);
  else if (type == QLatin1String("QFormLayout"))
    addFormRows(group, layout, columnSpacing);
  else {
    if (!horizontal && type != QLatin1String("QVBoxLayout"))
      warn(layout, QStringLiteral("%1 \"%2\" is read as a vertical layout").arg(type, name(layout)));
    for (const UiElement* item : layout.children(QStringLiteral("item")))
      if (std::optional<DialogNode> node = convertItem(*item, spacing))
        group.children.push_back(std::move(*node));
  }
  return group;
}

void UiFormConverter::addGridRows(DialogNode& rows, const UiElement& layout, int columnSpacing)
{
  std::map<int, std::map<int, DialogNode>> cells;
  for (const UiElement* item : layout.children(QStringLiteral("item")))
    if (std::optional<DialogNode> node = convertItem(*item, columnSpacing))
      cells[itemNumber(*item, "row")].emplace(itemNumber(*item, "column"), std::move(*node));
  for (auto& row : cells) {
    std::vector<DialogNode> columns;
    for (auto& cell : row.second)
      columns.push_back(std::move(cell.second));
    rows.children.push_back(sideBySide(std::move(columns), columnSpacing));
  }
}

void UiFormConverter::addFormRows(DialogNode& rows, const UiElement& layout, int columnSpacing)
{
  struct FormRow {
    const UiElement* label = nullptr;
    std::vector<DialogNode> cells;
  };
  std::map<int, FormRow> formRows;
  for (const UiElement* item : layout.children(QStringLiteral("item"))) {
    FormRow& row = formRows[itemNumber(*item, "row")];
    const UiElement* widget = item->child(QStringLiteral("widget"));
    const bool labelRole = itemNumber(*item, "column") == 0 && itemNumber(*item, "colspan") < 2;
    if (labelRole && widget && widgetClass(*widget) == QLatin1String("QLabel"))
      row.label = widget;
    else if (std::optional<DialogNode> node = convertItem(*item, columnSpacing))
      row.cells.push_back(std::move(*node));
  }
  for (auto& entry : formRows) {
    FormRow& row = entry.second;
    if (row.label && row.cells.size() == 1) {
      QString text = shownText(*row.label, QStringLiteral("text"));
      if (row.label->property(QStringLiteral("buddy")))
        text = withoutMnemonics(text);
      rows.children.push_back(labelledField(std::move(row.cells.front()), text, columnSpacing));
      continue;
    }
    if (row.label)
      row.cells.insert(row.cells.begin(), convertWidget(*row.label));
    if (!row.cells.empty())
      rows.children.push_back(sideBySide(std::move(row.cells), columnSpacing));
  }
}

std::optional<DialogNode> UiFormConverter::convertItem(const UiElement& item, int spacing)
{
  if (const UiElement* widget = item.child(QStringLiteral("widget")))
    return convertWidget(*widget);
  if (const UiElement* layout = item.child(QStringLiteral("layout")))
    return convertLayout(*layout, QString(), QString(), false, spacing);
  // Spacers only push controls apart; the dialog's own layout does that.
  return std::nullopt;
}

std::vector<const UiElement*> UiFormConverter::contentWidgets(const UiElement& widget) const
{
  const UiElement* layout = widget.child(QStringLiteral("layout"));
  if (!layout)
    return widget.children(QStringLiteral("widget"));
  std::vector<const UiElement*> found;
  addLayoutWidgets(*layout, found);
  return found;
}

// In reading order, nested layouts included: a grid's cells by row, then
// by column, whatever order the file lists them in.
void UiFormConverter::addLayoutWidgets(const UiElement& layout, std::vector<const UiElement*>& found) const
{
  std::vector<const UiElement*> items = layout.children(QStringLiteral("item"));
  std::stable_sort(items.begin(), items.end(), [](const UiElement* a, const UiElement* b) {
    return std::make_pair(itemNumber(*a, "row"), itemNumber(*a, "column")) <
           std::make_pair(itemNumber(*b, "row"), itemNumber(*b, "column"));
  });
  for (const UiElement* item : items) {
    if (const UiElement* child = item->child(QStringLiteral("widget")))
      found.push_back(child);
    if (const UiElement* nested = item->child(QStringLiteral("layout")))
      addLayoutWidgets(*nested, found);
  }
}

DialogNode UiFormConverter::convertWidget(const UiElement& widget)
{
  const QString type = widgetClass(widget);
  const QString text = widget.propertyText(QStringLiteral("text"));
  auto start = [&](const char* nodeType, const QString* label) {
    DialogNode node{QString::fromLatin1(nodeType)};
    if (label)
      node.setText(QStringLiteral("label"), *label);
    node.setText(QStringLiteral("auditorID"), name(widget));
    if (!widget.propertyBool(QStringLiteral("enabled"), true))
      node.setBool(QStringLiteral("enable"), false);
    return node;
  };

  if (type == QLatin1String("QLabel")) {
    QString shown = shownText(widget, QStringLiteral("text"));
    if (widget.property(QStringLiteral("buddy")))
      shown = withoutMnemonics(shown);
    return start("DialogLabel", &shown);
  }
  if (type == QLatin1String("QPushButton") || type == QLatin1String("QToolButton") ||
      type == QLatin1String("QCommandLinkButton")) {
    DialogNode node = start("DialogPushButton", nullptr);
    node.setText(QStringLiteral("buttonLabel"), withoutMnemonics(text));
    node.setBool(QStringLiteral("labelVisibility"), false);
    return node;
  }
  if (type == QLatin1String("QCheckBox")) {
    const QString shown = withoutMnemonics(text);
    DialogNode node = start("DialogCheckBox", &shown);
    if (widget.propertyBool(QStringLiteral("checked"), false))
      node.setBool(QStringLiteral("state"), true);
    return node;
  }
  if (type == QLatin1String("QComboBox")) {
    DialogNode node = start("DialogComboBox", nullptr);
    QStringList items;
    for (const UiElement* item : widget.children(QStringLiteral("item")))
      items << item->propertyText(QStringLiteral("text"));
    if (!items.isEmpty())
      node.setTexts(QStringLiteral("items"), items);
    node.setNumber(QStringLiteral("selectedItem"), number(widget, QStringLiteral("currentIndex"), 0));
    node.setBool(QStringLiteral("labelVisibility"), false);
    return node;
  }
  if (type == QLatin1String("QGroupBox"))
    return convertGroupBox(widget);
  if (type == QLatin1String("QLineEdit") || type == QLatin1String("QTextEdit") ||
      type == QLatin1String("QPlainTextEdit")) {
    DialogNode node = start("DialogEditText", nullptr);
    if (type == QLatin1String("QLineEdit")) {
      node.setText(QStringLiteral("editText"), text);
    } else {
      node.setBool(QStringLiteral("multiLine"), true);
      const bool html = widget.property(QStringLiteral("html"));
      node.setText(QStringLiteral("editText"), shownText(widget, html ? QStringLiteral("html") : QStringLiteral("plainText")));
      if (widget.propertyText(QStringLiteral("lineWrapMode")).endsWith(QLatin1String("NoWrap")))
        node.setBool(QStringLiteral("wrapLine"), false);
    }
    if (widget.propertyBool(QStringLiteral("readOnly"), false))
      node.setBool(QStringLiteral("editable"), false);
    node.setBool(QStringLiteral("labelVisibility"), false);
    return node;
  }
  if (type == QLatin1String("QSpinBox") || type == QLatin1String("QSlider")) {
    DialogNode node = start("DialogIntegerSlider", nullptr);
    node.setNumber(QStringLiteral("min"), number(widget, QStringLiteral("minimum"), 0));
    node.setNumber(QStringLiteral("max"), number(widget, QStringLiteral("maximum"), kQtIntegerMaximum));
    node.setNumber(QStringLiteral("value"), number(widget, QStringLiteral("value"), 0));
    const QString format = valueFormat(widget, QStringLiteral("%d"));
    if (format != QLatin1String("%d"))
      node.setText(QStringLiteral("format"), format);
    node.setBool(QStringLiteral("labelVisibility"), false);
    return node;
  }
  if (type == QLatin1String("QDoubleSpinBox")) {
    DialogNode node = start("DialogRealSlider", nullptr);
    node.setReal(QStringLiteral("min"), real(widget, QStringLiteral("minimum"), 0));
    node.setReal(QStringLiteral("max"), real(widget, QStringLiteral("maximum"), kQtRealMaximum));
    node.setReal(QStringLiteral("value"), real(widget, QStringLiteral("value"), 0));
    const int decimals = number(widget, QStringLiteral("decimals"), kQtRealDecimals);
    node.setText(QStringLiteral("format"), valueFormat(widget, QStringLiteral("%.%1f").arg(decimals)));
    node.setBool(QStringLiteral("labelVisibility"), false);
    return node;
  }
  if (type == QLatin1String("Line"))
    return start("DialogSeparator", nullptr);
  if (type == QLatin1String("QTabWidget"))
    return convertTabWidget(widget);
  if (type == QLatin1String("QDialogButtonBox"))
    return convertButtonBox(widget);
  if ((type == QLatin1String("QWidget") || type == QLatin1String("QFrame")) &&
      (widget.child(QStringLiteral("layout")) || widget.child(QStringLiteral("widget"))))
    return convertPlainWidget(widget, QString());

  warn(widget, QStringLiteral("%1 \"%2\" has no counterpart; it is kept as a DialogCustom for the application to fill")
                 .arg(type, name(widget)));
  return start("DialogCustom", nullptr);
}

DialogNode UiFormConverter::convertPlainWidget(const UiElement& widget, const QString& label)
{
  if (const UiElement* layout = widget.child(QStringLiteral("layout")))
    return convertLayout(*layout, label, name(widget), true, m_defaultSpacing);
  DialogNode rows(QStringLiteral("RowDialog"));
  if (!label.isEmpty())
    rows.setText(QStringLiteral("label"), label);
  rows.setText(QStringLiteral("auditorID"), name(widget));
  fillFromLayout(rows, widget);
  return rows;
}

DialogNode UiFormConverter::convertGroupBox(const UiElement& box)
{
  const QString title = withoutMnemonics(box.propertyText(QStringLiteral("title")));
  const std::vector<const UiElement*> widgets = contentWidgets(box);
  const bool onlyRadioButtons =
    !widgets.empty() && std::all_of(widgets.begin(), widgets.end(), [this](const UiElement* widget) {
      return widgetClass(*widget) == QLatin1String("QRadioButton");
    });
  if (onlyRadioButtons) {
    DialogNode radios(QStringLiteral("DialogRadioButtons"));
    radios.setText(QStringLiteral("label"), title);
    radios.setText(QStringLiteral("auditorID"), name(box));
    QStringList items;
    int selected = 0;
    for (const UiElement* button : widgets) {
      if (button->propertyBool(QStringLiteral("checked"), false))
        selected = items.size();
      items << withoutMnemonics(button->propertyText(QStringLiteral("text")));
    }
    radios.setTexts(QStringLiteral("items"), items);
    radios.setNumber(QStringLiteral("selectedItem"), selected);
    return radios;
  }

  // Groups draw no label of their own, so the title stands as the group's
  // first row inside its frame.
  DialogNode content = convertPlainWidget(box, QString());
  content.setWord(QStringLiteral("edgeStyle"), QStringLiteral("SHADOW_IN"));
  if (title.isEmpty())
    return content;
  DialogNode heading(QStringLiteral("DialogLabel"));
  heading.setText(QStringLiteral("label"), title);
  if (content.type == QLatin1String("RowDialog")) {
    content.children.insert(content.children.begin(), std::move(heading));
    return content;
  }
  DialogNode framed(QStringLiteral("RowDialog"));
  framed.setText(QStringLiteral("auditorID"), name(box));
  framed.setWord(QStringLiteral("edgeStyle"), QStringLiteral("SHADOW_IN"));
  content.takeField(QStringLiteral("auditorID"));
  content.takeField(QStringLiteral("edgeStyle"));
  framed.children.push_back(std::move(heading));
  framed.children.push_back(std::move(content));
  return framed;
}

DialogNode UiFormConverter::convertTabWidget(const UiElement& tabs)
{
  DialogNode node(QStringLiteral("TabDialog"));
  node.setText(QStringLiteral("auditorID"), name(tabs));
  node.setNumber(QStringLiteral("selectedPage"), number(tabs, QStringLiteral("currentIndex"), 0));
  static const QHash<QString, QString> locations = {
    {"QTabWidget::South", "BOTTOM"}, {"QTabWidget::West", "LEFT"}, {"QTabWidget::East", "RIGHT"}};
  const QString location = locations.value(tabs.propertyText(QStringLiteral("tabPosition")));
  if (!location.isEmpty())
    node.setWord(QStringLiteral("tabsLocation"), location);
  for (const UiElement* page : tabs.children(QStringLiteral("widget"))) {
    const UiElement* title = page->property(QStringLiteral("title"), QStringLiteral("attribute"));
    node.children.push_back(convertPlainWidget(*page, withoutMnemonics(title ? title->text : QString())));
  }
  return node;
}

DialogNode UiFormConverter::convertButtonBox(const UiElement& box)
{
  const bool vertical = box.propertyText(QStringLiteral("orientation")) == QLatin1String("Qt::Vertical");
  DialogNode buttons(vertical ? QStringLiteral("RowDialog") : QStringLiteral("ColumnDialog"));
  buttons.setText(QStringLiteral("auditorID"), name(box));
  buttons.setNumber(vertical ? QStringLiteral("rowSpacing") : QStringLiteral("columnSpacing"), m_defaultSpacing);
  const QStringList chosen = box.propertyText(QStringLiteral("standardButtons")).split(QLatin1Char('|'));
  for (const auto& standard : kStandardButtons) {
    if (!chosen.contains(QLatin1String("QDialogButtonBox::") + QLatin1String(standard.first)))
      continue;
    // Each button is a control of its own, named after the box and its role.
    DialogNode button(QStringLiteral("DialogPushButton"));
    button.setText(QStringLiteral("auditorID"), name(box) + QLatin1Char('.') + QLatin1String(standard.first));
    button.setText(QStringLiteral("buttonLabel"), QLatin1String(standard.second));
    button.setBool(QStringLiteral("labelVisibility"), false);
    buttons.children.push_back(std::move(button));
  }
  return buttons;
}

DialogNode UiFormConverter::convertMenuBar(const UiElement& bar)
{
  DialogNode node(QStringLiteral("MenuBar"));
  node.setText(QStringLiteral("auditorID"), name(bar));
  for (const UiElement* entry : bar.children(QStringLiteral("addaction"))) {
    const QString entryName = name(*entry);
    const auto menus = bar.children(QStringLiteral("widget"));
    const auto menu = std::find_if(menus.begin(), menus.end(), [&](const UiElement* w) { return name(*w) == entryName; });
    if (menu != menus.end())
      node.children.push_back(convertMenu(**menu));
    else
      warn(*entry, QStringLiteral("\"%1\" stands on the menu bar outside any menu and is left out").arg(entryName));
  }
  return node;
}

DialogNode UiFormConverter::convertMenu(const UiElement& menu)
{
  DialogNode node(QStringLiteral("MenuPopup"));
  node.setText(QStringLiteral("label"), withoutMnemonics(menu.propertyText(QStringLiteral("title"))));
  node.setText(QStringLiteral("auditorID"), name(menu));
  const auto submenus = menu.children(QStringLiteral("widget"));
  for (const UiElement* entry : menu.children(QStringLiteral("addaction"))) {
    const QString entryName = name(*entry);
    const auto submenu =
      std::find_if(submenus.begin(), submenus.end(), [&](const UiElement* w) { return name(*w) == entryName; });
    if (entryName == QLatin1String("separator"))
      node.children.emplace_back(QStringLiteral("MenuSeparator"));
    else if (submenu != submenus.end())
      node.children.push_back(convertMenu(**submenu));
    else if (const UiElement* action = m_actions.value(entryName))
      node.children.push_back(convertAction(*action));
    else
      warn(*entry, QStringLiteral("the menu \"%1\" names \"%2\", which the form does not define")
                     .arg(name(menu), entryName));
  }
  return node;
}

DialogNode UiFormConverter::convertAction(const UiElement& action)
{
  const bool checkable = action.propertyBool(QStringLiteral("checkable"), false);
  DialogNode node(checkable ? QStringLiteral("MenuCheckBox") : QStringLiteral("MenuPushButton"));
  node.setText(QStringLiteral("label"), withoutMnemonics(action.propertyText(QStringLiteral("text"))));
  node.setText(QStringLiteral("auditorID"), name(action));
  if (checkable && action.propertyBool(QStringLiteral("checked"), false))
    node.setBool(QStringLiteral("state"), true);
  if (!action.propertyBool(QStringLiteral("enabled"), true))
    node.setBool(QStringLiteral("enable"), false);
  const QString keys = accelerator(action);
  if (!keys.isEmpty())
    node.setText(QStringLiteral("accelerator"), keys);
  return node;
}

// Designer writes a shortcut as Qt's portable key text, "Ctrl+Shift+S"; the
// library reads modifier words wherever they stand and orders them Alt,
// Meta, Shift, Ctrl, so that order is written.
QString UiFormConverter::accelerator(const UiElement& action)
{
  QString shortcut = action.propertyText(QStringLiteral("shortcut")).trimmed();
  if (shortcut.isEmpty())
    return QString();
  if (shortcut.contains(QLatin1String(", "))) {
    warn(action, QStringLiteral("\"%1\" takes a sequence of keys; only its first chord is kept").arg(name(action)));
    shortcut = shortcut.section(QLatin1String(", "), 0, 0);
  }
  // The key itself may be "+", as in "Ctrl++".
  const bool plusKey = shortcut.endsWith(QLatin1Char('+'));
  QStringList parts = shortcut.split(QLatin1Char('+'), Qt::SkipEmptyParts);
  const QString key = plusKey ? QStringLiteral("+") : parts.takeLast();
  bool alt = false, meta = false, shift = false, ctrl = false;
  bool readable = key != QLatin1String("+");
  for (const QString& modifier : parts) {
    const QString word = modifier.toLower();
    alt |= word == QLatin1String("alt");
    meta |= word == QLatin1String("meta");
    shift |= word == QLatin1String("shift");
    ctrl |= word == QLatin1String("ctrl");
    readable &= word == QLatin1String("alt") || word == QLatin1String("meta") || word == QLatin1String("shift") ||
                word == QLatin1String("ctrl");
  }
  for (const char* word : kModifierWords)
    readable &= !key.contains(QLatin1String(word));
  if (!readable) {
    warn(action, QStringLiteral("the shortcut \"%1\" of \"%2\" cannot be written as an accelerator and is left out")
                   .arg(shortcut, name(action)));
    return QString();
  }
  return QString(alt ? "Alt+" : "") + (meta ? "Meta+" : "") + (shift ? "Shift+" : "") + (ctrl ? "Ctrl+" : "") + key;
}
