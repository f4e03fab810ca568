// The document holder: which files it reads, and the documents it refuses
// before they cost more than their limits.

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <string>
#include <vector>

#include <Poco/DOM/Document.h>
#include <Poco/DOM/Element.h>
#include <Poco/DOM/Node.h>
#include <Poco/DOM/NodeList.h>

#include "LogCapture.h"
#include "ScopedEnv.h"
#include "ScratchDir.h"
#include "ZefConfiguration.h"
#include "ZefException.h"

namespace {

class ZefConfigurationTest : public ::testing::Test {
protected:
    /// Loads `name` and returns the reason of the exception it raised, or
    /// "no exception".
    std::string loadFailure(const std::string& name) {
        try {
            holder.load(name);
        } catch (const Zef::ZefException& e) {
            return e.getReason();
        }
        return "no exception";
    }

    static std::string nested(int depth) {
        std::string text;
        for (int i = 0; i < depth; ++i) {
            text += "<e>";
        }
        for (int i = 0; i < depth; ++i) {
            text += "</e>";
        }
        return text;
    }

    static std::string laughs() {
        std::string text = "<?xml version=\"1.0\"?>\n<!DOCTYPE models [\n<!ENTITY lol0 \"lol\">\n";
        for (int i = 1; i < 10; ++i) {
            text += "<!ENTITY lol" + std::to_string(i) + " \"";
            for (int j = 0; j < 10; ++j) {
                text += "&lol" + std::to_string(i - 1) + ";";
            }
            text += "\">\n";
        }
        return text + "]>\n<models>&lol9;</models>\n";
    }

    ZefTest::LogCapture log;
    ScopedEnv fileSize = ScopedEnv::unset("ZEF_VALIDATOR_MAX_FILE_SIZE");
    ScopedEnv depth = ScopedEnv::unset("ZEF_VALIDATOR_MAX_DEPTH");
    ScopedEnv expansion = ScopedEnv::unset("ZEF_VALIDATOR_MAX_ENTITY_EXPANSION");
    ScratchDir dir{"zefconfiguration"};
    Zef::ZefConfiguration holder;
};

using Clock = std::chrono::steady_clock;

// ---- files --------------------------------------------------------------------------

TEST_F(ZefConfigurationTest, RegularFileIsReadAndParsedFromMemory) {
    // A colon would make the name a URI to the XML reader.
    dir.write("a:b.xml", "<models><mim name=\"M\"/></models>");
    holder.load(dir.file("a:b.xml"));
    ASSERT_NE(nullptr, holder.getDocument());
    EXPECT_EQ(1u, holder.getElementsByTagName("mim")->length());
}

TEST_F(ZefConfigurationTest, NameOfNoFileIsParsedAsText) {
    holder.load("<models><mim/><mim/></models>");
    EXPECT_EQ(2u, holder.getElementsByTagName("mim")->length());
}

TEST_F(ZefConfigurationTest, WhiteSpaceBetweenElementsIsDropped) {
    holder.load("<models>\n  <mim/>\n  text\n</models>");
    Poco::XML::Node* models = holder.getElementsByTagName("models")->item(0);
    ASSERT_NE(nullptr, models->firstChild());
    EXPECT_EQ("mim", models->firstChild()->nodeName());
    EXPECT_EQ(Poco::XML::Node::TEXT_NODE, models->lastChild()->nodeType());
}

TEST_F(ZefConfigurationTest, FifoIsNotAFileAndNeverBlocks) {
    ASSERT_EQ(0, mkfifo(dir.file("pipe.xml").c_str(), 0600));
    const Clock::time_point start = Clock::now();
    EXPECT_EQ(dir.file("pipe.xml") + " is not a file", loadFailure(dir.file("pipe.xml")));
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(2));
    EXPECT_EQ(nullptr, holder.getDocument());
}

TEST_F(ZefConfigurationTest, DirectoryNamedLikeAModelIsNotAFile) {
    ASSERT_EQ(0, mkdir(dir.file("x.xml").c_str(), 0700));
    EXPECT_EQ(dir.file("x.xml") + " is not a file", loadFailure(dir.file("x.xml")));
}

