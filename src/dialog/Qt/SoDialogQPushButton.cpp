#include "SoDialogQPushButton.h"

#include "SoWidgetEvent.h"

#include <SoDialogPushButton.h>

#include <QLabel>
#include <QPushButton>
#include <QRect>

SoDialogQPushButton::SoDialogQPushButton(QWidget* parent, SoDialogPushButton* node)
  : SoDialogQFrame(parent, node), m_node(node)
{
  setObjectName("FWTSoDialogQPushButtonFrame");
  m_button = new QPushButton(this);
  m_button->setObjectName("FWTSoDialogQPushButtonButtonWidget");
  m_label = new QLabel(this);
  m_label->setObjectName("FWTSoDialogQPushButtonLabelWidget");
  SoFormwright::setWidgetFont(m_button);
  SoFormwright::setWidgetFont(m_label);
  // The button acts as the mouse goes down, not at the click: the auditors
  // hear of it even if the pointer leaves before the release.
  connect(m_button, SIGNAL(pressed()), this, SLOT(eventNotify()), Qt::AutoConnection);
}

SoDialogQPushButton::~SoDialogQPushButton()
{
  delete m_button;
  delete m_label;
}

void SoDialogQPushButton::setButtonPlace(const QRect& place)
{
  m_button->resize(place.width(), place.height());
  m_button->move(place.x(), place.y());
}

void SoDialogQPushButton::setLabelPlace(const QRect& place)
{
  m_label->resize(place.width(), place.height());
  m_label->move(place.x(), place.y());
}

void SoDialogQPushButton::setButtonText(const QString& text)
{
  m_button->setText(text);
}

void SoDialogQPushButton::setLabelAlignment(Qt::Alignment alignment)
{
  m_label->setAlignment(alignment);
}

void SoDialogQPushButton::setLabelText(const QString& text)
{
  m_label->setText(text);
}

void SoDialogQPushButton::setLabelVisible(bool visible)
{
  showPiece(m_label, visible);
}

void SoDialogQPushButton::eventNotify()
{
  const SoWidgetEvent event;
  m_node->eventNotify(0, 0);
}

void SoDialogQPushButton::placePieces()
{
  m_node->updateButtonWidget();
  m_node->updateLabelWidget();
}
