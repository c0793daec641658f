#pragma once

#include "SoDialogQFrame.h"

class QLayout;
class QString;
class QTabWidget;
class SoTabDialog;

// The Qt side of a SoTabDialog: a frame that holds a QTabWidget, placed by
// hand inside it, with one page per component. A page is a plain widget
// whose vertical layout takes the component's frame. The person's choice of
// tab is passed on to the node; the pages that the node itself adds or takes
// away choose no tab on its behalf.
class SoDialogQTabDialog : public SoDialogQFrame {
  Q_OBJECT

public:
  SoDialogQTabDialog(QWidget* parent, SoTabDialog* node);
  ~SoDialogQTabDialog() override;

  // A new, empty page at `index`, whose tab says `title`.
  QWidget* insertPage(int index, const QString& title);
  // Takes page `index` away, with whatever it holds.
  void removePage(int index);
  void changeSelectedPage(int index);
  // Page `index` and its layout, or null if there is no such page.
  QWidget* getPage(int index) const;
  QLayout* getLayout(int index) const;
  void setTabGeometry(int x, int y, int w, int h);

public Q_SLOTS:
  void eventNotify(int index);

protected:
  void placePieces() override;

private:
  SoTabDialog* m_node;
  QTabWidget* m_tabWidget;
};
