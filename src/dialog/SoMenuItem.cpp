#include <SoMenuItem.h>

#include <SoMenuBar.h>

#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"

#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoSeparator.h>

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

void SoMenuItem::buildMenu(void* holder, int is2D, int)
{
  SbVec2i32 useSize(0, 0), size(0, 0);
  SoFormwright::buildWidget(nullptr, useSize, size, is2D);
  menuParent = holder;
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
