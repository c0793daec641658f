#pragma once

#include "SoDialogGroup.h"
#include "SoDialogWidgetList.h"

#include <Inventor/fields/SoMFVec2f.h>
#include <Inventor/fields/SoSFEnum.h>
#include <Inventor/fields/SoSFInt32.h>
#include <Inventor/fields/SoSFNode.h>

#include <vector>

class SoClipPlane;
class SoDialogQTabDialog;
class SoDragger;
class SoNodeSensor;
class SoScale;
class SoSeparator;
class SoSwitch;
class SoTabDialogAuditor;
class SoText3;
class SoTransform;
class SoTranslation;

// A container whose children are pages, of which one shows at a time. Each
// child's label is the title of its page's tab.
class SoTabDialog : public SoDialogGroup {
  SO_FORMWRIGHT_HEADER(SoTabDialog)
  SO_FORMWRIGHT_SKIN_HEADER(TabDialog)

public:
  // The side that holds the tabs. The 2D form counts it in the sizes only:
  // its tabs stay at the top.
  enum TabsLocation { TOP = 0, BOTTOM = 1, LEFT = 2, RIGHT = 3 };

  // The index of the page shown, kept within the pages once built.
  SoSFInt32 selectedPage;
  SoSFEnum tabsLocation;

  SoTabDialog();

  // A tab dialog's own auditors hear of page changes; general auditors,
  // attached as to any group, hear of the controls in its pages.
  using SoDialogGroup::addAuditor;
  using SoDialogGroup::removeAuditor;
  void addAuditor(SoTabDialogAuditor* auditor);
  void removeAuditor(SoTabDialogAuditor* auditor);
  void applyDlgCptAuditor();

  void buildWidget(QWidget* parent, SbVec2i32& useSize, SbVec2i32& size, int mode) override;
  void destroyWidget() override;
  void updateFromSensor(SoSensor* sensor) override;
  // The user chose page `page`; `data` is ignored.
  void eventNotify(unsigned int page, unsigned long long data) override;
  SbVec2i32 getComponentInitSize() override;
  // The tab widget follows the group's enabled state along with the pages.
  void changeWidgetEnable(int enabled) override;

  void addChild(SoDialogComponent* child) override;
  void insertChild(SoDialogComponent* child, int index) override;
  void removeChild(SoDialogComponent* child) override;
  void removeChild(int index) override;
  void removeAllChildren() override;
  void replaceChild(SoDialogComponent* oldChild, SoDialogComponent* newChild) override;
  void replaceChild(int index, SoDialogComponent* newChild) override;

  // The layout (a QLayout) into which page `page`'s component goes, or null.
  using SoDialogComponent::getLayout;
  void* getLayout(int page);
  // Shows the frame of the selected page's component and hides the others;
  // the argument is not read.
  void updateTabPageWidget(int page);
  // Places the tabs inside the frame's 3 pixels on each side.
  void updateTabWidget();
  // Do nothing in the 2D form: a page follows its component, and a tab's
  // title is fixed when its page is made.
  void changeEnableChild(int page);
  void changePageLabel(int page);
  // The pages of the 3D form: builds each page on the plate and makes or
  // removes tabs as pages come and go.
  void change3DPages();
  // Only the selected page shows with the dialog.
  void show3D(int show) override;
  // Hands the plate's origin to the selected page.
  void change3DPosition() override;

protected:
  ~SoTabDialog() override;

  // Clamps `selectedPage` to the pages and shows that page.
  virtual void changeSelectedPage();

  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;
  void fixSizeWithBorder(SbVec2i32& size, int sign) override;
  void setChildrenComponentSize() override;
  void setChildrenLabelSize() override;
  // Each page keeps the margin clear around its component.
  void changeMargin() override;

  QPointer<SoDialogQTabDialog> tabWidget;
  // Per page, the frame of its component.
  SoDialogWidgetList childrenWidgets;
  SoFieldSensor* selectedPageSensor = nullptr;
  // Where `selectedPage` goes when its page is removed.
  int32_t previousSelectedPage = 0;

  // The 3D form: the plate under the pages, the strip of tabs along its top
  // edge cut by two clip planes, and the buttons that scroll the strip.
  SoSFNode pagesSep;
  SoSFNode pageSwitch;
  SoSFNode selected;
  SoSFNode unselected;
  SoSFNode textProp;
  SoSFNode pageSep;
  SoSFNode frame;
  SoSFNode buttonsSep;
  SoSFNode lButtonSep;
  SoSFNode lButtonSwtch;
  SoSFNode lButtonReleased;
  SoSFNode lButtonPressed;
  SoSFNode rButtonSep;
  SoSFNode rButtonSwtch;
  SoSFNode rButtonReleased;
  SoSFNode rButtonPressed;

private:
  void createTabWidget();
  void createTabPageWidget(int page);
  // Builds each component again into its page, with the sizes negotiated
  // since.
  void updatePages();
  bool isBuilt2D() const { return !tabWidget.isNull(); }
  void placeChild(SoDialogComponent* child, int index);
  void removePage(int page);
  void rebuildStayingPage(SoDialogComponent* child);
  // A selected page that went with its component falls back to the one
  // selected at the previous removal, or else to the first.
  void fallBackFromRemovedPage();
  void setSelectedPage(int32_t page);
  void childrenChanged();
  void create3DTabDialog();
  void update3DTabDialog();
  void update3DTabDialogPage(int page);
  void makeTab();
  void change3DSelectedPage();
  void change3DFirstPageRight();
  void change3DFirstPageLeft();
  void placeFirstVisibleTab();
  // Where the pages stand: inside the plate, below the strip.
  SbVec3f pageOrigin();
  void draggerStartCallback3D();
  void draggerFinishCallback3D();
  static void startCB3D(void* data, SoDragger* dragger);
  static void finishCB3D(void* data, SoDragger* dragger);
  static void childrenSensor(void* data, SoSensor* sensor);

  SoNodeSensor* childrenNodeSensor = nullptr;

  // The nodes of one page's tab in the strip.
  struct Tab {
    SoSwitch* tabSwitch;
    SoSwitch* selectedSwitch;
    SoSeparator* frameSeparator;
    SoTransform* transform;
    SoTranslation* translation;
    SoText3* text;
    SoScale* scale;
    SoTranslation* textTranslation;
  };
  int32_t tabHeight = 20;
  // Whether the clip planes cut the strip; a tab cut by them still shows.
  int32_t clipTabs = 1;
  // A press chose a tab: one cut at the strip's edge scrolls into view.
  int32_t tabClicked = 0;
  int32_t firstVisiblePage = 0;
  int32_t numBuiltPages = 0;
  // The height of the plate's top, measured once.
  float depth = -1.0f;
  // Per page, the width and height of its tab.
  SoMFVec2f tabSizes;
  std::vector<Tab> tabs;
  SoClipPlane* rightClipPlane = nullptr;
  SoClipPlane* topClipPlane = nullptr;
  SoScale* frameScale = nullptr;
  SoTranslation* frameTranslation = nullptr;
  SoTranslation* buttonsTranslation = nullptr;
};
