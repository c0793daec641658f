#include "SoDialogQRadioButtons.h"

#include "SoWidgetEvent.h"

#include <SoDialogRadioButtons.h>

#include <QAbstractButton>
#include <QButtonGroup>
#include <QGroupBox>
#include <QRadioButton>
#include <QRect>
#include <QSize>
#include <QStringList>
#include <QVBoxLayout>

SoDialogQRadioButtons::SoDialogQRadioButtons(QWidget* parent, SoDialogRadioButtons* node)
  : SoDialogQFrame(parent, node), m_node(node)
{
  setObjectName("FWTSoDialogQRadioButtonsFrame");
  m_buttonGroup = new QButtonGroup(this);
  m_groupBox = new QGroupBox(this);
  m_groupBox->setObjectName("FWTSoDialogQRadioButtonsButtonGroupWidget");
  m_layout = makeButtonLayout(m_groupBox);
  SoFormwright::setWidgetFont(m_groupBox);
  connect(m_buttonGroup, SIGNAL(idClicked(int)), this, SLOT(eventNotify(int)), Qt::AutoConnection);
}

SoDialogQRadioButtons::~SoDialogQRadioButtons()
{
  delete m_layout;
  delete m_groupBox;
  delete m_buttonGroup;
}

// Qt's default margins and spacing would take more than the sizes leave
// around the buttons; they keep only a side margin.
QVBoxLayout* SoDialogQRadioButtons::makeButtonLayout(QGroupBox* box)
{
  auto* layout = new QVBoxLayout;
  layout->setContentsMargins(9, 0, 9, 0);
  layout->setSpacing(0);
  box->setLayout(layout);
  return layout;
}

QSize SoDialogQRadioButtons::frameSizeFor(const QString& title, const QStringList& choices)
{
  QGroupBox box(title);
  SoFormwright::setWidgetFont(&box);
  QVBoxLayout* layout = makeButtonLayout(&box);
  for (const QString& choice : choices) {
    auto* button = new QRadioButton(choice, &box);
    SoFormwright::setWidgetFont(button);
    layout->addWidget(button);
  }
  return box.sizeHint() + QSize(6, 6);
}

QRadioButton* SoDialogQRadioButtons::createButton(int index)
{
  auto* button = new QRadioButton(m_groupBox);
  button->setObjectName("FWTSoDialogQRadioButtonsRadioButtonWidget");
  SoFormwright::setWidgetFont(button);
  button->setSizePolicy(QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding, QSizePolicy::DefaultType));
  m_layout->insertWidget(index, button, 0, Qt::Alignment());
  m_buttonGroup->addButton(button, index);
  return button;
}

void SoDialogQRadioButtons::checkButton(int id)
{
  if (QAbstractButton* button = m_buttonGroup->button(id))
    button->setChecked(true);
}

void SoDialogQRadioButtons::setTitle(const QString& title)
{
  m_groupBox->setTitle(title);
}

void SoDialogQRadioButtons::setTitleAlignment(Qt::Alignment alignment)
{
  m_groupBox->setAlignment(alignment);
}

void SoDialogQRadioButtons::setGroupBoxPlace(const QRect& place)
{
  m_groupBox->resize(place.width(), place.height());
  m_groupBox->move(place.x(), place.y());
}

void SoDialogQRadioButtons::eventNotify(int id)
{
  const SoWidgetEvent event;
  m_node->eventNotify(id, 0);
}

void SoDialogQRadioButtons::placePieces()
{
  m_node->updateLabelWidget();
}
