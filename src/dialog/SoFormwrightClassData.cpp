#include <SoFormwrightClassData.h>

#include <SoTypedObject.h>

#include "SoIndexedFieldData.h"
#include "SoKeptType.h"

#include <Inventor/errors/SoDebugError.h>
#include <Inventor/fields/SoFieldData.h>
#include <Inventor/fields/SoSFEnum.h>
#include <Inventor/nodekits/SoNodekitCatalog.h>
#include <Inventor/nodes/SoNode.h>

#include <string>

namespace {
// The toolkit keeps the counter of action-method slots to node classes.
struct ActionMethodIndex : SoNode {
  static int next() { return getNextActionMethodIndex(); }
  static void increment() { incNextActionMethodIndex(); }
};

// The table is read at every field access of every node, and written only
// while a class is registered or its first instance is made: readers take
// no lock, writers publish the table whole.
const SoFieldData* publishedTable(SoFieldData* const& table)
{
  return __atomic_load_n(&table, __ATOMIC_ACQUIRE);
}

void publishTable(SoFieldData*& table, SoFieldData* made)
{
  __atomic_store_n(&table, made, __ATOMIC_RELEASE);
}

const char* const kNotConstructed =
  "Instance not properly constructed.\nDid you forget to put SO_NODE_CONSTRUCTOR() in the constructor?";
}

void SoFormwrightClassData::initClass(const char* typeName, const SoFormwrightParentClass& parent,
                                      SoType::instantiationMethod createInstance)
{
  {
    SbThreadAutoLock lock(&classMutex);
    classRenderEngineMode.setRenderMode(SbRenderEngineMode::OPENGL_COMPATIBILITY);
    if (parent.renderEngineMode && parent.renderEngineMode->isChildrenInherit())
      classRenderEngineMode.setChildrenInherit(parent.renderEngineMode->isChildrenInherit());
    if (parent.getClassTypeId().isBad()) {
      const std::string source = std::string(m_className) + "::initClass";
      SoDebugError::post(source.c_str(), "%s initialized before parent class %s\n", m_className,
                         parent.name);
      parent.initClass();
    }
    classTypeId = SoKeptType::reusable(m_keptType, SbName(typeName), parent.getClassTypeId());
    if (!classTypeId.isBad()) {
      // Taken up again with the slot of action methods it was made with.
      SoType::overrideType(classTypeId, createInstance);
    } else {
      const auto actionMethodIndex = static_cast<uint16_t>(ActionMethodIndex::next());
      classTypeId =
        SoType::createType(parent.getClassTypeId(), SbName(typeName), createInstance, actionMethodIndex);
      if (!parentFieldData)
        ActionMethodIndex::increment();
    }
    parentFieldData = parent.fieldDataPtr;
  }
  parentNodekitCatalogPtr = parent.nodekitCatalogPtr;
}

void SoFormwrightClassData::exitClass()
{
  // The type stays in the toolkit, withdrawn: no file or factory makes an
  // instance of it until the next start takes it up again.
  if (!classTypeId.isBad()) {
    SoType::overrideType(classTypeId, nullptr);
    m_keptType = classTypeId;
    classTypeId = SoType::badType();
    delete static_cast<SoIndexedFieldData*>(fieldData);
    publishTable(fieldData, nullptr);
    parentFieldData = nullptr;
    firstInstance = 1;
    m_fieldDataStarted = false;
  } else {
    const std::string source = std::string(m_className) + "::exitClass";
    SoDebugError::post(source.c_str(),
                       "Unable to remove type (%s) for this class. Check exitClass() method is "
                       "implemented and is called only once.\n",
                       classTypeId.getName().getString());
  }
  delete nodekitCatalog;
  nodekitCatalog = nullptr;
}

const SoFieldData** SoFormwrightClassData::getFieldDataPtr()
{
  SbThreadAutoLock lock(&classMutex);
  return const_cast<const SoFieldData**>(&fieldData);
}

const SoFieldData* SoFormwrightClassData::getFieldData()
{
  if (const SoFieldData* made = publishedTable(fieldData))
    return made;
  SbThreadAutoLock lock(&classMutex);
  if (!fieldData) {
    SoDebugError::post(m_className, "%s", kNotConstructed);
    publishTable(fieldData, new SoIndexedFieldData(parentFieldData ? *parentFieldData : nullptr));
  }
  return fieldData;
}

void SoFormwrightClassData::beginInstance(const void* instance, void (*initClassOfInstance)())
{
  {
    SbThreadAutoLock lock(&classMutex);
    if (classTypeId.isBad()) {
      SoDebugError::post("SO_NODE_CONSTRUCTOR",
                         "Can't construct a node of type %s until initClass() has been called",
                         m_className);
      initClassOfInstance();
    }
    SoTypedObject::checkDatabase(m_className, instance, classTypeId, classTypeId);
    if (!m_fieldDataStarted) {
      // A table made meanwhile for a node left over from an earlier start is
      // empty: the first instance of this start fills a new one.
      delete static_cast<SoIndexedFieldData*>(fieldData);
      publishTable(fieldData, new SoIndexedFieldData(parentFieldData ? *parentFieldData : nullptr));
      m_fieldDataStarted = true;
    } else {
      firstInstance = 0;
    }
  }
  // The catalog is rebuilt with the field table, so that a class registered
  // again after a finish starts from its parent's current catalog.
  if (firstInstance || !nodekitCatalog) {
    delete nodekitCatalog;
    nodekitCatalog = parentNodekitCatalogPtr && *parentNodekitCatalogPtr
                       ? (*parentNodekitCatalogPtr)->clone(classTypeId)
                       : new SoNodekitCatalog;
  }
  isBuiltIn = 1;
}

void SoFormwrightClassData::ensureFieldData()
{
  if (!fieldData) {
    const std::string source = std::string("dialog/") + m_className;
    SoDebugError::post(source.c_str(), "%s", kNotConstructed);
    publishTable(fieldData, new SoIndexedFieldData(parentFieldData ? *parentFieldData : nullptr));
  }
}

void SoFormwrightClassData::enterField(SoFieldContainer* instance, const char* name, SoField& field)
{
  static_cast<SoIndexedFieldData*>(fieldData)->addField(instance, name, &field);
}

void SoFormwrightClassData::addEnumValue(const char* enumName, const char* valueName, int value)
{
  SbThreadAutoLock lock(&classMutex);
  ensureFieldData();
  if (firstInstance)
    fieldData->addEnumValue(enumName, valueName, value);
}

void SoFormwrightClassData::setEnumType(SoSFEnum& field, const char* fieldName, const char* enumName,
                                        int line)
{
  SbThreadAutoLock lock(&classMutex);
  int count = 0;
  const int* values = nullptr;
  const SbName* names = nullptr;
  fieldData->getEnumData(enumName, count, values, names);
  if (count == 0 && firstInstance) {
    const std::string source = std::string("dialog/") + m_className;
    SoDebugError::post("SO_SET_SF_ENUM_TYPE",
                       "Field %s (%s, line %d): Did you forget to use SO_%s_DEFINE_ENUM_VALUE(%s, ...)?",
                       fieldName, source.c_str(), line, "NODE", enumName);
  }
  field.setEnums(count, values, names);
}

bool SoFormwrightClassData::addCatalogEntry(const char* name, SoType type, SoType defaultType,
                                            const char* parentName, bool isPublic)
{
  if (!firstInstance)
    return true;
  return nodekitCatalog->addEntry(name, type, defaultType, TRUE, parentName, "", FALSE,
                                  SoType::badType(), SoType::badType(), isPublic);
}
