#include <SoFormwright.h>

#include <SoAuditor.h>
#include <SoDialogAuditor.h>
#include <SoDialogComboBox.h>
#include <SoDialogEditText.h>
#include <SoDialogGroup.h>
#include <SoTopLevelDialog.h>

#include "SbFileHelper.h"
#include "ScInitModuleCmd.h"
#include "SoControlWidgets.h"
#include "SoFormwrightFile.h"
#include "SoFormwrightClassList.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoGuardedFile.h"
#include "SoIndexedFieldData.h"
#include "SoPreferences.h"
#include "SoSFFilePathString.h"

#include <Inventor/SbViewportRegion.h>
#include <Inventor/SoPath.h>
#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/SoInteraction.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoGetMatrixAction.h>
#include <Inventor/actions/SoRayPickAction.h>
#include <Inventor/details/SoNodeKitDetail.h>
#include <Inventor/SoPickedPoint.h>
#include <Inventor/lists/SoPickedPointList.h>
#include <Inventor/nodekits/SoNodekitCatalog.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/errors/SoReadError.h>
#include <Inventor/lists/SbPList.h>
#include <Inventor/lists/SbStringList.h>
#include <Inventor/lists/SoNodeList.h>
#include <Inventor/nodekits/SoNodeKit.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoPickStyle.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTransform.h>
#include <Inventor/nodes/SoTranslation.h>
#include <Inventor/sensors/SoFieldSensor.h>

#include <QApplication>
#include <QFontMetrics>
#include <QWidget>

#include <dlfcn.h>

#include <algorithm>
#include <cctype>
#include <iterator>
#include <optional>
#include <cstring>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

SO_FORMWRIGHT_SOURCE(SoFormwright, SoDragger, "Formwright")

int32_t SoFormwright::s_initRefCount = 0;
SbThreadMutex* SoFormwright::s_initMutex = nullptr;
SbPList* SoFormwright::s_fileCache = nullptr;
SoFormwright* SoFormwright::s_current3DActive = nullptr;

namespace {
struct ClassRegistration {
  void (*initClass)();
  void (*exitClass)();
};

#define SO_FORMWRIGHT_REGISTRATION(K) ClassRegistration{&K::initClass, &K::exitClass},
const ClassRegistration kClasses[] = {SO_FORMWRIGHT_FOR_EACH_CLASS(SO_FORMWRIGHT_REGISTRATION)};
#undef SO_FORMWRIGHT_REGISTRATION

// The box that marks the label measure as not taken yet.
const SbBox3f kEmptyLabelBox(-1.0f, -1.0f, -1.0f, -1.0f, -1.0f, -1.0f);

// What the library keeps for the rest of the process on purpose: interface
// nodes whose last reference went, files that left the cache with them, and
// skin groups. Held here rather than merely never freed, so that the keeping
// stays in reach and leak checkers can tell it from memory that was lost.
// Never destroyed, since nodes may still be touched while the process ends.
struct KeptForTheProcess {
  std::unordered_set<SoFormwright*> nodes;
  std::vector<SoFormwrightFile*> files;
  std::vector<SoNode*> skins;
};

KeptForTheProcess& keptForTheProcess()
{
  static auto* kept = new KeptForTheProcess;
  return *kept;
}
}

void SoFormwright::init()
{
  if (!s_initMutex)
    s_initMutex = new SbThreadMutex;
  SbThreadAutoLock lock(s_initMutex);
  SoDB::init();
  SoNodeKit::init();
  SoInteraction::init();
  SoSFFilePathString::initClass();
  SoGuardedFile::initClass();
  if (s_initRefCount == 0) {
    for (const ClassRegistration& registration : kClasses)
      registration.initClass();
    SoAuditor::initClasses();
    ScInitModuleCmd::Instance()->serialize(getProductName());
  }
  ++s_initRefCount;
}

namespace {
void hideOwnWindows()
{
  int hidden = 0;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == QLatin1String("SoTopLevelDialog") && window->isVisible()) {
      window->hide();
      ++hidden;
    }
  }
  if (hidden != 0)
    SoDebugError::postWarning("SoFormwright::finish",
                              "%d dialog window(s) still open were hidden at the end of the library", hidden);
}
}

void SoFormwright::finish()
{
  if (s_initRefCount == 0)
    return;
  --s_initRefCount;
  // The toolkit is never ended here: the application, or another library,
  // may have started it too and still hold nodes, and the toolkit does not
  // count its starts. Ending it is the application's call.
  if (s_initRefCount > 0)
    return;
  hideOwnWindows();
  releaseFileCache();
  SoAuditor::exitClasses();
  for (auto registration = std::rbegin(kClasses); registration != std::rend(kClasses); ++registration)
    registration->exitClass();
  for (void (*forget)() : soFormwrightSkinForgetters())
    forget();
  s_skinsPath = SbString();
  s_skinLoaded = 0;
  s_fontPropertiesPending = 1;
  delete s_initMutex;
  s_initMutex = nullptr;
}

