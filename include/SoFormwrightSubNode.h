#pragma once

// Declarations that every interface node class repeats. A class puts
// SO_FORMWRIGHT_HEADER(ClassName) at the top of its body; its source file
// uses the macros of the library's private SoFormwrightSubNodeSource.h.

#include "SoFormwrightClassData.h"

class SoNodekitCatalog;

#define SO_FORMWRIGHT_HEADER(K)                                                                    \
public:                                                                                            \
  static void initClass();                                                                         \
  static void exitClass();                                                                         \
  static SoType getClassTypeId();                                                                  \
  virtual SoType getTypeId() const;                                                                \
  static const SoFieldData** getFieldDataPtr();                                                    \
  virtual const SoFieldData* getFieldData() const;                                                 \
  static void* createInstance();                                                                   \
  static const SoNodekitCatalog* getClassNodekitCatalog();                                         \
  virtual const SoNodekitCatalog* getNodekitCatalog() const;                                       \
  static const SoNodekitCatalog** getClassNodekitCatalogPtr();                                     \
  virtual int getIsBuiltIn() const;                                                                \
  static SbRenderEngineMode& getClassRenderEngineMode();                                           \
  virtual const SbRenderEngineMode& getRenderEngineMode() const;                                   \
                                                                                                   \
protected:                                                                                         \
  static SoFormwrightClassData s_class;                                                            \
                                                                                                   \
private:
