#include "UiElement.h"

#include <QIODevice>
#include <QXmlStreamReader>

namespace {

void readChildren(QXmlStreamReader& xml, UiElement& element)
{
  while (xml.readNext() != QXmlStreamReader::Invalid) {
    if (xml.isEndElement())
      return;
    if (xml.isCharacters())
      element.text += xml.text();
    if (xml.isStartElement()) {
      UiElement child;
      child.name = xml.name().toString();
      child.attributes = xml.attributes();
      child.line = xml.lineNumber();
      readChildren(xml, child);
      element.elements.push_back(std::move(child));
    }
  }
}

} // namespace

bool UiElement::read(QIODevice& input, UiElement& root, QStringList& problems)
{
  QXmlStreamReader xml(&input);
  while (!xml.isStartElement() && xml.readNext() != QXmlStreamReader::Invalid) {
  }
  if (xml.isStartElement()) {
    root.name = xml.name().toString();
    root.attributes = xml.attributes();
    root.line = xml.lineNumber();
    readChildren(xml, root);
    // Whatever follows the root must still be well formed.
    while (!xml.atEnd())
      xml.readNext();
  }
  if (xml.hasError()) {
    problems << QStringLiteral("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString());
    return false;
  }
  return true;
}

const UiElement* UiElement::child(const QString& tag) const
{
  for (const UiElement& element : elements)
    if (element.name == tag)
      return &element;
  return nullptr;
}

std::vector<const UiElement*> UiElement::children(const QString& tag) const
{
  std::vector<const UiElement*> found;
  for (const UiElement& element : elements)
    if (element.name == tag)
      found.push_back(&element);
  return found;
}

const UiElement* UiElement::property(const QString& key, const QString& tag) const
{
  for (const UiElement& element : elements)
    if (element.name == tag && element.attribute(QStringLiteral("name")) == key)
      return element.elements.empty() ? nullptr : &element.elements.front();
  return nullptr;
}

QString UiElement::propertyText(const QString& key, const QString& fallback) const
{
  const UiElement* value = property(key);
  return value ? value->text : fallback;
}

bool UiElement::propertyBool(const QString& key, bool fallback) const
{
  const UiElement* value = property(key);
  return value ? value->text.trimmed() == QLatin1String("true") : fallback;
}
