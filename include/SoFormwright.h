#pragma once

#include "SoFormwrightSubNode.h"

#include <Inventor/SbBox3f.h>
#include <Inventor/SbVec2i32.h>
#include <Inventor/SbVec3f.h>
#include <Inventor/draggers/SoDragger.h>
#include <Inventor/fields/SoSFBool.h>
#include <Inventor/fields/SoSFEnum.h>
#include <Inventor/fields/SoSFNode.h>
#include <Inventor/fields/SoSFString.h>
#include <Inventor/sensors/SoFieldSensor.h>

#include <QFont>
#include <QPointer>
#include <QWidget>

#include <initializer_list>
#include <vector>

class SbPList;
class SoAuditor;
class SoDialogAuditor;
class SoField;
class SoGetBoundingBoxAction;
class SoGetMatrixAction;
class SoGroup;
class SoMaterial;
class SoPath;
class SoPickStyle;
class SoRayPickAction;
class SoSearchAction;
class SoSensor;
class SoText3;
class SoTransform;
class SoTranslation;

// The root of every interface node: windows, groups, controls and menu
// entries. It is a dragger, so that the node that stands for a control in a
// window can also be picked and dragged when the interface lives in the
// scene. It also starts and ends the library.
class SoFormwright : public SoDragger {
  SO_FORMWRIGHT_ROOT_HEADER(SoFormwright)

public:
  enum LabelAlignment { LEFT = 0, CENTER = 1, RIGHT = 2 };

  SoSFBool enable;
  SoSFString label;
  SoSFString auditorID;
  SoSFEnum labelAlignment;

  // Found through the class's index of field names rather than a walk
  // through all the fields.
  SoField* getField(const SbName& name) const override;

  // Counted start and end of the library; init may be called any number of
  // times, and each finish undoes one of them. init starts the toolkit;
  // finish never ends it, as others may still use it. The last finish hides
  // the dialog windows of the library's own that are still open, since past
  // it they would stand dead and report nothing, and says so in one warning;
  // a dialog built inside the application's widget stays the application's.
  static void init();
  static void finish();
  static bool isInitialized();
  static const char* getProductName();
  static const char* getVersion();

  // The interface node at the top of a dialog file whose auditorID is
  // `auditorId` (or the first one, when `auditorId` is empty), or null. Each
  // file is read once per process: the cache keeps its tree, and the result
  // lives by the cache's reference until finish.
  static SoFormwright* loadFromFile(SbString fileName, SbString auditorId);

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
  virtual void change3DEnable();
  virtual void change3DLabel();
  virtual void change3DLabelAlignment();

protected:
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
  // Puts the origin handed down by the parent at the head of the node's
  // geometry.
  void apply3DParentTranslation();

  // Called by the toolkit when the last reference goes. The node is taken
  // out of the dialog-file cache but stays in memory, held by the library for
  // the rest of the process: bridges, auditors and parents may still hold
  // plain pointers to it.
  void destroy() override;

  // Text and font services. Every pixel size of the library rests on these
  // measures, in the one font that all 2D widgets share.
  static SbVec2i32 getLabelPixelSize(SbString text, SoFormwright* node);
  // Later measures and widgets use the new font; widgets built already keep
  // theirs.
  static void setFont(QFont font);
  static QFont getFormwrightFont();
  static void setWidgetFont(QWidget* widget);

  // Skins: the look of the 3D form. A skin is a directory with one file per
  // class, each DEFining the named groups that all nodes of the class share.
  // Where no file is found, the class's built-in text stands in.
  //
  // The built-in text of TextProperties.scn.
  static char* Formwright;
  // Chooses a skin by path, or by name in the search list, and swaps every
  // class's groups; a skin found nowhere changes nothing.
  static void setSkin(SbString path);
  // The search list: the installed skins below SCENICHOME first, then
  // FORMWRIGHT_SKINS_DIR, then the skins installed with the library,
  // separated by ";".
  static SbString getSkinsDirectories();
  static SbString getSkinsDirectory();
  // Stores the FORMWRIGHT_SKINS_DIR preference; no skin changes by itself.
  static void setSkinsDirectories(SbString directories);
  static void setSkinsDirectory(SbString directories);
  // Reloads every class's groups from the current skin.
  static void change3DSkin();
  // The two halves of a swap: the shared group keeps its identity and only
  // its children change.
  static void free3DSkin(SbString name);
  static void load3DSkin(SbString name);
  static int isSkinLoaded();
  static void setSkinLoaded(int loaded);

protected:
  // Reads one skin file, or the built-in text when it cannot be read.
  static void readDefaultSkinsParts(const SbString& file, char* builtIn);
  // One class's swap: its DEF names freed, the file read, the names loaded.
  static void change3DSkinParts(const char* file, char* builtIn, std::initializer_list<const char*> names);
  // Reads the text properties the first time any node builds in 3D.
  void loadFontProperties();

protected:
  // Resolves the backslash escapes of dialog-file text. A combo box keeps its
  // items as typed; an edit text gets carriage return plus line feed.
  static SbString convertToCString(const SbString& text, SoFormwright* node);
  static SbString convertFromCString(const SbString& text, int);
  // The count of line feeds: a text has getNumLines + 1 lines.
  static int getNumLines(const SbString& text);
  // Sets one value of the text's string field per line; values past the
  // last line stay.
  static void setStringToText3(SoText3* text, const SbString& value);
  // Inserts at `column` of entry `line` (-1: at its end) and returns the line
  // where the insertion ended; text with a line feed only opens a new, empty
  // line below.
  static int insertTextTo3DText(SbString inserted, SoText3* text, int line, int column);
  // Breaks entry `line` by characters to `width` scene units, as measured
  // with `props` by `owner`; returns the last line of the broken text.
  static int wrap3DTextLine(SoText3* node, int line, float width, SoGroup* props, SoFormwright* owner);

