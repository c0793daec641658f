#include "TestSupport.h"

#include "SbFileHelper.h"
#include "SbStringConvert.h"
#include "SoPreferences.h"
#include "SoSFFilePathString.h"

#include <cstdlib>
#include <memory>

namespace {

TEST(Toolkit, preferencesOverrideTheEnvironmentForThisProcessOnly)
{
  setenv("FORMWRIGHT_TEST_KEY", "from environment", 1);
  EXPECT_STREQ(SoPreferences::getValue("FORMWRIGHT_TEST_KEY"), "from environment");
  SoPreferences::setString("FORMWRIGHT_TEST_KEY", "from process");
  EXPECT_STREQ(SoPreferences::getValue("FORMWRIGHT_TEST_KEY"), "from process");
  EXPECT_STREQ(std::getenv("FORMWRIGHT_TEST_KEY"), "from environment");
  SoPreferences::unsetString("FORMWRIGHT_TEST_KEY");
  EXPECT_STREQ(SoPreferences::getValue("FORMWRIGHT_TEST_KEY"), "from environment");
  unsetenv("FORMWRIGHT_TEST_KEY");
  EXPECT_EQ(SoPreferences::getValue("FORMWRIGHT_TEST_KEY"), nullptr);
  EXPECT_EQ(SoPreferences::getString("FORMWRIGHT_TEST_KEY", "fallback"), SbString("fallback"));
}

TEST(Toolkit, pathsExpandVariablesAndTakeForwardSlashes)
{
  SoPreferences::setString("FORMWRIGHT_TEST_DIR", "/data/my skins");
  EXPECT_EQ(SbFileHelper::expandString("${FORMWRIGHT_TEST_DIR}/default/"), SbString("/data/my skins/default/"));
  EXPECT_EQ(SbFileHelper::expandString("$FORMWRIGHT_TEST_DIR/x"), SbString("/data/my skins/x"));
  EXPECT_EQ(SbFileHelper::expandString("a/$FORMWRIGHT_UNSET_VARIABLE/b"), SbString("a//b"));
  SoPreferences::unsetString("FORMWRIGHT_TEST_DIR");
  EXPECT_EQ(SbFileHelper::toUnixPath("C:\\skins\\default\\"), SbString("C:/skins/default/"));
  EXPECT_EQ(SbStringConvert::toString_l("%.2f", 1.5), SbString("1.50"));
}

TEST(Toolkit, filePathFieldStoresForwardSlashes)
{
  const SoType type = SoSFFilePathString::getClassTypeId();
  ASSERT_FALSE(type.isBad());
  std::unique_ptr<SoSFFilePathString> field(static_cast<SoSFFilePathString*>(type.createInstance()));
  ASSERT_TRUE(field->set("\"C:\\skins\\default\\Frame.scn\""));
  EXPECT_EQ(field->getValue(), SbString("C:/skins/default/Frame.scn"));
  SbString written;
  field->get(written);
  EXPECT_EQ(written, SbString("\"C:/skins/default/Frame.scn\""));
}

}
