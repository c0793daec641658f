#pragma once

// Declarations that every interface node class repeats. A class puts
// SO_FORMWRIGHT_HEADER(ClassName) at the top of its body (the root class
// SO_FORMWRIGHT_ROOT_HEADER); its source file
// uses the macros of the library's private SoFormwrightSubNodeSource.h.

#include "SoFormwrightClassData.h"

class SoNodekitCatalog;

#define SO_FORMWRIGHT_HEADER(K) SO_FORMWRIGHT_CLASS_HEADER(K, , override)

// The root class brings in the two lookups that the toolkit's classes lack;
// every class below it overrides them.
#define SO_FORMWRIGHT_ROOT_HEADER(K) SO_FORMWRIGHT_CLASS_HEADER(K, virtual, )

#define SO_FORMWRIGHT_CLASS_HEADER(K, newVirtual, overridesOwn)                                    \
public:                                                                                            \
  static void initClass();                                                                         \
  static void exitClass();                                                                         \
  static SoType getClassTypeId();                                                                  \
  SoType getTypeId() const override;                                                               \
  static const SoFieldData** getFieldDataPtr();                                                    \
  const SoFieldData* getFieldData() const override;                                                \
  static void* createInstance();                                                                   \
  static const SoNodekitCatalog* getClassNodekitCatalog();                                         \
  const SoNodekitCatalog* getNodekitCatalog() const override;                                      \
  static const SoNodekitCatalog** getClassNodekitCatalogPtr();                                     \
  newVirtual int getIsBuiltIn() const overridesOwn;                                                \
  static SbRenderEngineMode& getClassRenderEngineMode();                                           \
  newVirtual const SbRenderEngineMode& getRenderEngineMode() const overridesOwn;                   \
                                                                                                   \
protected:                                                                                         \
  static SoFormwrightClassData s_class;                                                            \
                                                                                                   \
private:

// Declarations of a class whose 3D look comes from a skin: `skinName` is the
// class's name without its "So", which names both its skin file
// (skinName.scn) and the public text that stands in for a missing file.
#define SO_FORMWRIGHT_SKIN_HEADER(skinName)                                                        \
public:                                                                                            \
  static char* skinName;                                                                           \
  static int isSkinLoaded();                                                                       \
  static void setSkinLoaded(int loaded);                                                           \
  /* Gives the class's shared skin groups the children of the current skin. */                    \
  static void change3DSkin();                                                                      \
  /* Lets the next 3D build read the skin again. */                                                \
  static void forgetSkin();                                                                        \
                                                                                                   \
protected:                                                                                         \
  /* Reads the skin the first time the class builds in 3D. */                                      \
  static void loadSkinOnce();                                                                      \
                                                                                                   \
private:                                                                                           \
  static int s_skinLoaded;                                                                         \
  static int s_skinFirstRead;
