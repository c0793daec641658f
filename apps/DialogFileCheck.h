#pragma once

#include "NodeStarts.h"

#include <map>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

class SoError;
class SoInput;
class SoNode;

// Reads one dialog file without building it and lists what is wrong in it:
// what the reader refuses, and, in a file that reads, auditor identifiers
// that one dialog holds twice and controls that have none.
class DialogFileCheck {
public:
  struct Fault {
    std::string file;
    int line; // 0 when no line is known
    std::string message;
    bool isError;
  };

  explicit DialogFileCheck(std::string path);

  std::vector<Fault> run();

private:
  // The identifiers met in one dialog, with the line of their first node.
  using Scope = std::map<std::string, int>;

  static void collectError(const SoError* error, void* data);
  void walk(SoNode* node, Scope& scope, bool opensScopes);
  void addFault(int line, const std::string& message, bool isError);

  std::string m_path;
  SoInput* m_input = nullptr;
  NodeStarts m_starts;
  std::unordered_set<const SoNode*> m_visited;
  std::vector<Fault> m_faults;
  std::optional<size_t> m_readFault;
};
