#pragma once

// The registration pattern of interface node classes, written once. In a
// class's source file:
//   SO_FORMWRIGHT_SOURCE(SoDialogLabel, SoDialogComponent, "DialogLabel")
// and in its constructor, first SO_FORMWRIGHT_CONSTRUCTOR(SoDialogLabel), then
// its fields, enumerations and catalog parts, and last
// SO_FORMWRIGHT_INIT_INSTANCE().

#include <SoFormwrightSubNode.h>

#include "SoBaseInitializer.h"

#include <Inventor/fields/SoFieldData.h>
#include <Inventor/fields/SoSFNode.h>
#include <Inventor/nodekits/SoNodekitCatalog.h>

#include <vector>

// The render mode of a parent that declares one; toolkit classes declare none.
template <class P>
auto soFormwrightRenderEngineModeOf(int) -> decltype(&P::getClassRenderEngineMode())
{
  return &P::getClassRenderEngineMode();
}
template <class P>
const SbRenderEngineMode* soFormwrightRenderEngineModeOf(long)
{
  return nullptr;
}

#define SO_FORMWRIGHT_SOURCE(K, P, typeName)                                                       \
  SoFormwrightClassData K::s_class(#K);                                                            \
  void K::initClass()                                                                              \
  {                                                                                                \
    s_class.initClass(typeName,                                                                    \
                      SoFormwrightParentClass{#P, &P::getClassTypeId, &P::initClass,               \
                                              soFormwrightRenderEngineModeOf<P>(0),                \
                                              P::getFieldDataPtr(),                                \
                                              P::getClassNodekitCatalogPtr()},                     \
                      &K::createInstance);                                                         \
  }                                                                                                \
  void K::exitClass() { s_class.exitClass(); }                                                     \
  SoType K::getClassTypeId() { return s_class.classTypeId; }                                       \
  SoType K::getTypeId() const { return s_class.classTypeId; }                                      \
  const SoFieldData** K::getFieldDataPtr() { return s_class.getFieldDataPtr(); }                   \
  const SoFieldData* K::getFieldData() const { return s_class.getFieldData(); }                    \
  void* K::createInstance() { return new K; }                                                      \
  const SoNodekitCatalog* K::getClassNodekitCatalog() { return s_class.nodekitCatalog; }           \
  const SoNodekitCatalog* K::getNodekitCatalog() const { return s_class.nodekitCatalog; }          \
  const SoNodekitCatalog** K::getClassNodekitCatalogPtr()                                          \
  {                                                                                                \
    return const_cast<const SoNodekitCatalog**>(&s_class.nodekitCatalog);                          \
  }                                                                                                \
  int K::getIsBuiltIn() const { return s_class.isBuiltIn; }                                        \
  SbRenderEngineMode& K::getClassRenderEngineMode() { return s_class.classRenderEngineMode; }      \
  const SbRenderEngineMode& K::getRenderEngineMode() const { return s_class.classRenderEngineMode; }

// Interface nodes are written like the toolkit's own nodes, without the field
// descriptions that unknown extension nodes carry.
#define SO_FORMWRIGHT_CONSTRUCTOR(K)                                                               \
  SoBaseInitializer soBaseInitializer(this);                                                       \
  [[maybe_unused]] bool soCatalogEntryFailed = false;                                              \
  s_class.beginInstance(this, &K::initClass);                                                      \
  this->isBuiltIn = TRUE

#define SO_FORMWRIGHT_ADD_FIELD(field, defaultValue) s_class.addField(this, #field, field, defaultValue)

#define SO_FORMWRIGHT_DEFINE_ENUM_VALUE(E, NAME) s_class.addEnumValue(#E, #NAME, NAME)

#define SO_FORMWRIGHT_SET_SF_ENUM_TYPE(field, E) s_class.setEnumType(field, #field, #E, __LINE__)

// A catalog part, null by default, with the node field that holds it.
#define SO_FORMWRIGHT_ADD_CATALOG_ENTRY(part, PartType, DefaultType, parentPart, isPublic)         \
  do {                                                                                             \
    if (!s_class.addCatalogEntry(#part, PartType::getClassTypeId(), DefaultType::getClassTypeId(), \
                                 #parentPart, isPublic))                                           \
      soCatalogEntryFailed = true;                                                                 \
    SO_FORMWRIGHT_ADD_FIELD(part, nullptr);                                                        \
  } while (0)

#define SO_FORMWRIGHT_INIT_INSTANCE()                                                              \
  do {                                                                                             \
    if (soCatalogEntryFailed)                                                                      \
      catalogError();                                                                              \
    createFieldList();                                                                             \
    createDefaultParts();                                                                          \
  } while (0)

// What each skinned class does to forget the skin it has read. The library's
// last finish calls them all: the toolkit may be ended and started again
// before the library's next start, taking the skins' DEF names with it, so
// that start must read every skin afresh.
std::vector<void (*)()>& soFormwrightSkinForgetters();

// The skin statics of a class, with its built-in text and its DEF names in
// the order in which a skin change swaps them.
#define SO_FORMWRIGHT_SKIN_SOURCE(K, skinName, builtInText, ...)                                  \
  char* K::skinName = const_cast<char*>(builtInText);                                              \
  int K::s_skinLoaded = 0;                                                                         \
  int K::s_skinFirstRead = 1;                                                                      \
  int K::isSkinLoaded() { return s_skinLoaded; }                                                   \
  void K::setSkinLoaded(int loaded) { s_skinLoaded = loaded; }                                     \
  void K::forgetSkin()                                                                             \
  {                                                                                                \
    s_skinLoaded = 0;                                                                              \
    s_skinFirstRead = 1;                                                                           \
  }                                                                                                \
  static const bool soFormwrightSkinForgetterOf##K =                                               \
    (soFormwrightSkinForgetters().push_back(&K::forgetSkin), true);                                \
  void K::change3DSkin()                                                                           \
  {                                                                                                \
    change3DSkinParts(#skinName ".scn", skinName, {__VA_ARGS__});                                  \
    setSkinLoaded(1);                                                                              \
  }                                                                                                \
  void K::loadSkinOnce()                                                                           \
  {                                                                                                \
    if (!s_skinFirstRead || isSkinLoaded())                                                        \
      return;                                                                                      \
    readDefaultSkinsParts(#skinName ".scn", skinName);                                             \
    setSkinLoaded(1);                                                                              \
    s_skinFirstRead = 0;                                                                           \
  }
