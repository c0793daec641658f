#pragma once

// Counts one level of something read inside itself by recursion, for as long
// as it lives, so that input nested deeper than `deepest` is refused before
// the stack runs out.
class SoNesting {
public:
  SoNesting(int& depth, int deepest) : m_depth(depth), m_tooDeep(++depth > deepest) {}
  ~SoNesting() { --m_depth; }
  SoNesting(const SoNesting&) = delete;
  SoNesting& operator=(const SoNesting&) = delete;

  bool tooDeep() const { return m_tooDeep; }

private:
  int& m_depth;
  bool m_tooDeep;
};
