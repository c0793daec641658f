// Writes the reference of the library's node types, in Markdown, from what
// the library registers at start: each type's parent, its fields in order with
// their types, defaults and enumeration values, and the parts of its 3D form.
// The words that explain a type or a field are the comments of its public
// header. So the reference says what the code does and cannot drift from it.
//
//   formwright-reference [OUTPUT]      (standard output when none is given)

#include <SoFormwright.h>

#include <Inventor/SoDB.h>
#include <Inventor/SoType.h>
#include <Inventor/draggers/SoDragger.h>
#include <Inventor/fields/SoField.h>
#include <Inventor/fields/SoFieldData.h>
#include <Inventor/fields/SoSFEnum.h>
#include <Inventor/lists/SoTypeList.h>
#include <Inventor/nodekits/SoNodekitCatalog.h>

#include <QApplication>

#include <cctype>
#include <cstdio>
#include <fstream>
#include <map>
#include <memory>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::string nameOf(SoType type)
{
  return type.getName().getString();
}

// The toolkit registers its own classes without their "So"; the reference
// names every class as a program writes it.
std::string className(SoType type)
{
  const std::string name = nameOf(type);
  return name.compare(0, 2, "So") == 0 ? name : "So" + name;
}

std::string anchor(SoType type)
{
  std::string text = nameOf(type);
  for (char& c : text)
    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

bool isOurs(SoType type)
{
  return type.isDerivedFrom(SoFormwright::getClassTypeId());
}

// The toolkit's field table of the root's parent, which only a derived
// class may read.
struct DraggerFields : SoDragger {
  static const SoFieldData* get() { return *SoDragger::getFieldDataPtr(); }
};

bool hasField(const SoFieldData* fields, const SbName& name)
{
  for (int i = 0; i < fields->getNumFields(); ++i)
    if (fields->getFieldName(i) == name)
      return true;
  return false;
}

// The comments of one public header: the block above the class, and the
// block above each field declared alone on its line.
struct HeaderComments {
  std::string ofClass;
  std::map<std::string, std::string> ofField;
};

HeaderComments readComments(SoType type)
{
  HeaderComments comments;
  std::ifstream header(std::string(FORMWRIGHT_HEADERS) + "/" + className(type) + ".h");
  const std::regex commentLine(R"(^\s*// ?(.*)$)");
  const std::regex classLine("^class " + className(type) + "\\b.*");
  const std::regex fieldLine(R"(^\s*So[SM]F\w+ (\w+);\s*$)");
  std::string line, block;
  std::smatch match;
  while (std::getline(header, line)) {
    if (std::regex_match(line, match, commentLine)) {
      block += (block.empty() ? "" : " ") + match[1].str();
      continue;
    }
    if (std::regex_match(line, classLine))
      comments.ofClass = block;
    else if (std::regex_match(line, match, fieldLine))
      comments.ofField[match[1].str()] = block;
    block.clear();
  }
  return comments;
}

// Text for a table cell: no bar, no line break, runs of blanks outside
// quotes made one.
std::string cellText(const std::string& text)
{
  std::string cell;
  bool quoted = false;
  for (size_t i = 0; i < text.size(); ++i) {
    char c = text[i];
    if (c == '"' && (i == 0 || text[i - 1] != '\\'))
      quoted = !quoted;
    if (!quoted && std::isspace(static_cast<unsigned char>(c))) {
      if (!cell.empty() && cell.back() == ' ')
        continue;
      c = ' ';
    }
    cell += c == '|' ? std::string("\\|") : std::string(1, c);
  }
  return cell;
}

// The value as a dialog file would write it.
std::string valueText(SoField* field)
{
  SbString written;
  field->get(written);
  return "`" + cellText(written.getString()) + "`";
}

std::string enumValues(const SoField* field)
{
  if (!field->isOfType(SoSFEnum::getClassTypeId()))
    return "";
  const auto* enumField = static_cast<const SoSFEnum*>(field);
  std::string text;
  for (int i = 0; i < enumField->getNumEnums(); ++i) {
    SbName name;
    const int value = enumField->getEnum(i, name);
    text += (i ? ", `" : "`") + std::string(name.getString()) + "` = " + std::to_string(value);
  }
  return text;
}

// One live instance per type gives the defaults: the field table holds where
// the fields are, an instance holds their values.
class Instances {
public:
  SoFormwright* of(SoType type)
  {
    auto& node = m_nodes[nameOf(type)];
    if (!node) {
      node.reset(static_cast<SoFormwright*>(type.createInstance()));
      node->ref();
    }
    return node.get();
  }

private:
  struct Unref {
    void operator()(SoFormwright* node) const { node->unref(); }
  };
  std::map<std::string, std::unique_ptr<SoFormwright, Unref>> m_nodes;
};

struct Row {
  std::string name;
  SoField* field;
};

void writeFieldTable(std::ostream& out, const std::vector<Row>& rows, const HeaderComments& comments)
{
  out << "| Field | Type | Default | Values | Meaning |\n|---|---|---|---|---|\n";
  for (const Row& row : rows) {
    auto comment = comments.ofField.find(row.name);
    out << "| `" << row.name << "` | " << className(row.field->getTypeId()) << " | " << valueText(row.field) << " | "
        << enumValues(row.field) << " | " << (comment == comments.ofField.end() ? "" : cellText(comment->second))
        << " |\n";
  }
  out << "\n";
}

// The parts that a dialog file may set; the private ones are the form's own
// scaffolding.
void writePublicParts(std::ostream& out, const char* heading, const std::vector<Row>& parts,
                      const SoNodekitCatalog* catalog)
{
  std::string list;
  for (const Row& part : parts) {
    const int number = catalog->getPartNumber(part.name.c_str());
    if (catalog->isPublic(number))
      list += (list.empty() ? " `" : ", `") + part.name + "` (" + className(catalog->getType(number)) + ")";
  }
  if (!list.empty())
    out << heading << list << ".\n\n";
}

void writeType(std::ostream& out, SoType type, Instances& instances)
{
  SoFormwright* node = instances.of(type);
  const SoType parent = type.getParent();
  SoFormwright* parentNode = isOurs(parent) ? instances.of(parent) : nullptr;
  const SoFieldData* fields = node->getFieldData();
  const SoFieldData* toolkitFields = parentNode ? nullptr : DraggerFields::get();
  const SoNodekitCatalog* catalog = node->getNodekitCatalog();
  const HeaderComments comments = readComments(type);

  std::vector<Row> own, ownParts, changed, toolkit, toolkitParts;
  for (int i = 0; i < fields->getNumFields(); ++i) {
    const SbName name = fields->getFieldName(i);
    Row row{name.getString(), fields->getField(node, i)};
    const bool isPart = catalog->getPartNumber(name) != SO_CATALOG_NAME_NOT_FOUND;
    if (parentNode && parentNode->getField(name)) {
      // An inherited field matters here only when this type starts it
      // elsewhere.
      if (!isPart && !row.field->isSame(*parentNode->getField(name)))
        changed.push_back(row);
    } else if (toolkitFields && hasField(toolkitFields, name))
      (isPart ? toolkitParts : toolkit).push_back(row);
    else
      (isPart ? ownParts : own).push_back(row);
  }

  out << "## " << nameOf(type) << "\n\n";
  out << "Class `" << className(type) << "`, derived from ";
  if (isOurs(parent))
    out << "[" << nameOf(parent) << "](#" << anchor(parent) << ")";
  else
    out << "the toolkit's `" << className(parent) << "`";
  out << ".";
  if (!comments.ofClass.empty())
    out << " " << comments.ofClass;
  out << "\n\n";

  if (own.empty())
    out << "No fields of its own.\n\n";
  else
    writeFieldTable(out, own, comments);
  if (!changed.empty()) {
    out << "Inherited fields that start otherwise here:";
    for (size_t i = 0; i < changed.size(); ++i)
      out << (i ? ", " : " ") << "`" << changed[i].name << "` " << valueText(changed[i].field);
    out << ".\n\n";
  }
  if (!ownParts.empty())
    writePublicParts(out, "Public parts of the 3D form:", ownParts, catalog);
  if (!toolkit.empty()) {
    out << "Fields of the toolkit's `" << className(parent) << "`, which every node has:\n\n";
    writeFieldTable(out, toolkit, HeaderComments());
  }
  if (!toolkitParts.empty())
    writePublicParts(out, "Public parts of the toolkit's dragger:", toolkitParts, catalog);
}

// The types as a tree, each below its parent, in the order of registration.
void writeContents(std::ostream& out, const SoTypeList& types)
{
  for (int i = 0; i < types.getLength(); ++i) {
    int depth = 0;
    for (SoType up = types[i].getParent(); isOurs(up); up = up.getParent())
      ++depth;
    out << std::string(2 * static_cast<size_t>(depth), ' ') << "- [" << nameOf(types[i]) << "](#"
        << anchor(types[i]) << ")\n";
  }
  out << "\n";
}

}

