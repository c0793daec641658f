#pragma once

#include <Inventor/SbName.h>

#include <string>
#include <vector>

// Where the nodes of a dialog file's text start: every name that a '{'
// follows, in the order of the text, with its line. The reader keeps no
// line of a node it made; a tree walked in file order meets its nodes in
// this order, so each node is matched to the next start of its type.
class NodeStarts {
public:
  explicit NodeStarts(const std::string& text);

  // The line of the next start of `typeName` after the last one matched,
  // or 0 when the text holds no further such start.
  int next(const SbName& typeName);

private:
  struct Start {
    std::string name;
    int line;
  };
  std::vector<Start> m_starts;
  size_t m_matched = 0;
};
