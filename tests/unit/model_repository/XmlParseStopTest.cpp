// The shared refusal of a document: first reason wins, the text is blanked.

#include <gtest/gtest.h>

#include <string>

#include "XmlParseStop.h"

using ZefModelRepositoryService::XmlParseStop;

TEST(XmlParseStopTest, NotStoppedUntilRefused) {
    std::string text = "<a/>";
    XmlParseStop stop(&text[0], text.size());
    EXPECT_FALSE(stop.stopped());
    EXPECT_EQ("", stop.reason());
    EXPECT_EQ("<a/>", text);
    EXPECT_EQ(text.data(), stop.document());
    EXPECT_EQ(4u, stop.size());
}

TEST(XmlParseStopTest, StopOverwritesTheWholeTextWithNulBytes) {
    std::string text = "<a><b/></a>";
    XmlParseStop stop(&text[0], text.size());
    stop.stop("too deep");
    EXPECT_TRUE(stop.stopped());
    EXPECT_EQ("too deep", stop.reason());
    EXPECT_EQ(std::string(11, '\0'), text);
}

TEST(XmlParseStopTest, FirstReasonIsKept) {
    std::string text = "<a/>";
    XmlParseStop stop(&text[0], text.size());
    stop.stop("first");
    stop.stop("second");
    EXPECT_EQ("first", stop.reason());
}

TEST(XmlParseStopTest, EmptyReasonStillStops) {
    std::string text;
    XmlParseStop stop(&text[0], 0);
    stop.stop("");
    EXPECT_TRUE(stop.stopped());
    EXPECT_EQ("refused", stop.reason());
}