bool SoFormwright::isInitialized()
{
  return s_initRefCount > 0;
}

const char* SoFormwright::getProductName()
{
  return "Formwright";
}

const char* SoFormwright::getVersion()
{
  return "10.17.1.0";
}

SoFormwright::SoFormwright()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoFormwright);
  SO_FORMWRIGHT_ADD_FIELD(enable, TRUE);
  SO_FORMWRIGHT_ADD_FIELD(label, SbString());
  SO_FORMWRIGHT_ADD_FIELD(auditorID, SbString());
  SO_FORMWRIGHT_ADD_FIELD(labelAlignment, RIGHT);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(LabelAlignment, LEFT);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(LabelAlignment, CENTER);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(LabelAlignment, RIGHT);
  SO_FORMWRIGHT_SET_SF_ENUM_TYPE(labelAlignment, LabelAlignment);
  SO_FORMWRIGHT_ADD_CATALOG_ENTRY(geomSwitch, SoSwitch, SoSwitch, geomSeparator, false);
  SO_FORMWRIGHT_INIT_INSTANCE();
  labelBBox = kEmptyLabelBox;
}

SoFormwright::~SoFormwright()
{
  set3DInactive();
  delete bboxAction;
  delete searchAction;
  delete matrixAction;
  if (pressPath)
    pressPath->unref();
  if (pickStyle)
    pickStyle->unref();
  if (enableMaterial)
    enableMaterial->unref();
  delete auditorList;
  delete enableSensor;
  delete labelSensor;
  delete labelAlignmentSensor;
}

SoField* SoFormwright::getField(const SbName& name) const
{
  if (const SoIndexedFieldData* fields = SoIndexedFieldData::find(getFieldData()))
    return fields->getField(this, name);
  return SoDragger::getField(name);
}

namespace {
// In a container the fields end at the first name that is no field, which
// should start a child. A name that no node type, keyword or prototype has
// and that no '{' follows is a mistyped field: said so here, it names the
// field, where the child reader would only complain about the value after it.
bool isUnknownFieldBeforeChildren(SoInput* in, SbName& name)
{
  if (!in->read(name, TRUE))
    return false;
  std::string following;
  char c = 0;
  while (in->get(c)) {
    following += c;
    if (!std::isspace(static_cast<unsigned char>(c)))
      break;
  }
  in->putBack(following.c_str());
  const SbString text = name.getString();
  const bool isKeyword = text == "DEF" || text == "USE" || text == "ROUTE" || text == "PROTO" || text == "EXTERNPROTO";
  const bool isNodeType =
    !SoType::fromName(name).isBad() || !SoType::fromName(SbName((SbString("So") + text).getString())).isBad();
  if (isKeyword || isNodeType || in->findProto(name) || c == '{') {
    in->putBack(name.getString());
    return false;
  }
  return true;
}
}

SbBool SoFormwright::readInstance(SoInput* in, unsigned short)
{
  return readFields(in, TRUE);
}

SbBool SoFormwright::readFields(SoInput* in, SbBool errorOnUnknownField)
{
  // The node fields, parts among them, as the constructor left them.
  struct NodeField {
    int index;
    SoSFNode* field;
    SoNode* made;
  };
  const SoFieldData* fields = getFieldData();
  std::vector<NodeField> nodeFields;
  for (int i = 0; i < fields->getNumFields(); ++i) {
    SoField* field = fields->getField(this, i);
    if (field->isOfType(SoSFNode::getClassTypeId())) {
      auto* nodeField = static_cast<SoSFNode*>(field);
      nodeFields.push_back({i, nodeField, nodeField->getValue()});
    }
  }
  const SbBool notifyWasEnabled = enableNotify(FALSE);
  // The kit's own sensors on its parts wait until every part read has been
  // checked: they would take a node of any type for the part it names.
  SoDB::startNotify();
  SbBool notBuiltIn = FALSE;
  SbBool ok = fields->read(in, this, errorOnUnknownField, notBuiltIn);
  SbName name;
  if (ok && !errorOnUnknownField && !in->isBinary() && isUnknownFieldBeforeChildren(in, name)) {
    SoReadError::post(in, "Unknown field \"%s\" in \"%s\"", name.getString(), getTypeId().getName().getString());
    ok = FALSE;
  }
  const SoNodekitCatalog* catalog = getNodekitCatalog();
  for (const NodeField& entry : nodeFields) {
    SoNode* given = entry.field->getValue();
    if (given == entry.made)
      continue;
    const int part = catalog->getPartNumber(fields->getFieldName(entry.index));
    if (part == SO_CATALOG_NAME_NOT_FOUND)
      continue;
    // setPart checks the type and links the part below its parent part.
    if (given)
      given->ref();
    entry.field->setValue(entry.made);
    if (ok && !setPart(part, given)) {
      ok = FALSE;
      if (given)
        SoReadError::post(in, "\"%s\" cannot be the part \"%s\" of \"%s\"", given->getTypeId().getName().getString(),
                          fields->getFieldName(entry.index).getString(), getTypeId().getName().getString());
    }
    if (given)
      given->unref();
  }
  SoDB::endNotify();
  enableNotify(notifyWasEnabled);
  return ok;
}

