#include "TestSupport.h"

#include <SoDialogGroup.h>
#include <SoDialogLabel.h>
#include <SoTopLevelDialog.h>

#include <Inventor/misc/SoChildList.h>

namespace {

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

}