TEST_F(ZefConfigurationTest, SymbolicLinkLoopIsNotReadable) {
    ASSERT_EQ(0, symlink("b.xml", dir.file("a.xml").c_str()));
    ASSERT_EQ(0, symlink("a.xml", dir.file("b.xml").c_str()));
    EXPECT_EQ(dir.file("a.xml") + " is not readable", loadFailure(dir.file("a.xml")));
}

TEST_F(ZefConfigurationTest, OverLongPathIsTakenAsTextAndFailsAsMalformed) {
    std::string path = dir.path();
    while (path.size() < 5000) {
        path += "/very-long-folder-name";
    }
    path += "/model.xml";
    // The path begins with "/", which no document may.
    EXPECT_EQ("SAXParseException: Invalid token in line 1 column 0", loadFailure(path));
}

// ---- size -----------------------------------------------------------------------------

TEST_F(ZefConfigurationTest, FileUpToTheSizeLimitIsRead) {
    ScopedEnv limit("ZEF_VALIDATOR_MAX_FILE_SIZE", "10");
    dir.write("ten.xml", "<models/> ");
    holder.load(dir.file("ten.xml"));
    EXPECT_NE(nullptr, holder.getDocument());
}

TEST_F(ZefConfigurationTest, FileAboveTheSizeLimitIsRefusedWithALogLine) {
    ScopedEnv limit("ZEF_VALIDATOR_MAX_FILE_SIZE", "10");
    dir.write("eleven.xml", "<models/>  ");
    const std::string name = dir.file("eleven.xml");
    EXPECT_EQ(name + " refused: larger than 10 bytes (ZEF_VALIDATOR_MAX_FILE_SIZE)", loadFailure(name));
    EXPECT_EQ(std::vector<std::string>{"Model file " + name +
                                       " refused: larger than 10 bytes (ZEF_VALIDATOR_MAX_FILE_SIZE)."},
              log.errors());
    EXPECT_EQ(nullptr, holder.getDocument());
}

// ---- depth ------------------------------------------------------------------------------

TEST_F(ZefConfigurationTest, NestingUpToTheDepthLimitIsRead) {
    holder.load("<models>" + nested(9999) + "</models>");
    EXPECT_EQ(9999u, holder.getElementsByTagName("e")->length());
}

TEST_F(ZefConfigurationTest, NestingBeyondTheDepthLimitIsRefused) {
    dir.write("deep.xml", "<models>" + nested(10000) + "</models>");
    EXPECT_EQ(dir.file("deep.xml") + " refused: elements nested deeper than 10000 levels (ZEF_VALIDATOR_MAX_DEPTH)",
              loadFailure(dir.file("deep.xml")));
    EXPECT_EQ(nullptr, holder.getDocument());
}

TEST_F(ZefConfigurationTest, DepthLimitComesFromTheEnvironment) {
    ScopedEnv limit("ZEF_VALIDATOR_MAX_DEPTH", "3");
    holder.load("<models><a><b/></a></models>");
    dir.write("deep.xml", "<models><a><b><c/></b></a></models>");
    EXPECT_EQ(dir.file("deep.xml") + " refused: elements nested deeper than 3 levels (ZEF_VALIDATOR_MAX_DEPTH)",
              loadFailure(dir.file("deep.xml")));
    EXPECT_EQ(std::vector<std::string>{"Model file " + dir.file("deep.xml") +
                                       " refused: elements nested deeper than 3 levels (ZEF_VALIDATOR_MAX_DEPTH)."},
              log.errors());
}

TEST_F(ZefConfigurationTest, VeryDeepDocumentIsRefusedQuickly) {
    // The DOM code recurses: built in full, this tree would overflow the stack.
    dir.write("deep.xml", "<models>" + nested(300000) + "</models>");
    const Clock::time_point start = Clock::now();
    EXPECT_NE("no exception", loadFailure(dir.file("deep.xml")));
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(5));
}

