// The preview's scene form, drawn by OpenGL: run under a virtual display, as
// on a machine without one.

#include "SceneTestSupport.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <set>

namespace {

bool nearlyBlack(QRgb pixel)
{
  return qRed(pixel) < 30 && qGreen(pixel) < 30 && qBlue(pixel) < 30;
}

TEST(PreviewScene, aDialogStandsInTheSceneWithItsPlateItsTitleAndItsChildren)
{
  const QString virtualDisplay = QStandardPaths::findExecutable("xvfb-run");
  if (virtualDisplay.isEmpty())
    GTEST_SKIP() << "xvfb-run is not installed";
  QTemporaryDir dir;
  const QString png = dir.filePath("scene.png");
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove("QT_QPA_PLATFORM");
  process.setProcessEnvironment(environment);
  process.start(virtualDisplay, {"-a", FORMWRIGHT_PREVIEW, "--3d", "--screenshot", png,
                                 QDir(FORMWRIGHT_EXAMPLES).filePath("nested.scn")});
  ASSERT_TRUE(process.waitForFinished(60000));
  ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();

  const QImage image(png);
  ASSERT_FALSE(image.isNull());
  // Two pixels a unit, with 10 units of scene round the plate.
  DebugMessages quiet; // of the skin files, which the tests do without
  auto* dialog = static_cast<SoTopLevelDialog*>(SoFormwright::loadFromFile(
    SbString(QDir(FORMWRIGHT_EXAMPLES).filePath("nested.scn").toLocal8Bit().constData()), "render"));
  ASSERT_NE(dialog, nullptr);
  buildInScene(dialog);
  const SbVec3f plate = dialog->getTopLevelSize();
  EXPECT_EQ(image.size(), QSize(2 * (static_cast<int>(plate[0]) + 20), 2 * (static_cast<int>(plate[1]) + 20)));
  // The scene around the dialog is all one colour.
  const QRgb background = image.pixel(0, 0);
  int left = 0;
  while (left < image.width() && image.pixel(left, image.height() / 2) == background)
    ++left;
  EXPECT_NEAR(left, 20, 1) << "the plate's edge";
  EXPECT_EQ(image.pixel(image.width() - 1, 0), background);
  EXPECT_EQ(image.pixel(0, image.height() - 1), background);
  EXPECT_EQ(image.pixel(image.width() - 1, image.height() - 1), background);
  // The dialog fills the middle: the plate and the frames of its children
  // differ from the scene and from each other.
  std::set<QRgb> middle;
  for (int y = image.height() / 4; y < 3 * image.height() / 4; ++y)
    middle.insert(image.pixel(image.width() / 2, y));
  EXPECT_EQ(middle.count(background), 0u);
  EXPECT_GE(middle.size(), 3u);
  // The title is black type on the plate, in the upper part of the image.
  int type = 0;
  for (int y = 0; y < image.height() / 2; ++y)
    for (int x = 0; x < image.width(); ++x)
      type += nearlyBlack(image.pixel(x, y)) ? 1 : 0;
  EXPECT_GT(type, 20) << "no title drawn";
  EXPECT_FALSE(nearlyBlack(background));
}

}
