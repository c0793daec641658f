#pragma once

// The input of the event-sequence fuzzer: a dialog file, a NUL byte, the
// form of the first build (one byte), then actions of four bytes each, a kind and three operands. An action cut short
// at the end is dropped. Operands are taken modulo whatever they pick from,
// so that a mutated byte still makes a meaningful action.

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

enum class ActionKind : uint8_t {
  WriteField,
  QtMouse,
  QtKey,
  CloseWindow,
  ScenePointer,
  SceneKey,
  InsertChild,
  RemoveChild,
  ReplaceChild,
  MoveChild,
  RemoveAllChildren,
  Build,
  ShowHideClose,
  SwapSkin,
  AttachAuditor,
  DetachAuditor,
  DeleteHost,
  ProcessEvents,
  Restart,
  Count
};

struct Action {
  ActionKind kind;
  uint8_t a, b, c;
};

class ActionTape {
public:
  ActionTape(const uint8_t* data, size_t size)
  {
    size_t end = 0;
    while (end < size && data[end] != 0)
      ++end;
    m_file.assign(reinterpret_cast<const char*>(data), end);
    if (end + 1 < size)
      m_firstForm = data[end + 1];
    for (size_t at = end + 2; at + 4 <= size; at += 4)
      m_actions.push_back({static_cast<ActionKind>(data[at] % static_cast<uint8_t>(ActionKind::Count)), data[at + 1],
                           data[at + 2], data[at + 3]});
  }

  const std::string& file() const { return m_file; }
  uint8_t firstForm() const { return m_firstForm; }
  bool atEnd() const { return m_next >= m_actions.size(); }
  Action next() { return m_actions[m_next++]; }

private:
  std::string m_file;
  uint8_t m_firstForm = 0;
  std::vector<Action> m_actions;
  size_t m_next = 0;
};