void SoFormwright::buildWidget(QWidget* parent, SbVec2i32&, SbVec2i32&, int mode)
{
  if (mode != 0) {
    buildMode = mode;
    parentWidget = parent;
  } else {
    // The scene form's steps pass changes on to the widgets, which Qt may
    // have deleted with their window.
    forgetLostWidgets();
    if (!isBuilt3D())
      create3DFormwright();
  }
  makeFieldSensor(enableSensor, enable);
  makeFieldSensor(labelSensor, label);
  makeFieldSensor(labelAlignmentSensor, labelAlignment);
}

void SoFormwright::makeFieldSensor(SoFieldSensor*& sensor, SoField& field)
{
  if (sensor)
    return;
  sensor = new SoFieldSensor(fieldChangedCB, this);
  sensor->setPriority(0);
  if (sensor->getAttachedField() != &field)
    sensor->attach(&field);
}

void SoFormwright::destroyWidget()
{
  buildMode = 0;
}

void SoFormwright::updateFromSensor(SoSensor* sensor)
{
  if (sensor == enableSensor) {
    if (buildMode)
      changeEnable();
    if (follows3DForm())
      change3DEnable();
  } else if (sensor == labelSensor) {
    if (buildMode)
      changeLabel();
    if (follows3DForm())
      change3DLabel();
  } else if (sensor == labelAlignmentSensor) {
    if (buildMode)
      changeLabelAlignment();
    if (follows3DForm())
      change3DLabelAlignment();
  }
}

void SoFormwright::applyAuditor(SoFormwright*) {}
void SoFormwright::resetSize() {}
void SoFormwright::changeEnable() {}
void SoFormwright::changeLabel() {}
void SoFormwright::changeLabelAlignment() {}
void SoFormwright::change3DPosition() {}
void SoFormwright::change3DLabelAlignment() {}

void SoFormwright::show3D(int show)
{
  setSwitchValue(geomSwitch.getValue(), show ? SO_SWITCH_ALL : SO_SWITCH_NONE);
  shown3D = show;
}

void SoFormwright::set3DParentTranslation(SbVec3f& translation)
{
  parentTranslation = translation;
  if (parentTranslationNode)
    parentTranslationNode->translation = parentTranslation;
}

void SoFormwright::change3DWidgetEnable(int enabled)
{
  if (!pickStyle || !enableMaterial)
    return;
  const bool active = enabled && enable.getValue();
  // A group hands its state down through all it holds: only a change is
  // written, as each write tells every level above.
  const int style = active ? SoPickStyle::SHAPE : SoPickStyle::UNPICKABLE;
  if (pickStyle->style.getValue() != style)
    pickStyle->style = style;
  const SbColor emissive = active ? SbColor(0.0f, 0.0f, 0.0f) : SbColor(0.5f, 0.5f, 0.5f);
  if (enableMaterial->emissiveColor.getNum() != 1 || enableMaterial->emissiveColor[0] != emissive)
    enableMaterial->emissiveColor = emissive;
}

void SoFormwright::change3DEnable()
{
  change3DWidgetEnable(enable.getValue());
}

void SoFormwright::change3DLabel()
{
  labelBBox = kEmptyLabelBox;
}

void SoFormwright::set3DInactive()
{
  if (s_current3DActive == this)
    s_current3DActive = nullptr;
}

void SoFormwright::set3DCurrentActive(SoFormwright* node)
{
  if (s_current3DActive && s_current3DActive != node)
    s_current3DActive->set3DInactive();
  s_current3DActive = node;
}

void SoFormwright::create3DFormwright()
{
  // Builds in the scene form run this until a class's own create step marks
  // the form as built, and text wrapping may have made the box action: only
  // what is missing is made.
  if (!bboxAction)
    bboxAction = new SoGetBoundingBoxAction(SbViewportRegion());
  if (!searchAction) {
    searchAction = new SoSearchAction;
    // First of the start callbacks, so that every class's own sees it.
    addStartCallback(&SoFormwright::keepPressPathCB);
  }
  if (!matrixAction)
    matrixAction = new SoGetMatrixAction(SbViewportRegion());
  if (!pickStyle) {
    pickStyle = new SoPickStyle;
    pickStyle->ref();
  }
  if (!enableMaterial) {
    enableMaterial = new SoMaterial;
    enableMaterial->ref();
  }
  labelBBox = kEmptyLabelBox;
}

void SoFormwright::forgetLostWidgets()
{
  if (buildMode && hasLostWidgets())
    buildMode = 0;
}

void SoFormwright::keepPressPathCB(void*, SoDragger* dragger)
{
  auto* node = static_cast<SoFormwright*>(dragger);
  node->forgetLostWidgets();
  if (node->pressPath)
    node->pressPath->unref();
  const SoPath* picked = node->getPickPath();
  node->pressPath = picked ? picked->copy() : nullptr;
  if (node->pressPath)
    node->pressPath->ref();
}

