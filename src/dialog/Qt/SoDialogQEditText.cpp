#include "SoDialogQEditText.h"

#include "SoWidgetEvent.h"

#include <SoDialogEditText.h>

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRect>
#include <QSignalBlocker>
#include <QTextEdit>
#include <QTextOption>

SoDialogQEditText::SoDialogQEditText(QWidget* parent, SoDialogEditText* node, bool multi)
  : SoDialogQFrame(parent, node), m_node(node), m_multi(multi)
{
  setObjectName("FWTSoDialogQEditTextFrame");
  m_label = new QLabel(this);
  m_label->setObjectName("FWTSoDialogQEditTextLabelWidget");
  m_parent = parent;
  if (multi) {
    m_textEdit = new QTextEdit(this);
    m_textEdit->setObjectName("FWTSoDialogQEditTextMultiEditWidget");
    connect(m_textEdit, SIGNAL(textChanged()), this, SLOT(eventNotifyMultiLine()), Qt::AutoConnection);
    m_textEdit->installEventFilter(this);
    SoFormwright::setWidgetFont(m_textEdit);
  } else {
    m_lineEdit = new QLineEdit(this);
    m_lineEdit->setObjectName("FWTSoDialogQEditTextLineEditWidget");
    connect(m_lineEdit, SIGNAL(textChanged(const QString&)), this, SLOT(eventNotifyLine(const QString&)),
            Qt::AutoConnection);
    connect(m_lineEdit, SIGNAL(returnPressed()), this, SLOT(eventEnterPressed()), Qt::AutoConnection);
    SoFormwright::setWidgetFont(m_lineEdit);
  }
  SoFormwright::setWidgetFont(m_label);
}

SoDialogQEditText::~SoDialogQEditText()
{
  delete m_lineEdit;
  delete m_textEdit;
  delete m_label;
}

QWidget* SoDialogQEditText::entry() const
{
  if (m_multi)
    return m_textEdit;
  return m_lineEdit;
}

void SoDialogQEditText::setEditPlace(const QRect& place)
{
  entry()->resize(place.width(), place.height());
  entry()->move(place.x(), place.y());
}

void SoDialogQEditText::setLabelPlace(const QRect& place)
{
  m_label->resize(place.width(), place.height());
  m_label->move(place.x(), place.y());
}

QString SoDialogQEditText::getText() const
{
  if (m_multi)
    return m_textEdit->toPlainText();
  return m_lineEdit->text();
}

void SoDialogQEditText::setText(const QString& text)
{
  if (m_multi)
    m_textEdit->setPlainText(text);
  else
    m_lineEdit->setText(text);
}

void SoDialogQEditText::setTextQuietly(const QString& text)
{
  const QSignalBlocker blocker(entry());
  setText(text);
}

void SoDialogQEditText::setReadOnly(bool readOnly)
{
  if (m_multi)
    m_textEdit->setReadOnly(readOnly);
  else
    m_lineEdit->setReadOnly(readOnly);
}

void SoDialogQEditText::setWordWrap(bool wrap)
{
  if (m_multi)
    m_textEdit->setWordWrapMode(wrap ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
}

void SoDialogQEditText::setLabelText(const QString& text)
{
  m_label->setText(text);
}

void SoDialogQEditText::setLabelAlignment(Qt::Alignment alignment)
{
  m_label->setAlignment(alignment);
}

void SoDialogQEditText::setLabelVisible(bool visible)
{
  showPiece(m_label, visible);
}

void SoDialogQEditText::eventNotifyLine(const QString&)
{
  const SoWidgetEvent event;
  m_node->eventNotify(2, 0);
}

void SoDialogQEditText::eventNotifyMultiLine()
{
  const SoWidgetEvent event;
  m_node->eventNotify(2, 0);
}

void SoDialogQEditText::eventEnterPressed()
{
  const SoWidgetEvent event;
  m_node->eventNotify(1, 0);
}

bool SoDialogQEditText::eventFilter(QObject* object, QEvent* event)
{
  if (object != m_textEdit)
    return QObject::eventFilter(object, event);
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
      eventEnterPressed();
  }
  // The entry still takes the key.
  return false;
}

void SoDialogQEditText::placePieces()
{
  m_node->updateEditTextWidget();
  m_node->updateLabelWidget();
}