TEST_F(ZefConfigurationTest, UnclosedDeepDocumentIsRefusedQuickly) {
    std::string text = "<models>";
    for (int i = 0; i < 300000; ++i) {
        text += "<e>";
    }
    dir.write("open.xml", text);
    EXPECT_EQ(dir.file("open.xml") + " refused: elements nested deeper than 10000 levels (ZEF_VALIDATOR_MAX_DEPTH)",
              loadFailure(dir.file("open.xml")));
}

// ---- names ------------------------------------------------------------------------------

TEST_F(ZefConfigurationTest, DocumentWithAsManyNamesAsThePoolHoldsIsRead) {
    std::string text = "<models>";
    for (int i = 1; i < 509; ++i) {
        text += "<n" + std::to_string(i) + "/>";
    }
    holder.load(text + "</models>");
    EXPECT_NE(nullptr, holder.getDocument());
}

TEST_F(ZefConfigurationTest, DocumentWithMoreNamesThanThePoolHoldsIsRefused) {
    std::string text = "<models a=\"1\">";
    for (int i = 1; i < 509; ++i) {
        text += "<n" + std::to_string(i) + "/>";
    }
    dir.write("names.xml", text + "</models>");
    EXPECT_EQ(dir.file("names.xml") +
                  " refused: more than 509 distinct element and attribute names, more than a DOM document holds",
              loadFailure(dir.file("names.xml")));
    EXPECT_EQ(std::vector<std::string>{"Model file " + dir.file("names.xml") +
                                       " refused: more than 509 distinct element and attribute names, more than "
                                       "a DOM document holds."},
              log.errors());
}

// ---- entities ----------------------------------------------------------------------------

TEST_F(ZefConfigurationTest, SmallEntitiesAreExpanded) {
    holder.load("<!DOCTYPE models [<!ENTITY who \"the team\">]><models author=\"&who;\">&who;</models>");
    Poco::XML::Element* models = static_cast<Poco::XML::Element*>(holder.getElementsByTagName("models")->item(0));
    EXPECT_EQ("the team", models->getAttribute("author"));
    EXPECT_EQ("the team", models->innerText());
}

TEST_F(ZefConfigurationTest, BillionLaughsIsRefusedBeforeItExpands) {
    dir.write("laughs.xml", laughs());
    const Clock::time_point start = Clock::now();
    EXPECT_EQ(dir.file("laughs.xml") +
                  " refused: entity 'lol7' expands to more than 16777216 bytes (ZEF_VALIDATOR_MAX_ENTITY_EXPANSION)",
              loadFailure(dir.file("laughs.xml")));
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(5));
}

TEST_F(ZefConfigurationTest, QuadraticBlowupInTextAndAttributesIsRefused) {
    const std::string declaration = "<!DOCTYPE models [<!ENTITY x \"" + std::string(50000, 'A') + "\">]>";
    std::string references;
    for (int i = 0; i < 1000; ++i) {
        references += "&x;";
    }
    dir.write("text.xml", declaration + "<models>" + references + "</models>");
    dir.write("attribute.xml", declaration + "<models a=\"" + references + "\"/>");
    ScopedEnv limit("ZEF_VALIDATOR_MAX_ENTITY_EXPANSION", "10000000");
    for (const char* name : {"text.xml", "attribute.xml"}) {
        EXPECT_EQ(dir.file(name) + " refused: entity references expand to more than 10000000 bytes "
                                   "(ZEF_VALIDATOR_MAX_ENTITY_EXPANSION)",
                  loadFailure(dir.file(name)));
    }
}

