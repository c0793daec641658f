#pragma once

// Containers are read inside one another by recursion, as deep as the file
// nests them. One is counted while it is read, so that a file nested deeper
// than the library can read, build and paint is refused before the stack
// runs out.
class SoReadNesting {
public:
  static constexpr int kDeepest = 5000;

  SoReadNesting() { ++s_depth; }
  ~SoReadNesting() { --s_depth; }
  SoReadNesting(const SoReadNesting&) = delete;
  SoReadNesting& operator=(const SoReadNesting&) = delete;

  bool tooDeep() const { return s_depth > kDeepest; }

private:
  inline static int s_depth = 0;
};
