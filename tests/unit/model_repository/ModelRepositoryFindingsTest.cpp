// The description kept beside each finding of the message list: its rule,
// the model file and place of the element it is about, and the identity key
// it names. The model files are real files, read through the parser.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "FindingRuleCheck.h"
#include "FindingRules.h"
#include "If2Manager.h"
#include "LogCapture.h"
#include "ModelParser.h"
#include "ModelRepository.h"
#include "ScratchDir.h"

using namespace ZefModelRepositoryService;

namespace {

class ModelRepositoryFindingsTest : public ::testing::Test {
protected:
    ModelRepositoryFindingsTest() : parser(repository) {}

    void SetUp() override {
        repository.setStandalone(true);
        parser.setStandalone(true);
    }

    void TearDown() override { If2Manager::instance().cleanup(); }

    /// Writes a model file of one "mim" (with namespace and prefix) holding
    /// `content` and returns its path.
    std::string modelFile(const std::string& name, const std::string& mim, const std::string& content) {
        scratch.write(name, "<models>\n<mim name=\"" + mim + "\" version=\"1.0\" namespace=\"urn:" + mim +
                                "\" namespacePrefix=\"" + mim + "\">\n" + content + "</mim>\n</models>\n");
        return scratch.file(name);
    }

    void load(const std::vector<std::string>& files) {
        for (const std::string& file : files) {
            EXPECT_EQ(0, parser.parse(file));
        }
        repository.compileModel();
        repository.validateModel();
    }

    /// The finding whose message is `message`; fails when there is none.
    const Finding& finding(const std::string& message) {
        for (const Finding& found : repository.getFindings()) {
            if (found.message == message) {
                return found;
            }
        }
        ADD_FAILURE() << "no finding \"" << message << "\"";
        static const Finding none;
        return none;
    }

    static std::string fileOf(const Finding& finding) {
        return finding.location.isKnown() ? *finding.location.file : std::string("(none)");
    }

    /// "line:column" of a finding.
    static std::string placeOf(const Finding& finding) {
        return std::to_string(finding.location.line) + ":" + std::to_string(finding.location.column);
    }

    static std::string ruleOf(const Finding& finding) { return finding.rule != nullptr ? finding.rule->id : "(none)"; }

