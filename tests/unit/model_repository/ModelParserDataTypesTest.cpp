// The parser's enumerations, derived data types, structs and domain
// extensions, read from inline documents.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "DdtWrapper.h"
#include "EnumWrapper.h"
#include "LitWrapper.h"
#include "MomWrapper.h"
#include "ParserTestSupport.h"
#include "StructMemberWrapper.h"
#include "StructWrapper.h"
#include "ValueRangeWrapper.h"

using namespace ZefModelRepositoryService;

namespace {

class ModelParserDataTypesTest : public ZefTest::ParserTest {
protected:
    EnumWrapper* findEnum(const std::string& key) {
        const auto found = repository.getEnumMap().find(key);
        return found == repository.getEnumMap().end() ? nullptr : found->second;
    }

    DdtWrapper* findDdt(const std::string& key) {
        const auto found = repository.getDdtMap().find(key);
        return found == repository.getDdtMap().end() ? nullptr : found->second;
    }

    StructWrapper* findStruct(const std::string& key) {
        const auto found = repository.getStructMap().find(key);
        return found == repository.getStructMap().end() ? nullptr : found->second;
    }

    /// The literals of an enum as "name=value" texts, in order.
    static std::vector<std::string> literalsOf(const EnumWrapper& enumeration) {
        std::vector<std::string> result;
        for (const LitWrapper* literal : enumeration.getLiteralsList()) {
            result.push_back(literal->getName() + "=" + std::to_string(literal->getValue()));
        }
        return result;
    }

    /// Ranges as "min..max" texts (integer bounds), in order.
    static std::vector<std::string> rangesOf(const DdtWrapper::RangeList& ranges) {
        std::vector<std::string> result;
        for (const ValueRangeWrapper* range : ranges) {
            result.push_back(std::to_string(range->getStruct().min) + ".." + std::to_string(range->getStruct().max));
        }
        return result;
    }

    /// Parses one derived type "D" with the given content and returns it.
    DdtWrapper* parseDdt(const std::string& content) {
        parseMim("<derivedDataType name=\"D\">" + content + "</derivedDataType>");
        return findDdt("M~1.0~D");
    }

    /// Parses one struct "S" with the given content; null when refused.
    StructWrapper* parseStruct(const std::string& content) {
        parseMim("<struct name=\"S\">" + content + "</struct>");
        return findStruct("M~1.0~S");
    }

