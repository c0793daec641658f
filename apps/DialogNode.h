#pragma once

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

// One node of a dialog file being written: a keyword, its fields in the order
// they were set, and its children.
class DialogNode {
public:
  explicit DialogNode(const QString& type = QString()) : type(type) {}

  void setText(const QString& field, const QString& value);
  void setTexts(const QString& field, const QStringList& values);
  void setNumber(const QString& field, long long value);
  void setReal(const QString& field, double value);
  void setBool(const QString& field, bool value);
  // A word of the toolkit's syntax, such as an enumeration's name.
  void setWord(const QString& field, const QString& value);
  // Removes a field and gives its written value, or an empty text.
  QString takeField(const QString& field);

  // The node in the file's text, indented by `depth` steps.
  QString write(int depth = 0) const;

  QString type;
  std::vector<std::pair<QString, QString>> fields;
  std::vector<DialogNode> children;
};
