#pragma once

#include <Inventor/SoDB.h>
#include <Inventor/SoFullPath.h>
#include <Inventor/SoInput.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/nodes/SoSeparator.h>

#include <cstring>
#include <ostream>
#include <string>
#include <vector>

// Collects the messages posted through SoDebugError while it lives, instead
// of printing them.
class DebugMessages {
public:
  DebugMessages()
    : m_previous(SoDebugError::getHandlerCallback()), m_previousData(SoDebugError::getHandlerData())
  {
    SoDebugError::setHandlerCallback(&DebugMessages::collect, this);
  }
  ~DebugMessages() { SoDebugError::setHandlerCallback(m_previous, m_previousData); }
  DebugMessages(const DebugMessages&) = delete;
  DebugMessages& operator=(const DebugMessages&) = delete;

  const std::vector<std::string>& all() const { return m_messages; }
  const std::vector<SoDebugError::Severity>& severities() const { return m_severities; }
  size_t count() const { return m_messages.size(); }
  // True when one message holds `text`.
  bool contains(const std::string& text) const
  {
    for (const std::string& message : m_messages)
      if (message.find(text) != std::string::npos)
        return true;
    return false;
  }

private:
  static void collect(const SoError* error, void* data)
  {
    auto* self = static_cast<DebugMessages*>(data);
    self->m_messages.push_back(error->getDebugString().getString());
    self->m_severities.push_back(static_cast<const SoDebugError*>(error)->getSeverity());
  }

  SoErrorCB* m_previous;
  void* m_previousData;
  std::vector<std::string> m_messages;
  std::vector<SoDebugError::Severity> m_severities;
};

// Nodes are made with one reference, and never freed.
template <class Node>
Node* makeNode()
{
  auto* node = new Node;
  node->ref();
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
  if (root)
    root->ref();
  return root;
}

// Lets test failures show strings as text.
inline void PrintTo(const SbString& text, std::ostream* out)
{
  *out << '"' << text.getString() << '"';
}
