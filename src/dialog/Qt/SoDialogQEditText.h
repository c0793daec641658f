#pragma once

#include "SoDialogQFrame.h"

class QLabel;
class QLineEdit;
class QRect;
class QTextEdit;
class SoDialogEditText;

// The Qt side of a SoDialogEditText: a frame that holds the label and an
// entry of one line or of several, placed by hand, and passes the user's
// changes and the Enter key on to the node. The kind of entry is fixed for
// the frame's life.
class SoDialogQEditText : public SoDialogQFrame {
  Q_OBJECT

public:
  SoDialogQEditText(QWidget* parent, SoDialogEditText* node, bool multi);
  ~SoDialogQEditText() override;

  void setEditPlace(const QRect& place);
  void setLabelPlace(const QRect& place);
  QString getText() const;
  void setText(const QString& text);
  // Shows a text that the node already holds, without telling it back.
  void setTextQuietly(const QString& text);
  void setReadOnly(bool readOnly);
  // Only an entry of several lines wraps.
  void setWordWrap(bool wrap);
  void setLabelText(const QString& text);
  void setLabelAlignment(Qt::Alignment alignment);
  void setLabelVisible(bool visible);
  QWidget* getParentWidget() const { return m_parent; }

public Q_SLOTS:
  void eventNotifyLine(const QString& text);
  void eventNotifyMultiLine();
  void eventEnterPressed();

protected:
  // Tells the node of Enter in an entry of several lines before the entry
  // takes the key, so the auditors see the text without the new line.
  bool eventFilter(QObject* object, QEvent* event) override;
  void placePieces() override;

private:
  // The one entry the frame has, of either kind.
  QWidget* entry() const;

  SoDialogEditText* m_node;
  QLineEdit* m_lineEdit = nullptr;
  QTextEdit* m_textEdit = nullptr;
  QLabel* m_label;
  bool m_multi;
  QWidget* m_parent;
};
