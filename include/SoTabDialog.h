#pragma once

#include "SoDialogGroup.h"
#include "SoDialogWidgetList.h"

#include <Inventor/fields/SoSFEnum.h>
#include <Inventor/fields/SoSFInt32.h>

class SoDialogQTabDialog;
class SoNodeSensor;
class SoTabDialogAuditor;

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
  // The pages of the 3D form.
  void change3DPages();

protected:
  ~SoTabDialog() override;

  // Clamps `selectedPage` to the pages and shows that page.
  virtual void changeSelectedPage();

  void getDefaultSize(SbVec2i32& size, SbVec2i32& min, SbVec2i32& max) override;
  void fixSizeWithBorder(SbVec2i32& size, int sign) override;
  void setChildrenComponentSize() override;
  void setChildrenLabelSize() override;

  SoDialogQTabDialog* tabWidget = nullptr;
  // Per page, the frame of its component.
  SoDialogWidgetList childrenWidgets;
  SoFieldSensor* selectedPageSensor = nullptr;
  // Where `selectedPage` goes when its page is removed.
  int32_t previousSelectedPage = 0;

private:
  void createTabWidget();
  void createTabPageWidget(int page);
  // Builds each component again into its page, with the sizes negotiated
  // since.
  void updatePages();
  bool isBuilt2D() const { return tabWidget != nullptr; }
  void placeChild(SoDialogComponent* child, int index);
  void removePage(int page);
  // A selected page that went with its component falls back to the one
  // selected at the previous removal, or else to the first.
  void fallBackFromRemovedPage();
  void setSelectedPage(int32_t page);
  void childrenChanged();
  void create3DTabDialog();
  void update3DTabDialog();
  void change3DSelectedPage();
  static void childrenSensor(void* data, SoSensor* sensor);

  SoNodeSensor* childrenNodeSensor = nullptr;
};
