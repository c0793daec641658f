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
inline std::map<SoBase*, std::function<void()>> s_droppedWhileReading;

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
    if (s_reading)
      s_droppedWhileReading[this] = [this] { SoBase::destroy(); };
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
  for (auto& [node, free] : s_droppedWhileReading)
    if (node->getRefCount() == 0)
      free();
  s_droppedWhileReading.clear();
  return root;
}

#define FORMWRIGHT_FREE_ON_LAST_UNREF(K) FreedNode<K>::freeOnLastUnref();

inline void freeInterfaceNodesOnLastUnref()
{
  SO_FORMWRIGHT_FOR_EACH_CLASS(FORMWRIGHT_FREE_ON_LAST_UNREF)
}
