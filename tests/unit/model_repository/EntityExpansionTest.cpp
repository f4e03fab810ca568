// What the entity declarations of a document, and the references to them,
// may cost once expanded.

#include <gtest/gtest.h>

#include <string>

#include "EntityExpansion.h"

using ZefModelRepositoryService::EntityExpansion;

namespace {

std::string check(EntityExpansion& entities, const std::string& document) {
    return entities.check(document.data(), document.size());
}

TEST(EntityExpansionTest, ExpandedSizeAddsTheReferencedEntities) {
    EntityExpansion entities(1000);
    entities.declare("a", "xxxxx");
    entities.declare("b", "&a;-&a;");
    entities.declare("c", "&b;&b;&#38;");
    EXPECT_EQ("", check(entities, ""));
    EXPECT_EQ(5u, entities.expandedSize("a"));
    EXPECT_EQ(17u, entities.expandedSize("b"));
    EXPECT_EQ(45u, entities.expandedSize("c"));
    EXPECT_TRUE(entities.expandedSize("unknown") == 0);
}

TEST(EntityExpansionTest, ReferenceToALaterDeclarationCounts) {
    EntityExpansion entities(1000);
    entities.declare("first", "&second;&second;");
    entities.declare("second", "0123456789");
    EXPECT_EQ("", check(entities, ""));
    EXPECT_EQ(36u, entities.expandedSize("first"));
}

TEST(EntityExpansionTest, BillionLaughsIsRefusedAtTheFirstEntityPastTheLimit) {
    EntityExpansion entities(1000000);
    entities.declare("lol0", "lol");
    for (int i = 1; i < 10; ++i) {
        std::string value;
        for (int j = 0; j < 10; ++j) {
            value += "&lol" + std::to_string(i - 1) + ";";
        }
        entities.declare("lol" + std::to_string(i), value);
    }
    EXPECT_EQ("entity 'lol6' expands to more than 1000000 bytes", check(entities, "<a>&lol9;</a>"));
}

TEST(EntityExpansionTest, EntityThatRefersToItselfIsRefused) {
    EntityExpansion entities(1000);
    entities.declare("a", "&b;");
    entities.declare("b", "x&a;");
    EXPECT_EQ("entity 'a' expands to more than 1000 bytes", check(entities, ""));
}

TEST(EntityExpansionTest, LongChainsAreSizedWithoutRecursion) {
    EntityExpansion entities(10000000);
    entities.declare("e0", "x");
    for (int i = 1; i < 200000; ++i) {
        entities.declare("e" + std::to_string(i), "&e" + std::to_string(i - 1) + ";");
    }
    EXPECT_EQ("", check(entities, "&e199999;"));
    // "x" and the text of every reference on the way down.
    EXPECT_EQ(1688882u, entities.expandedSize("e199999"));
}

TEST(EntityExpansionTest, QuadraticBlowupIsRefusedByItsReferences) {
    EntityExpansion entities(100000);
    entities.declare("x", std::string(1000, 'A'));
    std::string document = "<a>";
    for (int i = 0; i < 100; ++i) {
        document += "&x;";
    }
    EXPECT_EQ("", check(entities, document + "</a>"));
    EntityExpansion more(100000);
    more.declare("x", std::string(1000, 'A'));
    EXPECT_EQ("entity references expand to more than 100000 bytes", check(more, document + "&x;</a>"));
}

TEST(EntityExpansionTest, PredefinedReferencesCostOneCharacterReferencesNothing) {
    EntityExpansion entities(15);
    entities.declare("x", "0123456789");
    EXPECT_EQ("", check(entities, "&x;&amp;&lt;&gt;&apos;&quot;&#38;&#x26;&#60;& ;&;"));
    EntityExpansion more(15);
    more.declare("x", "0123456789");
    EXPECT_EQ("entity references expand to more than 15 bytes", check(more, "&x;&amp;&lt;&gt;&apos;&quot;&quot;"));
}

TEST(EntityExpansionTest, UndeclaredNameCountsAsTheLargestEntity) {
    // In another encoding a declared name is spelled differently.
    EntityExpansion entities(15);
    entities.declare("x", "0123456789");
    EXPECT_EQ("entity references expand to more than 15 bytes", check(entities, "&\xe9;&x;"));
}

TEST(EntityExpansionTest, EveryAmpersandOfAUtf16DocumentCountsAsTheLargestEntity) {
    EntityExpansion entities(15);
    entities.declare("x", "0123456789");
    const std::string document("<\0&\0a\0;\0&\0", 10);
    EXPECT_EQ("entity references expand to more than 15 bytes", check(entities, document));
}

} // namespace
