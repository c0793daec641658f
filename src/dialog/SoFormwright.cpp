#include <SoFormwright.h>

#include <SoAuditor.h>
#include <SoDialogAuditor.h>
#include <SoDialogComboBox.h>
#include <SoDialogEditText.h>
#include <SoDialogGroup.h>
#include <SoTopLevelDialog.h>

#include "ScInitModuleCmd.h"
#include "SoControlWidgets.h"
#include "SoFormwrightFile.h"
#include "SoFormwrightClassList.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoSFFilePathString.h"

#include <Inventor/SbViewportRegion.h>
#include <Inventor/SoDB.h>
#include <Inventor/SoInput.h>
#include <Inventor/SoInteraction.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoGetMatrixAction.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/errors/SoDebugError.h>
#include <Inventor/lists/SbPList.h>
#include <Inventor/nodekits/SoNodeKit.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoPickStyle.h>
#include <Inventor/nodes/SoSeparator.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoText3.h>
#include <Inventor/nodes/SoTranslation.h>
#include <Inventor/sensors/SoFieldSensor.h>

#include <QFontMetrics>
#include <QWidget>

#include <algorithm>
#include <iterator>
#include <string>

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
  if (s_initRefCount == 0) {
    for (const ClassRegistration& registration : kClasses)
      registration.initClass();
    SoAuditor::initClasses();
    ScInitModuleCmd::Instance()->serialize(getProductName());
  }
  ++s_initRefCount;
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
  releaseFileCache();
  SoAuditor::exitClasses();
  for (auto registration = std::rbegin(kClasses); registration != std::rend(kClasses); ++registration)
    registration->exitClass();
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
  if (pickStyle)
    pickStyle->unref();
  if (enableMaterial)
    enableMaterial->unref();
  delete auditorList;
  delete enableSensor;
  delete labelSensor;
  delete labelAlignmentSensor;
}

void SoFormwright::buildWidget(QWidget* parent, SbVec2i32&, SbVec2i32&, int mode)
{
  if (mode != 0) {
    buildMode = mode;
    parentWidget = parent;
  } else if (!isBuilt3D()) {
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
  pickStyle->style = active ? SoPickStyle::SHAPE : SoPickStyle::UNPICKABLE;
  enableMaterial->emissiveColor = active ? SbColor(0.0f, 0.0f, 0.0f) : SbColor(0.5f, 0.5f, 0.5f);
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
  if (!searchAction)
    searchAction = new SoSearchAction;
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

void SoFormwright::applyContainerAuditors(SoFormwright* control, void (*tests)(SoDialogAuditor*, SoFormwright*),
                                          SoDialogAuditor* fallback)
{
  const int count = getAuditorListLength();
  for (int i = 0; i < count; ++i) {
    // A tab dialog keeps auditors of its own kind in the same list; they
    // hear of page changes only.
    if (getAuditor(i)->isOfType(SoDialogAuditor::getClassTypeId()))
      tests(static_cast<SoDialogAuditor*>(getAuditor(i)), control);
  }
  if (count > 0)
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
  static_cast<SoFormwright*>(data)->updateFromSensor(sensor);
}

void SoFormwright::destroy()
{
  destroyByRef(this);
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

SbVec2i32 SoFormwright::getLabelPixelSize(SbString text, SoFormwright* node)
{
  if (text.getLength() == 0)
    return SbVec2i32(0, 0);
  const SbString converted = convertToCString(text, node);
  int lines = getNumLines(converted) + 1;
  if (node && node->isOfType(SoDialogEditText::getClassTypeId()) &&
      !static_cast<SoDialogEditText*>(node)->multiLine.getValue())
    lines = 1;
  const QFontMetrics metrics(s_dialogFont);
  const QString whole = SoControlWidgets::toWidgetText(converted);
  if (lines == 1)
    return SbVec2i32(metrics.horizontalAdvance(whole) + 3, metrics.height() + 3);
  int maxWidth = 0;
  int maxHeight = 0;
  for (const QString& piece : whole.split(QLatin1Char('\n'))) {
    maxWidth = std::max(maxWidth, metrics.horizontalAdvance(piece));
    maxHeight = std::max(maxHeight, metrics.height());
  }
  return SbVec2i32(maxWidth + 3, maxHeight * lines + 3);
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
