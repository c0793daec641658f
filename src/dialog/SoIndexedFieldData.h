#pragma once

#include <Inventor/fields/SoFieldData.h>

#include <unordered_map>

// A class's field table that finds a field by its name at once. Every level
// of an interface node's construction looks the field of each catalog part
// up by name, and a walk through a table of some sixty fields for each of
// some forty parts, at every level, costs more than the rest of the node.
class SoIndexedFieldData : public SoFieldData {
public:
  explicit SoIndexedFieldData(const SoFieldData* parent);
  ~SoIndexedFieldData();
  SoIndexedFieldData(const SoIndexedFieldData&) = delete;
  SoIndexedFieldData& operator=(const SoIndexedFieldData&) = delete;

  void addField(SoFieldContainer* base, const char* name, const SoField* field);

  // The table itself if it is one of these, as the tables of classes that
  // applications derive with the toolkit's own macros are not.
  static const SoIndexedFieldData* find(const SoFieldData* table);

  // The first field of that name, as a walk through the table finds it.
  SoField* getField(const SoFieldContainer* object, const SbName& name) const;

private:
  void indexFrom(int first);

  // Names are unique strings in the toolkit: their addresses are keys.
  std::unordered_map<const char*, int> m_indices;
};
