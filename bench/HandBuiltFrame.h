#pragma once

// The frame that holds one control of the hand-written build: it offers its
// preferred size to the layouts and places its pieces when Qt resizes it,
// a label column at the left and the other pieces side by side beyond it.

#include <QFrame>

#include <vector>

class HandBuiltFrame : public QFrame {
public:
  HandBuiltFrame(QWidget* parent, QSize preferred, int labelColumn);

  // A piece of the given width; 0 takes the room that is left.
  void addPiece(QWidget* piece, int width);
  void setSideLabel(QWidget* label) { m_label = label; }

  QSize sizeHint() const override { return m_preferred; }

protected:
  void resizeEvent(QResizeEvent* event) override;

private:
  QSize m_preferred;
  int m_labelColumn;
  QWidget* m_label = nullptr;
  std::vector<std::pair<QWidget*, int>> m_pieces;
};
