#include <SoTopComponent.h>

#include "SoFormwrightSubNodeSource.h"

#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoTranslation.h>

SO_FORMWRIGHT_SOURCE(SoTopComponent, SoFormwright, "TopComponent")

SoTopComponent::SoTopComponent()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoTopComponent);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoTopComponent::~SoTopComponent() = default;

void SoTopComponent::getSize(SbVec2i32&, SbVec2i32&, SbVec2i32&) {}

void SoTopComponent::addTranslation(SoTranslation* translation)
{
  auto* switchNode = static_cast<SoSwitch*>(getAnyPart("geomSwitch", TRUE));
  if (switchNode->getNumChildren() > 0) {
    SoNode* first = switchNode->getChild(0);
    if (first->isOfType(SoTranslation::getClassTypeId()) && first->getName() == "parentPositionTranslation") {
      static_cast<SoTranslation*>(first)->translation = translation->translation.getValue();
      return;
    }
  }
  switchNode->insertChild(translation, 0);
}
