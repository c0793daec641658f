#include "NodeStarts.h"

#include <cctype>

namespace {

bool isNameCharacter(char c)
{
  return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

}

NodeStarts::NodeStarts(const std::string& text)
{
  int line = 1;
  // The last name read, kept until the next token shows whether it opens a
  // node: comments and white space may stand between a name and its brace.
  std::string pending;
  int pendingLine = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\n') {
      ++line;
    } else if (c == '#') {
      while (i + 1 < text.size() && text[i + 1] != '\n')
        ++i;
    } else if (std::isspace(static_cast<unsigned char>(c))) {
    } else if (c == '"') {
      for (++i; i < text.size() && text[i] != '"'; ++i) {
        if (text[i] == '\\' && i + 1 < text.size())
          ++i;
        if (text[i] == '\n')
          ++line;
      }
      pending.clear();
    } else if (isNameCharacter(c)) {
      const size_t begin = i;
      while (i + 1 < text.size() && isNameCharacter(text[i + 1]))
        ++i;
      pending = text.substr(begin, i + 1 - begin);
      pendingLine = line;
    } else {
      if (c == '{' && !pending.empty())
        m_starts.push_back({pending, pendingLine});
      pending.clear();
    }
  }
}

int NodeStarts::next(const SbName& typeName)
{
  const std::string name = typeName.getString();
  for (size_t i = m_matched; i < m_starts.size(); ++i) {
    // The reader takes a class name with or without its "So".
    if (m_starts[i].name == name || m_starts[i].name == "So" + name) {
      m_matched = i + 1;
      return m_starts[i].line;
    }
  }
  return 0;
}
