#pragma once

// What both fuzz targets need to read dialog files millions of times in one
// process: the interface nodes they read are freed on their last unref.

#include <SoFormwright.h>
#include "SoFormwrightClassList.h"

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/nodes/SoSeparator.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>

// Set while the reader runs: it may drop a half-read node and still use it
// while it unwinds, so the nodes dropped then are freed after it returns.
inline bool s_reading = false;
// Set by a fuzzer that plays actions: a node dropped during a run may still
// be inside its own event, as when an auditor removes the control it hears
// of; the library keeps such a node, so the fuzzer frees it after the run.
inline bool s_keepingDroppedNodes = false;
inline std::map<SoBase*, std::function<void()>> s_droppedNodes;

// Frees the dropped nodes that nothing took up again; the children that
// they drop in turn go in the next round.
inline void freeDroppedNodes()
{
  while (!s_droppedNodes.empty()) {
    std::map<SoBase*, std::function<void()>> dropped;
    dropped.swap(s_droppedNodes);
    for (auto& [node, free] : dropped)
      if (node->getRefCount() == 0)
        free();
  }
}

// An interface node that drops the last reference stays in memory, on
// purpose: an application may still hold its widgets. Over millions of runs
// that would fill the fuzzer's memory and hide real leaks, so the nodes that
// the reader makes here are freed as any other node of the toolkit.
template <class Node>
class FreedNode : public Node {
public:
  static void* create() { return new FreedNode; }

  // Every start of the library registers its types anew, so this follows
  // each SoFormwright::init.
  static void freeOnLastUnref() { SoType::overrideType(Node::getClassTypeId(), &FreedNode<Node>::create); }
protected:
  void destroy() override
  {
    if (s_reading || s_keepingDroppedNodes)
      s_droppedNodes[this] = [this] { SoBase::destroy(); };
    else
      SoBase::destroy();
  }
};

// Reads a whole file from memory; the root is null when nothing reads.
inline SoSeparator* readDialogScene(const uint8_t* data, size_t size)
{
  SoInput input;
  input.setBuffer(data, size);
  s_reading = true;
  SoSeparator* root = SoDB::readAll(&input);
  s_reading = false;
  // A dropped node that a later USE took up again is freed by its own last
  // unref instead.
  if (!s_keepingDroppedNodes)
    freeDroppedNodes();
  return root;
}

#define FORMWRIGHT_FREE_ON_LAST_UNREF(K) FreedNode<K>::freeOnLastUnref();

inline void freeInterfaceNodesOnLastUnref()
{
  SO_FORMWRIGHT_FOR_EACH_CLASS(FORMWRIGHT_FREE_ON_LAST_UNREF)
}
