#include "ControlTestSupport.h"

#include <SoDialogCheckBox.h>
#include <SoDialogCheckBoxAuditor.h>

#include <QCheckBox>
#include <QLabel>
#include <QTest>

namespace {

// What an auditor saw when it heard of a check box.
struct Heard {
  SoDialogCheckBox* node;
  bool state;
  QString boxText;
};

class CheckBoxAuditor : public SoDialogCheckBoxAuditor {
public:
  std::vector<Heard> heard;
  QCheckBox* box = nullptr;

  void dialogCheckBox(SoDialogCheckBox* node) override
  {
    heard.push_back({node, node->state.getValue() != 0, box ? box->text() : QString()});
  }
};

SoDialogCheckBox* makeCheckBox(const char* label, const char* onString, const char* offString)
{
  SoDialogCheckBox* node = makeNode<SoDialogCheckBox>();
  node->label = label;
  node->onString = onString;
  node->offString = offString;
  return node;
}

QCheckBox* boxOf(const ControlWindow& window)
{
  return window.find<QCheckBox>("FWTSoDialogQCheckBoxCheckBoxWidget");
}

TEST(DialogCheckBox, buildsBoxAndLabelInItsFrame)
{
  ControlWindow window;
  SoDialogCheckBox* node = makeCheckBox("Light:", "Shining", "Dark\\tnow");
  window.build(node);

  QWidget* frame = node->getWidget();
  QCheckBox* box = boxOf(window);
  auto* text = window.find<QLabel>("FWTSoDialogQCheckBoxLabelWidget");
  ASSERT_TRUE(box && text);
  EXPECT_TRUE(box->parentWidget() == frame && text->parentWidget() == frame);
  EXPECT_EQ(box->font(), SoFormwright::getFormwrightFont());
  EXPECT_EQ(text->text(), QString("Light:"));
  EXPECT_EQ(text->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight);
  EXPECT_FALSE(box->isChecked());
  EXPECT_EQ(box->text(), QString("Dark\tnow"));

  // The wider of the two texts, with room for the box, beside the label.
  const SbVec2i32 label = textPixels("Light:");
  const SbVec2i32 off = textPixels("Dark\tnow");
  const SbVec2i32 on = textPixels("Shining");
  const int width = std::max(std::max(on[0], off[0]) + 26 + label[0] + 2, 25);
  const int height = std::max(on[1] + 8, 25);
  EXPECT_EQ(node->width.getValue(), width);
  EXPECT_EQ(node->height.getValue(), height);
  resizeFrame(frame, 240, 33);
  EXPECT_EQ(node->width.getValue(), 240);
  EXPECT_EQ(node->height.getValue(), 33);
  EXPECT_EQ(text->geometry(), expectedSideLabel(33, label[0], label[1]));
  EXPECT_EQ(box->geometry(), expectedBody(240, 33, label[0], true));
  node->labelVisibility = FALSE;
  EXPECT_TRUE(text->isHidden());
  EXPECT_EQ(box->geometry(), expectedBody(240, 33, label[0], false));

  expectOneFrameThroughRebuilds(window, node, "FWTSoDialogQCheckBoxFrame");
  node->state = TRUE;
  node->destroyWidget();
  window.build(node);
  box = boxOf(window);
  EXPECT_TRUE(box->isChecked()) << "a build reads the state";
  EXPECT_EQ(box->text(), QString("Shining"));
  node->state = FALSE;
  EXPECT_FALSE(box->isChecked());
  EXPECT_EQ(box->text(), QString("Dark\tnow"));
  node->offString = "";
  EXPECT_EQ(box->text(), QString("Shining")) << "with no off text the on text shows in both states";
}

TEST(DialogCheckBox, clickChangesTheFieldThenTellsTheAuditorsThenTheText)
{
  ControlWindow window;
  SoDialogCheckBox* node = makeCheckBox("Sound:", "Loud", "Quiet");
  CheckBoxAuditor auditor;
  node->addAuditor(&auditor);
  window.build(node);
  ASSERT_TRUE(window.show());
  QCheckBox* box = boxOf(window);
  auditor.box = box;

  QTest::mouseClick(box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(8, box->height() / 2));
  EXPECT_TRUE(node->state.getValue());
  ASSERT_EQ(auditor.heard.size(), 1u);
  EXPECT_EQ(auditor.heard[0].node, node);
  EXPECT_TRUE(auditor.heard[0].state) << "the auditors see the new state";
  EXPECT_EQ(auditor.heard[0].boxText, QString("Quiet")) << "the text follows after the auditors";
  EXPECT_EQ(box->text(), QString("Loud"));

  QTest::mouseClick(box, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(8, box->height() / 2));
  EXPECT_FALSE(node->state.getValue());
  EXPECT_EQ(box->text(), QString("Quiet"));

  // A partly checked box counts as checked.
  QMetaObject::invokeMethod(node->getWidget(), "eventNotify", Q_ARG(int, Qt::PartiallyChecked));
  EXPECT_TRUE(node->state.getValue());
  EXPECT_EQ(auditor.heard.size(), 3u);

  node->state = FALSE;
  EXPECT_FALSE(box->isChecked());
  EXPECT_EQ(auditor.heard.size(), 3u) << "a change by the application is no event";
}

}