    /// Parses struct "S" with one member "m" of the given content.
    StructMemberWrapper* parseMember(const std::string& content) {
        StructWrapper* structure = parseStruct("<structMember name=\"m\">" + content + "</structMember>");
        if (structure == nullptr || structure->getStructMemberList().empty()) {
            return nullptr;
        }
        return structure->getStructMemberListFront();
    }
};

// ---- enumerations ----------------------------------------------------------

TEST_F(ModelParserDataTypesTest, EnumWithLiteralsIsRegistered) {
    parseMim("<enum name=\"Color\"><description>colours</description>"
             "<enumMember name=\"RED\"><value>1</value></enumMember>"
             "<enumMember name=\"GREEN\"><value>-2</value></enumMember></enum>");
    EnumWrapper* color = findEnum("M~1.0~Color");
    ASSERT_NE(nullptr, color);
    EXPECT_EQ(std::vector<std::string>({"RED=1", "GREEN=-2"}), literalsOf(*color));
    EXPECT_STREQ("colours", color->getStruct().generalProperties.description);
    EXPECT_EQ(&findMom("M~1.0")->getStruct(), color->getStruct().mom);
    EXPECT_TRUE(logged(" >> Processing enumeration: Color."));
    EXPECT_TRUE(logged(" << Processed enumeration: Color."));
    EXPECT_TRUE(logged(" >> Processing enumMember: RED."));
    EXPECT_TRUE(logged(" << Processed enumMember: GREEN."));
    EXPECT_TRUE(logged("Found attribute: name=Color."));
}

TEST_F(ModelParserDataTypesTest, EnumIgnoresUnknownAttributesAndElements) {
    parseMim("<enum name=\"E\" size=\"3\"><applicationTag>t</applicationTag><colour/>"
             "<enumMember name=\"A\"><value>0</value></enumMember></enum>");
    ASSERT_NE(nullptr, findEnum("M~1.0~E"));
    EXPECT_TRUE(logged("Ignoring unknown attribute: size, 3"));
    EXPECT_TRUE(logged("Ignoring unsupported element: applicationTag."));
    EXPECT_TRUE(logged("Ignoring unknown element: colour."));
}

TEST_F(ModelParserDataTypesTest, EnumKeepsItsDomainExtensions) {
    parseMim("<enum name=\"E\"><domainExtension domain=\"QCIM\"><extension name=\"k\" value=\"v\"/>"
             "</domainExtension><enumMember name=\"A\"><value>0</value></enumMember></enum>");
    EnumWrapper* enumeration = findEnum("M~1.0~E");
    ASSERT_NE(nullptr, enumeration);
    const DomainExtensionWrapper* extension = enumeration->getDomainExtension("QCIM", "k");
    ASSERT_NE(nullptr, extension);
    EXPECT_EQ("v", extension->getValue());
}

TEST_F(ModelParserDataTypesTest, EnumWithoutNameIsRefusedByTheRepository) {
    parseMim("<enum><enumMember name=\"A\"><value>0</value></enumMember></enum>");
    EXPECT_TRUE(repository.getEnumMap().empty());
    expectRepositoryError("Incomplete Enum, could not add to the map.");
}

TEST_F(ModelParserDataTypesTest, EnumWithEmptyNameWarnsAndIsRefused) {
    parseMim("<enum name=\"\"><enumMember name=\"A\"><value>0</value></enumMember></enum>");
    EXPECT_TRUE(repository.getEnumMap().empty());
    expectParserWarning("Failed to set name of the enum ().");
    expectRepositoryError("Incomplete Enum, could not add to the map.");
}

TEST_F(ModelParserDataTypesTest, LiteralValueBeyondSixteenBitsIsNotSet) {
    parseMim("<enum name=\"E\"><enumMember name=\"BIG\"><value>40000</value></enumMember>"
             "<enumMember name=\"OK\"><value>7</value></enumMember></enum>");
    EnumWrapper* enumeration = findEnum("M~1.0~E");
    ASSERT_NE(nullptr, enumeration);
    EXPECT_EQ(std::vector<std::string>{"OK=7"}, literalsOf(*enumeration));
    expectParserWarning("The value of literal (BIG) is more than 16-bit integer and therefore is not set.");
    // A literal without value is refused by its enum.
    expectParserError("Could not add literal: BIG.");
    EXPECT_TRUE(logged("Value of the literal (BIG) is not set"));
}

TEST_F(ModelParserDataTypesTest, SecondLiteralOfTheSameNameIsRefused) {
    parseMim("<enum name=\"E\"><enumMember name=\"A\"><value>1</value></enumMember>"
             "<enumMember name=\"A\"><value>2</value></enumMember></enum>");
    EnumWrapper* enumeration = findEnum("M~1.0~E");
    ASSERT_NE(nullptr, enumeration);
    EXPECT_EQ(std::vector<std::string>{"A=1"}, literalsOf(*enumeration));
    expectParserError("Could not add literal, it already exist (A).");
}

TEST_F(ModelParserDataTypesTest, SecondLiteralOfTheSameValueIsRefused) {
    parseMim("<enum name=\"E\"><enumMember name=\"A\"><value>1</value></enumMember>"
             "<enumMember name=\"B\"><value>1</value></enumMember></enum>");
    EnumWrapper* enumeration = findEnum("M~1.0~E");
    ASSERT_NE(nullptr, enumeration);
    EXPECT_EQ(std::vector<std::string>{"A=1"}, literalsOf(*enumeration));
    expectParserError("Could not add literal: B.");
}

TEST_F(ModelParserDataTypesTest, LiteralWithoutNameIsDropped) {
    parseMim("<enum name=\"E\"><enumMember><value>1</value></enumMember>"
             "<enumMember name=\"B\"><value>2</value></enumMember></enum>");
    EnumWrapper* enumeration = findEnum("M~1.0~E");
    ASSERT_NE(nullptr, enumeration);
    EXPECT_EQ(std::vector<std::string>{"B=2"}, literalsOf(*enumeration));
    expectParserError("Literal name is not set: enumMember.");
}

TEST_F(ModelParserDataTypesTest, LiteralWithUnconvertibleValueKeepsNoValue) {
    parseMim("<enum name=\"E\"><enumMember name=\"A\"><value>one</value></enumMember></enum>");
    EXPECT_TRUE(findEnum("M~1.0~E")->getLiteralsList().empty());
    expectParserWarning("The value of literal (A) is more than 16-bit integer and therefore is not set.");
    expectParserError("Could not add literal: A.");
}

TEST_F(ModelParserDataTypesTest, LiteralReadsItsGeneralProperties) {
    parseMim("<enum name=\"E\"><enumMember name=\"A\" colour=\"red\"><value>3</value>"
             "<description>d</description><specification>s</specification><filter>f</filter>"
             "<deprecated/><domainExtension domain=\"X\"><extension name=\"n\" value=\"w\"/></domainExtension>"
             "</enumMember></enum>");
    EnumWrapper* enumeration = findEnum("M~1.0~E");
    ASSERT_NE(nullptr, enumeration);
    ASSERT_EQ(1u, enumeration->getLiteralsList().size());
    const LitWrapper* literal = enumeration->getLiteralsList().front();
    const ZefOamSpiGeneralProperties& gp = literal->getStruct().generalProperties;
    EXPECT_EQ(3, literal->getStruct().value);
    EXPECT_STREQ("d", gp.description);
    EXPECT_STREQ("s", gp.specification);
    EXPECT_STREQ("f", gp.hidden);
    EXPECT_EQ(ZefOamSpiStatusDeprecated, gp.status);
    EXPECT_EQ("DEPRECATED", literal->getStatus3());
    ASSERT_NE(nullptr, literal->getDomainExtension("X", "n"));
    EXPECT_TRUE(logged("Ignoring unknown attribute: colour, red"));
}

TEST_F(ModelParserDataTypesTest, LiteralStatusWordsObsoleteAndPreliminary) {
    parseMim("<enum name=\"E\"><enumMember name=\"A\"><value>1</value><obsolete/></enumMember>"
             "<enumMember name=\"B\"><value>2</value><preliminary/></enumMember></enum>");
    const EnumWrapper::LiteralList& literals = findEnum("M~1.0~E")->getLiteralsList();
    ASSERT_EQ(2u, literals.size());
    EXPECT_EQ(ZefOamSpiStatusObsolete, literals.front()->getStruct().generalProperties.status);
    EXPECT_EQ("OBSOLETE", literals.front()->getStatus3());
    EXPECT_EQ(ZefOamSpiStatusCurrent, literals.back()->getStruct().generalProperties.status);
    EXPECT_EQ("PRELIMINARY", literals.back()->getStatus3());
}

TEST_F(ModelParserDataTypesTest, LiteralSecondDescriptionAndValueAreWarnings) {
    parseMim("<enum name=\"E\"><enumMember name=\"A\"><value>1</value><value>2</value>"
             "<description>x</description><description>y</description></enumMember></enum>");
    const LitWrapper* literal = findEnum("M~1.0~E")->getLiteralsList().front();
    EXPECT_EQ(1, literal->getValue());
    EXPECT_STREQ("x", literal->getStruct().generalProperties.description);
    expectParserWarning("The value of the moc (A) is already set.");
    expectParserWarning("The description of the moc (A) is already set.");
}

TEST_F(ModelParserDataTypesTest, LiteralUnsupportedAndUnknownElementsAreTraced) {
    const char* const unsupported[] = {"applicationTag", "visibility",   "dependencies", "dependenciesScript",
                                       "feature",        "interfaceOnly", "disturbances", "takesEffect",
                                       "sideEffects",    "precondition"};
    std::string content = "<enum name=\"E\"><enumMember name=\"A\"><value>1</value>";
    for (const char* name : unsupported) {
        content += std::string("<") + name + "/>";
    }
    content += "<colour/></enumMember></enum>";
    parseMim(content);
    EXPECT_EQ(1u, findEnum("M~1.0~E")->getLiteralsList().size());
    for (const char* name : unsupported) {
        EXPECT_TRUE(logged(std::string("Ignoring unsupported element: ") + name + ".")) << name;
    }
    EXPECT_TRUE(logged("Ignoring unknown element: colour."));
}

// ---- derived data types ----------------------------------------------------

TEST_F(ModelParserDataTypesTest, Int8TypeWithTwoRangesHoldsTwoRanges) {
    DdtWrapper* ddt = parseDdt("<description>small</description><baseType><int8>"
                               "<range><min>-5</min><max>5</max></range>"
                               "<range><min>10</min><max>20</max></range></int8></baseType>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ(ZefMrType3Int8, ddt->getType());
    EXPECT_EQ(std::vector<std::string>({"-5..5", "10..20"}), rangesOf(ddt->getValueRanges()));
    EXPECT_STREQ("small", ddt->getStruct().generalProperties.description);
    EXPECT_EQ(&findMom("M~1.0")->getStruct(), ddt->getStruct().mom);
    EXPECT_TRUE(logged(" >> Processing derived datatype: D."));
    EXPECT_TRUE(logged(" << Processed derived datatype: D."));
    EXPECT_TRUE(logged(" >> handling Int data type int8."));
    EXPECT_TRUE(logged(" << handled int data type: int8."));
}

TEST_F(ModelParserDataTypesTest, ReversedRangeIsKeptAsWritten) {
    DdtWrapper* ddt = parseDdt("<baseType><uint32><range><min>10</min><max>1</max></range></uint32></baseType>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ(ZefMrType3UInt32, ddt->getType());
    EXPECT_EQ(std::vector<std::string>{"10..1"}, rangesOf(ddt->getValueRanges()));
}

TEST_F(ModelParserDataTypesTest, IntResolutionAndUnsupportedChildren) {
    DdtWrapper* ddt = parseDdt("<baseType><int64 bits=\"64\"><resolution>5</resolution><defaultValue>1</defaultValue>"
                               "<unit>s</unit><multiplicationFactor>2</multiplicationFactor>"
                               "<undefinedValue>0</undefinedValue><step/></int64></baseType>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ(5u, ddt->getIntResolution());
    EXPECT_EQ("", ddt->getDefaultValue());
    for (const char* name : {"defaultValue", "unit", "multiplicationFactor", "undefinedValue"}) {
        EXPECT_TRUE(logged(std::string("Ignoring unsupported element: ") + name + ".")) << name;
    }
    EXPECT_TRUE(logged("Ignoring unknown element: step."));
    EXPECT_TRUE(logged("Ignoring unknown attribute: bits, 64"));
}

TEST_F(ModelParserDataTypesTest, RangeUnknownChildIsTraced) {
    DdtWrapper* ddt = parseDdt("<baseType><int16><range><min>1</min><step>2</step><max>3</max></range>"
                               "</int16></baseType>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ(std::vector<std::string>{"1..3"}, rangesOf(ddt->getValueRanges()));
    EXPECT_TRUE(logged("Ignoring unknown element: step."));
}

TEST_F(ModelParserDataTypesTest, InvalidResolutionIsAWarning) {
    DdtWrapper* ddt = parseDdt("<baseType><uint8><resolution>fine</resolution></uint8></baseType>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ(0u, ddt->getIntResolution());
    expectParserWarning("Invalid resolution: fine");
}

TEST_F(ModelParserDataTypesTest, DoubleTypeReadsRangesAndResolution) {
    DdtWrapper* ddt = parseDdt("<baseType><double><range><min>-1.5</min><max>2.25</max></range>"
                               "<resolution>0.25</resolution></double></baseType>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ(ZefMrType3Double, ddt->getType());
    ASSERT_EQ(1u, ddt->getValueRanges().size());
    EXPECT_DOUBLE_EQ(-1.5, ddt->getValueRanges().front()->getStruct().minDouble);
    EXPECT_DOUBLE_EQ(2.25, ddt->getValueRanges().front()->getStruct().maxDouble);
    EXPECT_DOUBLE_EQ(0.25, ddt->getFloatResolution());
    EXPECT_EQ("0.25", ddt->getFloatStringResolution());
}

TEST_F(ModelParserDataTypesTest, InvalidDoubleResolutionIsAWarning) {
    ASSERT_NE(nullptr, parseDdt("<baseType><double><resolution>1e999</resolution></double></baseType>"));
    expectParserWarning("Invalid resolution: 1e999");
}

TEST_F(ModelParserDataTypesTest, StringTypeWithLengthRangesAndValidValues) {
    DdtWrapper* ddt = parseDdt("<baseType><string><lengthRange><min>1</min><max>8</max></lengthRange>"
                               "<lengthRange><min>12</min><max>16</max></lengthRange>"
                               "<validValues>[a-z]*</validValues></string></baseType>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ(ZefMrType3String, ddt->getType());
    EXPECT_EQ(std::vector<std::string>({"1..8", "12..16"}), rangesOf(ddt->getLengthRanges()));
    // Version 1 readers see the first length range.
    EXPECT_EQ(1, ddt->getStruct().stringLength.min);
    EXPECT_EQ(8, ddt->getStruct().stringLength.max);
    EXPECT_EQ("[a-z]*", ddt->getPattern());
    EXPECT_TRUE(logged(" >> handleDdtString data type: string."));
    EXPECT_TRUE(logged(" << handleDdtStringDAtatype: string."));
}

TEST_F(ModelParserDataTypesTest, SecondValidValuesIsAWarning) {
    DdtWrapper* ddt = parseDdt("<baseType><string><validValues>a</validValues><validValues>b</validValues>"
                               "</string></baseType>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ("a", ddt->getPattern());
    expectParserWarning("Ddt (D) pattern is already set.");
}

TEST_F(ModelParserDataTypesTest, PassphraseAndUnsupportedStringChildren) {
    const char* const unsupported[] = {"ipV4Address", "ipV6Address", "macAddress", "date",
                                       "time",        "undefinedValue", "alphabet"};
    std::string content = "<baseType><string><isPassphrase/>";
    for (const char* name : unsupported) {
        content += std::string("<") + name + "/>";
    }
    content += "<encoding/></string></baseType>";
    DdtWrapper* ddt = parseDdt(content);
    ASSERT_NE(nullptr, ddt);
    EXPECT_TRUE(ddt->getIsPassphrase());
    for (const char* name : unsupported) {
        EXPECT_TRUE(logged(std::string("Ignoring unsupported element: ") + name + ".")) << name;
    }
    EXPECT_TRUE(logged("Ignoring unknown element: encoding."));
}

TEST_F(ModelParserDataTypesTest, LengthRangeUnknownChildIsTraced) {
    DdtWrapper* ddt = parseDdt("<baseType><string><lengthRange><min>2</min><size/><max>4</max></lengthRange>"
                               "</string></baseType>");
    EXPECT_EQ(std::vector<std::string>{"2..4"}, rangesOf(ddt->getLengthRanges()));
    EXPECT_TRUE(logged("Ignoring unknown element: size."));
}

TEST_F(ModelParserDataTypesTest, ValidationRulesOnAStringSetPatternAndExceptionText) {
    // The rules come before the base type and still win over validValues.
    DdtWrapper* ddt = parseDdt("<validationRules><rule name=\"r\" operation=\"o\" format=\"posix_ere\" "
                               "exceptionText=\"letters only\">^[a-z]+$</rule></validationRules>"
                               "<baseType><string><validValues>.*</validValues></string></baseType>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ("^[a-z]+$", ddt->getPattern());
    EXPECT_EQ("letters only", ddt->getExceptionText());
}

TEST_F(ModelParserDataTypesTest, ValidationRulesOnAnInt32TypeWarnAndAreDropped) {
    DdtWrapper* ddt = parseDdt("<baseType><int32/></baseType><validationRules>"
                               "<rule format=\"posix_ere\" exceptionText=\"digits\">[0-9]+</rule></validationRules>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ(ZefMrType3Int32, ddt->getType());
    EXPECT_EQ("", ddt->getPattern());
    EXPECT_EQ("", ddt->getExceptionText());
    expectParserWarning("Ddt (D) not a string type but it has a validationRule element.");
}

TEST_F(ModelParserDataTypesTest, SecondPosixRuleIsAWarningAndIgnored) {
    DdtWrapper* ddt = parseDdt("<baseType><string/></baseType><validationRules>"
                               "<rule format=\"posix_ere\" exceptionText=\"first\">a+</rule>"
                               "<rule format=\"posix_ere\" exceptionText=\"second\">b+</rule></validationRules>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ("a+", ddt->getPattern());
    EXPECT_EQ("first", ddt->getExceptionText());
    expectParserWarning("Ddt (D) more than one rule element with posix_ere.");
}

TEST_F(ModelParserDataTypesTest, RulesOfOtherFormatsAndWithoutAttributesAreIgnored) {
    DdtWrapper* ddt = parseDdt("<baseType><string/></baseType><validationRules kind=\"x\">"
                               "<rule format=\"QCIM_Schematron_1\" exceptionText=\"no\">count(a)</rule>"
                               "<rule>b+</rule><rule format=\"posix_ere\" level=\"2\">c+</rule><check/>"
                               "</validationRules>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ("c+", ddt->getPattern());
    EXPECT_EQ("", ddt->getExceptionText());
    EXPECT_TRUE(logged("Ignoring unknown attribute: kind, x"));
    EXPECT_TRUE(logged("Ignoring unknown element: rule."));
    EXPECT_TRUE(logged("Ignoring unknown attribute: level, 2"));
    EXPECT_TRUE(logged("Ignoring unknown element: check."));
}

TEST_F(ModelParserDataTypesTest, EmptyValidationRulesIsAWarning) {
    DdtWrapper* ddt = parseDdt("<baseType><string/></baseType><validationRules/>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ("", ddt->getPattern());
    expectParserWarning("ValidationRules does not contain any rule elements, according to the dtd it must.");
}

TEST_F(ModelParserDataTypesTest, BooleanDefaultValueIsNormalised) {
    parseMim("<derivedDataType name=\"T\"><baseType><boolean><defaultValue>TRUE</defaultValue></boolean></baseType>"
             "</derivedDataType><derivedDataType name=\"F\"><baseType><boolean><defaultValue> 0 </defaultValue>"
             "</boolean></baseType></derivedDataType>");
    ASSERT_NE(nullptr, findDdt("M~1.0~T"));
    EXPECT_EQ(ZefMrType3Bool, findDdt("M~1.0~T")->getType());
    EXPECT_EQ("true", findDdt("M~1.0~T")->getDefaultValue());
    EXPECT_EQ("false", findDdt("M~1.0~F")->getDefaultValue());
    EXPECT_TRUE(logged(" >> handling bool default value: boolean."));
    EXPECT_TRUE(logged(" << handling bool default value: boolean."));
}

TEST_F(ModelParserDataTypesTest, BooleanDefaultValueNotATruthValueIsAWarning) {
    DdtWrapper* ddt = parseDdt("<baseType><boolean><defaultValue>yes</defaultValue><other/></boolean></baseType>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ("", ddt->getDefaultValue());
    expectParserWarning("Invalid boolean default value (yes) for derived datatype (D).");
    EXPECT_TRUE(logged("Ignoring unknown element: other."));
}

TEST_F(ModelParserDataTypesTest, SecondBooleanDefaultValueIsAWarning) {
    DdtWrapper* ddt = parseDdt("<baseType><boolean><defaultValue>false</defaultValue>"
                               "<defaultValue>1</defaultValue></boolean></baseType>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ("false", ddt->getDefaultValue());
    expectParserWarning("Ddt (D) default value is already set.");
}

TEST_F(ModelParserDataTypesTest, DdtAttributesAndElementsOutsideTheFormatAreTraced) {
    DdtWrapper* ddt = parseDdt("<applicationTag/><size/><domainExtension domain=\"QCIM\">"
                               "<extension name=\"e\" value=\"1\"/></domainExtension><baseType><int8/></baseType>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_NE(nullptr, ddt->getDomainExtension("QCIM", "e"));
    EXPECT_TRUE(logged("Ignoring unsupported element: applicationTag."));
    EXPECT_TRUE(logged("Ignoring unknown element: size."));
}

TEST_F(ModelParserDataTypesTest, DdtUnknownAttributeIsTraced) {
    parseMim("<derivedDataType name=\"D\" kind=\"k\"><baseType><int8/></baseType></derivedDataType>");
    EXPECT_NE(nullptr, findDdt("M~1.0~D"));
    EXPECT_TRUE(logged("Ignoring unknown attribute: kind, k"));
}

TEST_F(ModelParserDataTypesTest, DdtOnAReferenceTypeHasNoType) {
    DdtWrapper* ddt = parseDdt("<baseType><enumRef name=\"E\"/></baseType>");
    ASSERT_NE(nullptr, ddt);
    EXPECT_EQ(ZefMrType3NotSet, ddt->getType());
}

// ---- structs ---------------------------------------------------------------

TEST_F(ModelParserDataTypesTest, StructWithMembersIsRegistered) {
    StructWrapper* structure =
        parseStruct("<description>pair</description><isExclusive/>"
                    "<structMember name=\"a\"><int32><defaultValue>4</defaultValue></int32></structMember>"
                    "<structMember name=\"b\"><enumRef name=\"E\"><mimName>N</mimName><mimVersion>2</mimVersion>"
                    "<defaultValue>X</defaultValue></enumRef></structMember>");
    ASSERT_NE(nullptr, structure);
    EXPECT_STREQ("pair", structure->getStruct().generalProperties.description);
    bool exclusive = false;
    structure->getIsExclusive(exclusive);
    EXPECT_TRUE(exclusive);
    ASSERT_EQ(2u, structure->getStructMemberList().size());
    const StructMemberWrapper* a = structure->getStructMemberList().front();
    const StructMemberWrapper* b = structure->getStructMemberList().back();
    EXPECT_EQ(ZefMrType3Int32, a->getType());
    EXPECT_STREQ("4", a->getDatatype().defaultValue);
    EXPECT_EQ("M", a->getMomName());
    EXPECT_EQ("1.0", a->getMomVersion());
    EXPECT_EQ(ZefMrType3Enum, b->getType());
    EXPECT_EQ("E", b->getRefName());
    EXPECT_EQ("N", b->getRefMomName());
    EXPECT_EQ("2", b->getRefMomVersion());
    EXPECT_STREQ("X", b->getDatatype().defaultValue);
    EXPECT_EQ(&findMom("M~1.0")->getStruct(), structure->getStruct().mom);
    EXPECT_TRUE(logged("IsExclusive has been read for S "));
    EXPECT_TRUE(logged(" >> Processing struct: S."));
    EXPECT_TRUE(logged(" << Processed struct: S."));
    EXPECT_TRUE(logged(" >> Processing struct member: a."));
    EXPECT_TRUE(logged(" << Processed struct member: b."));
}

TEST_F(ModelParserDataTypesTest, StructAttributesAndElementsOutsideTheFormatAreTraced) {
    parseMim("<struct name=\"S\" size=\"2\"><applicationTag/><packed/><domainExtension domain=\"D\">"
             "<extension name=\"e\" value=\"v\"/></domainExtension>"
             "<structMember name=\"a\"><string/></structMember></struct>");
    StructWrapper* structure = findStruct("M~1.0~S");
    ASSERT_NE(nullptr, structure);
    EXPECT_NE(nullptr, structure->getDomainExtension("D", "e"));
    EXPECT_TRUE(logged("Ignoring unknown attribute: size, 2"));
    EXPECT_TRUE(logged("Ignoring unsupported element: applicationTag."));
    EXPECT_TRUE(logged("Ignoring unknown element: packed."));
}

TEST_F(ModelParserDataTypesTest, StructRefMemberFailsTheWholeStruct) {
    EXPECT_EQ(nullptr, parseStruct("<structMember name=\"a\"><int8/></structMember>"
                                   "<structMember name=\"b\"><structRef name=\"T\"/></structMember>"));
    EXPECT_TRUE(repository.getStructMap().empty());
    expectParserError("structMember is of not allowed type structRef");
    expectParserError("Failed to process a struct for the mom(M~1.0).");
}

TEST_F(ModelParserDataTypesTest, NestedStructMemberFailsTheWholeStruct) {
    EXPECT_EQ(nullptr, parseStruct("<structMember name=\"a\"><struct name=\"T\"/></structMember>"));
    expectParserError("structMember is of not allowed type struct");
    expectParserError("Failed to process a struct for the mom(M~1.0).");
}

TEST_F(ModelParserDataTypesTest, SequenceOfStructsFailsTheWholeStruct) {
    parseMim("<struct name=\"S1\"><structMember name=\"a\"><sequence><structRef name=\"T\"/></sequence>"
             "</structMember></struct>"
             "<struct name=\"S2\"><structMember name=\"a\"><sequence><struct/></sequence></structMember></struct>");
    EXPECT_TRUE(repository.getStructMap().empty());
    expectParserError("A sequence element within a struct is not allowed to contain a structRef or a struct");
    expectParserError("A sequence element within a struct is not allowed to contain a structRef or a struct");
    expectParserError("Failed to process a struct for the mom(M~1.0).");
    expectParserError("Failed to process a struct for the mom(M~1.0).");
}

TEST_F(ModelParserDataTypesTest, SequenceMemberIsUnboundedByDefault) {
    StructMemberWrapper* member = parseMember("<sequence><uint16/><maxLength>4</maxLength></sequence>");
    ASSERT_NE(nullptr, member);
    EXPECT_EQ(ZefMrType3UInt16, member->getType());
    EXPECT_EQ(0, member->getDatatype().multiplicityRange.min);
    EXPECT_EQ(4, member->getDatatype().multiplicityRange.max);
}

TEST_F(ModelParserDataTypesTest, NillableMemberGetsTheBoundsZeroAndOne) {
    StructMemberWrapper* member = parseMember("<string/><domainExtension domain=\"QCIM\">"
                                              "<extension name=\"isNillable\" value=\"true\"/></domainExtension>");
    ASSERT_NE(nullptr, member);
    EXPECT_TRUE(member->isNillable());
    EXPECT_EQ(0, member->getDatatype().multiplicityRange.min);
    EXPECT_EQ(1, member->getDatatype().multiplicityRange.max);
    EXPECT_TRUE(member->getIsMinSet());
    EXPECT_TRUE(member->getIsMaxSet());
}

TEST_F(ModelParserDataTypesTest, MemberNotNillableKeepsItsBoundsUnset) {
    StructMemberWrapper* member = parseMember("<string/><domainExtension domain=\"OTHER\">"
                                              "<extension name=\"isNillable\" value=\"true\"/></domainExtension>");
    ASSERT_NE(nullptr, member);
    EXPECT_FALSE(member->isNillable());
    EXPECT_FALSE(member->getIsMinSet());
    EXPECT_FALSE(member->getIsMaxSet());
}

TEST_F(ModelParserDataTypesTest, MemberReadsItsGeneralProperties) {
    StructMemberWrapper* member =
        parseMember("<description>d</description><specification>s</specification><filter>f</filter>"
                    "<obsolete/><boolean><defaultValue>1</defaultValue></boolean>");
    ASSERT_NE(nullptr, member);
    const ZefOamSpiGeneralProperties& gp = member->getStruct().generalProperties;
    EXPECT_STREQ("d", gp.description);
    EXPECT_STREQ("s", gp.specification);
    EXPECT_STREQ("f", gp.hidden);
    EXPECT_EQ(ZefOamSpiStatusObsolete, gp.status);
    EXPECT_EQ(ZefMrType3Bool, member->getType());
    EXPECT_STREQ("true", member->getDatatype().defaultValue);
}

TEST_F(ModelParserDataTypesTest, MemberSecondSpecificationIsAWarning) {
    StructMemberWrapper* member =
        parseMember("<int8/><specification>a</specification><specification>b</specification>");
    ASSERT_NE(nullptr, member);
    EXPECT_STREQ("a", member->getStruct().generalProperties.specification);
    expectParserWarning("The specification of the attr (m) is already set.");
}

TEST_F(ModelParserDataTypesTest, MemberReferencesOfEachKind) {
    StructWrapper* structure = parseStruct(
        "<structMember name=\"c\"><moRef name=\"C\"/></structMember>"
        "<structMember name=\"d\"><derivedDataTypeRef name=\"D\"/></structMember>");
    ASSERT_NE(nullptr, structure);
    EXPECT_EQ(ZefMrType3Reference, structure->getStructMemberList().front()->getType());
    EXPECT_EQ("C", structure->getStructMemberList().front()->getRefName());
    EXPECT_EQ(ZefMrType3Derived, structure->getStructMemberList().back()->getType());
}

TEST_F(ModelParserDataTypesTest, MemberUnsupportedAndUnknownElementsAreTraced) {
    const char* const unsupported[] = {"octet",          "applicationTag", "visibility",   "dependencies",
                                       "dependenciesScript", "feature",    "interfaceOnly", "disturbances",
                                       "takesEffect",    "sideEffects",    "precondition"};
    std::string content = "<int8/>";
    for (const char* name : unsupported) {
        content += std::string("<") + name + "/>";
    }
    content += "<void/>";
    ASSERT_NE(nullptr, parseMember(content));
    for (const char* name : unsupported) {
        EXPECT_TRUE(logged(std::string("Ignoring unsupported element: ") + name + ".")) << name;
    }
    EXPECT_TRUE(logged("Ignoring unknown element: void."));
}

TEST_F(ModelParserDataTypesTest, MemberUnknownAttributeIsTraced) {
    ASSERT_NE(nullptr, parseStruct("<structMember name=\"a\" kind=\"k\"><int8/></structMember>"));
    EXPECT_TRUE(logged("Ignoring unknown attribute: kind, k"));
}

TEST_F(ModelParserDataTypesTest, MemberWithoutNameFailsTheStruct) {
    EXPECT_EQ(nullptr, parseStruct("<structMember><int8/></structMember>"));
    expectParserError("Failed to process a struct for the mom(M~1.0).");
}

TEST_F(ModelParserDataTypesTest, TwoMembersOfOneNameFailTheStruct) {
    EXPECT_EQ(nullptr, parseStruct("<structMember name=\"a\"><int8/></structMember>"
                                   "<structMember name=\"a\"><int16/></structMember>"));
    expectParserError("Failed to process a struct for the mom(M~1.0).");
    EXPECT_TRUE(logged("Member (a) already exist."));
}

// ---- domain extensions -----------------------------------------------------

TEST_F(ModelParserDataTypesTest, DomainExtensionsAreKeptInDocumentOrder) {
    parseMim("<enum name=\"E\"><domainExtension domain=\"QCIM\" scope=\"all\">"
             "<extension name=\"a\" value=\"1\" unit=\"s\"><note/></extension>"
             "<other/><extension name=\"b\" value=\"2\"/></domainExtension>"
             "<domainExtension domain=\"X\"><extension name=\"a\" value=\"3\"/></domainExtension>"
             "<enumMember name=\"L\"><value>0</value></enumMember></enum>");
    EnumWrapper* enumeration = findEnum("M~1.0~E");
    ASSERT_NE(nullptr, enumeration);
    std::vector<std::string> triples;
    for (const DomainExtensionWrapper* extension : enumeration->getDomainExtensions()) {
        triples.push_back(extension->getDomain() + "/" + extension->getName() + "=" + extension->getValue());
    }
    EXPECT_EQ(std::vector<std::string>({"QCIM/a=1", "QCIM/b=2", "X/a=3"}), triples);
    EXPECT_TRUE(logged("Ignoring unsupported attribute: scope, all"));
    EXPECT_TRUE(logged("Ignoring unsupported attribute: unit, s"));
    EXPECT_TRUE(logged("Ignoring unknown element: note."));
    // Other children of the domain extension are passed over silently.
    EXPECT_FALSE(logged("Ignoring unknown element: other."));
    EXPECT_TRUE(logged(" >> handleDomainExtension domainExtension."));
    EXPECT_TRUE(logged(" << handleDomainExtension: domainExtension."));
}

TEST_F(ModelParserDataTypesTest, DomainExtensionCommentsAreTraced) {
    parseMim("<enum name=\"E\"><domainExtension domain=\"QCIM\"><!-- note --><extension name=\"a\" value=\"1\"/>"
             "</domainExtension><enumMember name=\"L\"><value>0</value></enumMember></enum>");
    ASSERT_EQ(1u, findEnum("M~1.0~E")->getDomainExtensions().size());
    EXPECT_TRUE(logged("Ignoring comment: #comment."));
}

TEST_F(ModelParserDataTypesTest, DomainExtensionHandlerWorksOnAnyOwner) {
    Poco::XML::Element* element =
        loadElement("<domainExtension domain=\"QCIM\"><extension name=\"isNillable\" value=\"\"/></domainExtension>");
    MomWrapper owner;
    parser.handleDomainExtension(element, &owner);
    EXPECT_TRUE(owner.isNillable());
}

} // namespace
