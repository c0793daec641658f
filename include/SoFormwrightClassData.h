#pragma once

#include "SbRenderEngineMode.h"

#include <Inventor/SoType.h>
#include <Inventor/threads/SbThreadAutoLock.h>
#include <Inventor/threads/SbThreadMutex.h>

#include <cstdint>

class SoFieldContainer;
class SoFieldData;
class SoNodekitCatalog;
class SoSFEnum;

// The statics of a parent class that a node class registers against.
struct SoFormwrightParentClass {
  const char* name;
  SoType (*getClassTypeId)();
  void (*initClass)();
  // Null when the parent is a toolkit class that declares no render mode.
  const SbRenderEngineMode* renderEngineMode;
  const SoFieldData** fieldDataPtr;
  const SoNodekitCatalog** nodekitCatalogPtr;
};

// Registration state that every interface node class holds for itself: its
// type, its field table and its nodekit catalog, each built by the first
// instance and released again by exitClass so that a later start registers
// the class afresh, under the same type, which exitClass only withdraws.
// Every operation reports misuse through SoDebugError and carries on.
class SoFormwrightClassData {
public:
  explicit SoFormwrightClassData(const char* className) : m_className(className) {}
  SoFormwrightClassData(const SoFormwrightClassData&) = delete;
  SoFormwrightClassData& operator=(const SoFormwrightClassData&) = delete;

  const char* getClassName() const { return m_className; }

  void initClass(const char* typeName, const SoFormwrightParentClass& parent,
                 SoType::instantiationMethod createInstance);
  void exitClass();
  const SoFieldData** getFieldDataPtr();
  const SoFieldData* getFieldData();

  // The common head of every node constructor: registers the class if that
  // was forgotten and makes the field table and catalog for the first instance.
  void beginInstance(const void* instance, void (*initClassOfInstance)());

  // Adds one field (a public field or a catalog part's node field) with its
  // default value; the name enters the table only on the first instance.
  template <class Field, class Value>
  void addField(SoFieldContainer* instance, const char* name, Field& field, const Value& value)
  {
    SbThreadAutoLock lock(&classMutex);
    ensureFieldData();
    if (firstInstance)
      enterField(instance, name, field);
    field.setValue(value);
    field.setContainer(instance);
    field.setFieldType(kInterfaceFieldType);
  }
  void addEnumValue(const char* enumName, const char* valueName, int value);
  void setEnumType(SoSFEnum& field, const char* fieldName, const char* enumName, int line);
  // Adds a catalog part; false when the catalog refused it.
  bool addCatalogEntry(const char* name, SoType type, SoType defaultType, const char* parentName,
                       bool isPublic);

  // The field type that every field of an interface node carries.
  static constexpr int kInterfaceFieldType = 5;

  SoType classTypeId;
  SoFieldData* fieldData = nullptr;
  const SoFieldData** parentFieldData = nullptr;
  SoNodekitCatalog* nodekitCatalog = nullptr;
  const SoNodekitCatalog** parentNodekitCatalogPtr = nullptr;
  int32_t firstInstance = 1;
  int32_t isBuiltIn = 0;
  SbThreadMutex classMutex;
  SbRenderEngineMode classRenderEngineMode;

private:
  void ensureFieldData();
  void enterField(SoFieldContainer* instance, const char* name, class SoField& field);

  const char* m_className;
  // The type of the last registration, withdrawn by exitClass: the toolkit
  // keeps its slot, and the next start takes it up again.
  SoType m_keptType;
  // True once an instance of the current registration has begun the field
  // table.
  bool m_fieldDataStarted = false;
};
