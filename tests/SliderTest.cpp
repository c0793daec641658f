#include "ControlTestSupport.h"

#include <SoDialogIntegerSlider.h>
#include <SoDialogIntegerSliderAuditor.h>
#include <SoDialogRealSlider.h>
#include <SoDialogRealSliderAuditor.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QOpenGLContext>

#include <cmath>

namespace {

class IntegerAuditor : public SoDialogIntegerSliderAuditor {
public:
  std::vector<int> heard;
  void dialogIntegerSlider(SoDialogIntegerSlider* node) override { heard.push_back(node->value.getValue()); }
};

class RealAuditor : public SoDialogRealSliderAuditor {
public:
  std::vector<float> heard;
  void dialogRealSlider(SoDialogRealSlider* node) override { heard.push_back(node->value.getValue()); }
};

template <class Slider, class Number>
Slider* makeSlider(const char* label, Number min, Number max, Number value)
{
  Slider* node = makeNode<Slider>();
  node->label = label;
  node->min = min;
  node->max = max;
  node->value = value;
  return node;
}

struct SliderWindow : ControlWindow {
  QLineEdit* zone() const { return find<QLineEdit>("FWTSoDialogQSliderLineEditWidget"); }
  QWidget* bar() const { return find<QWidget>("FWTSoDialogQSliderSliderWidget"); }
  QCheckBox* toggle() const { return find<QCheckBox>("FWTSoDialogQSliderToggleWidget"); }
  // Drags the thumb, held `grab` pixels from its left edge, from `from` to
  // `to`, stopping before the release.
  void drag(int from, int to)
  {
    const int middle = bar()->height() / 2;
    QTest::mousePress(bar(), Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(from, middle));
    QTest::mouseMove(bar(), QPoint(to, middle));
  }
  void release(int at) { QTest::mouseRelease(bar(), Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(at, bar()->height() / 2)); }
  void type(const char* text)
  {
    zone()->setText(text);
    QTest::keyClick(zone(), Qt::Key_Return);
  }
};

TEST(DialogSlider, buildsTheRowOfLabelToggleBarAndValue)
{
  SliderWindow window;
  SoDialogIntegerSlider* node = makeSlider<SoDialogIntegerSlider>("Copies", 0, 10, 4);
  window.build(node);

  QWidget* frame = node->getWidget();
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->objectName(), QString("FWTSoDialogQSliderFrame"));
  const std::vector<QWidget*> children = ControlWindow::childWidgets(frame);
  ASSERT_EQ(children.size(), 4u);
  EXPECT_EQ(children[0], window.zone());
  EXPECT_EQ(children[1], window.bar());
  EXPECT_EQ(children[2]->objectName(), QString("FWTSoDialogQSliderLabelWidget"));
  EXPECT_EQ(children[3], window.toggle());
  EXPECT_EQ(window.zone()->text(), QString("4"));
  EXPECT_FALSE(window.toggle()->isChecked());

  // The value zone is as wide as the widest value of the limits' digits.
  const SbVec2i32 label = textPixels("Copies");
  const int zone = textPixels("99")[0] + 8;
  const int width = 150 + label[0] + 2;
  const int height = std::max(30, label[1]);
  ASSERT_EQ(node->width.getValue(), width);
  ASSERT_EQ(node->height.getValue(), height);
  const int barWidth = width - 6 - 18 - label[0] - 2 - zone - 2;
  EXPECT_EQ(window.toggle()->geometry(), QRect(label[0] + 5, 3, 16, height - 6));
  EXPECT_EQ(window.bar()->geometry(), QRect(21 + label[0] + 2, 3, barWidth, height - 6));
  const int text = textPixels("4")[1];
  EXPECT_EQ(window.zone()->geometry(),
            QRect(3 + barWidth + 2 + 18 + label[0] + 2, 3 + (height - 6 - text) / 2, zone, text));
  EXPECT_EQ(window.find<QLabel>("FWTSoDialogQSliderLabelWidget")->geometry(),
            expectedSideLabel(height, label[0], label[1]));

  node->toggleVisible = FALSE;
  node->valueVisible = FALSE;
  EXPECT_TRUE(window.toggle()->isHidden());
  EXPECT_TRUE(window.zone()->isHidden());
  EXPECT_EQ(window.bar()->geometry(), QRect(3 + label[0] + 2, 3, width - 6 - label[0] - 2, height - 6));
}

TEST(DialogIntegerSlider, barPositionRoundsToTheNearestValue)
{
  SliderWindow window;
  SoDialogIntegerSlider* node = makeSlider<SoDialogIntegerSlider>("", 0, 10, 0);
  IntegerAuditor auditor;
  node->addAuditor(&auditor);
  window.build(node);

  SoDialogSlider::finishCallback(node, 0.34f);
  EXPECT_EQ(node->value.getValue(), 3);
  SoDialogSlider::finishCallback(node, 0.36f);
  EXPECT_EQ(node->value.getValue(), 4);
  EXPECT_EQ(window.zone()->text(), QString("4"));
  SoDialogSlider::finishCallback(node, 0.38f);
  EXPECT_EQ(auditor.heard, (std::vector<int>{3, 4})) << "only a new value tells the auditors";
}

