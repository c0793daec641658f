#include <SoFormwright.h>

#include <SoAuditor.h>
#include <SoDialogGroup.h>
#include <SoTopLevelDialog.h>

#include "ScInitModuleCmd.h"
#include "SoFormwrightClassList.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoToolkitStarts.h"

#include <Inventor/SbViewportRegion.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/actions/SoGetMatrixAction.h>
#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/lists/SbPList.h>
#include <Inventor/nodes/SoMaterial.h>
#include <Inventor/nodes/SoPickStyle.h>
#include <Inventor/nodes/SoSwitch.h>
#include <Inventor/nodes/SoTranslation.h>
#include <Inventor/sensors/SoFieldSensor.h>

#include <iterator>

SO_FORMWRIGHT_SOURCE(SoFormwright, SoDragger, "Formwright")

int32_t SoFormwright::s_initRefCount = 0;
SbThreadMutex* SoFormwright::s_initMutex = nullptr;
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
  SoToolkitStarts::init();
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
  if (s_initRefCount == 0) {
    SoAuditor::exitClasses();
    for (auto registration = std::rbegin(kClasses); registration != std::rend(kClasses); ++registration)
      registration->exitClass();
  }
  SoToolkitStarts::finish();
  if (s_initRefCount == 0) {
    delete s_initMutex;
    s_initMutex = nullptr;
  }
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
  bboxAction = new SoGetBoundingBoxAction(SbViewportRegion());
  searchAction = new SoSearchAction;
  matrixAction = new SoGetMatrixAction(SbViewportRegion());
  pickStyle = new SoPickStyle;
  pickStyle->ref();
  enableMaterial = new SoMaterial;
  enableMaterial->ref();
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

void SoFormwright::destroyByRef(SoFormwright*)
{
  // The dialog-file cache arrives with file loading; until then no node is
  // held by it.
}
