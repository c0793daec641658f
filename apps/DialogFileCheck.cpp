#include "DialogFileCheck.h"

#include <SoDialogCheckBox.h>
#include <SoDialogCheckBoxLauncher.h>
#include <SoDialogChoice.h>
#include <SoDialogEditText.h>
#include <SoDialogGroup.h>
#include <SoDialogPushButton.h>
#include <SoDialogPushButtonLauncher.h>
#include <SoDialogSlider.h>
#include <SoMenuBar.h>
#include <SoMenuCheckBox.h>
#include <SoMenuCheckBoxLauncher.h>
#include <SoMenuPopup.h>
#include <SoMenuPushButton.h>
#include <SoMenuPushButtonLauncher.h>
#include <SoMenuRadioButtons.h>
#include <SoTopLevelDialog.h>

#include <algorithm>

#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/misc/SoChildList.h>
#include <Inventor/nodes/SoGroup.h>
#include <Inventor/nodes/SoSeparator.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <utility>

namespace {

std::string readText(const std::string& path)
{
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// The toolkit ends a message with where the input stood, as
// "Occurred at line N in FILE"; an included file names itself there.
struct Location {
  std::string file;
  int line = 0;
};

Location parseLocation(const std::string& text)
{
  static const std::string kMarker = "Occurred at line ";
  Location location;
  const size_t at = text.find(kMarker);
  if (at == std::string::npos)
    return location;
  std::istringstream rest(text.substr(at + kMarker.size()));
  std::string in;
  rest >> location.line >> in;
  std::getline(rest >> std::ws, location.file);
  return location;
}

// The message alone, without the toolkit's prefix and location.
std::string bareMessage(const std::string& text, bool isReadError)
{
  std::string message = text.substr(0, text.find("\n\tOccurred at line "));
  const std::string prefixEnd = isReadError ? "read error: " : "(): ";
  const size_t prefix = message.find(prefixEnd);
  if (prefix != std::string::npos)
    message.erase(0, prefix + prefixEnd.size());
  // One line per fault: a message of several lines is joined into one.
  std::string line;
  for (char c : message) {
    const bool isSpace = c == '\n' || c == '\t' || c == ' ';
    if (!isSpace)
      line += c;
    else if (!line.empty() && line.back() != ' ')
      line += ' ';
  }
  if (!line.empty() && line.back() == ' ')
    line.pop_back();
  return line;
}

bool isOfAnyType(const SoNode* node, std::initializer_list<SoType> types)
{
  return std::any_of(types.begin(), types.end(), [node](SoType type) { return node->isOfType(type); });
}

// The nodes whose use an auditor hears, and which the application tells
// apart by their auditorID.
bool isControl(const SoNode* node)
{
  return isOfAnyType(node, {SoDialogCheckBox::getClassTypeId(), SoDialogChoice::getClassTypeId(),
                            SoDialogEditText::getClassTypeId(), SoDialogSlider::getClassTypeId(),
                            SoDialogPushButton::getClassTypeId(), SoMenuCheckBox::getClassTypeId(),
                            SoMenuPushButton::getClassTypeId(), SoMenuRadioButtons::getClassTypeId()});
}

// The interface nodes whose child list holds interface nodes; every other
// node kit lists its parts there.
bool holdsInterfaceNodes(const SoNode* node)
{
  return isOfAnyType(node, {SoTopLevelDialog::getClassTypeId(), SoDialogGroup::getClassTypeId(),
                            SoMenuBar::getClassTypeId(), SoMenuPopup::getClassTypeId(),
                            SoDialogCheckBoxLauncher::getClassTypeId(), SoDialogPushButtonLauncher::getClassTypeId(),
                            SoMenuCheckBoxLauncher::getClassTypeId(), SoMenuPushButtonLauncher::getClassTypeId()});
}

}

DialogFileCheck::DialogFileCheck(std::string path) : m_path(std::move(path)), m_starts(readText(m_path)) {}

std::vector<DialogFileCheck::Fault> DialogFileCheck::run()
{
  SoInput input;
  m_input = &input;
  SoErrorCB* const previousRead = SoReadError::getHandlerCallback();
  void* const previousReadData = SoReadError::getHandlerData();
  SoErrorCB* const previousDebug = SoDebugError::getHandlerCallback();
  void* const previousDebugData = SoDebugError::getHandlerData();
  SoReadError::setHandlerCallback(&DialogFileCheck::collectError, this);
  SoDebugError::setHandlerCallback(&DialogFileCheck::collectError, this);

  SoSeparator* root = nullptr;
  if (input.openFile(m_path.c_str()))
    root = SoDB::readAll(&input);
  m_input = nullptr;
  if (root) {
    root->ref();
    Scope topNodes;
    walk(root, topNodes, true);
    root->unref();
  }

  SoReadError::setHandlerCallback(previousRead, previousReadData);
  SoDebugError::setHandlerCallback(previousDebug, previousDebugData);
  return std::move(m_faults);
}

void DialogFileCheck::collectError(const SoError* error, void* data)
{
  auto* self = static_cast<DialogFileCheck*>(data);
  const std::string text = error->getDebugString().getString();
  const bool isReadError = error->isOfType(SoReadError::getClassTypeId());
  bool isError = true;
  Location location = parseLocation(text);
  if (!isReadError) {
    isError = static_cast<const SoDebugError*>(error)->getSeverity() == SoDebugError::ERROR;
    // The library's own messages while reading name no place; the input
    // still stands where the node that called for them was read.
    if (self->m_input) {
      SbString where;
      self->m_input->getLocationString(where);
      location = parseLocation(where.getString());
    }
  }
  // The reader stops at its first fault, and each node that it gives up on
  // the way out adds a message: they are told as one, on the first's line.
  const std::string message = bareMessage(text, isReadError);
  if (isReadError && self->m_readFault) {
    self->m_faults[*self->m_readFault].message += "; " + message;
    return;
  }
  if (isReadError)
    self->m_readFault = self->m_faults.size();
  self->m_faults.push_back({location.file.empty() ? self->m_path : location.file, location.line, message, isError});
}

void DialogFileCheck::walk(SoNode* node, Scope& scope, bool opensScopes)
{
  // A node used again was checked where it was defined.
  if (!m_visited.insert(node).second)
    return;

  const bool isInterfaceNode = node->isOfType(SoFormwright::getClassTypeId());
  if (isInterfaceNode) {
    const int line = m_starts.next(node->getTypeId().getName());
    const std::string id = static_cast<SoFormwright*>(node)->auditorID.getValue().getString();
    if (!id.empty()) {
      const auto [first, isNew] = scope.emplace(id, line);
      if (!isNew)
        addFault(line, "auditorID \"" + id + "\" already used on line " + std::to_string(first->second), true);
    } else if (isControl(node)) {
      addFault(line, "warning: " + std::string(node->getTypeId().getName().getString()) + " has no auditorID", false);
    }
  } else if (!node->isOfType(SoGroup::getClassTypeId())) {
    return;
  }
  if (isInterfaceNode && !holdsInterfaceNodes(node))
    return;

  // A window keeps its identifiers to itself, and so does each node at the
  // top of the file, which the application loads by its identifier.
  Scope own;
  const bool opensScope = isInterfaceNode && (opensScopes || node->isOfType(SoTopLevelDialog::getClassTypeId()));
  Scope& inner = opensScope ? own : scope;
  const SoChildList* children = node->getChildren();
  for (int i = 0; children && i < children->getLength(); ++i)
    walk((*children)[i], inner, opensScopes && !isInterfaceNode);
}

void DialogFileCheck::addFault(int line, const std::string& message, bool isError)
{
  m_faults.push_back({m_path, line, message, isError});
}
