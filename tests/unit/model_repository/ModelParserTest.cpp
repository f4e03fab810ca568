// The parser's document frame, the mim level and the shared readers.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <Poco/DOM/Attr.h>
#include <Poco/DOM/Element.h>
#include <Poco/DOM/NamedNodeMap.h>
#include <Poco/DOM/Node.h>

#include "AttrWrapper.h"
#include "DdtWrapper.h"
#include "MocWrapper.h"
#include "MomWrapper.h"
#include "ParserTestSupport.h"
#include "ScratchDir.h"
#include "ZefException.h"

using namespace ZefModelRepositoryService;

namespace {

class ModelParserTest : public ZefTest::ParserTest {
protected:
    /// The first child node of an element loaded from text.
    Poco::XML::Node* firstChildOf(const std::string& xml) { return loadElement(xml)->firstChild(); }

    /// The attribute `name` of the element loaded from text.
    Poco::XML::Attr* attributeOf(const std::string& xml, const std::string& name) {
        return loadElement(xml)->getAttributeNode(name);
    }
};

// ---- parse and the "models" element ----------------------------------------

TEST_F(ModelParserTest, ModelsWithoutMimYieldsZeroAndAddsNothing) {
    EXPECT_EQ(0, parseXml("<models></models>"));
    EXPECT_TRUE(repository.getMomList().empty());
    EXPECT_TRUE(repository.getMocMap().empty());
    EXPECT_TRUE(logged("Parsing file '<models></models>'"));
    EXPECT_TRUE(logged(" >> Processing models: models."));
    EXPECT_TRUE(logged(" << Processed models: models."));
}

TEST_F(ModelParserTest, TwoModelsElementsRaiseWrongFormatOutsideParse) {
    try {
        parseXml("<root><models/><models/></root>");
        FAIL() << "no exception";
    } catch (const Zef::ZefInternalErrorException& e) {
        EXPECT_EQ("Configuration File does not have the correct format", e.getReason());
    }
    EXPECT_EQ(std::vector<std::string>{"Configuration File does not have the correct format"}, loggedErrors());
    EXPECT_TRUE(repository.getMessages().empty());
}

TEST_F(ModelParserTest, DocumentWithoutModelsRaisesWrongFormat) {
    EXPECT_THROW(parseXml("<mim name=\"M\" version=\"1\"/>"), Zef::ZefInternalErrorException);
    EXPECT_TRUE(repository.getMomList().empty());
}

TEST_F(ModelParserTest, ModelsElementsAreCountedAtAnyDepth) {
    // A second "models" deep inside the first makes two, as a list of the
    // document's elements by name holds them.
    try {
        parseXml("<models><mim name=\"M\" version=\"1\"><description><models/></description></mim></models>");
        FAIL() << "no exception";
    } catch (const Zef::ZefInternalErrorException& e) {
        EXPECT_EQ("Configuration File does not have the correct format", e.getReason());
    }
    EXPECT_EQ(std::vector<std::string>{"Configuration File does not have the correct format"}, loggedErrors());
    EXPECT_TRUE(repository.getMomList().empty());
}

TEST_F(ModelParserTest, TheOnlyModelsElementMayBeDeepInTheDocument) {
    EXPECT_EQ(0, parseXml("<root><!-- c --><a/><b><models><mim name=\"M\" version=\"1\"/></models></b></root>"));
    EXPECT_NE(nullptr, findMom("M~1"));
    EXPECT_TRUE(logged(" >> Processing models: models."));
}

TEST_F(ModelParserTest, MalformedDocumentEndsParseWithMinusOne) {
    EXPECT_EQ(-1, parseXml("<models><mim></models>"));
    EXPECT_EQ(std::vector<std::string>{"Error in the Model"}, loggedErrors());
    EXPECT_TRUE(repository.getMessages().empty());
}

TEST_F(ModelParserTest, ModelFileIsReadByNameAndKeptOnTheMom) {
    ScratchDir dir("parser");
    dir.write("model.xml", mimDocument("<class name=\"C\"/>"));
    EXPECT_EQ(0, parseXml(dir.file("model.xml")));
    MomWrapper* mom = findMom("M~1.0");
    ASSERT_NE(nullptr, mom);
    EXPECT_EQ(dir.file("model.xml"), mom->getFileName());
    EXPECT_NE(nullptr, findMoc("M~1.0~C"));
    EXPECT_TRUE(logged("Parsing file '" + dir.file("model.xml") + "'"));
}

TEST_F(ModelParserTest, ErrorOutsideStandaloneModeEndsParseWithMinusOne) {
    repository.setStandalone(false);
    parser.setStandalone(false);
    EXPECT_EQ(-1, parseXml("<models><mim name=\"M\" version=\"1.0\"><class name=\"ManagedObject\"/></mim>"
                           "<mim name=\"N\" version=\"1.0\"/></models>"));
    expectParserError("Invalid class name (ManagedObject) in the model (M~1.0), it is reserved for special case "
                      "when refering to any Managed Object");
    expectParserError("Mom not loaded:");
    // The rest of the file is not read: the second mim is missing.
    EXPECT_NE(nullptr, findMom("M~1.0"));
    EXPECT_EQ(nullptr, findMom("N~1.0"));
    EXPECT_FALSE(logged(" << Processed models: models."));
    const std::vector<std::string> errors = loggedErrors();
    ASSERT_EQ(3u, errors.size());
    EXPECT_EQ("Invalid class name (ManagedObject) in the model (M~1.0), it is reserved for special case when "
              "refering to any Managed Object",
              errors[0]);
    EXPECT_EQ("Mom not loaded:", errors[1]);
    EXPECT_EQ("Error in the Model", errors[2]);
}

TEST_F(ModelParserTest, ErrorInStandaloneModeIsCollectedAndParsingGoesOn) {
    EXPECT_EQ(0, parseXml("<models><mim name=\"M\" version=\"1.0\"><class name=\"ManagedObject\"/></mim>"
                          "<mim name=\"N\" version=\"1.0\"/></models>"));
    expectParserError("Invalid class name (ManagedObject) in the model (M~1.0), it is reserved for special case "
                      "when refering to any Managed Object");
    EXPECT_NE(nullptr, findMom("N~1.0"));
}

TEST_F(ModelParserTest, ModelsAttributesAreOnlyTraced) {
    EXPECT_EQ(0, parseXml("<models dtdDocNo=\"1\" dtdRevision=\"A\" colour=\"red\"/>"));
    EXPECT_TRUE(logged("Found attribute: dtdDocNo=1."));
    EXPECT_TRUE(logged("Ignoring unsupported attribute: dtdDocNo, 1"));
    EXPECT_TRUE(logged("Ignoring unsupported attribute: dtdRevision, A"));
    EXPECT_TRUE(logged("Found attribute: colour=red."));
    EXPECT_TRUE(logged("Ignoring unknown attribute: colour, red"));
}

TEST_F(ModelParserTest, ModelsChildrenOtherThanMimAreTraced) {
    EXPECT_EQ(0, parseXml("<models>one<!--note--><other/><?target data?>two</models>"));
    EXPECT_TRUE(logged("Temporary text: '' + 'one'."));
    EXPECT_TRUE(logged("Ignoring Comment: #comment."));
    EXPECT_TRUE(logged("Ignoring unknown element: other."));
    EXPECT_TRUE(logged("Ignoring XML items of type: 7; name: target; value: data."));
    EXPECT_TRUE(logged("Temporary text: 'one' + 'two'."));
    EXPECT_TRUE(logged("Text: 'onetwo'."));
}

TEST_F(ModelParserTest, SeveralMimsAreReadInDocumentOrder) {
    EXPECT_EQ(0, parseXml("<models><mim name=\"A\" version=\"1\"/><interMim/><mim name=\"B\" version=\"2\"/></models>"));
    ASSERT_EQ(2u, repository.getMomList().size());
    EXPECT_EQ("A~1", repository.getMomList().front()->getId());
    EXPECT_EQ("B~2", repository.getMomList().back()->getId());
    // An interMim is no unknown element: it has a handler of its own.
    EXPECT_FALSE(logged("Ignoring unknown element: interMim."));
}

// ---- the "mim" element ---------------------------------------------------------

TEST_F(ModelParserTest, MimAttributesAreStored) {
    parseMim("", "name=\"M\" version=\"1.0\" correction=\"2\" release=\"3\" author=\"Ann\" docNo=\"D1\" revision=\"A\" "
                 "namespace=\"urn:m\" namespacePrefix=\"m\" organization=\"Org\"");
    MomWrapper* mom = findMom("M~1.0");
    ASSERT_NE(nullptr, mom);
    const ZefOamSpiMom& record = mom->getStruct();
    EXPECT_STREQ("M", record.generalProperties.name);
    EXPECT_STREQ("1.0", record.version);
    EXPECT_STREQ("2", mom->getCorrection());
    EXPECT_STREQ("3", record.release);
    EXPECT_STREQ("Ann", record.author);
    EXPECT_STREQ("D1", record.docNo);
    EXPECT_STREQ("A", record.revision);
    EXPECT_STREQ("urn:m", record.namespaceURI);
    EXPECT_STREQ("m", record.namespacePrefix);
    EXPECT_STREQ("Org", record.organization);
    EXPECT_TRUE(logged("Found attribute: author=Ann."));
    EXPECT_TRUE(logged(" >> Processing mim: M."));
    EXPECT_TRUE(logged(" << Processed mim: M."));
}

TEST_F(ModelParserTest, DateAndContactAreUnsupportedOtherAttributesUnknown) {
    parseMim("", "name=\"M\" version=\"1.0\" date=\"2020-01-01\" contact=\"me\" colour=\"red\"");
    EXPECT_NE(nullptr, findMom("M~1.0"));
    EXPECT_TRUE(logged("Ignoring unsupported attribute: date, 2020-01-01"));
    EXPECT_TRUE(logged("Ignoring unsupported attribute: contact, me"));
    EXPECT_TRUE(logged("Ignoring unknown attribute: colour, red"));
    EXPECT_TRUE(loggedWarnings().empty());
}

TEST_F(ModelParserTest, TrimmedMimNameIsStoredWithWarning) {
    parseMim("", "name=\" x \" version=\"1.0\"");
    expectParserWarning("Node attribute value contains leading and/or trailing white space, trimming \" x \" to \"x\".");
    MomWrapper* mom = findMom("x~1.0");
    ASSERT_NE(nullptr, mom);
    EXPECT_STREQ("x", mom->getStruct().generalProperties.name);
    EXPECT_EQ(std::vector<std::string>{"Node attribute value contains leading and/or trailing white space, trimming "
                                       "\" x \" to \"x\"."},
              loggedWarnings());
}

TEST_F(ModelParserTest, RefusedMimValueIsWarnedWithAttributeAndNodeName) {
    parseMim("", "name=\"M\" version=\"1.0\" correction=\"\" release=\"\"");
    expectParserWarning("Failed to set correction of the mom (mim).");
    // The empty release is a value.
    ASSERT_NE(nullptr, findMom("M~1.0"));
    EXPECT_STREQ("", findMom("M~1.0")->getStruct().release);
}

TEST_F(ModelParserTest, MimWithoutVersionIsRefusedAndItsClassesAreNotRead) {
    parseMim("<class name=\"C\"/>", "name=\"M\"");
    expectRepositoryError("Incomplete Mom, could not add to the list.");
    EXPECT_TRUE(repository.getMomList().empty());
    EXPECT_TRUE(repository.getMocMap().empty());
    EXPECT_FALSE(logged(" >> Processing class"));
}

TEST_F(ModelParserTest, MimWithEmptyVersionIsWarnedAndRefused) {
    parseMim("", "name=\"M\" version=\"\"");
    expectParserWarning("Failed to set version of the mom (mim).");
    expectRepositoryError("Incomplete Mom, could not add to the list.");
    EXPECT_TRUE(repository.getMomList().empty());
}

TEST_F(ModelParserTest, DuplicateMomAcrossTwoParsesLeavesTheSecondUnread) {
    parseMim("<class name=\"First\"/>");
    parseMim("<class name=\"Second\"/>");
    expectRepositoryError("Mom (M~1.0) already added to the list.");
    EXPECT_EQ(1u, repository.getMomList().size());
    EXPECT_NE(nullptr, findMoc("M~1.0~First"));
    EXPECT_EQ(nullptr, findMoc("M~1.0~Second"));
}

TEST_F(ModelParserTest, MimClassIsRegistered) {
    parseMim("<class name=\"C\"/><class name=\"D\"/>");
    EXPECT_NE(nullptr, findMoc("M~1.0~C"));
    EXPECT_NE(nullptr, findMoc("M~1.0~D"));
    EXPECT_TRUE(findMom("M~1.0")->getHasMocs());
}

TEST_F(ModelParserTest, RefusedClassIsDroppedSilentlyByTheParser) {
    parseMim("<class name=\"C\"><attribute name=\"a\"/></class><class name=\"C\"><attribute name=\"b\"/></class>");
    expectRepositoryError("Moc (M~1.0~C) is already added to the map.");
    MocWrapper* moc = findMoc("M~1.0~C");
    ASSERT_NE(nullptr, moc);
    ASSERT_EQ(1u, moc->getAttrsList().size());
    EXPECT_EQ("a", moc->getAttrsList().front()->getName());
}

TEST_F(ModelParserTest, MimEnumIsRegistered) {
    parseMim("<enum name=\"E\"><enumMember name=\"A\"><value>1</value></enumMember></enum>");
    EXPECT_EQ(1u, repository.getEnumMap().count("M~1.0~E"));
}

TEST_F(ModelParserTest, MimDerivedDataTypeIsRegistered) {
    parseMim("<derivedDataType name=\"D\"><baseType><int8/></baseType></derivedDataType>");
    EXPECT_EQ(1u, repository.getDdtMap().count("M~1.0~D"));
}

TEST_F(ModelParserTest, MimStructIsRegistered) {
    parseMim("<struct name=\"S\"><structMember name=\"m\"><int8/></structMember></struct>");
    EXPECT_EQ(1u, repository.getStructMap().count("M~1.0~S"));
}

TEST_F(ModelParserTest, RefusedStructIsReportedByTheMim) {
    parseMim("<struct name=\"S\"><structMember name=\"m\"><int8/></structMember></struct>"
             "<struct name=\"S\"><structMember name=\"n\"><int8/></structMember></struct>");
    expectRepositoryError("The struct (M~1.0~S) is already added to the map.");
    expectParserError("Failed to process a struct for the mom(M~1.0).");
    EXPECT_EQ(1u, repository.getStructMap().size());
}

TEST_F(ModelParserTest, MimRelationshipIsRead) {
    parseMim("<class name=\"Root\"/><class name=\"Leaf\"/>"
             "<relationship name=\"RootHoldsLeaf\"><containment>"
             "<parent><hasClass name=\"Root\"/></parent>"
             "<child><hasClass name=\"Leaf\"/><cardinality><min>0</min><max>10</max></cardinality></child>"
             "</containment></relationship>");
    EXPECT_EQ(1u, repository.getContMap().count("M~1.0~RootHoldsLeaf"));
}

TEST_F(ModelParserTest, MimDescriptionIsStoredOnceWithWarningForTheSecond) {
    parseMim("<description>first</description><description>second</description>");
    expectParserWarning("The description of the mom (mim) is already set.");
    EXPECT_STREQ("first", findMom("M~1.0")->getStruct().generalProperties.description);
}

TEST_F(ModelParserTest, MimDomainExtensionIsStored) {
    parseMim("<domainExtension domain=\"QCIM\"><extension name=\"qcimMomName\" value=\"Q\"/></domainExtension>");
    const DomainExtensionWrapper* extension = findMom("M~1.0")->getDomainExtension("QCIM", "qcimMomName");
    ASSERT_NE(nullptr, extension);
    EXPECT_EQ("Q", extension->getValue());
}

TEST_F(ModelParserTest, MimDeprecated) {
    parseMim("<deprecated/>");
    EXPECT_EQ(ZefOamSpiStatusDeprecated, findMom("M~1.0")->getStruct().generalProperties.status);
    EXPECT_EQ("DEPRECATED", findMom("M~1.0")->getStatus3());
}

TEST_F(ModelParserTest, MimObsolete) {
    parseMim("<obsolete/>");
    EXPECT_EQ(ZefOamSpiStatusObsolete, findMom("M~1.0")->getStruct().generalProperties.status);
    EXPECT_EQ("OBSOLETE", findMom("M~1.0")->getStatus3());
}

TEST_F(ModelParserTest, MimPreliminarySetsOnlyTheStatusText) {
    parseMim("<preliminary/>");
    EXPECT_EQ(ZefOamSpiStatusCurrent, findMom("M~1.0")->getStruct().generalProperties.status);
    EXPECT_EQ("PRELIMINARY", findMom("M~1.0")->getStatus3());
}

TEST_F(ModelParserTest, MimUnsupportedChildrenAreTraced) {
    parseMim("<applicationTag>t</applicationTag><copyright>c</copyright><exception>e</exception>");
    EXPECT_TRUE(logged("Ignoring unsupported element: applicationTag."));
    EXPECT_TRUE(logged("Ignoring unsupported element: copyright."));
    EXPECT_TRUE(logged("Ignoring unsupported element: exception."));
    EXPECT_NE(nullptr, findMom("M~1.0"));
}

TEST_F(ModelParserTest, MimUnknownChildAndNonElementsAreTraced) {
    parseMim("<colour/>stray<!--note-->");
    EXPECT_TRUE(logged("Ignoring unknown element: colour."));
    EXPECT_TRUE(logged("Ignoring XML items of type: 3; name: #text; value: stray."));
    EXPECT_TRUE(logged("Ignoring comment: #comment."));
}

TEST_F(ModelParserTest, MimModelFeaturesAreKeptInOrder) {
    parseMim("<modelFeatures modelType=\"basic\" colour=\"red\">"
             "<modelFeature name=\"f1\" featureType=\"optional\" colour=\"blue\"><sub/></modelFeature>"
             "<other/><!--note-->"
             "<modelFeature name=\" f2\"/>"
             "</modelFeatures>");
    expectParserWarning("Node attribute value contains leading and/or trailing white space, trimming \" f2\" to \"f2\".");
    EXPECT_EQ((std::vector<std::string>{"f1", "f2"}), findMom("M~1.0")->getModelFeatures());
    EXPECT_TRUE(logged("Ignoring unsupported attribute: colour, red"));
    EXPECT_TRUE(logged("Ignoring unsupported attribute: colour, blue"));
    EXPECT_TRUE(logged("Ignoring unknown element: sub."));
    EXPECT_TRUE(logged("Ignoring comment: #comment."));
    // Other element children are passed over without a log line.
    EXPECT_EQ(0, logCount("Ignoring unknown element: other."));
    EXPECT_EQ(0, logCount("Ignoring unsupported element: other."));
}

TEST_F(ModelParserTest, ModelTypeIsReadThroughTheTrimmingCheck) {
    parseMim("<modelFeatures modelType=\"basic \"/>");
    expectParserWarning(
        "Node attribute value contains leading and/or trailing white space, trimming \"basic \" to \"basic\".");
}

// ---- shared readers ------------------------------------------------------------

TEST_F(ModelParserTest, GetPocoDataTrimsAndWarnsWithBothForms) {
    // The reader turns a tab inside an attribute value into a blank.
    EXPECT_EQ("x", parser.getPocoData(attributeOf("<a v=\"\tx  \"/>", "v")));
    expectParserWarning("Node attribute value contains leading and/or trailing white space, trimming \" x  \" to \"x\".");
    EXPECT_EQ("y z", parser.getPocoData(attributeOf("<a v=\"y z\"/>", "v")));
    EXPECT_EQ("", parser.getPocoData(nullptr));
}

TEST_F(ModelParserTest, GetPcdataConcatenatesTextWithoutTrimming) {
    Poco::XML::Element* element = loadElement("<d> one <!--c--><![CDATA[<two>]]><b/> three</d>");
    EXPECT_EQ(" one <two> three", parser.getPcdata(*element));
    EXPECT_TRUE(logged("Ignoring comment: #comment."));
    EXPECT_TRUE(logged("Ignoring XML items of type: 1; name: b; value: ."));
}

TEST_F(ModelParserTest, PcdataOfOneTextNodeIsThatNodesValue) {
    Poco::XML::Element* element = loadElement("<d> just text </d>");
    std::string joined = "untouched";
    const std::string& text = parser.pcdataOf(*element, joined);
    EXPECT_EQ(" just text ", text);
    EXPECT_EQ(&element->firstChild()->getNodeValue(), &text);
    EXPECT_EQ("untouched", joined);
    Poco::XML::Element* cdata = loadElement("<d><![CDATA[<x>]]></d>");
    EXPECT_EQ("<x>", parser.pcdataOf(*cdata, joined));
}

TEST_F(ModelParserTest, PcdataOfMixedOrEmptyContentIsJoinedAsGetPcdataJoinsIt) {
    Poco::XML::Element* element = loadElement("<d> one <!--c--><![CDATA[<two>]]><b/> three</d>");
    std::string joined;
    const std::string& text = parser.pcdataOf(*element, joined);
    EXPECT_EQ(" one <two> three", text);
    EXPECT_EQ(&joined, &text);
    EXPECT_TRUE(logged("Ignoring comment: #comment."));
    EXPECT_TRUE(logged("Ignoring XML items of type: 1; name: b; value: ."));
    EXPECT_EQ("", parser.pcdataOf(*loadElement("<d/>"), joined));
    EXPECT_EQ("", parser.pcdataOf(*loadElement("<d><b/></d>"), joined));
}

TEST_F(ModelParserTest, IgnoreUnknownElementLog) {
    Poco::XML::Node* node = firstChildOf("<a><b/><!--c--></a>");
    parser.ignoreUnknownElementLog(*node);
    parser.ignoreUnknownElementLog(*node->nextSibling());
    EXPECT_TRUE(logged("Ignoring unknown element: b."));
    EXPECT_TRUE(logged("Ignoring comment: #comment."));
    EXPECT_TRUE(loggedWarnings().empty());
}

TEST_F(ModelParserTest, IgnoreUnsupportedElementLog) {
    Poco::XML::Node* node = firstChildOf("<a><b/><!--c--></a>");
    parser.ignoreUnsupportedElementLog(*node);
    parser.ignoreUnsupportedElementLog(*node->nextSibling());
    EXPECT_TRUE(logged("Ignoring unsupported element: b."));
    EXPECT_TRUE(logged("Ignoring comment: #comment."));
}

TEST_F(ModelParserTest, IgnoreUnsupportedElementTypeLog) {
    Poco::XML::Node* node = firstChildOf("<a>text<!--c--><?pi value?></a>");
    parser.ignoreUnsupportedElementTypeLog(*node);
    parser.ignoreUnsupportedElementTypeLog(*node->nextSibling());
    parser.ignoreUnsupportedElementTypeLog(*node->nextSibling()->nextSibling());
    EXPECT_TRUE(logged("Ignoring XML items of type: 3; name: #text; value: text."));
    EXPECT_TRUE(logged("Ignoring comment: #comment."));
    EXPECT_TRUE(logged("Ignoring XML items of type: 7; name: pi; value: value."));
}

TEST_F(ModelParserTest, IgnoreAttributeLogs) {
    Poco::XML::Element* element = loadElement("<a one=\"1\" two=\"2\"/>");
    parser.ignoreUnknownAttributeLog(*element->getAttributeNode("one"));
    parser.ignoreUnsupportedAttributeLog(*element->getAttributeNode("two"));
    EXPECT_TRUE(logged("Ignoring unknown attribute: one, 1"));
    EXPECT_TRUE(logged("Ignoring unsupported attribute: two, 2"));
}

TEST_F(ModelParserTest, IgnoreAllAttributesLogsEachAsUnknown) {
    parser.ignoreAllAttributes(*loadElement("<a one=\"1\" two=\" 2\"/>"));
    EXPECT_TRUE(logged("Ignoring unknown attribute: one, 1"));
    EXPECT_TRUE(logged("Ignoring unknown attribute: two,  2"));
}

TEST_F(ModelParserTest, AttributesOfTracesEveryAttribute) {
    const ZefModelRepositoryService::AttributeList attributes =
        parser.attributesOf(*loadElement("<a one=\"1\" two=\"2\"/>"));
    ASSERT_EQ(2u, attributes.size());
    EXPECT_EQ("one", attributes.begin()[0]->name());
    EXPECT_EQ("two", attributes.begin()[1]->name());
    EXPECT_TRUE(logged("Found attribute: one=1."));
    EXPECT_TRUE(logged("Found attribute: two=2."));
    EXPECT_EQ(0u, parser.attributesOf(*firstChildOf("<a>text</a>")).size());
}

TEST_F(ModelParserTest, AttributesOfListsEveryAttributeInTheDomsOrderWhereverTheNameStands) {
    const char* const elements[] = {
        "<a name=\"n\" one=\"1\" two=\"2\"/>", "<a one=\"1\" name=\"n\" two=\"2\"/>",
        "<a one=\"1\" two=\"2\" name=\"n\"/>", "<a one=\"1\" two=\"2\" three=\"3\"/>"};
    for (const char* element : elements) {
        Poco::XML::Node* node = loadElement(element);
        Poco::AutoPtr<Poco::XML::NamedNodeMap> map(node->attributes());
        const ZefModelRepositoryService::AttributeList attributes = parser.attributesOf(*node);
        ASSERT_EQ(map->length(), attributes.size()) << element;
        for (unsigned long i = 0; i < map->length(); ++i) {
            EXPECT_EQ(map->item(i), attributes.begin()[i]) << element << " #" << i;
        }
    }
}

TEST_F(ModelParserTest, AttributesOfAnElementWithManyAttributesKeepsThemAll) {
    std::string element = "<a";
    for (int i = 0; i < 300; ++i) {
        element += " x" + std::to_string(i) + "=\"" + std::to_string(i) + "\"";
        if (i == 150) {
            element += " name=\"n\"";
        }
    }
    element += "/>";
    const ZefModelRepositoryService::AttributeList attributes = parser.attributesOf(*loadElement(element));
    ASSERT_EQ(301u, attributes.size());
    EXPECT_EQ("x0", attributes.begin()[0]->name());
    EXPECT_EQ("name", attributes.begin()[151]->name());
    EXPECT_EQ("x299", attributes.begin()[300]->name());
}

TEST_F(ModelParserTest, CheckThrowExceptionRecordsAndLogsErrorsAndWarnings) {
    findingsHaveRules = false;
    parser.checkThrowException(3, "bad %s %d", "thing", 7);
    parser.checkThrowException(4, "odd %s", "thing");
    EXPECT_EQ((std::vector<std::string>{"ERROR, ModelParser: bad thing 7", "WARNING, ModelParser: odd thing"}),
              takeMessages());
    EXPECT_EQ(std::vector<std::string>{"bad thing 7"}, loggedErrors());
    EXPECT_EQ(std::vector<std::string>{"odd thing"}, loggedWarnings());
}

TEST_F(ModelParserTest, CheckThrowExceptionThrowsErrorsOutsideStandaloneMode) {
    findingsHaveRules = false;
    repository.setStandalone(false);
    parser.checkThrowException(4, "only a warning");
    expectParserWarning("only a warning");
    try {
        parser.checkThrowException(3, "an error");
        FAIL() << "no exception";
    } catch (const Zef::ZefException& e) {
        EXPECT_EQ("ModelParser: invalid model", e.getReason());
    }
    expectParserError("an error");
}

TEST_F(ModelParserTest, ReportSetterResultChoosesTheFormatByResult) {
    findingsHaveRules = false;
    parser.reportSetterResult(ZefOk, "set %s", "failed %s", "a");
    parser.reportSetterResult(ZefAlreadyExists, "set %s", "failed %s", "b");
    parser.reportSetterResult(ZefInvalidArgument, "set %s", "failed %s", "c");
    EXPECT_EQ((std::vector<std::string>{"WARNING, ModelParser: set b", "WARNING, ModelParser: failed c"}),
              takeMessages());
}

// ---- data type elements ----------------------------------------------------------

TEST_F(ModelParserTest, InitTypesReturnsTheOnlyElementChild) {
    Poco::XML::Element* dataType = loadElement("<dataType><!--c--><int8/></dataType>");
    Poco::XML::Node* type = parser.initTypes(*dataType);
    ASSERT_NE(nullptr, type);
    EXPECT_EQ("int8", type->nodeName());
    EXPECT_TRUE(logged(" >> Processing datatype initialization: dataType."));
    EXPECT_TRUE(logged(" << Processed datatype initialization: dataType."));
    EXPECT_TRUE(logged("Ignoring comment: #comment."));
}

TEST_F(ModelParserTest, InitTypesWarnsOncePerExtraChildAndUsesTheFirst) {
    Poco::XML::Node* type = parser.initTypes(*loadElement("<dataType><int8/><string/><boolean/></dataType>"));
    ASSERT_NE(nullptr, type);
    EXPECT_EQ("int8", type->nodeName());
    const std::string warning =
        "int8 can only define one data type at a time -- considering only one, ignoring the rest.";
    expectParserWarning(warning);
    expectParserWarning(warning);
}

TEST_F(ModelParserTest, InitTypesWithoutElementChildIsAnError) {
    EXPECT_EQ(nullptr, parser.initTypes(*loadElement("<returnType>text</returnType>")));
    expectParserError("Could not find element in datatype: returnType.");
    EXPECT_TRUE(logged("Ignoring XML items of type: 3; name: #text; value: text."));
}

TEST_F(ModelParserTest, BaseTypeWithTwoElementChildrenUsesTheFirstAndWarnsOncePerExtra) {
    DdtWrapper ddt;
    parser.handleBaseType(*loadElement("<baseType><int16/><string/><boolean/></baseType>"), ddt);
    const std::string warning =
        "int16 can only define one data type at a time -- considering only one, ignoring the rest.";
    expectParserWarning(warning);
    expectParserWarning(warning);
    EXPECT_EQ(ZefMrType3Int16, ddt.getType());
    EXPECT_TRUE(logged(" >> handling base type: baseType."));
    EXPECT_TRUE(logged(" << handled base type: baseType."));
}

TEST_F(ModelParserTest, BaseTypeWithoutElementChildIsAnError) {
    DdtWrapper ddt;
    parser.handleBaseType(*loadElement("<baseType/>"), ddt);
    expectParserError("Could not find element in datatype: baseType.");
    EXPECT_EQ(ZefMrType3NotSet, ddt.getType());
}

TEST_F(ModelParserTest, BaseTypeSetsThePrimitiveCode) {
    const std::vector<std::pair<std::string, ZefOamSpiMrType_3>> primitives = {
        {"int8", ZefMrType3Int8},     {"int16", ZefMrType3Int16},   {"int32", ZefMrType3Int32},
        {"int64", ZefMrType3Int64},   {"uint8", ZefMrType3UInt8},   {"uint16", ZefMrType3UInt16},
        {"uint32", ZefMrType3UInt32}, {"uint64", ZefMrType3UInt64}, {"string", ZefMrType3String},
        {"boolean", ZefMrType3Bool},  {"double", ZefMrType3Double}};
    for (const auto& primitive : primitives) {
        DdtWrapper ddt;
        parser.handleBaseType(*loadElement("<baseType><" + primitive.first + "/></baseType>"), ddt);
        EXPECT_EQ(primitive.second, ddt.getType()) << primitive.first;
    }
}

TEST_F(ModelParserTest, BaseTypeOfNonPrimitiveIsUnsupported) {
    for (const std::string name : {"octet", "char", "float", "long", "longlong", "short", "wstring", "sequence",
                                   "enumRef", "moRef", "structRef", "derivedDataTypeRef"}) {
        DdtWrapper ddt;
        parser.handleBaseType(*loadElement("<baseType><" + name + "/></baseType>"), ddt);
        EXPECT_EQ(ZefMrType3NotSet, ddt.getType()) << name;
        EXPECT_TRUE(logged("Ignoring unsupported element: " + name + ".")) << name;
    }
}

TEST_F(ModelParserTest, BaseTypeOfUnknownNameIsUnknown) {
    DdtWrapper ddt;
    parser.handleBaseType(*loadElement("<baseType><colour/></baseType>"), ddt);
    EXPECT_EQ(ZefMrType3NotSet, ddt.getType());
    EXPECT_TRUE(logged("Ignoring unknown element: colour."));
}

TEST_F(ModelParserTest, PrimitiveValueCheckOfIntegers) {
    const struct {
        ZefOamSpiMrType_3 type;
        const char* value;
        ZefReturnT result;
    } cases[] = {
        {ZefMrType3Int8, "300", ZefInvalidArgument},
        {ZefMrType3Int8, "-128", ZefOk},
        {ZefMrType3Int8, "127", ZefOk},
        {ZefMrType3Int8, " 5", ZefInvalidArgument},
        {ZefMrType3Int16, "32768", ZefInvalidArgument},
        {ZefMrType3Int16, "-32768", ZefOk},
        {ZefMrType3Int32, "2147483648", ZefInvalidArgument},
        {ZefMrType3Int32, "5x", ZefInvalidArgument},
        {ZefMrType3Int32, "", ZefInvalidArgument},
        {ZefMrType3Int64, "-9223372036854775808", ZefOk},
        {ZefMrType3Int64, "9223372036854775808", ZefInvalidArgument},
        {ZefMrType3UInt8, "-1", ZefInvalidArgument},
        {ZefMrType3UInt8, "255", ZefOk},
        {ZefMrType3UInt8, "256", ZefInvalidArgument},
        {ZefMrType3UInt16, "65536", ZefInvalidArgument},
        {ZefMrType3UInt32, "4294967295", ZefOk},
        {ZefMrType3UInt32, "4294967296", ZefInvalidArgument},
        {ZefMrType3UInt64, "18446744073709551615", ZefOk},
        {ZefMrType3UInt64, "-1", ZefInvalidArgument},
        {ZefMrType3Double, "1.5", ZefOk},
        {ZefMrType3Double, "1.5e400", ZefInvalidArgument},
        {ZefMrType3Double, "abc", ZefInvalidArgument},
        {ZefMrType3String, " anything ", ZefOk},
        {ZefMrType3Enum, "x", ZefOk},
    };
    for (const auto& item : cases) {
        std::string value = item.value;
        EXPECT_EQ(item.result, parser.ifPrimitiveValueCheckElseIgnore(value, item.type))
            << item.type << " " << item.value;
        EXPECT_EQ(item.value, value);
    }
}

TEST_F(ModelParserTest, PrimitiveValueCheckOfBooleansLowerCasesInPlace) {
    std::string value = "TRUE";
    EXPECT_EQ(ZefOk, parser.ifPrimitiveValueCheckElseIgnore(value, ZefMrType3Bool));
    EXPECT_EQ("true", value);
    value = "False";
    EXPECT_EQ(ZefOk, parser.ifPrimitiveValueCheckElseIgnore(value, ZefMrType3Bool));
    EXPECT_EQ("false", value);
    value = "1";
    EXPECT_EQ(ZefOk, parser.ifPrimitiveValueCheckElseIgnore(value, ZefMrType3Bool));
    value = "0";
    EXPECT_EQ(ZefOk, parser.ifPrimitiveValueCheckElseIgnore(value, ZefMrType3Bool));
    value = "yes";
    EXPECT_EQ(ZefInvalidArgument, parser.ifPrimitiveValueCheckElseIgnore(value, ZefMrType3Bool));
}

TEST_F(ModelParserTest, CommonUnsupportedDatatypesAreExactlySeven) {
    for (const char* name : {"octet", "char", "float", "long", "longlong", "short", "wstring"}) {
        EXPECT_TRUE(parser.isCommonUnsupportedDatatype(name)) << name;
    }
    for (const char* name : {"int8", "string", "sequence", "Octet", "", "double"}) {
        EXPECT_FALSE(parser.isCommonUnsupportedDatatype(name)) << name;
    }
}

TEST_F(ModelParserTest, TypeCodesOfNames) {
    EXPECT_EQ(ZefMrType3Bool, ModelParser::primitiveTypeCode("boolean"));
    EXPECT_EQ(ZefMrType3Double, ModelParser::primitiveTypeCode("double"));
    EXPECT_EQ(ZefMrType3NotSet, ModelParser::primitiveTypeCode("void"));
    EXPECT_EQ(ZefMrType3Reference, ModelParser::referenceTypeCode("moRef"));
    EXPECT_EQ(ZefMrType3Enum, ModelParser::referenceTypeCode("enumRef"));
    EXPECT_EQ(ZefMrType3Derived, ModelParser::referenceTypeCode("derivedDataTypeRef"));
    EXPECT_EQ(ZefMrType3Struct, ModelParser::referenceTypeCode("structRef"));
    EXPECT_EQ(ZefMrType3NotSet, ModelParser::referenceTypeCode("struct"));
}

} // namespace
