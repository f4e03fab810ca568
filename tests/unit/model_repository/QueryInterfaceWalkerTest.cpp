// A reader written in plain C (QueryInterfaceWalker.c, built by the C
// compiler against the public headers only) reads every kind of element of
// the hand-built model through the version 4 tables, starting at the entry
// table.

#include <gtest/gtest.h>

#include <string>

#include "HandBuiltModel.h"
#include "QueryInterfaceWalker.h"

namespace {

class QueryInterfaceWalkerTest : public ZefTest::HandBuiltModelTest {};

} // namespace

TEST_F(QueryInterfaceWalkerTest, AReaderInCReachesEveryElementThroughVersion4)
{
    model.fileMomIn(*service->getModelRepository());
    char text[8192];
    ASSERT_EQ(0, zefTestWalkModel(&if4(), text, sizeof(text)));
    EXPECT_EQ("mom M 1.0 feature f1 feature f2 ext QCIM/qcimMomName=QM\n"
              " class Root root 1 readOnly 0 constraint (null)\n"
              "  attribute count key 1 unit pieces type 13 [1..1] derived Counter base 3 resolution 2"
              " range 1..5 range 10..20\n"
              "  attribute color key 0 unit (null) type 12 [1..1] enum Color RED=1 GREEN=70000\n"
              "  attribute pair key 0 unit (null) type 14 [1..1] struct Pair exclusive 1 first:1 second:9\n"
              "  attribute ref key 0 unit (null) type 11 [0..32767] ref Child\n"
              "  attribute ratio key 0 unit (null) type 13 [1..1] derived Ratio base 16"
              " resolution 0.25 (0.25) range 0.5..1.5\n"
              "  attribute name key 0 unit (null) type 13 [1..1] default abc default xyz derived Name base 9"
              " pattern [a-z]+ exception \"lower case only\" passphrase 1 length 1..8\n"
              "  bidirectional RootChild first toChild(Child) 1..3 reserving 1"
              " second toRoot(Root) 0..32767 reserving 0\n"
              "  unidirectional RootRef external 1 end refEnd(Child) 0..32767 reserving 0\n"
              "  contains Root_to_Child [0..5]\n"
              " class Child root 0 readOnly 1 constraint x > 0\n"
              "  action reset returns type 10 [1..1]\n"
              "   parameter force type 10 [1..1]\n"
              "   parameter level type 5 [1..1]\n"
              "  bidirectional RootChild first toChild(Child) 1..3 reserving 1"
              " second toRoot(Root) 0..32767 reserving 0\n",
              std::string(text));
}

TEST_F(QueryInterfaceWalkerTest, TheSameReaderIsToldThatTheServiceIsNotStarted)
{
    model.fileMomIn(*service->getModelRepository());
    stopService();
    char text[64];
    EXPECT_EQ(ZefNotStarted, zefTestWalkModel(&if4(), text, sizeof(text)));
    EXPECT_EQ("", std::string(text));
}