void SoFormwright::apply3DParentTranslation()
{
  parentTranslationNode = new SoTranslation;
  static_cast<SoGroup*>(getAnyPart("geomSeparator", TRUE))->insertChild(parentTranslationNode, 0);
  parentTranslationNode->translation = parentTranslation;
}

void SoFormwright::apply3DTranslation(SoNode* node, float& depth, SbVec3f& origin)
{
  if (depth == -1.0f)
    depth = compute3DDepth(node);
  origin += SbVec3f(0.0f, 0.0f, depth);
  origin += parentTranslation;
}

float SoFormwright::compute3DDepth(SoNode* node)
{
  auto* transform = new SoTransform;
  transform->ref();
  undoTransformMatrix(node, transform);
  const float depth = transform->translation.getValue()[2];
  transform->unref();
  return depth;
}

void SoFormwright::undoTransformMatrix(SoNode* node, SoTransform* transform)
{
  if (!searchAction || !matrixAction)
    create3DFormwright();
  searchAction->reset();
  searchAction->setInterest(SoSearchAction::LAST);
  searchAction->setType(SoNode::getClassTypeId(), TRUE);
  searchAction->apply(node);
  SoPath* path = searchAction->getPath();
  if (!path)
    return;
  path->ref();
  matrixAction->apply(path);
  path->unref();
  SbVec3f translation, scale;
  SbRotation rotation, scaleOrientation;
  matrixAction->getMatrix().getTransform(translation, rotation, scale, scaleOrientation);
  SbMatrix matrix;
  matrix.setTransform(translation, rotation, SbVec3f(1.0f, 1.0f, 1.0f), scaleOrientation);
  transform->setMatrix(matrix);
}

int SoFormwright::isLabelCachedBBox() const
{
  return labelBBox.getMin() != kEmptyLabelBox.getMin() || labelBBox.getMax() != kEmptyLabelBox.getMax();
}

SbBox3f SoFormwright::measure3DText(SoGroup* props, SoText3* text)
{
  if (!bboxAction)
    bboxAction = new SoGetBoundingBoxAction(SbViewportRegion());
  auto* measured = new SoSeparator;
  measured->ref();
  if (props)
    measured->addChild(props);
  measured->addChild(text);
  bboxAction->apply(measured);
  const SbBox3f box = bboxAction->getBoundingBox();
  measured->unref();
  return box;
}

SoGroup* SoFormwright::get3DPart(const char* name)
{
  return static_cast<SoGroup*>(getAnyPart(name, TRUE));
}

SbBool SoFormwright::setAnyPartAsDefault(const SbName& part, SoNode* node, SbBool anyPart, SbBool onlyIfDefault)
{
  const SoField* field = getField(part);
  if (onlyIfDefault && field && !field->isDefault())
    return FALSE;
  return SoDragger::setAnyPartAsDefault(part, node, anyPart, onlyIfDefault);
}

// The toolkit reads a path's hidden nodes through a full-path view of the
// same object, a cast that the undefined-behaviour checker cannot follow.
__attribute__((no_sanitize("vptr"))) void SoFormwright::addInterfaceDetails(SoRayPickAction* action)
{
  const SoPickedPointList& points = action->getPickedPointList();
  for (int i = 0; i < points.getLength(); ++i) {
    SoPickedPoint* point = points[i];
    auto* path = static_cast<SoFullPath*>(point->getPath());
    SoFormwright* node = nullptr;
    int index = path->getLength() - 1;
    for (; index >= 0; --index) {
      if (path->getNode(index)->isOfType(getClassTypeId())) {
        node = static_cast<SoFormwright*>(path->getNode(index));
        break;
      }
    }
    if (!node || point->getDetail(node))
      continue;
    auto* detail = new SoNodeKitDetail;
    detail->setNodeKit(node);
    const SoNodekitCatalog* catalog = node->getNodekitCatalog();
    for (int j = path->getLength() - 1; j > index; --j) {
      const SbString part = node->getPartString(path->getNode(j));
      if (part.getLength() == 0)
        continue;
      const int number = catalog->getPartNumber(part.getString());
      if (number == SO_CATALOG_NAME_NOT_FOUND || !catalog->isPublic(number))
        continue;
      detail->setPart(path->getNode(j));
      detail->setPartName(part.getString());
      break;
    }
    point->setDetail(detail, node);
  }
}

SoFormwright* SoFormwright::getFirstTopParent(int ignoreTraversal, int acceptGroup)
{
  if (parentNode) {
    if (!parentNode->canBeTraversed() && !ignoreTraversal)
      return acceptGroup ? this : nullptr;
    if (parentNode->isOfType(SoTopLevelDialog::getClassTypeId()))
      return parentNode;
    return parentNode->getFirstTopParent(ignoreTraversal, acceptGroup);
  }
  if (acceptGroup && isOfType(SoDialogGroup::getClassTypeId()))
    return this;
  return nullptr;
}

