#pragma once

#include "SoFormwright.h"

#include <Inventor/SbString.h>
#include <Inventor/fields/SoSFEnum.h>
#include <Inventor/fields/SoSFString.h>

// A modal message box, standing outside any dialog tree: its text is the
// node's label. The three-argument constructor shows the box at once and
// returns when the person has closed it.
class SoMessageDialog : public SoFormwright {
  SO_FORMWRIGHT_HEADER(SoMessageDialog)

public:
  // The kind of box; MD_WORKING shows none.
  enum Type { MD_ERROR = 0, MD_INFORMATION = 1, MD_MESSAGE = 2, MD_QUESTION = 3, MD_WARNING = 4, MD_WORKING = 5 };

  // The window title.
  SoSFString title;
  SoSFEnum type;

  SoMessageDialog();
  SoMessageDialog(SbString message, SbString boxTitle, Type boxType);

  // Opens the box and waits until it is closed. The answer to a question is
  // not kept.
  virtual void show();
  // Does nothing: the box closes itself.
  virtual void close();
  // Closes and deletes the node, whatever its reference count.
  void destroy() override;
  // Does nothing: no working box exists in this form of the library.
  void createWorkingMessageDialog();

protected:
  ~SoMessageDialog() override;
};
