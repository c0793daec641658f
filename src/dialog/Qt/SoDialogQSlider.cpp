#include "SoDialogQSlider.h"

#include "SoWidgetEvent.h"

#include "SoDialogCustomSlider.h"

#include <SoDialogSlider.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QRect>

namespace {
void placeWidget(QWidget* widget, const QRect& place)
{
  widget->resize(place.width(), place.height());
  widget->move(place.x(), place.y());
}
}

SoDialogQSlider::SoDialogQSlider(QWidget* parent, SoDialogSlider* node) : SoDialogQFrame(parent, node), m_node(node)
{
  setObjectName("FWTSoDialogQSliderFrame");
  m_lineEdit = new QLineEdit(this);
  m_lineEdit->setObjectName("FWTSoDialogQSliderLineEditWidget");
  m_customSlider = new SoDialogCustomSlider(this);
  m_sliderWidget = m_customSlider->getWidget();
  m_sliderWidget->setObjectName("FWTSoDialogQSliderSliderWidget");
  m_label = new QLabel(this);
  m_label->setObjectName("FWTSoDialogQSliderLabelWidget");
  m_toggle = new QCheckBox(this);
  m_toggle->setObjectName("FWTSoDialogQSliderToggleWidget");
  SoFormwright::setWidgetFont(m_toggle);
  SoFormwright::setWidgetFont(m_label);
  SoFormwright::setWidgetFont(m_lineEdit);
  connect(m_toggle, SIGNAL(stateChanged(int)), this, SLOT(eventNotify(int)), Qt::AutoConnection);
  connect(m_lineEdit, SIGNAL(returnPressed()), this, SLOT(eventNotifyPressed()), Qt::AutoConnection);
}

SoDialogQSlider::~SoDialogQSlider()
{
  delete m_lineEdit;
  delete m_customSlider;
  delete m_label;
  delete m_toggle;
}

void SoDialogQSlider::setEditPlace(const QRect& place)
{
  placeWidget(m_lineEdit, place);
}

void SoDialogQSlider::setLabelPlace(const QRect& place)
{
  placeWidget(m_label, place);
}

void SoDialogQSlider::setSliderPlace(const QRect& place)
{
  placeWidget(m_sliderWidget, place);
}

void SoDialogQSlider::setTogglePlace(const QRect& place)
{
  placeWidget(m_toggle, place);
}

void SoDialogQSlider::setLabelAlignment(Qt::Alignment alignment)
{
  m_label->setAlignment(alignment);
}

void SoDialogQSlider::setToggleChecked(bool checked)
{
  m_toggle->setChecked(checked);
}

bool SoDialogQSlider::isToggleChecked() const
{
  return m_toggle->isChecked();
}

void SoDialogQSlider::setEditVisible(bool visible)
{
  showPiece(m_lineEdit, visible);
}

void SoDialogQSlider::setLabelVisible(bool visible)
{
  showPiece(m_label, visible);
}

void SoDialogQSlider::setToggleVisible(bool visible)
{
  showPiece(m_toggle, visible);
}

void SoDialogQSlider::setLabelText(const QString& text)
{
  m_label->setText(text);
}

void SoDialogQSlider::setEditText(const QString& text)
{
  m_lineEdit->setText(text);
}

QString SoDialogQSlider::getEditText() const
{
  return m_lineEdit->text();
}

// Every change of the toggle counts, whatever its state: the node reads the
// state from the toggle.
void SoDialogQSlider::eventNotify(int)
{
  const SoWidgetEvent event;
  m_node->eventNotify(1, 0);
}

void SoDialogQSlider::eventNotifyPressed()
{
  const SoWidgetEvent event;
  m_node->changeSliderFromEdit();
}

void SoDialogQSlider::placePieces()
{
  m_node->updateLabelWidget();
  m_node->updateToggleWidget();
  m_node->updateSliderWidget();
  m_node->updateEditWidget();
}
