// Message boxes, answered by a timer in place of a person: each kind shows
// its title, text, icon and buttons, and the kinds that show nothing return
// at once.

#include "TestSupport.h"

#include <SoMessageDialog.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

namespace {

struct SeenBox {
  std::string title;
  std::string text;
  QMessageBox::Icon icon;
  QMessageBox::StandardButtons buttons;
};

// While it lives, notes every message box that opens and answers it with
// its first button.
class BoxAnswerer {
public:
  BoxAnswerer()
  {
    QObject::connect(&m_timer, &QTimer::timeout, [this] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (!box)
        return;
      seen.push_back({box->windowTitle().toStdString(), box->text().toStdString(), box->icon(),
                      box->standardButtons()});
      box->buttons().first()->click();
    });
    m_timer.start(5);
  }

  std::vector<SeenBox> seen;

private:
  QTimer m_timer;
};

SoMessageDialog* makeMessage(SoMessageDialog::Type type, const char* title, const char* text)
{
  auto* message = makeNode<SoMessageDialog>();
  message->type = type;
  message->title = title;
  message->label = text;
  return message;
}

TEST(MessageDialog, eachKindShowsItsBoxAndTheWorkingKindNothing)
{
  const struct {
    SoMessageDialog::Type type;
    QMessageBox::Icon icon;
    QMessageBox::StandardButtons buttons;
  } kinds[] = {
    {SoMessageDialog::MD_ERROR, QMessageBox::Critical, QMessageBox::Ok},
    {SoMessageDialog::MD_INFORMATION, QMessageBox::Information, QMessageBox::Ok},
    {SoMessageDialog::MD_MESSAGE, QMessageBox::NoIcon, QMessageBox::Ok},
    {SoMessageDialog::MD_QUESTION, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No},
    {SoMessageDialog::MD_WARNING, QMessageBox::Warning, QMessageBox::Ok},
  };
  for (const auto& kind : kinds) {
    BoxAnswerer answerer;
    makeMessage(kind.type, "Export", "Stra\xc3\x9f" "e written.")->show();
    ASSERT_EQ(answerer.seen.size(), 1u) << kind.type;
    EXPECT_EQ(answerer.seen[0].title, "Export");
    EXPECT_EQ(answerer.seen[0].text, "Stra\xc3\x9f" "e written.");
    EXPECT_EQ(answerer.seen[0].icon, kind.icon) << kind.type;
    EXPECT_EQ(answerer.seen[0].buttons, kind.buttons) << kind.type;
  }

  // The constructor shows the box before it returns.
  BoxAnswerer answerer;
  heldForTheRun().push_back(new SoMessageDialog("Replace the file?", "Export", SoMessageDialog::MD_QUESTION));
  ASSERT_EQ(answerer.seen.size(), 1u);
  EXPECT_EQ(answerer.seen[0].text, "Replace the file?");
  EXPECT_EQ(answerer.seen[0].buttons, QMessageBox::Yes | QMessageBox::No);

  // A default node is an empty about box.
  auto* plain = makeNode<SoMessageDialog>();
  plain->show();
  ASSERT_EQ(answerer.seen.size(), 2u);
  EXPECT_EQ(answerer.seen[1].title + answerer.seen[1].text, "");
  EXPECT_EQ(answerer.seen[1].buttons, QMessageBox::Ok);

  heldForTheRun().push_back(new SoMessageDialog("Working", "Busy", SoMessageDialog::MD_WORKING));
  SoMessageDialog* unknown = makeMessage(SoMessageDialog::MD_ERROR, "Unknown", "kind");
  unknown->type.setValue(17);
  unknown->show();
  QApplication::processEvents();
  EXPECT_EQ(answerer.seen.size(), 2u) << "a working box and an unknown kind show nothing";
}

// Tells the test when the node is deleted.
class CountedMessage : public SoMessageDialog {
public:
  explicit CountedMessage(bool& deleted) : m_deleted(deleted) {}
  ~CountedMessage() override { m_deleted = true; }

private:
  bool& m_deleted;
};

TEST(MessageDialog, destroyDeletesTheNodeWhateverItsReferences)
{
  bool deleted = false;
  auto* message = new CountedMessage(deleted);
  message->ref();
  message->ref();
  message->destroy();
  EXPECT_TRUE(deleted);
}

}