void SoFormwright::addAuditor(SoAuditor* auditor)
{
  if (!auditorList)
    auditorList = new SbPList;
  if (auditorList->find(auditor) == -1)
    auditorList->append(auditor);
}

void SoFormwright::removeAuditor(SoAuditor* auditor)
{
  if (!auditorList)
    return;
  const int index = auditorList->find(auditor);
  if (index != -1)
    auditorList->remove(index);
}

SoAuditor*& SoFormwright::getAuditor(int index)
{
  return reinterpret_cast<SoAuditor*&>((*auditorList)[index]);
}

int SoFormwright::getAuditorListLength() const
{
  return auditorList ? auditorList->getLength() : 0;
}

std::vector<SoAuditor*> SoFormwright::getAuditorsNow() const
{
  std::vector<SoAuditor*> auditors;
  for (int i = 0; i < getAuditorListLength(); ++i)
    auditors.push_back(static_cast<SoAuditor*>((*auditorList)[i]));
  return auditors;
}

void SoFormwright::applyContainerAuditors(SoFormwright* control, void (*tests)(SoDialogAuditor*, SoFormwright*),
                                          SoDialogAuditor* fallback)
{
  bool heard = false;
  for (SoAuditor* auditor : getAuditorsNow()) {
    // A tab dialog keeps auditors of its own kind in the same list; they
    // hear of page changes only.
    if (auditor->isOfType(SoDialogAuditor::getClassTypeId())) {
      tests(static_cast<SoDialogAuditor*>(auditor), control);
      heard = true;
    }
  }
  // An event that no auditor here can hear goes on up, as if there were
  // none: page auditors on a tab dialog do not silence its controls.
  if (heard)
    return;
  if (parentNode)
    parentNode->applyAuditor(control);
  else if (fallback)
    tests(fallback, control);
}

int SoFormwright::existWidget(QWidget* widget)
{
  return widget != nullptr ? 1 : 0;
}

void SoFormwright::fieldChangedCB(void* data, SoSensor* sensor)
{
  auto* node = static_cast<SoFormwright*>(data);
  node->forgetLostWidgets();
  node->updateFromSensor(sensor);
}

void SoFormwright::destroy()
{
  destroyByRef(this);
  keptForTheProcess().nodes.insert(this);
}

void SoFormwright::destroyByRef(SoFormwright* node)
{
  if (!s_fileCache)
    return;
  for (int i = 0; i < s_fileCache->getLength(); ++i) {
    const SoSeparator* root = static_cast<SoFormwrightFile*>((*s_fileCache)[i])->root;
    for (int child = 0; child < root->getNumChildren(); ++child) {
      if (root->getChild(child) == node) {
        // The entry and its reference on the root are left as they are: the
        // tree may still be in use elsewhere.
        keptForTheProcess().files.push_back(static_cast<SoFormwrightFile*>((*s_fileCache)[i]));
        s_fileCache->remove(i);
        return;
      }
    }
  }
}

SoFormwright* SoFormwright::loadFromFile(SbString fileName, SbString auditorId)
{
  if (!s_fileCache)
    s_fileCache = new SbPList;
  SoFormwrightFile* file = nullptr;
  for (int i = 0; i < s_fileCache->getLength(); ++i) {
    auto* entry = static_cast<SoFormwrightFile*>((*s_fileCache)[i]);
    if (entry->fileName == fileName)
      file = entry;
  }
  if (!file) {
    SoInput input;
    if (!input.openFile(fileName.getString(), FALSE))
      return nullptr;
    SoSeparator* root = SoDB::readAll(&input);
    if (!root)
      return nullptr;
    file = new SoFormwrightFile{fileName, root};
    root->ref();
    s_fileCache->append(file);
  }
  for (int i = 0; i < file->root->getNumChildren(); ++i) {
    SoNode* child = file->root->getChild(i);
    if (!child->isOfType(getClassTypeId()))
      continue;
    auto* node = static_cast<SoFormwright*>(child);
    if (auditorId.getLength() == 0 || node->auditorID.getValue() == auditorId)
      return node;
  }
  SbString text("Cannot find any Formwright component ");
  if (auditorId.getLength() > 0)
    text += SbString("with auditorID = \"") + auditorId + "\" ";
  text += SbString("in Scenic file \"") + fileName + "\".";
  SoDebugError::post("SoFormwright::loadFromFile", "%s", text.getString());
  return nullptr;
}

void SoFormwright::releaseFileCache()
{
  // Detached first: nodes that die with their file's tree look the cache up.
  SbPList* cache = s_fileCache;
  s_fileCache = nullptr;
  if (!cache)
    return;
  for (int i = 0; i < cache->getLength(); ++i) {
    auto* file = static_cast<SoFormwrightFile*>((*cache)[i]);
    file->root->unref();
    delete file;
  }
  delete cache;
}

// Text and font services.

QFont SoFormwright::s_dialogFont("Microsoft Sans Serif", 8, -1, false);
int32_t SoFormwright::s_fontPropertiesPending = 1;