int main(int argc, char** argv)
{
  // Nothing is shown: the widgets that a node may make need no screen.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  SoFormwright::init();

  SoTypeList types;
  SoType::getAllDerivedFrom(SoFormwright::getClassTypeId(), types);
  std::ostringstream out;
  out << "# Node reference\n\n"
         "Every node type that a dialog file can name, with its fields: the field's\n"
         "type, its default as a dialog file writes it, and for an enumeration its\n"
         "values. A type has the fields of its parent too. The public parts of the\n"
         "3D form, which hold the groups of the skin, are node fields as well.\n\n"
         "This file is written by `formwright-reference` from the types that the\n"
         "library registers and the comments of its public headers; do not edit it\n"
         "by hand, run `cmake --build build --target reference` instead.\n\n";
  writeContents(out, types);
  {
    Instances instances;
    for (int i = 0; i < types.getLength(); ++i)
      writeType(out, types[i], instances);
  }
  SoFormwright::finish();
  // The library leaves the toolkit running: its user ends it.
  SoDB::finish();
  std::string text = out.str();
  text.erase(text.find_last_not_of('\n') + 1);
  text += '\n';

  if (argc < 2) {
    std::fputs(text.c_str(), stdout);
    return 0;
  }
  std::ofstream file(argv[1], std::ios::binary);
  file << text;
  if (!file.flush()) {
    std::fprintf(stderr, "cannot write %s\n", argv[1]);
    return 1;
  }
  return 0;
}
