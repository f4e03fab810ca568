#include <gtest/gtest.h>

#include <type_traits>

#include "RefId.h"

using namespace ZefModelRepositoryService;

TEST(RefIdTest, KeyIsMomNameVersionAndName)
{
    RefId ref;
    ref.setRefName("C");
    ref.setRefMomName("m");
    ref.setRefMomVersion("1.0");
    EXPECT_EQ("C", ref.getRefName());
    EXPECT_EQ("m", ref.getRefMomName());
    EXPECT_EQ("1.0", ref.getRefMomVersion());
    EXPECT_EQ("m~1.0~C", ref.getRefId());
}

TEST(RefIdTest, EmptyPartsGiveEmptySegments)
{
    RefId ref;
    EXPECT_EQ("~~", ref.getRefId());
    ref.setRefName("E");
    EXPECT_EQ("~~E", ref.getRefId());
    ref.setRefMomVersion("2");
    EXPECT_EQ("~2~E", ref.getRefId());
}

TEST(RefIdTest, LaterValuesReplaceEarlierOnes)
{
    RefId ref;
    ref.setRefMomName("qcimName");
    ref.setRefMomName("m");
    EXPECT_EQ("m", ref.getRefMomName());
    static_assert(std::has_virtual_destructor<RefId>::value, "RefId is polymorphic");
}

TEST(RefIdTest, NewReferenceReadsEmptyParts)
{
    const RefId ref;
    EXPECT_EQ("", ref.getRefName());
    EXPECT_EQ("", ref.getRefMomName());
    EXPECT_EQ("", ref.getRefMomVersion());
}

TEST(RefIdTest, CopyHoldsItsOwnParts)
{
    RefId ref;
    ref.setRefName("C");
    ref.setRefMomName("m");
    RefId copy(ref);
    EXPECT_EQ("m~~C", copy.getRefId());
    copy.setRefName("D");
    EXPECT_EQ("m~~C", ref.getRefId());
    EXPECT_EQ("m~~D", copy.getRefId());

    RefId empty;
    copy = empty;
    EXPECT_EQ("~~", copy.getRefId());
    empty = ref;
    EXPECT_EQ("m~~C", empty.getRefId());
}

TEST(RefIdTest, ReferencesToOneTargetShareTheirTexts)
{
    RefId first;
    first.setRefName("Unit");
    first.setRefMomName("Mom");
    first.setRefMomVersion("2");
    RefId second;
    second.setRefMomVersion("2");
    second.setRefMomName("Mom");
    second.setRefName("Unit");
    EXPECT_EQ(first.getRefId(), second.getRefId());
    EXPECT_EQ(&first.getRefName(), &second.getRefName());
    EXPECT_EQ(&first.getRefMomName(), &second.getRefMomName());
    second.setRefName("Other");
    EXPECT_EQ("Mom~2~Unit", first.getRefId());
    EXPECT_EQ("Mom~2~Other", second.getRefId());
}

TEST(RefIdTest, MomOfAnotherReferenceIsTakenWithItsTexts)
{
    RefId source;
    source.setRefName("S");
    source.setRefMomName("m");
    source.setRefMomVersion("1.0");
    RefId ref;
    ref.setRefName("C");
    ref.setRefMomFrom(source);
    EXPECT_EQ("C", ref.getRefName());
    EXPECT_EQ(&source.getRefMomName(), &ref.getRefMomName());
    EXPECT_EQ(&source.getRefMomVersion(), &ref.getRefMomVersion());
    EXPECT_EQ("m~1.0~C", ref.getRefId());
}