SbString SoFormwright::convertToCString(const SbString& text, SoFormwright* node)
{
  if (node && node->isOfType(SoDialogComboBox::getClassTypeId()))
    return text;
  // The edit-text widget of several lines wants carriage return plus line feed.
  const bool crlf = node && node->isOfType(SoDialogEditText::getClassTypeId());
  std::string converted;
  converted.reserve(2 * text.getLength() + 1);
  const auto newLine = [&] {
    if (crlf)
      converted += '\r';
    converted += '\n';
  };
  for (const char* p = text.getString(); *p != '\0'; ++p) {
    if (*p == '\r')
      continue;
    if (*p == '\n') {
      newLine();
      continue;
    }
    if (*p != '\\') {
      converted += *p;
      continue;
    }
    ++p;
    if (*p == '\0') // a lone backslash at the end escapes nothing
      break;
    if (*p == 'n')
      newLine();
    else if (*p == 't')
      converted += '\t';
    else
      converted += *p;
  }
  return SbString(converted.c_str());
}

SbString SoFormwright::convertFromCString(const SbString&, int)
{
  return SbString();
}

int SoFormwright::getNumLines(const SbString& text)
{
  int lineFeeds = 0;
  for (const char* p = text.getString(); *p != '\0'; ++p)
    if (*p == '\n')
      ++lineFeeds;
  return lineFeeds;
}

namespace {
// Shaping a text is the dear part of measuring it, and one build measures
// each label several times over: the sizes are kept per text and per way
// of reading it while the font stays the same. The table is emptied when it
// grows large.
class LabelSizes {
public:
  // How a node reads its text: the result depends on nothing else.
  enum Reading : char { Plain, Verbatim, SingleLineEdit, MultiLineEdit };

  const SbVec2i32* find(const QFont& font, Reading reading, const SbString& text)
  {
    if (font != m_font) {
      m_font = font;
      m_metrics.emplace(font);
      m_sizes.clear();
    }
    m_key.assign(1, reading);
    m_key.append(text.getString(), static_cast<size_t>(text.getLength()));
    const auto found = m_sizes.find(m_key);
    return found == m_sizes.end() ? nullptr : &found->second;
  }

  // The metrics of the font given to the last `find`.
  const QFontMetrics& metrics()
  {
    if (!m_metrics)
      m_metrics.emplace(m_font);
    return *m_metrics;
  }

  // Kept under the key of the last `find`.
  SbVec2i32 keep(const SbVec2i32& size)
  {
    if (m_sizes.size() >= kMaxEntries)
      m_sizes.clear();
    m_sizes.emplace(m_key, size);
    return size;
  }

private:
  static constexpr size_t kMaxEntries = 16384;
  QFont m_font;
  std::optional<QFontMetrics> m_metrics;
  std::string m_key;
  std::unordered_map<std::string, SbVec2i32> m_sizes;
};

LabelSizes& labelSizes()
{
  static LabelSizes sizes;
  return sizes;
}

LabelSizes::Reading readingOf(SoFormwright* node)
{
  if (node && node->isOfType(SoDialogComboBox::getClassTypeId()))
    return LabelSizes::Verbatim;
  if (node && node->isOfType(SoDialogEditText::getClassTypeId()))
    return static_cast<SoDialogEditText*>(node)->multiLine.getValue() ? LabelSizes::MultiLineEdit
                                                                       : LabelSizes::SingleLineEdit;
  return LabelSizes::Plain;
}
}

SbVec2i32 SoFormwright::getLabelPixelSize(SbString text, SoFormwright* node)
{
  if (text.getLength() == 0)
    return SbVec2i32(0, 0);
  LabelSizes& sizes = labelSizes();
  if (const SbVec2i32* known = sizes.find(s_dialogFont, readingOf(node), text))
    return *known;
  const SbString converted = convertToCString(text, node);
  int lines = getNumLines(converted) + 1;
  if (node && node->isOfType(SoDialogEditText::getClassTypeId()) &&
      !static_cast<SoDialogEditText*>(node)->multiLine.getValue())
    lines = 1;
  const QFontMetrics& metrics = sizes.metrics();
  const QString whole = SoControlWidgets::toWidgetText(converted);
  if (lines == 1)
    return sizes.keep(SbVec2i32(metrics.horizontalAdvance(whole) + 3, metrics.height() + 3));
  int maxWidth = 0;
  int maxHeight = 0;
  for (const QString& piece : whole.split(QLatin1Char('\n'))) {
    maxWidth = std::max(maxWidth, metrics.horizontalAdvance(piece));
    maxHeight = std::max(maxHeight, metrics.height());
  }
  return sizes.keep(SbVec2i32(maxWidth + 3, maxHeight * lines + 3));
}

void SoFormwright::setFont(QFont font)
{
  s_dialogFont = font;
}

QFont SoFormwright::getFormwrightFont()
{
  return s_dialogFont;
}