TEST_F(ZefConfigurationTest, AttributeDefaultCopiedIntoEveryElementIsRefused) {
    // No reference in the elements at all: the default brings the entity.
    std::string text = "<!DOCTYPE models [<!ENTITY x \"" + std::string(10000, 'A') +
                       "\"><!ATTLIST e v CDATA \"&x;\">]><models>";
    for (int i = 0; i < 2000; ++i) {
        text += "<e/>";
    }
    dir.write("defaults.xml", text + "</models>");
    ScopedEnv limit("ZEF_VALIDATOR_MAX_ENTITY_EXPANSION", "1000000");
    EXPECT_EQ(dir.file("defaults.xml") + " refused: entity references expand to more than 1000000 bytes "
                                         "(ZEF_VALIDATOR_MAX_ENTITY_EXPANSION)",
              loadFailure(dir.file("defaults.xml")));
}

TEST_F(ZefConfigurationTest, ExternalEntityIsNeverRead) {
    dir.write("secret.txt", "SECRET");
    const std::string text = "<!DOCTYPE models [<!ENTITY ext SYSTEM \"" + dir.file("secret.txt") +
                             "\">]><models>&ext;</models>";
    const std::string reason = loadFailure(text);
    EXPECT_EQ(0u, reason.find("SAXParseException: Error in processing external entity reference")) << reason;
    EXPECT_EQ(std::string::npos, reason.find("SECRET"));
}

TEST_F(ZefConfigurationTest, ExternalDocumentTypeIsNeverRead) {
    dir.write("secret.dtd", "<!ENTITY leak \"SECRET\">");
    holder.load("<!DOCTYPE models SYSTEM \"" + dir.file("secret.dtd") + "\"><models>&leak;</models>");
    Poco::XML::Element* models = static_cast<Poco::XML::Element*>(holder.getElementsByTagName("models")->item(0));
    EXPECT_EQ("", models->innerText());
}

// ---- the tally of one name -----------------------------------------------------------

TEST_F(ZefConfigurationTest, WithoutATallyNothingIsCounted) {
    holder.load("<models><mim/></models>");
    EXPECT_EQ(0u, holder.talliedCount());
    EXPECT_EQ(nullptr, holder.firstTallied());
}

TEST_F(ZefConfigurationTest, TheTalliedDocumentElementIsFoundAtOnce) {
    holder.tally("models");
    holder.load("<models><mim/><models/></models>");
    EXPECT_EQ(2u, holder.talliedCount());
    EXPECT_EQ(holder.getDocument()->documentElement(), holder.firstTallied());
}

TEST_F(ZefConfigurationTest, TalliedElementsBelowTheRootAreCountedAndTheFirstInDocumentOrderFound) {
    holder.tally("models");
    holder.load("<root><a><b><models id=\"1\"/></b></a><models id=\"2\"><models id=\"3\"/></models></root>");
    EXPECT_EQ(3u, holder.talliedCount());
    Poco::AutoPtr<Poco::XML::NodeList> listed = holder.getElementsByTagName("models");
    EXPECT_EQ(listed->length(), holder.talliedCount());
    ASSERT_NE(nullptr, holder.firstTallied());
    EXPECT_EQ(listed->item(0), holder.firstTallied());
    EXPECT_EQ("1", static_cast<Poco::XML::Element*>(holder.firstTallied())->getAttribute("id"));
}

TEST_F(ZefConfigurationTest, TheTallyCountsQualifiedNamesAsTheDomNamesThem) {
    holder.tally("models");
    holder.load("<r xmlns:p=\"urn:p\"><p:models/><models xmlns=\"urn:q\"/><Models/></r>");
    EXPECT_EQ(1u, holder.talliedCount());
    EXPECT_EQ(holder.getElementsByTagName("models")->item(0), holder.firstTallied());
}

TEST_F(ZefConfigurationTest, EachLoadTalliesItsOwnDocument) {
    holder.tally("models");
    holder.load("<models><models/></models>");
    EXPECT_EQ(2u, holder.talliedCount());
    holder.load("<other/>");
    EXPECT_EQ(0u, holder.talliedCount());
    EXPECT_EQ(nullptr, holder.firstTallied());
    EXPECT_NE("", loadFailure("<models><unclosed></models>"));
    EXPECT_EQ(0u, holder.talliedCount());
    EXPECT_EQ(nullptr, holder.firstTallied());
}

} // namespace
