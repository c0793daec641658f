#include "SoIndexedFieldData.h"

#include <Inventor/SbName.h>

#include <unordered_set>

namespace {
std::unordered_set<const SoFieldData*>& liveTables()
{
  static std::unordered_set<const SoFieldData*> tables;
  return tables;
}
}

SoIndexedFieldData::SoIndexedFieldData(const SoFieldData* parent) : SoFieldData(parent)
{
  indexFrom(0);
  liveTables().insert(this);
}

SoIndexedFieldData::~SoIndexedFieldData()
{
  liveTables().erase(this);
}

void SoIndexedFieldData::addField(SoFieldContainer* base, const char* name, const SoField* field)
{
  const int first = getNumFields();
  SoFieldData::addField(base, name, field);
  indexFrom(first);
}

const SoIndexedFieldData* SoIndexedFieldData::find(const SoFieldData* table)
{
  return liveTables().count(table) ? static_cast<const SoIndexedFieldData*>(table) : nullptr;
}

SoField* SoIndexedFieldData::getField(const SoFieldContainer* object, const SbName& name) const
{
  const auto found = m_indices.find(name.getString());
  return found == m_indices.end() ? nullptr : SoFieldData::getField(object, found->second);
}

void SoIndexedFieldData::indexFrom(int first)
{
  for (int i = first; i < getNumFields(); ++i)
    m_indices.emplace(getFieldName(i).getString(), i);
}
