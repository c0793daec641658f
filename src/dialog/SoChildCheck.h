#pragma once

#include <SoFormwright.h>

#include <Inventor/errors/SoDebugError.h>
#include <Inventor/misc/SoChildList.h>

#include <string>

// What every container asks of a new child.
namespace SoChildCheck {

// Whether `node` is `target` or holds it, through interface nodes.
inline bool holds(const SoNode* node, const SoNode* target)
{
  if (node == target)
    return true;
  const SoChildList* children = node->getChildren();
  for (int i = 0; children && i < children->getLength(); ++i) {
    const SoNode* child = (*children)[i];
    if (child->isOfType(SoFormwright::getClassTypeId()) && holds(child, target))
      return true;
  }
  return false;
}

// A child must exist, and must not hold its new parent already: a dialog
// file can make a node its own descendant (a DEF name used inside its own
// definition), and every walk of the tree would then go round for ever.
inline bool accepts(const SoNode* child, const SoNode* owner, const std::string& source)
{
  if (!child) {
    SoDebugError::post(source.c_str(), "NULL child node");
    return false;
  }
  if (holds(child, owner)) {
    SoDebugError::post(source.c_str(), "The child holds this node already: a dialog cannot hold itself");
    return false;
  }
  return true;
}

}
