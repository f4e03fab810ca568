#include <gtest/gtest.h>

#include "EnumWrapper.h"
#include "MocWrapper.h"
#include "RefId.h"
#include "ResolvedReferences.h"

using namespace ZefModelRepositoryService;

namespace {

RefId reference(const std::string& name, const std::string& momName, const std::string& momVersion)
{
    RefId ref;
    ref.setRefName(name);
    ref.setRefMomName(momName);
    ref.setRefMomVersion(momVersion);
    return ref;
}

} // namespace

TEST(ResolvedReferencesTest, NothingIsKnownAtFirst)
{
    const ResolvedReferences references;
    EXPECT_EQ(nullptr, references.find(ResolvedReferences::Kind::Moc, reference("C", "m", "1.0")));
}

TEST(ResolvedReferencesTest, AnotherReferenceOfTheSameTextsFindsTheTarget)
{
    ResolvedReferences references;
    MocWrapper moc;
    references.add(ResolvedReferences::Kind::Moc, reference("C", "m", "1.0"), &moc);
    EXPECT_EQ(&moc, references.find(ResolvedReferences::Kind::Moc, reference("C", "m", "1.0")));
}

TEST(ResolvedReferencesTest, EveryTextAndTheKindCount)
{
    ResolvedReferences references;
    MocWrapper moc;
    EnumWrapper enumeration;
    references.add(ResolvedReferences::Kind::Moc, reference("C", "m", "1.0"), &moc);
    references.add(ResolvedReferences::Kind::Enum, reference("C", "m", "1.0"), &enumeration);
    EXPECT_EQ(&enumeration, references.find(ResolvedReferences::Kind::Enum, reference("C", "m", "1.0")));
    EXPECT_EQ(nullptr, references.find(ResolvedReferences::Kind::Ddt, reference("C", "m", "1.0")));
    EXPECT_EQ(nullptr, references.find(ResolvedReferences::Kind::Moc, reference("D", "m", "1.0")));
    EXPECT_EQ(nullptr, references.find(ResolvedReferences::Kind::Moc, reference("C", "n", "1.0")));
    EXPECT_EQ(nullptr, references.find(ResolvedReferences::Kind::Moc, reference("C", "m", "2.0")));
    EXPECT_EQ(nullptr, references.find(ResolvedReferences::Kind::Moc, reference("C", "m", "")));
}

TEST(ResolvedReferencesTest, TheFirstTargetOfAReferenceStays)
{
    ResolvedReferences references;
    MocWrapper first;
    MocWrapper second;
    references.add(ResolvedReferences::Kind::Moc, reference("C", "m", "1.0"), &first);
    references.add(ResolvedReferences::Kind::Moc, reference("C", "m", "1.0"), &second);
    EXPECT_EQ(&first, references.find(ResolvedReferences::Kind::Moc, reference("C", "m", "1.0")));
}

TEST(ResolvedReferencesTest, PlainMomNamesAreKnownByTheirPooledText)
{
    ResolvedReferences references;
    const RefId ref = reference("C", "m", "1.0");
    EXPECT_FALSE(references.isPlainMomName(ref.getRefMomName()));
    references.addPlainMomName(ref.getRefMomName());
    EXPECT_TRUE(references.isPlainMomName(reference("D", "m", "2.0").getRefMomName()));
    EXPECT_FALSE(references.isPlainMomName(reference("C", "n", "1.0").getRefMomName()));
}
