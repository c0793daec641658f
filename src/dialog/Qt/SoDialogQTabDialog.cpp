#include "SoDialogQTabDialog.h"

#include "SoWidgetEvent.h"

#include <SoTabDialog.h>

#include <QBoxLayout>
#include <QSignalBlocker>
#include <QTabWidget>

SoDialogQTabDialog::SoDialogQTabDialog(QWidget* parent, SoTabDialog* node)
  : SoDialogQFrame(parent, node), m_node(node)
{
  setObjectName("FWTSoDialogQTabDialogFrame");
  m_tabWidget = new QTabWidget(this);
  m_tabWidget->setObjectName("FWTSoDialogQTabDialogTabWidget");
  SoFormwright::setWidgetFont(m_tabWidget);
  connect(m_tabWidget, SIGNAL(currentChanged(int)), this, SLOT(eventNotify(int)), Qt::AutoConnection);
}

SoDialogQTabDialog::~SoDialogQTabDialog()
{
  // The node may be going as well: the tabs that change while the pages go
  // tell it nothing.
  m_tabWidget->blockSignals(true);
  for (int i = m_tabWidget->count() - 1; i >= 0; --i) {
    QWidget* page = m_tabWidget->widget(i);
    delete page->layout();
    delete page;
  }
  delete m_tabWidget;
}

QWidget* SoDialogQTabDialog::insertPage(int index, const QString& title)
{
  auto* page = new QWidget(this);
  page->setObjectName("FWTSoDialogQTabDialogTempWidget");
  auto* layout = new QVBoxLayout(page);
  layout->setObjectName("FWTSoDialogQTabDialogLayout");
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  // The first tab becomes the current one, which is no choice of the
  // person's.
  const QSignalBlocker quiet(m_tabWidget);
  m_tabWidget->insertTab(index, page, title);
  return page;
}

void SoDialogQTabDialog::removePage(int index)
{
  QWidget* page = m_tabWidget->widget(index);
  if (!page)
    return;
  const QSignalBlocker quiet(m_tabWidget);
  m_tabWidget->removeTab(index);
  delete page;
}

void SoDialogQTabDialog::changeSelectedPage(int index)
{
  m_tabWidget->setCurrentIndex(index);
}

QWidget* SoDialogQTabDialog::getPage(int index) const
{
  return m_tabWidget->widget(index);
}

QLayout* SoDialogQTabDialog::getLayout(int index) const
{
  QWidget* page = getPage(index);
  return page ? page->layout() : nullptr;
}

void SoDialogQTabDialog::setTabGeometry(int x, int y, int w, int h)
{
  m_tabWidget->resize(w, h);
  m_tabWidget->move(x, y);
}

void SoDialogQTabDialog::eventNotify(int index)
{
  const SoWidgetEvent event;
  m_node->eventNotify(index, 0);
}

void SoDialogQTabDialog::placePieces()
{
  m_node->updateTabWidget();
}