void SoFormwright::setWidgetFont(QWidget* widget)
{
  widget->setFont(s_dialogFont);
}

void SoFormwright::setStringToText3(SoText3* text, const SbString& value)
{
  int line = 0;
  std::string current;
  for (const char* p = value.getString(); *p != '\0'; ++p) {
    if (*p == '\n') {
      text->string.set1Value(line++, SbString(current.c_str()));
      current.clear();
    } else {
      current += *p;
    }
  }
  text->string.set1Value(line, SbString(current.c_str()));
}

int SoFormwright::insertTextTo3DText(SbString inserted, SoText3* text, int line, int column)
{
  SoMFString& lines = text->string;
  const int num = lines.getNum();
  if (inserted.find("\n") != -1) {
    // From the end, each line takes the value two places above it, and the
    // line right below `line` keeps its own: the 3D editing expects exactly
    // this shift.
    for (int i = num - 1; i > line + 1; --i) {
      const SbString moved = lines[i - 1]; // a copy: growing the field moves its values
      lines.set1Value(i + 1, moved);
    }
    ++line;
    lines.set1Value(line, SbString());
    return line;
  }
  if (line >= num) {
    lines.set1Value(line, inserted);
    return line;
  }
  std::string current = lines[line].getString();
  if (column < 0 || column > static_cast<int>(current.size()))
    current += inserted.getString();
  else
    current.insert(static_cast<size_t>(column), inserted.getString());
  lines.set1Value(line, SbString(current.c_str()));
  return line;
}

int SoFormwright::wrap3DTextLine(SoText3* node, int line, float width, SoGroup* props, SoFormwright* owner)
{
  if (!owner->bboxAction)
    owner->bboxAction = new SoGetBoundingBoxAction(SbViewportRegion());
  auto* measured = new SoSeparator;
  measured->ref();
  if (props)
    measured->addChild(props);
  auto* text = new SoText3;
  measured->addChild(text);

  const std::string source = node->string[line].getString();
  std::string prefix;
  size_t rest = 0;
  float size = 0.0f;
  while (rest < source.size()) {
    prefix += source[rest++];
    text->string.setValue(prefix.c_str());
    owner->bboxAction->apply(measured);
    size = owner->bboxAction->getBoundingBox().getSize()[0];
    if (size >= width)
      break;
  }
  // The character that overflows ends this line and also begins the next.
  // A line of one character keeps it, so that a width below one character
  // still moves on.
  if (size > width && prefix.size() > 1)
    --rest;
  if (rest < source.size()) {
    node->string.set1Value(line, SbString(prefix.c_str()));
    node->string.insertSpace(line + 1, 1);
    node->string.set1Value(line + 1, SbString(source.substr(rest).c_str()));
    line = wrap3DTextLine(node, line + 1, width, props, owner);
  }

  measured->removeAllChildren();
  measured->unref();
  return line;
}

// Skins.

std::vector<void (*)()>& soFormwrightSkinForgetters()
{
  static std::vector<void (*)()> forgetters;
  return forgetters;
}

SbString SoFormwright::s_skinsPath;
int SoFormwright::s_skinLoaded = 0;
int SoFormwright::s_longSkinMessagePending = 1;

namespace {

// The skins installed with the library, found from the library's own file
// rather than from the prefix it was configured for, so that an installed
// tree works wherever it is put.
SbString installedSkinsDirectory()
{
  Dl_info library;
  if (!dladdr(reinterpret_cast<void*>(&installedSkinsDirectory), &library) || !library.dli_fname)
    return SbString();
  const std::string file(library.dli_fname);
  return SbString((file.substr(0, file.rfind('/') + 1) + FORMWRIGHT_INSTALLED_SKINS).c_str());
}

}

SbString SoFormwright::getSkinsDirectories()
{
  SbString directories;
  const auto append = [&directories](const SbString& directory) {
    if (directory.getLength() == 0)
      return;
    if (directories.getLength() > 0)
      directories += ";";
    directories += directory;
  };
  const SbString home = SoPreferences::getStringValue("SCENICHOME");
  if (home.getLength() > 0)
    append(home + "/data/Formwright/skins/");
  append(SoPreferences::getStringValue("FORMWRIGHT_SKINS_DIR"));
  // Last, so that an application's or a user's own skins of the same name
  // win over it.
  append(installedSkinsDirectory());
  return directories;
}

SbString SoFormwright::getSkinsDirectory()
{
  return getSkinsDirectories();
}

void SoFormwright::setSkinsDirectories(SbString directories)
{
  SoPreferences::setString("FORMWRIGHT_SKINS_DIR", directories);
}

void SoFormwright::setSkinsDirectory(SbString directories)
{
  setSkinsDirectories(directories);
}

