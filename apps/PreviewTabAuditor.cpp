#include "PreviewTabAuditor.h"

#include "PreviewAuditor.h"

#include <SoTabDialog.h>

#include <string>

void PreviewTabAuditor::tabDialog(SoTabDialog* node)
{
  reportAction(m_out, node, std::to_string(node->selectedPage.getValue()).c_str());
}

void PreviewTabAuditor::followInScene(SoTabDialog* node)
{
  node->addStartCallback(&PreviewTabAuditor::pressStarted, this);
  node->addFinishCallback(&PreviewTabAuditor::pressFinished, this);
}

void PreviewTabAuditor::pressStarted(void* data, SoDragger* dragger)
{
  static_cast<PreviewTabAuditor*>(data)->m_pageAtPress[dragger] =
    static_cast<SoTabDialog*>(dragger)->selectedPage.getValue();
}

void PreviewTabAuditor::pressFinished(void* data, SoDragger* dragger)
{
  auto* self = static_cast<PreviewTabAuditor*>(data);
  auto* node = static_cast<SoTabDialog*>(dragger);
  if (node->selectedPage.getValue() != self->m_pageAtPress[dragger])
    self->tabDialog(node);
}
