#pragma once

// The tree of a dialog as the event-sequence fuzzer sees it: every interface
// node in one list, and the child operations of the four kinds of container
// behind one interface, each given only children of the type it takes.

#include <SoDialogAuditor.h>
#include <SoDialogComponent.h>
#include <SoDialogGroup.h>
#include <SoMenuBar.h>
#include <SoMenuItem.h>
#include <SoMenuPopup.h>
#include <SoTopComponent.h>
#include <SoTopLevelDialog.h>

#include <vector>

class InterfaceTree {
public:
  // Depth first, the container before its children.
  static std::vector<SoFormwright*> nodesOf(SoTopLevelDialog* dialog)
  {
    std::vector<SoFormwright*> nodes;
    gather(dialog, nodes, 0);
    return nodes;
  }

  static bool isContainer(SoNode* node) { return numChildren(node) >= 0; }

  // -1 for a node that is no container.
  static int numChildren(SoNode* node)
  {
    int count = -1;
    visit(node, [&](auto* container, auto*) { count = container->getNumChildren(); });
    return count;
  }

  static SoNode* child(SoNode* node, int index)
  {
    SoNode* found = nullptr;
    visit(node, [&](auto* container, auto*) { found = container->getChild(index); });
    return found;
  }

  static void insert(SoNode* node, SoNode* child, int index)
  {
    visit(node, [&](auto* container, auto* type) {
      if (auto* taken = as(type, child))
        container->insertChild(taken, index);
    });
  }

  static void replace(SoNode* node, int index, SoNode* child)
  {
    visit(node, [&](auto* container, auto* type) {
      if (auto* taken = as(type, child))
        container->replaceChild(index, taken);
    });
  }

  static void remove(SoNode* node, int index)
  {
    visit(node, [&](auto* container, auto*) { container->removeChild(index); });
  }

  static void removeAll(SoNode* node)
  {
    visit(node, [&](auto* container, auto*) { container->removeAllChildren(); });
  }

  static void addAuditor(SoNode* node, SoDialogAuditor* auditor)
  {
    visit(node, [&](auto* container, auto*) { container->addAuditor(auditor); });
  }

  static void removeAuditor(SoNode* node, SoDialogAuditor* auditor)
  {
    visit(node, [&](auto* container, auto*) { container->removeAuditor(auditor); });
  }

private:
  // Calls work(container, childTypeTag) with the container cast to its class.
  template <class Work>
  static void visit(SoNode* node, Work work)
  {
    if (!node)
      return;
    if (node->isOfType(SoTopLevelDialog::getClassTypeId()))
      work(static_cast<SoTopLevelDialog*>(node), static_cast<SoTopComponent*>(nullptr));
    else if (node->isOfType(SoDialogGroup::getClassTypeId()))
      work(static_cast<SoDialogGroup*>(node), static_cast<SoDialogComponent*>(nullptr));
    else if (node->isOfType(SoMenuBar::getClassTypeId()))
      work(static_cast<SoMenuBar*>(node), static_cast<SoMenuPopup*>(nullptr));
    else if (node->isOfType(SoMenuPopup::getClassTypeId()))
      work(static_cast<SoMenuPopup*>(node), static_cast<SoMenuItem*>(nullptr));
  }

  template <class Child>
  static Child* as(Child*, SoNode* node)
  {
    return node && node->isOfType(Child::getClassTypeId()) ? static_cast<Child*>(node) : nullptr;
  }

  static void gather(SoNode* node, std::vector<SoFormwright*>& nodes, int depth)
  {
    // Files may nest containers thousands deep; the fuzzer plays on the top.
    if (!node || !node->isOfType(SoFormwright::getClassTypeId()) || depth > 64)
      return;
    nodes.push_back(static_cast<SoFormwright*>(node));
    for (int i = 0; i < numChildren(node); ++i)
      gather(child(node, i), nodes, depth + 1);
  }
};
