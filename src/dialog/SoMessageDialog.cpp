#include <SoMessageDialog.h>

#include "SoControlWidgets.h"
#include "SoFormwrightSubNodeSource.h"
#include "SoQt.h"

#include <QMessageBox>

using Formwright::SoQt;

SO_FORMWRIGHT_SOURCE(SoMessageDialog, SoFormwright, "MessageDialog")

SoMessageDialog::SoMessageDialog()
{
  SO_FORMWRIGHT_CONSTRUCTOR(SoMessageDialog);
  SO_FORMWRIGHT_ADD_FIELD(title, "");
  SO_FORMWRIGHT_ADD_FIELD(type, MD_MESSAGE);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(Type, MD_ERROR);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(Type, MD_INFORMATION);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(Type, MD_MESSAGE);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(Type, MD_QUESTION);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(Type, MD_WARNING);
  SO_FORMWRIGHT_DEFINE_ENUM_VALUE(Type, MD_WORKING);
  SO_FORMWRIGHT_SET_SF_ENUM_TYPE(type, Type);
  SO_FORMWRIGHT_INIT_INSTANCE();
}

SoMessageDialog::SoMessageDialog(SbString message, SbString boxTitle, Type boxType) : SoMessageDialog()
{
  label = message;
  title = boxTitle;
  type = boxType;
  show();
}

SoMessageDialog::~SoMessageDialog() = default;

void SoMessageDialog::show()
{
  if (type.getValue() == MD_WORKING)
    return;
  const QString text = SoControlWidgets::toWidgetText(label.getValue());
  const QString caption = SoControlWidgets::toWidgetText(title.getValue());
  QWidget* parent = SoQt::getTopLevelWidget();
  switch (type.getValue()) {
  case MD_ERROR:
    QMessageBox::critical(parent, caption, text, QMessageBox::Ok, QMessageBox::NoButton);
    break;
  case MD_INFORMATION:
    QMessageBox::information(parent, caption, text, QMessageBox::Ok, QMessageBox::NoButton);
    break;
  case MD_MESSAGE:
    QMessageBox::about(parent, caption, text);
    break;
  case MD_QUESTION:
    QMessageBox::question(parent, caption, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::NoButton);
    break;
  case MD_WARNING:
    QMessageBox::warning(parent, caption, text, QMessageBox::Ok, QMessageBox::NoButton);
    break;
  default:
    // A kind of box this library does not know shows nothing.
    break;
  }
}

void SoMessageDialog::close() {}

void SoMessageDialog::destroy()
{
  close();
  // A dialog file that holds the node leaves the cache, so that nothing
  // reaches the deleted node through it.
  destroyByRef(this);
  // The toolkit's own end, which deletes the node whatever its count, tells
  // its sensors and frees its name.
  SoDragger::destroy();
}

void SoMessageDialog::createWorkingMessageDialog() {}
