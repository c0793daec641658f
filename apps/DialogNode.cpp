#include "DialogNode.h"

namespace {

// A node this short, without children, stays on one line, as hand-written
// dialog files have it.
constexpr int kLongestLine = 100;

// The toolkit's reader takes a backslash as an escape only before a quote,
// and keeps every other one as it stands; so only quotes are escaped. A
// backslash that ends a text would escape the closing quote, and no spelling
// of it can be read back, so it is left out.
QString quoted(const QString& text)
{
  QString escaped = text;
  while (escaped.endsWith(QLatin1Char('\\')))
    escaped.chop(1);
  escaped.replace(QLatin1Char('"'), QLatin1String("\\\""));
  return QLatin1Char('"') + escaped + QLatin1Char('"');
}

} // namespace

void DialogNode::setWord(const QString& field, const QString& value)
{
  for (auto& existing : fields)
    if (existing.first == field) {
      existing.second = value;
      return;
    }
  fields.emplace_back(field, value);
}

void DialogNode::setText(const QString& field, const QString& value)
{
  setWord(field, quoted(value));
}

void DialogNode::setTexts(const QString& field, const QStringList& values)
{
  QStringList texts;
  for (const QString& value : values)
    texts << quoted(value);
  setWord(field, QLatin1String("[ ") + texts.join(QLatin1String(", ")) + QLatin1String(" ]"));
}

void DialogNode::setNumber(const QString& field, long long value)
{
  setWord(field, QString::number(value));
}

void DialogNode::setReal(const QString& field, double value)
{
  setWord(field, QString::number(value, 'g', 9));
}

void DialogNode::setBool(const QString& field, bool value)
{
  setWord(field, value ? QStringLiteral("TRUE") : QStringLiteral("FALSE"));
}

QString DialogNode::takeField(const QString& field)
{
  for (auto it = fields.begin(); it != fields.end(); ++it)
    if (it->first == field) {
      const QString value = it->second;
      fields.erase(it);
      return value;
    }
  return QString();
}

QString DialogNode::write(int depth) const
{
  const QString indent(2 * depth, QLatin1Char(' '));
  QString oneLine = indent + type + QLatin1String(" {");
  for (const auto& field : fields)
    oneLine += QLatin1Char(' ') + field.first + QLatin1Char(' ') + field.second;
  oneLine += QLatin1String(" }\n");
  if (children.empty() && oneLine.size() <= kLongestLine && !oneLine.trimmed().contains(QLatin1Char('\n')))
    return oneLine;

  QString text = indent + type + QLatin1String(" {\n");
  for (const auto& field : fields)
    text += indent + QLatin1String("  ") + field.first + QLatin1Char(' ') + field.second + QLatin1Char('\n');
  for (const DialogNode& child : children)
    text += child.write(depth + 1);
  return text + indent + QLatin1String("}\n");
}
