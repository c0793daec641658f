#include <SoMenuItem.h>

#include <SoMenuBar.h>
#include <SoMenuPopup.h>

#include "SoControl3D.h"
#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoPickStyle.h>
#include <Inventor/nodes/SoScale.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoTranslation.h>

#include <cstdint>
#include <string>

SO_FORMWRIGHT_SOURCE(SoMenuItem, SoFormwright, "MenuItem")

int32_t SoMenuItem::nextMenuId = 0;

SoMenuItem::SoMenuItem()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMenuItem);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(itemFrameSep, SoSeparator, SoSeparator, geomSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(frame, SoGroup, SoGroup, itemFrameSep, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelSep, SoSeparator, SoSeparator, geomSwitch, true);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(labelProp, SoGroup, SoGroup, labelSep, true);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMenuItem::~SoMenuItem() = default;

void SoMenuItem::buildMenu(void* holder, int is2D, int position)
{
  SbVec2i32 useSize(0, 0), size(0, 0);
  SoFormwright::buildWidget(nullptr, useSize, size, is2D);
  menuParent = static_cast<QWidget*>(holder);
  if (is2D)
    return;
  if (!isBuilt3D())
    create3DItem(position);
  update3DItem();
}

bool SoMenuItem::standsOnTraversableBar() const
{
  return parentNode && parentNode->isOfType(SoMenuBar::getClassTypeId()) && parentNode->canBeTraversed();
}

bool SoMenuItem::hangsInMenu() const
{
  return parentNode && !parentNode->isOfType(SoMenuBar::getClassTypeId());
}

void SoMenuItem::create3DItem(int)
{
  loadFontProperties();
  SoMenuItem::loadSkinOnce();
  SoGroup* switchNode = get3DPart("geomSwitch");
  if (!standsOnTraversableBar()) {
    setPartAsDefault("frame", "MenuItemFrame", TRUE);
    SoGroup* frameGroup = get3DPart("itemFrameSep");
    frameScale = new SoScale;
    frameGroup->insertChild(frameScale, 0);
    frameTranslation = new SoTranslation;
    switchNode->insertChild(frameTranslation, switchNode->findChild(frameGroup));
    frameTransform = new SoTransform;
    switchNode->addChild(frameTransform);
  }
  setPartAsDefault("labelProp", "DialogTextProperties", TRUE);
  SoGroup* labelGroup = get3DPart("labelSep");
  labelTranslation = new SoTranslation;
  labelGroup->insertChild(labelTranslation, 0);
  labelText = SoControl3D::newFrontText();
  labelGroup->addChild(labelText);
  moveLabelToEnd();
  // Greying and dead picks come first, so that they reach all the entry.
  switchNode->insertChild(pickStyle, 0);
  switchNode->insertChild(enableMaterial, 0);
  apply3DParentTranslation();
  setItemSize(getItemInitSize(), 0);
  // Built before the label is set, so that its box is measured once.
  setBuilt3D(1);
  change3DEnable();
  change3DLabel();
  // Shown unless its holder hides it: a popup alone has no other.
  show3D(1);
}

void SoMenuItem::moveLabelToEnd()
{
  SoGroup* switchNode = get3DPart("geomSwitch");
  SoNode* labelGroup = labelSep.getValue();
  labelGroup->ref();
  switchNode->removeChild(labelGroup);
  switchNode->addChild(labelGroup);
  labelGroup->unrefNoDelete();
}

void SoMenuItem::update3DItem()
{
  SbVec3f min, max;
  get3DLabelCachedBBox(min, max);
  if (frameScale) {
    const float w = static_cast<float>(itemSize[0]);
    frameScale->scaleFactor.setValue(w, static_cast<float>(itemSize[1]), 1.0f);
    frameTranslation->translation.setValue(w / 2, 0.0f, 0.0f);
    undoTransformMatrix(itemFrameSep.getValue(), frameTransform);
  }
  labelTranslation->translation.setValue(-(max[0] - min[0]) / 2, -(max[1] + min[1]) / 2, 0.0f);
}

void SoMenuItem::get3DLabelCachedBBox(SbVec3f& min, SbVec3f& max)
{
  if (!isLabelCachedBBox())
    setLabelCacheBBox(SoControl3D::finiteBox(measure3DText(static_cast<SoGroup*>(labelProp.getValue()), labelText)));
  const SbBox3f box = getLabelCachedBBox();
  min = box.getMin();
  max = box.getMax();
}

SbString SoMenuItem::shown3DLabel() const
{
  return label.getValue();
}

void SoMenuItem::change3DLabel()
{
  SoFormwright::change3DLabel();
  if (!labelText)
    return;
  SoControl3D::clearText(labelText);
  setStringToText3(labelText, convertToCString(shown3DLabel(), nullptr));
  if (isBuilt3D())
    update3DItem();
}

void SoMenuItem::getBoundingBox(SoGetBoundingBoxAction* action)
{
  if (!isBuilt3D()) {
    const SbBool notified = enableNotify(FALSE);
    // A popup measured alone must not build the dialog that holds it.
    SoFormwright* top = isOfType(SoMenuPopup::getClassTypeId()) ? getFirstTopParent(0, 1) : nullptr;
    if (top && !top->isBuilt3D() && top != this)
      top->setCanBeTraversed(0);
    buildMenu(nullptr, 0, -1);
    enableNotify(notified);
  }
  SoFormwright::getBoundingBox(action);
}

void SoMenuItem::menuEvent(void*, int) {}
void SoMenuItem::destroyNoDeleteMenuItem() {}

SbVec2i32 SoMenuItem::getItemInitSize()
{
  return SbVec2i32(getLabelPixelSize(label.getValue(), nullptr)[0] + 8, 18);
}

void SoMenuItem::setItemSize(SbVec2i32 size, int force)
{
  storeItemSize(size, force, 18);
}

void SoMenuItem::storeItemSize(const SbVec2i32& size, int force, int32_t height)
{
  if (force || itemSize == SbVec2i32(0, 0))
    itemSize.setValue(size[0], height);
}

SoMenuBar* SoMenuItem::getMenuBar()
{
  for (SoFormwright* node = getParent(); node; node = node->getParent())
    if (node->isOfType(SoMenuBar::getClassTypeId()))
      return static_cast<SoMenuBar*>(node);
  return nullptr;
}

SbString SoMenuItem::getKeyCombination(const SbString& text, SoMenuItem*, unsigned int)
{
  std::string rest = SoControlWidgets::toNarrowText(text).toStdString();
  if (rest.empty())
    return SbString();
  static const struct {
    const char* word;
    int16_t weight;
  } kModifiers[] = {{"Ctrl", 1},  {"CTRL", 1},  {"ctrl", 1},  {"Ctl", 1}, {"Shift", 2}, {"SHIFT", 2},
                    {"shift", 2}, {"Meta", 4},  {"META", 4},  {"Alt", 8}, {"ALT", 8},   {"alt", 8}};
  // Weights add rather than mask: a word written twice counts twice, and the
  // sum, not the words, decides which modifiers come out.
  int16_t sum = 0;
  for (const auto& modifier : kModifiers) {
    const std::string word(modifier.word);
    for (size_t at = rest.find(word); at != std::string::npos; at = rest.find(word)) {
      sum = static_cast<int16_t>(sum + modifier.weight);
      rest.erase(at, word.size());
    }
  }
  std::string key;
  for (char c : rest)
    if (c != '+')
      key += c;

  std::string result;
  if (sum >= 8) {
    result += "Alt+";
    sum = static_cast<int16_t>(sum - 8);
  }
  if (sum >= 4) {
    result += "Meta+";
    sum = static_cast<int16_t>(sum - 4);
  }
  if (sum >= 2) {
    result += "Shift+";
    sum = static_cast<int16_t>(sum - 2);
  }
  if (sum == 1)
    result += "Ctrl+";
  return SbString((result + key).c_str());
}

SbString SoMenuItem::getAccelerator(const SbString& text)
{
  const std::string whole(text.getString());
  const size_t tab = whole.find('\t');
  if (tab == std::string::npos)
    return SbString();
  return SbString(whole.substr(tab + 1).c_str());
}

char SoMenuItem::buildTitleForMotifMenu(const SbString& title, SbString& result)
{
  const std::string text = SoControlWidgets::toNarrowText(title).toStdString();
  std::string shown;
  char mnemonic = 0;
  for (size_t i = 0; i < text.size() && text[i] != '\t'; ++i) {
    if (text[i] == '&') {
      if (++i == text.size())
        break;
      mnemonic = text[i];
    }
    shown += text[i];
  }
  result = shown.c_str();
  return mnemonic;
}
