#include "TestSupport.h"

#include <SoDialogAuditor.h>
#include <SoDialogLabel.h>
#include <SoDialogPushButton.h>
#include <SoDialogPushButtonLauncher.h>
#include <SoFormwright.h>
#include <SoTopLevelDialog.h>

#include "ScInitModuleCmd.h"
#include "SoFormwrightClassList.h"

#include <Inventor/SoInteraction.h>
#include <Inventor/nodekits/SoNodeKit.h>
#include <QWidget>

namespace {

struct ModuleRecorder : ScInitModuleCmd {
  std::vector<std::string> modules;
  void serialize(const char* moduleName) override { modules.push_back(moduleName); }
};

const char* const kLabelFile = "#Inventor V2.1 ascii\nDialogLabel { label \"x\" }\n";

TEST(Lifecycle, productAndVersion)
{
  EXPECT_STREQ(SoFormwright::getProductName(), "Formwright");
  EXPECT_STREQ(SoFormwright::getVersion(), "10.17.1.0");
}

TEST(Lifecycle, startsAreCountedAndASurplusFinishTouchesNothing)
{
  const SoType labelType = SoDialogLabel::getClassTypeId();
  SoFormwright::init();
  EXPECT_EQ(SoDialogLabel::getClassTypeId(), labelType) << "a second init must not register again";
  SoFormwright::finish();
  EXPECT_TRUE(SoFormwright::isInitialized());
  EXPECT_EQ(SoDialogLabel::getClassTypeId(), labelType);

  SoFormwright::finish();
  ASSERT_FALSE(SoFormwright::isInitialized());
  {
    DebugMessages messages;
    SoFormwright::finish();
    EXPECT_EQ(messages.count(), 0u);
  }
  EXPECT_FALSE(SoFormwright::isInitialized());
  SoFormwright::init();
}

// The application starts the toolkit after the library and still holds a
// scene when the library ends: the toolkit must stay up under it, while the
// library's keywords are gone.
TEST(Lifecycle, lastFinishLeavesTheToolkitToTheApplication)
{
  SoFormwright::finish();
  SoDB::finish();
  SoFormwright::init();
  SoDB::init();
  SoNodeKit::init();
  SoInteraction::init();
  auto* scene = new SoSeparator;
  scene->ref();
  SoFormwright::finish();
  EXPECT_TRUE(SoDB::isInitialized());
  {
    DebugMessages messages;
    EXPECT_EQ(readScene(kLabelFile), nullptr);
  }
  scene->unref();
  SoFormwright::init();
}

TEST(Lifecycle, theLastFinishHidesTheLibrarysOwnWindowsOnlyAndSaysSo)
{
  auto* window = makeNode<SoTopLevelDialog>();
  window->buildDialog(nullptr, 0);
  window->show();
  QWidget host;
  makeNode<SoTopLevelDialog>()->buildDialog(&host, 1);
  host.show();
  {
    DebugMessages messages;
    SoFormwright::finish();
    EXPECT_EQ(messages.countHolding("still open were hidden"), 1);
  }
  EXPECT_FALSE(window->getBaseWidget()->isVisible());
  EXPECT_TRUE(host.isVisible());
  SoFormwright::init();
}

TEST(Lifecycle, misuseOfRegistrationIsReportedAndHealed)
{
  DebugMessages messages;

  SoDialogLabel::exitClass();
  SoDialogLabel::exitClass();
  EXPECT_TRUE(messages.contains("Unable to remove type (BadType) for this class. Check exitClass() method is "
                                "implemented and is called only once."));
  EXPECT_TRUE(messages.contains("SoDialogLabel::exitClass"));

  SoDialogLabel* early = new SoDialogLabel;
  early->ref();
  EXPECT_TRUE(messages.contains("Can't construct a node of type SoDialogLabel until initClass() has been called"));
  EXPECT_TRUE(messages.contains("SO_NODE_CONSTRUCTOR"));
  EXPECT_EQ(early->getTypeId(), SoType::fromName("DialogLabel"));
  EXPECT_NE(early->getField("labelAlignment"), nullptr);
  early->unref();

  SoDialogPushButtonLauncher::exitClass();
  SoDialogPushButton::exitClass();
  SoDialogPushButtonLauncher::initClass();
  EXPECT_TRUE(messages.contains("SoDialogPushButtonLauncher initialized before parent class SoDialogPushButton"));
  EXPECT_FALSE(SoDialogPushButton::getClassTypeId().isBad());
  EXPECT_EQ(SoDialogPushButtonLauncher::getClassTypeId().getParent(), SoDialogPushButton::getClassTypeId());
}

// A node kept past the end of the library and touched then must not spoil
// the classes that the next start registers afresh. The toolkit never gives
// back a type's slot and has 32,767 of them: if each start made its types
// anew, a process would overflow the table after some seven hundred starts,
// so a start takes up the types of the last one, which the end in between
// withdrew. Dialog files name each class by its name less the prefix; each
// class comes after its parent.
TEST(Lifecycle, aRestartTakesUpTheTypesOfTheLastStartAndRegistersEveryClassAfresh)
{
  SoSeparator* kept = readScene(kLabelFile);
  ASSERT_NE(kept, nullptr);
  const int fieldCount = kept->getChild(0)->getFieldData()->getNumFields();
  const SoType labelType = SoDialogLabel::getClassTypeId();
  const SoType auditorType = SoDialogAuditor::getClassTypeId();
  const int typeCount = SoType::getNumTypes();

  ModuleRecorder recorder;
  ScInitModuleCmd::setInstance(&recorder);
  SoFormwright::finish();
  EXPECT_TRUE(SoDialogLabel::getClassTypeId().isBad());
  EXPECT_FALSE(SoType::fromName("DialogLabel").canCreateInstance());
  EXPECT_EQ(SoDialogLabel::getClassNodekitCatalog(), nullptr);
  {
    DebugMessages messages;
    EXPECT_EQ(kept->getChild(0)->getField("label"), nullptr);
  }
  SoFormwright::init();
  SoFormwright::init();
  SoFormwright::finish();
  ScInitModuleCmd::setInstance(nullptr);
  EXPECT_EQ(recorder.modules, std::vector<std::string>{"Formwright"});
  EXPECT_EQ(SoType::getNumTypes(), typeCount);
  EXPECT_EQ(SoDialogLabel::getClassTypeId(), labelType);
  EXPECT_EQ(SoDialogAuditor::getClassTypeId(), auditorType);

  SoSeparator* fresh = readScene(kLabelFile);
  ASSERT_NE(fresh, nullptr);
  EXPECT_EQ(fresh->getChild(0)->getFieldData()->getNumFields(), fieldCount);
  ASSERT_NE(SoDialogLabel::getClassNodekitCatalog(), nullptr);
  EXPECT_GE(SoDialogLabel::getClassNodekitCatalog()->getPartNumber("geomSwitch"), 0);
  const auto check = [](const char* className, SoType type) {
    ASSERT_FALSE(type.isBad()) << className;
    EXPECT_EQ(SoType::fromName(className + 2), type) << className;
    EXPECT_LT(type.getParent().getKey(), type.getKey()) << className << " registered before its parent";
    EXPECT_TRUE(type.canCreateInstance()) << className;
    auto* node = static_cast<SoFormwright*>(type.createInstance());
    node->ref();
    EXPECT_EQ(node->getTypeId(), type);
    node->unref();
  };
#define CHECK_REGISTERED(K) check(#K, K::getClassTypeId());
  SO_FORMWRIGHT_FOR_EACH_CLASS(CHECK_REGISTERED)
#undef CHECK_REGISTERED
  EXPECT_STREQ(SoFormwright::getClassTypeId().getParent().getName().getString(), "Dragger");
  EXPECT_EQ(SoDialogPushButtonLauncher::getClassTypeId().getParent(), SoDialogPushButton::getClassTypeId());
}

}
