#include "SceneTestSupport.h"

#include <SoDialogEditText.h>
#include <SoDialogEditTextAuditor.h>
#include <SoRowDialog.h>

#include <Inventor/actions/SoSearchAction.h>
#include <Inventor/nodekits/SoBaseKit.h>
#include <Inventor/nodes/SoEventCallback.h>
#include <Inventor/nodes/SoText3.h>

namespace {

class HeardTexts : public SoDialogEditTextAuditor {
public:
  std::vector<std::string> heard;
  void dialogEditText(SoDialogEditText* node) override { heard.push_back(node->editText.getValue().getString()); }
};

// An edit text and a read-only one side by side in a row of a window, so
// that a key crosses three nested interface nodes; a callback behind the
// window counts the key presses that nobody took.
struct EditScene {
  Scene scene;
  SoTopLevelDialog* dialog = makeNode<SoTopLevelDialog>();
  SoDialogEditText* edit = makeNode<SoDialogEditText>();
  SoDialogEditText* other = makeNode<SoDialogEditText>();
  HeardTexts auditor;
  int untakenKeys = 0;
  SbVec3f editAt, otherAt;

  explicit EditScene(bool trigOnEnter, bool multiLine = false, int width = 120)
  {
    auto* row = makeNode<SoRowDialog>();
    edit->trigOnEnter = trigOnEnter;
    edit->multiLine = multiLine;
    edit->labelVisibility = FALSE;
    edit->width = width;
    other->width = width;
    edit->height = multiLine ? 80 : 30;
    other->editable = FALSE;
    row->addChild(edit);
    row->addChild(other);
    dialog->addChild(row);
    edit->addAuditor(&auditor);
    scene.root->addChild(dialog);
    auto* behind = new SoEventCallback;
    behind->addEventCallback(SoKeyboardEvent::getClassTypeId(), &EditScene::countUntaken, this);
    scene.root->addChild(behind);
    buildInScene(dialog);
    // Before any text, which may reach out of the box.
    editAt = centreOf(edit);
    otherAt = centreOf(other);
  }
  // The nodes live on, and the edit text may still hold the keyboard.
  ~EditScene() { edit->removeAuditor(&auditor); }
  EditScene(const EditScene&) = delete;
  EditScene& operator=(const EditScene&) = delete;
  static void countUntaken(void* data, SoEventCallback* callback)
  {
    if (SoKeyboardEvent::isKeyPressEvent(callback->getEvent(), SoKeyboardEvent::ANY))
      ++static_cast<EditScene*>(data)->untakenKeys;
  }
  void type(std::initializer_list<SoKeyboardEvent::Key> keys)
  {
    for (SoKeyboardEvent::Key key : keys)
      scene.key(key);
  }
  std::string text() const { return edit->editText.getValue().getString(); }
};

// The text drawn in the box: the last text of the control.
SoText3* shownText(SoDialogEditText* node)
{
  SoSearchAction search;
  search.setType(SoText3::getClassTypeId());
  search.setInterest(SoSearchAction::LAST);
  SoBaseKit::setSearchingChildren(TRUE);
  search.apply(node);
  SoBaseKit::setSearchingChildren(FALSE);
  return static_cast<SoText3*>(fullPathNodes(search.getPath()).back());
}

TEST(SceneEditText, keysGoToTheTailOncePerPressAndReturnCommits)
{
  EditScene at(true);
  at.type({SoKeyboardEvent::A});
  EXPECT_EQ(at.text(), "") << "no key is taken before a press on the box";
  EXPECT_EQ(at.untakenKeys, 1);

  at.scene.click(at.editAt);
  at.type({SoKeyboardEvent::A, SoKeyboardEvent::B, SoKeyboardEvent::NUMBER_1, SoKeyboardEvent::PAD_7});
  EXPECT_EQ(at.text(), "ab17") << "the keypad's navigation keys type their digits";
  at.type({SoKeyboardEvent::LEFT_ARROW, SoKeyboardEvent::LEFT_SHIFT});
  EXPECT_EQ(at.text(), "ab17");
  EXPECT_EQ(at.untakenKeys, 3) << "keys that type nothing go on";
  at.type({SoKeyboardEvent::BACKSPACE});
  at.scene.key(SoKeyboardEvent::RETURN, true);
  EXPECT_EQ(at.text(), "ab1\n");
  EXPECT_TRUE(at.auditor.heard.empty()) << "only Return or leaving tells";

  at.type({SoKeyboardEvent::RETURN, SoKeyboardEvent::C});
  EXPECT_EQ(at.auditor.heard, std::vector<std::string>{"ab1\n"});
  EXPECT_EQ(at.text(), "ab1\n") << "Return ends the editing";

  // A press on another control commits as Return does.
  at.scene.click(at.editAt);
  at.type({SoKeyboardEvent::BACKSPACE, SoKeyboardEvent::Q});
  at.scene.click(at.otherAt);
  at.type({SoKeyboardEvent::X});
  EXPECT_EQ(at.auditor.heard, (std::vector<std::string>{"ab1\n", "ab1q"}));
  EXPECT_EQ(at.text(), "ab1q");
  EXPECT_EQ(at.other->editText.getValue(), "") << "a read-only box takes no key";
}

TEST(SceneEditText, withoutTrigOnEnterEveryKeyTells)
{
  EditScene at(false);
  at.scene.click(at.editAt);
  at.type({SoKeyboardEvent::X, SoKeyboardEvent::Y, SoKeyboardEvent::BACKSPACE, SoKeyboardEvent::RETURN});
  EXPECT_EQ(at.auditor.heard, (std::vector<std::string>{"x", "xy", "x"}));
}

float measuredWidth(const std::string& text)
{
  auto* measured = new SoSeparator;
  measured->ref();
  measured->addChild(SoNode::getByName("DialogTextProperties"));
  auto* line = new SoText3;
  line->string = text.c_str();
  measured->addChild(line);
  SoGetBoundingBoxAction box{SbViewportRegion()};
  box.apply(measured);
  measured->unref();
  return box.getBoundingBox().getSize()[0];
}

TEST(SceneEditText, aLongLineWrapsRepeatingTheCharacterThatOverflows)
{
  EditScene at(true, true);
  at.scene.click(at.editAt);
  const std::string typed = "abcdefghijklmnopqrstuvwxyz";
  for (char c : typed)
    at.scene.key(static_cast<SoKeyboardEvent::Key>(SoKeyboardEvent::A + (c - 'a')));
  ASSERT_EQ(at.text(), typed);

  // The box less its border, scroll bar and insets.
  const float room = static_cast<float>(at.edit->width.getValue() - 6 - 14 - 8);
  size_t end = 1;
  while (end < typed.size() && measuredWidth(typed.substr(0, end)) < room)
    ++end;
  ASSERT_LT(end, typed.size()) << "the line must be long enough to wrap";
  const size_t next = measuredWidth(typed.substr(0, end)) > room ? end - 1 : end;
  const SoMFString& lines = shownText(at.edit)->string;
  ASSERT_GE(lines.getNum(), 2);
  EXPECT_EQ(std::string(lines[0].getString()), typed.substr(0, end));
  EXPECT_EQ(lines[1].getString()[0], typed[next]);

  at.scene.key(SoKeyboardEvent::RETURN, true);
  at.type({SoKeyboardEvent::Z});
  EXPECT_EQ(std::string(lines[lines.getNum() - 1].getString()), "z") << "Shift+Return opens a line";
  EXPECT_EQ(at.text(), typed + "\nz");
}

TEST(SceneEditText, aBoxNarrowerThanOneCharacterTakesOneCharacterPerLine)
{
  EditScene at(true, true, 30);
  const float room = static_cast<float>(at.edit->width.getValue() - 6 - 14 - 8);
  ASSERT_GT(measuredWidth("m"), room);
  // The box lies left of its bar, 7 left of the control's centre.
  at.scene.click(at.editAt[0] - 7, at.editAt[1]);
  at.type({SoKeyboardEvent::BACKSPACE, SoKeyboardEvent::M, SoKeyboardEvent::M, SoKeyboardEvent::M});
  EXPECT_EQ(at.text(), "mmm") << "a backspace in an empty box leaves it empty";
  const SoMFString& lines = shownText(at.edit)->string;
  ASSERT_EQ(lines.getNum(), 3);
  EXPECT_EQ(std::string(lines[2].getString()), "m");
}

} // namespace
