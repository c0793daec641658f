#include "TestSupport.h"

#include <SoDialogGroup.h>
#include <SoDialogLabel.h>
#include <SoTopLevelDialog.h>

#include <Inventor/misc/SoChildList.h>
#include <gtest/gtest.h>

#include <string>

namespace {

template <class Container>
struct ContainerName;
template <>
struct ContainerName<SoTopLevelDialog> {
  static constexpr const char* value = "SoTopLevelDialog";
};
template <>
struct ContainerName<SoDialogGroup> {
  static constexpr const char* value = "SoDialogGroup";
};

template <class Container>
class ChildList : public ::testing::Test {
protected:
  ChildList() : container(makeNode<Container>())
  {
    for (SoDialogLabel*& label : labels)
      label = makeNode<SoDialogLabel>();
    for (int i = 0; i < 3; ++i)
      container->addChild(labels[i]);
  }

  std::string source(const char* operation) const
  {
    return std::string(ContainerName<Container>::value) + "::" + operation;
  }

  // The children as the container reports them, by their index in `labels`.
  std::string order() const
  {
    std::string result;
    for (int i = 0; i < container->getNumChildren(); ++i)
      for (int j = 0; j < 5; ++j)
        if (container->getChild(i) == labels[j])
          result += char('0' + j);
    return result;
  }

  Container* container;
  SoDialogLabel* labels[5];
};

using Containers = ::testing::Types<SoTopLevelDialog, SoDialogGroup>;
TYPED_TEST_SUITE(ChildList, Containers);

TYPED_TEST(ChildList, childrenStandAheadOfTheKitsParts)
{
  SoChildList* all = this->container->getChildren();
  ASSERT_GT(all->getLength(), 3) << "the kit's own parts follow the children";
  EXPECT_EQ((*all)[0], this->labels[0]);
  EXPECT_EQ((*all)[2], this->labels[2]);
  EXPECT_EQ(this->labels[1]->getParent(), this->container);

  this->container->insertChild(this->labels[3], 0);
  this->container->insertChild(this->labels[4], 4);
  EXPECT_EQ(this->order(), "30124");
  EXPECT_EQ(this->container->findChild(this->labels[4]), 4);
  EXPECT_EQ((*all)[5]->isOfType(SoDialogLabel::getClassTypeId()), FALSE);
}

TYPED_TEST(ChildList, removeAndReplaceKeepTheCountInStep)
{
  this->container->removeChild(this->labels[1]);
  EXPECT_EQ(this->order(), "02");
  this->container->replaceChild(1, this->labels[3]);
  EXPECT_EQ(this->order(), "03");
  EXPECT_EQ(this->labels[3]->getParent(), this->container);
  this->container->replaceChild(this->labels[0], this->labels[4]);
  EXPECT_EQ(this->order(), "43");
  this->container->removeAllChildren();
  EXPECT_EQ(this->container->getNumChildren(), 0);
  EXPECT_GT(this->container->getChildren()->getLength(), 0) << "the kit's parts stay";
}

TYPED_TEST(ChildList, misuseIsReportedAndChangesNothing)
{
  DebugMessages messages;
  this->container->removeChild(5);
  EXPECT_TRUE(messages.contains(this->source("removeChild") + "(): Index 5 is out of range 0 - 3"));
  this->container->removeChild(-1);
  EXPECT_TRUE(messages.contains("Index -1 is out of range 0 - 3"));
  this->container->removeChild(this->labels[4]); // not a child: found at -1
  this->container->insertChild(this->labels[3], 4);
  EXPECT_TRUE(messages.contains(this->source("insertChild") + "(): Index 4 is out of range 0 - 3"));
  this->container->insertChild(nullptr, 0);
  this->container->addChild(nullptr);
  EXPECT_TRUE(messages.contains(this->source("addChild") + "(): NULL child node"));
  EXPECT_TRUE(messages.contains(this->source("insertChild") + "(): NULL child node"));
  this->container->replaceChild(3, this->labels[3]);
  this->container->replaceChild(0, nullptr);
  EXPECT_TRUE(messages.contains(this->source("replaceChild") + "(): Index 3 is out of range 0 - 3"));
  EXPECT_TRUE(messages.contains(this->source("replaceChild") + "(): NULL child node"));
  EXPECT_EQ(this->container->getChild(3), nullptr);
  EXPECT_TRUE(messages.contains(this->source("getChild") + "(): Index 3 is out of range 0 - 3; Be careful"));
  EXPECT_EQ(this->container->getChild(-1), nullptr);

  EXPECT_EQ(messages.count(), 10u);
  EXPECT_EQ(this->order(), "012");
  EXPECT_EQ(this->labels[3]->getParent(), nullptr);
}

}
