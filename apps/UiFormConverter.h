#pragma once

#include "DialogNode.h"
#include "UiElement.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

class QIODevice;

// Turns a Designer form into a dialog file: the top widget becomes the
// window, widgets become the controls that do the same job, layouts become
// rows and columns, and the menu bar becomes the dialog's menus. What has no
// counterpart is kept as a place holder or left out, with a warning.
class UiFormConverter {
public:
  // False, with `problems()`, when the input is no Designer form.
  bool convert(QIODevice& input);

  // The dialog file's text, header line included; `source` names the form
  // in the file's opening comment.
  QString dialogText(const QString& source) const;
  const QStringList& problems() const { return m_problems; }
  const QStringList& warnings() const { return m_warnings; }

private:
  void readFormSettings(const UiElement& ui);
  void collectActions(const UiElement& element);
  DialogNode convertTopLevel(const UiElement& top);
  void fillFromLayout(DialogNode& dialog, const UiElement& content);

  DialogNode convertLayout(const UiElement& layout, const QString& label, const QString& auditorId, bool onWidget,
                           int inheritedSpacing);
  void addGridRows(DialogNode& rows, const UiElement& layout, int columnSpacing);
  void addFormRows(DialogNode& rows, const UiElement& layout, int columnSpacing);
  std::optional<DialogNode> convertItem(const UiElement& item, int spacing);

  DialogNode convertWidget(const UiElement& widget);
  DialogNode convertGroupBox(const UiElement& box);
  DialogNode convertTabWidget(const UiElement& tabs);
  DialogNode convertButtonBox(const UiElement& box);
  DialogNode convertPlainWidget(const UiElement& widget, const QString& label);

  DialogNode convertMenuBar(const UiElement& bar);
  DialogNode convertMenu(const UiElement& menu);
  DialogNode convertAction(const UiElement& action);
  QString accelerator(const UiElement& action);

  QString widgetClass(const UiElement& widget) const;
  // A text property as the dialog can show it: styled text loses its styling.
  QString shownText(const UiElement& widget, const QString& key);
  std::vector<const UiElement*> contentWidgets(const UiElement& widget) const;
  void addLayoutWidgets(const UiElement& layout, std::vector<const UiElement*>& found) const;
  int layoutMargin(const UiElement& layout, int fallback);
  void warn(const UiElement& at, const QString& message);

  QStringList m_problems;
  QStringList m_warnings;
  QHash<QString, QString> m_baseClasses;
  QHash<QString, const UiElement*> m_actions;
  UiElement m_form;
  std::optional<DialogNode> m_dialog;
  int m_defaultSpacing = 0;
  int m_defaultMargin = 0;
};
