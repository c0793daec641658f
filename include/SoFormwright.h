#pragma once

#include <SoFormwrightSubNode.h>

#include <Inventor/SbBox3f.h>
#include <Inventor/SbVec2i32.h>
#include <Inventor/SbVec3f.h>
#include <Inventor/draggers/SoDragger.h>
#include <Inventor/fields/SoSFBool.h>
#include <Inventor/fields/SoSFEnum.h>
#include <Inventor/fields/SoSFNode.h>
#include <Inventor/fields/SoSFString.h>

class QWidget;
class SbPList;
class SoAuditor;
class SoField;
class SoFieldSensor;
class SoGetBoundingBoxAction;
class SoGetMatrixAction;
class SoMaterial;
class SoPickStyle;
class SoSearchAction;
class SoSensor;
class SoTranslation;

// The root of every interface node: windows, groups, controls and menu
// entries. It is a dragger, so that the node that stands for a control in a
// window can also be picked and dragged when the interface lives in the
// scene. It also starts and ends the library.
class SoFormwright : public SoDragger {
  SO_FORMWRIGHT_HEADER(SoFormwright)

public:
  enum LabelAlignment { LEFT = 0, CENTER = 1, RIGHT = 2 };

  SoSFBool enable;
  SoSFString label;
  SoSFString auditorID;
  SoSFEnum labelAlignment;

  // Counted start and end of the library; init may be called any number of
  // times, and each finish undoes one of them.
  static void init();
  static void finish();
  static bool isInitialized();
  static const char* getProductName();
  static const char* getVersion();

  // Builds or refreshes the node's form inside `parent`: the 2D form (Qt
  // widgets) when `mode` is not 0, the 3D form when it is 0. `useSize[i]` not
  // 0 means the caller dictates `size[i]`.
  virtual void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode);
  virtual void destroyWidget();
  virtual void updateFromSensor(SoSensor* sensor);
  virtual void applyAuditor(SoFormwright* node);
  virtual void resetSize();

protected:
  virtual void changeEnable();
  virtual void changeLabel();
  virtual void changeLabelAlignment();

public:
  virtual void show3D(int show);
  virtual void set3DParentTranslation(SbVec3f& translation);
  virtual void change3DPosition();
  virtual void change3DWidgetEnable(int enabled);

protected:
  virtual void change3DEnable();
  virtual void change3DLabel();
  virtual void change3DLabelAlignment();
  virtual void set3DInactive();

public:
  void setParent(SoFormwright* parent) { parentNode = parent; }
  SoFormwright* getParent() const { return parentNode; }
  // The window (or, with `acceptGroup`, the free-standing group) at the top of
  // this node's chain of parents. Unless `ignoreTraversal` is set, a parent
  // that takes no 3D updates ends the walk.
  SoFormwright* getFirstTopParent(int ignoreTraversal, int acceptGroup);

  int isBuilt3D() const { return built3D; }
  void setBuilt3D(int built) { built3D = built; }
  int canBeTraversed() const { return m_canBeTraversed; }
  void setCanBeTraversed(int traversable) { m_canBeTraversed = traversable; }
  SbVec3f get3DParentTranslation() const { return parentTranslation; }

  // Called by the toolkit when the last reference goes. The node is taken
  // out of the dialog-file cache but stays in memory: bridges, auditors and
  // parents may still hold plain pointers to it.
  void destroy() override;

protected:
  SoFormwright();
  ~SoFormwright() override;

  void addAuditor(SoAuditor* auditor);
  void removeAuditor(SoAuditor* auditor);
  SoAuditor*& getAuditor(int index);
  int getAuditorListLength() const;

  static int existWidget(QWidget* widget);
  static void fieldChangedCB(void* data, SoSensor* sensor);
  static void destroyByRef(SoFormwright* node);

  // Makes `sensor` on `field` if it does not exist yet: priority 0, so that it
  // fires inside the field's setValue and every change is synchronous.
  void makeFieldSensor(SoFieldSensor*& sensor, SoField& field);
  // Whether a field change goes to the 3D form as well.
  bool follows3DForm() const { return isBuilt3D() && canBeTraversed(); }
  static void set3DCurrentActive(SoFormwright* node);

  int buildMode = 0;
  QWidget* parentWidget = nullptr;
  SoFormwright* parentNode = nullptr;
  SbPList* auditorList = nullptr;
  SoFieldSensor* enableSensor = nullptr;
  SoFieldSensor* labelSensor = nullptr;
  SoFieldSensor* labelAlignmentSensor = nullptr;

  // The 3D form's helpers, made by the first 3D build.
  SoGetBoundingBoxAction* bboxAction = nullptr;
  SoSearchAction* searchAction = nullptr;
  SoGetMatrixAction* matrixAction = nullptr;
  SoPickStyle* pickStyle = nullptr;
  SoMaterial* enableMaterial = nullptr;
  SbBox3f labelBBox;
  SoTranslation* parentTranslationNode = nullptr;
  SbVec3f parentTranslation{0.0f, 0.0f, 0.0f};
  int built3D = 0;
  int m_canBeTraversed = 1;
  int shown3D = 1;

  static SoFormwright* s_current3DActive;

  SoSFNode geomSwitch;

private:
  void create3DFormwright();

  static int32_t s_initRefCount;
  static SbThreadMutex* s_initMutex;
};