  static QFont s_dialogFont;
  static int32_t s_fontPropertiesPending;

  SoFormwright();
  ~SoFormwright() override;

  // Reads the fields and sets the kit parts that the file gives; the others
  // stay as made. The kit's own reader sets every part again.
  SbBool readInstance(SoInput* in, unsigned short flags) override;
  // The fields alone. A name that is no field ends them quietly unless
  // `errorOnUnknownField`: in a container it names the first child's type.
  SbBool readFields(SoInput* in, SbBool errorOnUnknownField);

  void addAuditor(SoAuditor* auditor);
  void removeAuditor(SoAuditor* auditor);
  SoAuditor*& getAuditor(int index);
  int getAuditorListLength() const;
  // The auditors as they stand when an event starts: each of them hears it,
  // even when one removes itself or another while it is called.
  std::vector<SoAuditor*> getAuditorsNow() const;
  // Tells a control's own auditors, all of class `Auditor`, of an event, in
  // the order they were added. A control with an auditor of its own is heard
  // by nobody else; one with none leaves the event to its parent.
  template <class Auditor, class Node>
  void applyControlAuditors(Node* node, void (Auditor::*operation)(Node*))
  {
    if (getAuditorListLength() == 0) {
      if (parentNode)
        parentNode->applyAuditor(node);
      return;
    }
    for (SoAuditor* auditor : getAuditorsNow())
      (static_cast<Auditor*>(auditor)->*operation)(node);
  }

  // A container's general auditors hear of a control below it, each sorted
  // by `tests`; a container with none of them (auditors of its own kind only,
  // or none at all) passes the event to its parent or, at the top, to
  // `fallback`.
  void applyContainerAuditors(SoFormwright* control, void (*tests)(SoDialogAuditor*, SoFormwright*),
                              SoDialogAuditor* fallback);

  static int existWidget(QWidget* widget);
  static void fieldChangedCB(void* data, SoSensor* sensor);
  static void destroyByRef(SoFormwright* node);

  // Makes `sensor` on `field` if it does not exist yet: priority 0, so that it
  // fires inside the field's setValue and every change is synchronous.
  void makeFieldSensor(SoFieldSensor*& sensor, SoField& field);
  // Writes a field without its sensor hearing of it: the library's own
  // writes are no change from the application.
  template <class Field, class Value>
  static void setFieldUnwatched(Field& field, SoFieldSensor* sensor, const Value& value)
  {
    const bool attached = sensor && sensor->getAttachedField() == &field;
    if (attached)
      sensor->detach();
    field.setValue(value);
    if (attached)
      sensor->attach(&field);
  }
  // Whether a field change goes to the 3D form as well.
  bool follows3DForm() const { return isBuilt3D() && canBeTraversed(); }
  static void set3DCurrentActive(SoFormwright* node);

  // The height at which the layer after `node` stands: what the skin's
  // closing translation leaves, whatever it stretched.
  float compute3DDepth(SoNode* node);
  // Lifts `origin` onto `node` and into the parent's origin. `depth` caches
  // the height: -1 means not measured yet.
  void apply3DTranslation(SoNode* node, float& depth, SbVec3f& origin);
  // Sets `transform` to the place reached at the end of `node`'s subgraph,
  // without its scaling.
  void undoTransformMatrix(SoNode* node, SoTransform* transform);
  // The measured box of a label, kept until its text changes.
  int isLabelCachedBBox() const;
  void setLabelCacheBBox(SbBox3f box) { labelBBox = box; }
  SbBox3f getLabelCachedBBox() const { return labelBBox; }
  // The box of `text` drawn with `props`, measured with the node's own
  // action.
  SbBox3f measure3DText(SoGroup* props, SoText3* text);
  // A group part of the node's 3D form, made if it is missing.
  SoGroup* get3DPart(const char* name);
  // With `onlyIfDefault`, a part the application gave, as in a dialog file,
  // keeps its place: the toolkit would set the skin's part over it.
  SbBool setAnyPartAsDefault(const SbName& part, SoNode* node, SbBool anyPart = TRUE,
                             SbBool onlyIfDefault = TRUE) override;
  using SoDragger::setAnyPartAsDefault;
  // Gives each picked point below the node a detail that names the
  // interface node hit and its part.
  static void addInterfaceDetails(SoRayPickAction* action);
  // What the press of the current or last drag hit. The toolkit forgets its
  // pick path before the release, where most controls act.
  const SoPath* getPressPath() const { return pressPath; }
  // Whether Qt deleted the node's widgets under it, as when the application
  // deletes the window they stood in. Such a node takes field changes as an
  // unbuilt one.
  virtual bool hasLostWidgets() const { return false; }
  // Takes such a node for an unbuilt one in the widget form.
  void forgetLostWidgets();

  int buildMode = 0;
  QPointer<QWidget> parentWidget;
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
  static void keepPressPathCB(void* data, SoDragger* dragger);

  SoPath* pressPath = nullptr;

  static int32_t s_initRefCount;
  static SbThreadMutex* s_initMutex;
  // Entries of type SoFormwrightFile, in the order the files were first read.
  static SbPList* s_fileCache;
  static void releaseFileCache();

  static SoGroup* readFromFile(const SbString& file);
  static SbString s_skinsPath;
  static int s_skinLoaded;
  // The first missing skin file explains at length; later ones say one line.
  static int s_longSkinMessagePending;
};