void SoFormwright::setSkin(SbString path)
{
  std::vector<SbString> candidates{path, SbString("./") + path};
  const std::string list = SbFileHelper::toUnixPath(getSkinsDirectories()).getString();
  size_t start = 0;
  while (start <= list.size()) {
    const size_t end = std::min(list.find(';', start), list.size());
    if (end > start)
      candidates.push_back(SbString(list.substr(start, end - start).c_str()) + "/" + path);
    start = end + 1;
  }
  for (const SbString& candidate : candidates) {
    if (SbFileHelper::isAccessible(candidate)) {
      s_skinsPath = candidate;
      change3DSkin();
      return;
    }
  }
}

SoGroup* SoFormwright::readFromFile(const SbString& file)
{
  // The application's search directories are set aside, so that a skin file
  // is only ever found in the skin directory.
  const SbStringList& current = SoInput::getDirectories();
  std::vector<SbString> saved;
  for (int i = 0; i < current.getLength(); ++i)
    saved.push_back(*current[i]);
  SoInput::clearDirectories();

  // The first read of any skin file loads the whole skin.
  if (s_skinsPath.getLength() == 0)
    setSkin(SoPreferences::getString("FORMWRIGHT_SKIN", "default"));

  SoGroup* group = nullptr;
  if (s_skinsPath.getLength() > 0) {
    SoInput::addDirectoryFirst(s_skinsPath.getString());
    SoInput input;
    if (input.openFile(file.getString(), TRUE)) {
      group = SoDB::readAll(&input);
      input.closeFile();
    }
  }

  SoInput::clearDirectories();
  for (const SbString& directory : saved)
    SoInput::addDirectoryLast(directory.getString());
  return group;
}

void SoFormwright::readDefaultSkinsParts(const SbString& file, char* builtIn)
{
  if (SoGroup* group = readFromFile(file)) {
    // Held for the life of the process, so that its DEF names live on.
    group->ref();
    keptForTheProcess().skins.push_back(group);
    return;
  }
  SbString text = SbString("The skin file : <") + file + "> cannot be found.";
  if (s_longSkinMessagePending) {
    text += "\nIMPORTANT : Internal Formwright component skin is loaded to prevent from your application to exit.\n";
    text += "For loading your own Formwright skins, please verify the FORMWRIGHT_SKINS_DIR environment variable.";
    s_longSkinMessagePending = 0;
  }
  SoDebugError::post("Formwright::readDefaultSkinsParts", "%s", text.getString());
  // Only the DEF names of the built-in text are wanted: the nodes are held
  // for the process, as a skin file's are.
  SoInput input;
  input.setBuffer(builtIn, std::strlen(builtIn));
  if (SoSeparator* root = SoDB::readAll(&input)) {
    root->ref();
    keptForTheProcess().skins.push_back(root);
  }
}

void SoFormwright::change3DSkinParts(const char* file, char* builtIn, std::initializer_list<const char*> names)
{
  for (const char* name : names)
    free3DSkin(name);
  readDefaultSkinsParts(file, builtIn);
  for (const char* name : names)
    load3DSkin(name);
}

void SoFormwright::free3DSkin(SbString name)
{
  SoNodeList named;
  if (SoNode::getByName(name.getString(), named) == 0)
    return;
  // The group that parts were given is the one a lookup finds. Any older
  // node of the name is a copy read twice and held by no part: it gives up
  // the name, so that the skin read next is the only one to carry it.
  SoNode* shared = SoNode::getByName(name.getString());
  for (int i = 0; i < named.getLength(); ++i)
    if (named[i] != shared)
      named[i]->setName("");
  // An emptied group left by an earlier skin that lacked the name is no
  // one's any more.
  const SbString kept = SbString("_Fwt_Tmp_") + name;
  SoNodeList stale;
  SoNode::getByName(kept.getString(), stale);
  for (int i = 0; i < stale.getLength(); ++i)
    stale[i]->setName("");
  shared->setName(kept);
  if (shared->isOfType(SoGroup::getClassTypeId()))
    static_cast<SoGroup*>(shared)->removeAllChildren();
}

void SoFormwright::load3DSkin(SbString name)
{
  // A lookup gives the node named last: the group just freed, and the one
  // just read.
  SoNode* kept = SoNode::getByName((SbString("_Fwt_Tmp_") + name).getString());
  SoNode* fresh = SoNode::getByName(name.getString());
  if (!kept || !fresh || !kept->isOfType(SoGroup::getClassTypeId()) || !fresh->isOfType(SoGroup::getClassTypeId()))
    return;
  auto* shared = static_cast<SoGroup*>(kept);
  auto* read = static_cast<SoGroup*>(fresh);
  for (int i = 0; i < read->getNumChildren(); ++i)
    shared->addChild(read->getChild(i));
  read->setName("");
  shared->setName(name);
}

int SoFormwright::isSkinLoaded()
{
  return s_skinLoaded;
}

void SoFormwright::setSkinLoaded(int loaded)
{
  s_skinLoaded = loaded;
}

void SoFormwright::loadFontProperties()
{
  if (!s_fontPropertiesPending || isSkinLoaded())
    return;
  readDefaultSkinsParts("TextProperties.scn", Formwright);
  setSkinLoaded(1);
  s_fontPropertiesPending = 0;
}
