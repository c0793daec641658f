// Every test runs inside one Qt application and one start of the library;
// tests that end the library start it again before they return.

#include <SoFormwright.h>

#include <Inventor/SoDB.h>

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
  qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
  QApplication application(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  SoFormwright::init();
  const int result = RUN_ALL_TESTS();
  SoFormwright::finish();
  // Like any application, the tests end the toolkit themselves: the library
  // leaves it running.
  SoDB::finish();
  return result;
}
