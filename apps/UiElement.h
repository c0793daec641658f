#pragma once

#include <QString>
#include <QStringList>
#include <QXmlStreamAttributes>

#include <vector>

class QIODevice;

// One element of a Designer form, read whole, so that the converter can look
// ahead and across the tree: a menu names actions that stand elsewhere, and a
// group box is judged by all its buttons.
class UiElement {
public:
  // Reads a whole XML document; on failure `problems` gets one line per fault
  // and false is returned.
  static bool read(QIODevice& input, UiElement& root, QStringList& problems);

  QString attribute(const QString& key) const { return attributes.value(key).toString(); }
  // The first child element called `tag`, or null.
  const UiElement* child(const QString& tag) const;
  // The children called `tag`, in file order.
  std::vector<const UiElement*> children(const QString& tag) const;
  // The value element of `<property name="key">` (or of another `tag` such
  // as "attribute"), or null when the form does not set it.
  const UiElement* property(const QString& key, const QString& tag = QStringLiteral("property")) const;
  // The text of that value, whatever its kind (string, number, bool, enum...).
  QString propertyText(const QString& key, const QString& fallback = QString()) const;
  bool propertyBool(const QString& key, bool fallback) const;

  QString name;
  QXmlStreamAttributes attributes;
  QString text;
  std::vector<UiElement> elements;
  qint64 line = 0;
};
