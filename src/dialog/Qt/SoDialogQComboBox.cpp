#include "SoDialogQComboBox.h"

#include "SoWidgetEvent.h"

#include <SoDialogComboBox.h>

#include <QComboBox>
#include <QLabel>
#include <QRect>
#include <QVariant>

SoDialogQComboBox::SoDialogQComboBox(QWidget* parent, SoDialogComboBox* node)
  : SoDialogQFrame(parent, node), m_node(node)
{
  setObjectName("FWTSoDialogQComboBoxFrame");
  // The pieces take the dialog font from their frame as they are made: a
  // font set on a combo box afterwards makes it build its popup list at
  // once, which costs more than all the rest of the box.
  SoFormwright::setWidgetFont(this);
  m_comboBox = new QComboBox(this);
  m_comboBox->setObjectName("FWTSoDialogQComboBoxComboBoxWidget");
  m_comboBox->setEditable(false);
  m_label = new QLabel(this);
  m_label->setObjectName("FWTSoDialogQComboBoxLabelWidget");
  // Only the user's choices are activations, so the node's own changes of
  // the list and the index need no disconnection.
  connect(m_comboBox, SIGNAL(activated(int)), this, SLOT(eventNotify(int)), Qt::AutoConnection);
}

SoDialogQComboBox::~SoDialogQComboBox()
{
  delete m_comboBox;
  delete m_label;
}

void SoDialogQComboBox::addItem(const QString& text, int index)
{
  if (index < 0)
    m_comboBox->addItem(text, QVariant());
  else
    m_comboBox->insertItem(index, text, QVariant());
}

void SoDialogQComboBox::clear()
{
  m_comboBox->clear();
}

int SoDialogQComboBox::count() const
{
  return m_comboBox->count();
}

void SoDialogQComboBox::setCurrentIndex(int index)
{
  m_comboBox->setCurrentIndex(index);
}

void SoDialogQComboBox::setComboBoxPlace(const QRect& place)
{
  m_comboBox->resize(place.width(), place.height());
  m_comboBox->move(place.x(), place.y());
}

void SoDialogQComboBox::setLabelPlace(const QRect& place)
{
  m_label->resize(place.width(), place.height());
  m_label->move(place.x(), place.y());
}

void SoDialogQComboBox::setLabelText(const QString& text)
{
  m_label->setText(text);
}

void SoDialogQComboBox::setLabelAlignment(Qt::Alignment alignment)
{
  m_label->setAlignment(alignment);
}

void SoDialogQComboBox::setLabelVisible(bool visible)
{
  showPiece(m_label, visible);
}

void SoDialogQComboBox::eventNotify(int index)
{
  const SoWidgetEvent event;
  m_node->eventNotify(index, 0);
}

void SoDialogQComboBox::placePieces()
{
  m_node->updateComboBoxWidget();
  m_node->updateLabelWidget();
}
