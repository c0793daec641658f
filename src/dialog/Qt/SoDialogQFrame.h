#pragma once

#include <QFrame>

class QResizeEvent;
class SoDialogComponent;

// What every control's bridge frame does with its node's size: Qt's layouts
// are offered the negotiated size as the frame's preferred size, so that
// spare room is shared out beyond each control's natural size and no
// control is squeezed below it while room remains; and the size Qt finally
// gives the frame is written back into the node, whose pieces are then
// placed again.
class SoDialogQFrame : public QFrame {
public:
  SoDialogQFrame(QWidget* parent, SoDialogComponent* node);

  QSize sizeHint() const override;

protected:
  void resizeEvent(QResizeEvent* event) override;
  // Places the control's pieces in the frame's new size.
  virtual void placePieces() = 0;
  // Shows or hides one piece. A piece never hidden by hand shows with the
  // frame, and showing it by hand before then would only lay out its text
  // once more for nothing.
  static void showPiece(QWidget* piece, bool visible);

private:
  SoDialogComponent* m_component;
};