TEST(DialogIntegerSlider, typedValueMovesAFreeLimitAndIsHeldByAFixedOne)
{
  SliderWindow window;
  SoDialogIntegerSlider* free = makeSlider<SoDialogIntegerSlider>("", 0, 10, 5);
  IntegerAuditor auditor;
  free->addAuditor(&auditor);
  window.build(free);
  window.type("150");
  EXPECT_EQ(free->max.getValue(), 150);
  EXPECT_EQ(free->value.getValue(), 150);
  EXPECT_FLOAT_EQ(free->getValue(), 1.0f) << "the bar stands at its end";
  EXPECT_EQ(window.zone()->width(), textPixels("999")[0] + 8) << "the zone widens for the new limit";
  window.type("-20");
  EXPECT_EQ(free->min.getValue(), -20);
  EXPECT_FLOAT_EQ(free->getValue(), 0.0f);
  EXPECT_EQ(auditor.heard, (std::vector<int>{150, -20}));
  free->destroyWidget();

  SoDialogIntegerSlider* fixed = makeSlider<SoDialogIntegerSlider>("", 0, 10, 5);
  fixed->fixedLimits = TRUE;
  window.build(fixed);
  window.type("15");
  EXPECT_EQ(window.zone()->text(), QString("10")) << "the zone is rewritten with the limit";
  EXPECT_EQ(fixed->max.getValue(), 10);
  EXPECT_EQ(fixed->value.getValue(), 10);
  window.type("3.5");
  EXPECT_EQ(window.zone()->text(), QString("3")) << "a fraction is corrected as well";
  EXPECT_EQ(fixed->value.getValue(), 3);
  window.type("none");
  EXPECT_EQ(fixed->value.getValue(), 0) << "a text that is no number reads as 0";
  fixed->fixedLimits = FALSE;
  fixed->min = 1;
  window.type("");
  EXPECT_EQ(fixed->min.getValue(), 0) << "an emptied zone reads as 0, and the limit moves";
  EXPECT_EQ(window.zone()->height(), textPixels("0")[1]) << "the zone keeps room for a digit";
}

// Run alone, as ctest runs it, it builds the first slider of each class.
TEST(DialogSlider, theFirstSliderOfAClassFollowsItsOwnFixedLimitsToo)
{
  ControlWindow window;
  auto* integer = makeSlider<SoDialogIntegerSlider>("", 0, 10, 15);
  auto* real = makeSlider<SoDialogRealSlider>("", 0.0f, 1.0f, 1.5f);
  window.build(integer);
  window.build(real);
  EXPECT_EQ(integer->max.getValue(), 15) << "free limits move out to the value";
  EXPECT_EQ(real->max.getValue(), 1.5f);
}

TEST(DialogRealSlider, continuousTriggerDecidesWhenTheFieldFollowsADrag)
{
  SliderWindow window;
  SoDialogRealSlider* node = makeSlider<SoDialogRealSlider>("", 0.0f, 1.0f, 0.0f);
  RealAuditor auditor;
  node->addAuditor(&auditor);
  window.build(node);
  ASSERT_TRUE(window.show());
  const int right = window.bar()->width() - 1;

  // The thumb, 11 pixels wide, starts at the left end.
  window.drag(5, right + 50);
  EXPECT_EQ(window.zone()->text(), QString("1.000")) << "the zone follows the drag at once";
  EXPECT_EQ(node->value.getValue(), 0.0f);
  EXPECT_TRUE(auditor.heard.empty());
  window.release(right + 50);
  EXPECT_EQ(node->value.getValue(), 1.0f);
  EXPECT_EQ(auditor.heard, std::vector<float>{1.0f});

  node->continuousTrigger = TRUE;
  EXPECT_TRUE(window.toggle()->isChecked());
  window.drag(right - 5, -50);
  EXPECT_EQ(node->value.getValue(), 0.0f) << "the field follows the drag";
  EXPECT_EQ(auditor.heard, (std::vector<float>{1.0f, 0.0f}));
  window.release(-50);
  EXPECT_EQ(auditor.heard.size(), 2u);

  QTest::mouseClick(window.toggle(), Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(8, window.toggle()->height() / 2));
  EXPECT_FALSE(node->continuousTrigger.getValue()) << "the toggle sets the field";
  EXPECT_EQ(auditor.heard.size(), 2u) << "and tells no auditor";
  window.drag(5, right + 50);
  EXPECT_EQ(node->value.getValue(), 0.0f) << "the field waits for the release again";
  window.release(right + 50);
  EXPECT_EQ(node->value.getValue(), 1.0f);
}

