#pragma once

#include <SoTopLevelDialog.h>

#include <Inventor/SoDB.h>
#include <Inventor/SoFullPath.h>
#include <Inventor/SoInput.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/nodes/SoSeparator.h>

#include <gtest/gtest.h>

#include <cstring>
#include <ostream>
#include <string>
#include <vector>

// Collects the messages posted through SoDebugError while it lives, instead
// of printing them; with `alsoReadErrors`, the file reader's messages too, in
// the order they came.
class DebugMessages {
public:
  explicit DebugMessages(bool alsoReadErrors = false)
    : m_previous(SoDebugError::getHandlerCallback()), m_previousData(SoDebugError::getHandlerData()),
      m_read(alsoReadErrors), m_previousRead(SoReadError::getHandlerCallback()),
      m_previousReadData(SoReadError::getHandlerData())
  {
    SoDebugError::setHandlerCallback(&DebugMessages::collect, this);
    if (m_read)
      SoReadError::setHandlerCallback(&DebugMessages::collect, this);
  }
  ~DebugMessages()
  {
    SoDebugError::setHandlerCallback(m_previous, m_previousData);
    if (m_read)
      SoReadError::setHandlerCallback(m_previousRead, m_previousReadData);
  }
  DebugMessages(const DebugMessages&) = delete;
  DebugMessages& operator=(const DebugMessages&) = delete;

  const std::vector<std::string>& all() const { return m_messages; }
  const std::vector<SoDebugError::Severity>& severities() const { return m_severities; }
  size_t count() const { return m_messages.size(); }
  // How many messages hold `text`.
  int countHolding(const std::string& text) const
  {
    int count = 0;
    for (const std::string& message : m_messages)
      count += message.find(text) != std::string::npos ? 1 : 0;
    return count;
  }
  bool contains(const std::string& text) const { return countHolding(text) > 0; }
  std::string joined() const
  {
    std::string text;
    for (const std::string& message : m_messages)
      text += message + "\n---\n";
    return text;
  }

private:
  static void collect(const SoError* error, void* data)
  {
    auto* self = static_cast<DebugMessages*>(data);
    self->m_messages.push_back(error->getDebugString().getString());
    self->m_severities.push_back(error->isOfType(SoDebugError::getClassTypeId())
                                   ? static_cast<const SoDebugError*>(error)->getSeverity()
                                   : SoDebugError::ERROR);
  }

  SoErrorCB* m_previous;
  void* m_previousData;
  bool m_read;
  SoErrorCB* m_previousRead;
  void* m_previousReadData;
  std::vector<std::string> m_messages;
  std::vector<SoDebugError::Severity> m_severities;
};

// The nodes that tests make or read live for the whole run; this list holds
// them, so that a leak checker finds them held and not lost.
inline std::vector<SoNode*>& heldForTheRun()
{
  static auto* nodes = new std::vector<SoNode*>;
  return *nodes;
}

// Nodes are made with one reference, and never freed.
template <class Node>
Node* makeNode()
{
  auto* node = new Node;
  node->ref();
  heldForTheRun().push_back(node);
  return node;
}

// The nodes of a path, the kits' hidden parts included. The toolkit gives
// that view by a cast that the undefined-behaviour checker cannot follow.
__attribute__((no_sanitize("vptr"))) inline std::vector<SoNode*> fullPathNodes(SoPath* path)
{
  auto* full = static_cast<SoFullPath*>(path);
  std::vector<SoNode*> nodes;
  for (int i = 0; i < full->getLength(); ++i)
    nodes.push_back(full->getNode(i));
  return nodes;
}

// Reads a scene from text; the result holds one reference, or is null.
inline SoSeparator* readScene(const std::string& text)
{
  SoInput input;
  input.setBuffer(text.c_str(), text.size());
  SoSeparator* root = SoDB::readAll(&input);
  if (root) {
    root->ref();
    heldForTheRun().push_back(root);
  }
  return root;
}

// Reads a file whose first node is a window; null if it does not read.
inline SoTopLevelDialog* readWindow(const std::string& text)
{
  SoSeparator* root = readScene(text);
  return root ? static_cast<SoTopLevelDialog*>(root->getChild(0)) : nullptr;
}

// Lets test failures show strings as text.
inline void PrintTo(const SbString& text, std::ostream* out)
{
  *out << '"' << text.getString() << '"';
}