    ZefTest::LogCapture log;
    ScratchDir scratch{"findings"};
    ModelRepository repository;
    ModelParser parser;
};

const char* const kRootClass = "<class name=\"Root\"><root/></class>\n";

TEST_F(ModelRepositoryFindingsTest, EachMessageHasItsFindingInTheSameOrder) {
    load({modelFile("a.xml", "A", std::string(kRootClass) + "<class name=\"Lost\"/>\n<class name=\"Gone\"/>\n")});
    const std::list<std::string>& messages = repository.getMessages();
    ASSERT_EQ(messages.size(), repository.getFindings().size());
    auto message = messages.begin();
    for (const Finding& found : repository.getFindings()) {
        const std::string severityWord = found.severity == FindingSeverity::Error ? "ERROR, " : "WARNING, ";
        EXPECT_EQ(*message++, severityWord + found.reporter + ": " + found.message);
    }
    ZefTest::expectEveryFindingHasItsRule(repository);
}

TEST_F(ModelRepositoryFindingsTest, AParserFindingNamesTheFileBeingReadAndItsRule) {
    const std::string a = modelFile("a.xml", "A", std::string(kRootClass) + "<class name=\"Root2\"><root/><attribute/></class>\n");
    load({a});
    const Finding& found = finding("Attribute name is not set: attribute.");
    EXPECT_EQ("attribute-name-missing", ruleOf(found));
    EXPECT_EQ(FindingSeverity::Error, found.severity);
    EXPECT_EQ("ModelParser", found.reporter);
    EXPECT_EQ(a, fileOf(found));
    EXPECT_EQ("4:28", placeOf(found));
    EXPECT_EQ("", found.key);
}

TEST_F(ModelRepositoryFindingsTest, AValidationFindingPointsAtTheRecordItNames) {
    const std::string a = modelFile("a.xml", "A", kRootClass);
    const std::string b = modelFile("b.xml", "B", std::string(kRootClass) + "<class name=\"Lost\"/>\n");
    load({a, b});
    const Finding& found = finding("Moc (B~1.0~Lost) has no parent.");
    EXPECT_EQ("moc-no-parent", ruleOf(found));
    EXPECT_EQ("ModelRepository", found.reporter);
    EXPECT_EQ(b, fileOf(found));
    EXPECT_EQ("4:1", placeOf(found));
    EXPECT_EQ("B~1.0~Lost", found.key);
    ZefTest::expectEveryFindingHasItsRule(repository);
}

TEST_F(ModelRepositoryFindingsTest, ACompilationFindingPointsAtTheElementThatHoldsTheReference) {
    const std::string a = modelFile("a.xml", "A", kRootClass);
    const std::string b = modelFile(
        "b.xml", "B",
        "<class name=\"Thing\"><root/><attribute name=\"id\"><key/><dataType><string/></dataType></attribute>\n"
        "<attribute name=\"peer\"><dataType><moRef name=\"Nowhere\"><mimName>A</mimName></moRef></dataType>"
        "</attribute></class>\n");
    load({a, b});
    const Finding& found = finding("Attribute (B~1.0~Thing~peer) refers to a Moc (A~1.0~Nowhere) which could not be found.");
    EXPECT_EQ("attribute-moc-ref-not-found", ruleOf(found));
    EXPECT_EQ(b, fileOf(found));
    EXPECT_EQ("4:1", placeOf(found));
    EXPECT_EQ("B~1.0~Thing~peer", found.key);
    ZefTest::expectEveryFindingHasItsRule(repository);
}

TEST_F(ModelRepositoryFindingsTest, ARefusedDuplicateIsNamedByItsOwnElement) {
    const std::string a = modelFile("a.xml", "A", kRootClass);
    scratch.write("b.xml", "<models>\n<mim name=\"A\" version=\"1.0\"/>\n</models>\n");
    load({a, scratch.file("b.xml")});
    const Finding& found = finding("Mom (A~1.0) already added to the list.");
    EXPECT_EQ("mom-duplicate", ruleOf(found));
    EXPECT_EQ(scratch.file("b.xml"), fileOf(found));
    EXPECT_EQ("2:1", placeOf(found));
    EXPECT_EQ("A~1.0", found.key);
    ZefTest::expectEveryFindingHasItsRule(repository);
}

TEST_F(ModelRepositoryFindingsTest, AFindingAboutAWholeMomPointsAtItsMim) {
    scratch.write("a.xml", "<models>\n<mim name=\"A\" version=\"1.0\">\n<class name=\"Root\"><root/></class>\n"
                           "</mim>\n</models>\n");
    load({scratch.file("a.xml")});
    const Finding& found = finding("Mom A~1.0 not correct: The namespace is not set. The namespacePrefix is not set.");
    EXPECT_EQ("mom-namespace-and-prefix-missing", ruleOf(found));
    EXPECT_EQ(scratch.file("a.xml"), fileOf(found));
    EXPECT_EQ("2:1", placeOf(found));
    EXPECT_EQ("A~1.0", found.key);
    ZefTest::expectEveryFindingHasItsRule(repository);
}

TEST_F(ModelRepositoryFindingsTest, AFindingAboutAMemberKeyedByItsNameAlonePointsAtTheMemberBeingChecked) {
    const std::string a = modelFile("a.xml", "A", std::string(kRootClass) +
                                                      "<struct name=\"Pair\"><structMember name=\"colour\">"
                                                      "<enumRef name=\"Nope\"/></structMember></struct>\n");
    load({a});
    const Finding& compiled = finding("StructMember (colour) refers to a Enum (A~1.0~Nope) which could not be found.");
    EXPECT_EQ("member-enum-ref-not-found", ruleOf(compiled));
    EXPECT_EQ(a, fileOf(compiled));
    EXPECT_EQ("4:21", placeOf(compiled));
    EXPECT_EQ("colour", compiled.key);
    const Finding& validated = finding("Struct Member (colour) has memberType ENUM but pointer to enumDatatype is not set.");
    EXPECT_EQ("struct-member-enum-without-enum", ruleOf(validated));
    EXPECT_EQ(a, fileOf(validated));
    EXPECT_EQ("4:21", placeOf(validated));
    EXPECT_EQ("colour", validated.key);
    ZefTest::expectEveryFindingHasItsRule(repository);
}

TEST_F(ModelRepositoryFindingsTest, AFindingWithoutAnElementHasNoPlace) {
    // Without any MOM the finding is about the model as a whole.
    repository.validateModel();
    ASSERT_EQ(1u, repository.getFindings().size());
    const Finding& found = repository.getFindings().front();
    EXPECT_EQ("empty-model", ruleOf(found));
    EXPECT_FALSE(found.location.isKnown());
    EXPECT_EQ("", found.key);
}

TEST_F(ModelRepositoryFindingsTest, ATextOfNoRuleIsKeptWithoutARule) {
    struct Reporter {
        static void report(ModelRepository& repository, const char* format, ...) {
            va_list args;
            va_start(args, format);
            repository.checkThrowException("Somebody", 4, format, args);
            va_end(args);
        }
    };
    Reporter::report(repository, "Nothing like %s.", "this");
    ASSERT_EQ(1u, repository.getFindings().size());
    EXPECT_EQ(nullptr, repository.getFindings().front().rule);
    EXPECT_EQ("Somebody", repository.getFindings().front().reporter);
    EXPECT_EQ("Nothing like this.", repository.getFindings().front().message);
    EXPECT_EQ("WARNING, Somebody: Nothing like this.", repository.getMessages().front());
}

TEST_F(ModelRepositoryFindingsTest, TheModelFilesReadAreKeptInTheOrderRead) {
    const std::string a = modelFile("a.xml", "A", kRootClass);
    const std::string b = modelFile("b.xml", "B", kRootClass);
    load({b, a, b});
    const std::vector<const std::string*>& read = repository.getModelFilesRead();
    ASSERT_EQ(2u, read.size());
    EXPECT_EQ(b, *read[0]);
    EXPECT_EQ(a, *read[1]);
    EXPECT_EQ(read[0], repository.noteModelFile(b));
}

} // namespace