TEST(DialogRealSlider, stillClickOnTheThumbChangesNothing)
{
  SliderWindow window;
  SoDialogRealSlider* node = makeSlider<SoDialogRealSlider>("", 0.0f, 1.0f, 0.3337f);
  RealAuditor auditor;
  node->addAuditor(&auditor);
  window.build(node);
  ASSERT_TRUE(window.show());
  // The middle of the thumb, 11 pixels wide, standing at the value's pixel.
  const int thumb = int(std::lround(0.3337f * float(window.bar()->width() - 11))) + 5;
  window.drag(thumb, thumb);
  window.release(thumb);
  EXPECT_EQ(node->value.getValue(), 0.3337f);
  EXPECT_TRUE(auditor.heard.empty());
}

TEST(DialogRealSlider, limitsAndValuesFromTheApplication)
{
  SliderWindow window;
  SoDialogRealSlider* node = makeSlider<SoDialogRealSlider>("", 0.0f, 2.0f, 1.0f);
  node->format = "%.2f";
  RealAuditor auditor;
  node->addAuditor(&auditor);
  window.build(node);
  EXPECT_FLOAT_EQ(node->getValue(), 0.5f);

  node->value = 3.0f;
  EXPECT_EQ(node->value.getValue(), 3.0f) << "a value from the application is kept beyond the limit";
  EXPECT_FLOAT_EQ(node->getValue(), 1.5f);
  EXPECT_EQ(window.zone()->text(), QString("3.00"));
  node->max = 2.5f;
  EXPECT_EQ(node->value.getValue(), 2.5f) << "a limit moved past the value takes it along";
  node->min = 2.5f;
  EXPECT_FLOAT_EQ(node->getValue(), 0.0f) << "equal limits put the bar at its start";
  EXPECT_EQ(window.zone()->text(), QString("2.50"));
  EXPECT_TRUE(auditor.heard.empty());
}

TEST(DialogSlider, badLimitsAndFormatsGiveWayWithoutHarm)
{
  SliderWindow window;
  SoDialogIntegerSlider* crossed = makeSlider<SoDialogIntegerSlider>("", 8, 2, 5);
  crossed->fixedLimits = TRUE;
  window.build(crossed);
  EXPECT_EQ(crossed->value.getValue(), 8) << "with crossed limits the lower one wins";
  EXPECT_EQ(window.zone()->text(), QString("8"));
  crossed->destroyWidget();

  for (const char* format : {"value", "%s", "%n", "%*d", "%ld", "100%"}) {
    SoDialogRealSlider* real = makeSlider<SoDialogRealSlider>("", 0.0f, 1.0f, 0.5f);
    real->format = format;
    window.build(real);
    EXPECT_EQ(window.zone()->text(), QString("0.500")) << format;
    real->destroyWidget();
  }
  SoDialogRealSlider* real = makeSlider<SoDialogRealSlider>("", 0.0f, 1.0f, 0.5f);
  real->format = "%08.1lf%%";
  window.build(real);
  EXPECT_EQ(window.zone()->text(), QString("000000.5%")) << "flags, width, precision and %% are welcome";
}

TEST(DialogSlider, disabledBarShowsItsColoursAtHalfStrength)
{
  QOpenGLContext probe;
  if (!probe.create())
    GTEST_SKIP() << "no OpenGL here: the bar is blank";
  SliderWindow window;
  SoDialogRealSlider* node = makeSlider<SoDialogRealSlider>("", 0.0f, 1.0f, 1.0f);
  node->width = 400;
  node->valueVisible = FALSE;
  node->toggleVisible = FALSE;
  node->shadedColors = FALSE;
  node->colors.setValues(0, 3, std::vector<SbColor>{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}.data());
  window.build(node);
  // The thumb stands at the right end; the middle of each band is free.
  auto bands = [&] {
    const QImage image = window.bar()->grab().toImage();
    const int third = image.width() / 3;
    std::vector<QRgb> colours;
    for (int i = 0; i < 3; ++i)
      colours.push_back(image.pixel(i * third + third / 4, image.height() / 2) & 0xffffff);
    return colours;
  };
  EXPECT_EQ(bands(), (std::vector<QRgb>{0xff0000, 0x00ff00, 0x0000ff}));
  node->enable = FALSE;
  const std::vector<QRgb> dim = bands();
  for (int i = 0; i < 3; ++i)
    EXPECT_NEAR(qMax(qMax(qRed(dim[i]), qGreen(dim[i])), qBlue(dim[i])), 128, 1) << i;

  node->enable = TRUE;
  node->shadedColors = TRUE;
  const std::vector<QRgb> shaded = bands();
  EXPECT_GT(qRed(shaded[0]), qBlue(shaded[0])) << "red first";
  EXPECT_GT(qGreen(shaded[1]), 0);
  EXPECT_GT(qBlue(shaded[2]), qRed(shaded[2])) << "blue last";
}

}
