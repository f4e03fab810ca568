// The parser's classes, attributes, actions, parameters and data type elements.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "AttrWrapper.h"
#include "MoActionWrapper.h"
#include "MocWrapper.h"
#include "MomWrapper.h"
#include "ParameterWrapper.h"
#include "ParserTestSupport.h"
#include "StructMemberWrapper.h"

using namespace ZefModelRepositoryService;

namespace {

class ModelParserClassesTest : public ZefTest::ParserTest {
protected:
    /// Parses one class "C" of the MOM "M~1.0" holding `content`.
    void parseClass(const std::string& content, const std::string& classAttributes = "name=\"C\"") {
        parseMim("<class " + classAttributes + ">" + content + "</class>");
    }

    /// Parses one attribute "a" of class "C" holding `content`.
    void parseAttr(const std::string& content) { parseClass("<attribute name=\"a\">" + content + "</attribute>"); }

    /// Parses one action "act" of class "C" holding `content`.
    void parseAction(const std::string& content) { parseClass("<action name=\"act\">" + content + "</action>"); }

    /// Parses an attribute "a" whose data type element holds `type`.
    void parseAttrType(const std::string& type) { parseAttr("<dataType>" + type + "</dataType>"); }

    /// Parses an action "act" returning void with the parameter element `parameter`.
    void parseParameter(const std::string& parameter) {
        parseAction("<returnType><void/></returnType>" + parameter);
    }

    MocWrapper* moc() { return findMoc("M~1.0~C"); }

    /// The attribute of class C with that name, or null.
    AttrWrapper* attr(const std::string& name = "a") {
        MocWrapper* owner = moc();
        if (owner == nullptr) {
            return nullptr;
        }
        for (AttrWrapper* item : owner->getAttrsList()) {
            if (item->getName() == name) {
                return item;
            }
        }
        return nullptr;
    }

    /// The action of class C with that name, or null.
    MoActionWrapper* action(const std::string& name = "act") {
        MocWrapper* owner = moc();
        if (owner == nullptr) {
            return nullptr;
        }
        for (MoActionWrapper* item : owner->getMoActionList()) {
            if (item->getName() == name) {
                return item;
            }
        }
        return nullptr;
    }

    /// The first parameter of action "act", or null.
    ParameterWrapper* parameter() {
        MoActionWrapper* owner = action();
        return owner == nullptr ? nullptr : owner->getParameterListFront();
    }

    /// The default values added to a type container, in order.
    static std::vector<std::string> defaults(const TypeContainerWrapper& container) {
        const char* const* values = nullptr;
        container.getDefaultValue(values);
        std::vector<std::string> result;
        for (; values != nullptr && *values != nullptr; ++values) {
            result.push_back(*values);
        }
        return result;
    }

    static std::string str(const char* text) { return text == nullptr ? std::string("<null>") : std::string(text); }
};

// ---- classes -------------------------------------------------------------------

TEST_F(ModelParserClassesTest, ClassIsReadWithItsName) {
    parseClass("", "name=\"C\" colour=\"red\"");
    ASSERT_NE(nullptr, moc());
    EXPECT_STREQ("C", moc()->getStruct().generalProperties.name);
    EXPECT_EQ(&findMom("M~1.0")->getStruct(), moc()->getStruct().mom);
    EXPECT_TRUE(findMom("M~1.0")->getHasMocs());
    EXPECT_TRUE(logged("Ignoring unknown attribute: colour, red"));
    EXPECT_TRUE(logged(" >> Processing class"));
    EXPECT_TRUE(logged(" << Processed class: C."));
}

TEST_F(ModelParserClassesTest, ReservedClassNameYieldsNoClassAndOneErrorNamingTheMom) {
    parseMim("<class name=\" ManagedObject\"><attribute name=\"a\"/></class>");
    expectParserWarning("Node attribute value contains leading and/or trailing white space, trimming \" ManagedObject\" "
                        "to \"ManagedObject\".");
    expectParserError("Invalid class name (ManagedObject) in the model (M~1.0), it is reserved for special case when "
                      "refering to any Managed Object");
    EXPECT_TRUE(repository.getMocMap().empty());
    EXPECT_FALSE(findMom("M~1.0")->getHasMocs());
    EXPECT_FALSE(logged(" >> Processing attribute: a."));
}

TEST_F(ModelParserClassesTest, EmptyClassNameIsWarnedAndTheClassRefused) {
    parseClass("", "name=\"\"");
    expectParserWarning("Failed to set name of the moc ().");
    expectRepositoryError("Incomplete Moc, could not add to the map.");
    EXPECT_TRUE(repository.getMocMap().empty());
}

TEST_F(ModelParserClassesTest, ClassAttributesAndActionsAreListedInOrder) {
    parseClass("<attribute name=\"a\"/><action name=\"act\"><returnType><void/></returnType></action>"
               "<attribute name=\"b\"/>");
    ASSERT_EQ(2u, moc()->getAttrsList().size());
    EXPECT_EQ("a", moc()->getAttrsList().front()->getName());
    EXPECT_EQ("b", moc()->getAttrsList().back()->getName());
    ASSERT_NE(nullptr, action());
    EXPECT_EQ(&moc()->getStruct(), attr()->getStruct().moc);
    EXPECT_EQ(&moc()->getStruct(), action()->getStruct().moc);
}

TEST_F(ModelParserClassesTest, DuplicateAttributeIsReportedAndDropped) {
    parseClass("<attribute name=\"a\"><description>first</description></attribute>"
               "<attribute name=\"a\"><description>second</description></attribute>");
    expectParserError("Could not add attribute since it already exists (M~1.0~C~a).");
    ASSERT_EQ(1u, moc()->getAttrsList().size());
    EXPECT_STREQ("first", attr()->getStruct().generalProperties.description);
}

TEST_F(ModelParserClassesTest, DuplicateActionIsReportedAndDropped) {
    parseClass("<action name=\"act\"><description>first</description><returnType><void/></returnType></action>"
               "<action name=\"act\"><description>second</description><returnType><void/></returnType></action>");
    expectParserError("Could not add action since it already exists (M~1.0~C~act).");
    ASSERT_EQ(1u, moc()->getMoActionList().size());
    EXPECT_STREQ("first", action()->getStruct().generalProperties.description);
}

TEST_F(ModelParserClassesTest, ClassTextsAreStored) {
    parseClass("<description>d</description><specification>s</specification><filter>f</filter>");
    const ZefOamSpiGeneralProperties& properties = moc()->getStruct().generalProperties;
    EXPECT_STREQ("d", properties.description);
    EXPECT_STREQ("s", properties.specification);
    EXPECT_STREQ("f", properties.hidden);
}

TEST_F(ModelParserClassesTest, ClassTextGivenTwiceIsWarnedWithElementAndClassName) {
    parseClass("<description>d</description><description>e</description>"
               "<specification>s</specification><specification>t</specification>"
               "<filter>f</filter><filter>g</filter>");
    expectParserWarning("The description of the moc (C) is already set.");
    expectParserWarning("The specification of the moc (C) is already set.");
    expectParserWarning("The filter of the moc (C) is already set.");
    EXPECT_STREQ("d", moc()->getStruct().generalProperties.description);
}

TEST_F(ModelParserClassesTest, ClassStatusWords) {
    parseMim("<class name=\"C\"><deprecated/></class><class name=\"D\"><obsolete/></class>"
             "<class name=\"E\"><preliminary/></class>");
    EXPECT_EQ(ZefOamSpiStatusDeprecated, findMoc("M~1.0~C")->getStruct().generalProperties.status);
    EXPECT_EQ("DEPRECATED", findMoc("M~1.0~C")->getStatus3());
    EXPECT_EQ(ZefOamSpiStatusObsolete, findMoc("M~1.0~D")->getStruct().generalProperties.status);
    EXPECT_EQ("OBSOLETE", findMoc("M~1.0~D")->getStatus3());
    EXPECT_EQ(ZefOamSpiStatusCurrent, findMoc("M~1.0~E")->getStruct().generalProperties.status);
    EXPECT_EQ("PRELIMINARY", findMoc("M~1.0~E")->getStatus3());
}

TEST_F(ModelParserClassesTest, ClassFlags) {
    parseClass("<root/><readOnly/><systemCreated/>");
    EXPECT_TRUE(moc()->getStruct().isRoot);
    EXPECT_TRUE(moc()->getStruct().isReadOnly);
    EXPECT_TRUE(moc()->getIsSystemCreated());
}

TEST_F(ModelParserClassesTest, ClassFlagsAreOffWithoutTheirElements) {
    parseClass("");
    EXPECT_FALSE(moc()->getStruct().isRoot);
    EXPECT_FALSE(moc()->getStruct().isReadOnly);
    EXPECT_FALSE(moc()->getIsSystemCreated());
}

TEST_F(ModelParserClassesTest, DependenciesScriptBecomesTheConstraint) {
    parseClass("<dependenciesScript>a &lt; <b>b</b></dependenciesScript>");
    EXPECT_STREQ("a < b", moc()->getStruct().constraint);
    EXPECT_FALSE(moc()->getHasValidationRulesConstraint());
}

TEST_F(ModelParserClassesTest, SecondDependenciesScriptIsWarned) {
    parseClass("<dependenciesScript>one</dependenciesScript><dependenciesScript>two</dependenciesScript>");
    expectParserWarning("The dependenciesScript of the moc (C) is already set.");
    EXPECT_STREQ("one", moc()->getStruct().constraint);
}

TEST_F(ModelParserClassesTest, DependenciesScriptAfterValidationRulesIsSkippedSilently) {
    parseClass("<validationRules><rule format=\"QCIM_Schematron_1\">rule</rule></validationRules>"
               "<dependenciesScript>script</dependenciesScript>");
    EXPECT_STREQ("rule", moc()->getStruct().constraint);
    EXPECT_TRUE(moc()->getHasValidationRulesConstraint());
}

TEST_F(ModelParserClassesTest, ClassDomainExtensionIsStored) {
    parseClass("<domainExtension domain=\"QCIM\"><extension name=\"x\" value=\"1\"/></domainExtension>");
    ASSERT_NE(nullptr, moc()->getDomainExtension("QCIM", "x"));
    EXPECT_EQ("1", moc()->getDomainExtension("QCIM", "x")->getValue());
}

TEST_F(ModelParserClassesTest, ClassUnsupportedChildrenAreTraced) {
    const std::vector<std::string> names = {"applicationTag", "notificationTypes", "nonPersistent",
                                            "precondition",   "lockBeforeDelete",  "visibility",
                                            "dependencies",   "feature",           "interfaceOnly"};
    std::string content;
    for (const std::string& name : names) {
        content += "<" + name + "/>";
    }
    parseClass(content);
    ASSERT_NE(nullptr, moc());
    for (const std::string& name : names) {
        EXPECT_TRUE(logged("Ignoring unsupported element: " + name + ".")) << name;
    }
}

TEST_F(ModelParserClassesTest, ClassUnknownChildAndNonElementsAreTraced) {
    parseClass("<colour/>stray<!--note-->");
    ASSERT_NE(nullptr, moc());
    EXPECT_TRUE(logged("Ignoring unknown element: colour."));
    EXPECT_TRUE(logged("Ignoring XML items of type: 3; name: #text; value: stray."));
    EXPECT_TRUE(logged("Ignoring comment: #comment."));
}

// ---- validation rules of a class --------------------------------------------------

TEST_F(ModelParserClassesTest, SchematronRuleBecomesTheConstraintAndReplacesAScript) {
    parseClass("<dependenciesScript>script</dependenciesScript>"
               "<validationRules colour=\"red\">"
               "<rule format=\"QCIM_Schematron_1.2\" name=\"n\" operation=\"o\" exceptionText=\"e\">schema</rule>"
               "</validationRules>");
    EXPECT_STREQ("schema", moc()->getStruct().constraint);
    EXPECT_TRUE(moc()->getHasValidationRulesConstraint());
    EXPECT_TRUE(logged("Ignoring unknown attribute: colour, red"));
    // Name, operation and exception text are accepted without a log line.
    EXPECT_FALSE(logged("Ignoring unknown attribute: name, n"));
    EXPECT_FALSE(logged("Ignoring unknown attribute: operation, o"));
    EXPECT_FALSE(logged("Ignoring unknown attribute: exceptionText, e"));
}

TEST_F(ModelParserClassesTest, SecondSchematronRuleIsWarned) {
    parseClass("<validationRules><rule format=\"QCIM_Schematron_1\">one</rule>"
               "<rule format=\"QCIM_Schematron_1\">two</rule></validationRules>");
    expectParserWarning("Schematron constraint (rule element) of the moc (C) is already set.");
    EXPECT_STREQ("one", moc()->getStruct().constraint);
}

TEST_F(ModelParserClassesTest, RuleOfAnotherFormatIsPassedOver) {
    parseClass("<validationRules><rule format=\"QCIM_Schematron\" colour=\"red\">x</rule>"
               "<rule format=\"posix_ere\">y</rule></validationRules>");
    EXPECT_EQ(nullptr, moc()->getStruct().constraint);
    EXPECT_TRUE(logged("Ignoring unknown attribute: colour, red"));
}

TEST_F(ModelParserClassesTest, RuleWithoutAttributesIsUnknownOtherElementsArePassedOver) {
    parseClass("<validationRules><rule>x</rule><other/><!--note--></validationRules>");
    EXPECT_EQ(nullptr, moc()->getStruct().constraint);
    EXPECT_TRUE(logged("Ignoring unknown element: rule."));
    EXPECT_FALSE(logged("Ignoring unknown element: other."));
    EXPECT_TRUE(logged("Ignoring comment: #comment."));
}

TEST_F(ModelParserClassesTest, EmptyValidationRulesAreWarned) {
    parseClass("<validationRules/>");
    expectParserWarning("ValidationRules does not contain any rule elements, according to the dtd it must.");
}

TEST_F(ModelParserClassesTest, ValidationRulesHoldingOnlyWhiteSpaceAreWarnedToo) {
    // The reader drops white-space-only text, so nothing is left inside.
    parseClass("<validationRules>  \n  </validationRules>");
    expectParserWarning("ValidationRules does not contain any rule elements, according to the dtd it must.");
}

// ---- attributes ------------------------------------------------------------------

TEST_F(ModelParserClassesTest, AttributeIsReadWithItsName) {
    parseClass("<attribute name=\"a\" colour=\"red\"/>");
    ASSERT_NE(nullptr, attr());
    EXPECT_EQ("M~1.0~C~a", attr()->getId());
    EXPECT_TRUE(logged("Ignoring unknown attribute: colour, red"));
    EXPECT_TRUE(logged(" >> Processing attribute: a."));
    EXPECT_TRUE(logged(" << Processed attribute: a."));
}

TEST_F(ModelParserClassesTest, AttributeDefaultsOfANewRecord) {
    parseAttr("");
    const ZefOamSpiMoAttribute& record = attr()->getStruct();
    EXPECT_TRUE(record.isPersistent);
    EXPECT_TRUE(attr()->getIsNotifiable());
    EXPECT_FALSE(record.isKey);
    EXPECT_FALSE(record.isMandatory);
    EXPECT_FALSE(record.isReadOnly);
    EXPECT_FALSE(attr()->getIsRestricted());
}

TEST_F(ModelParserClassesTest, AttributeWithoutNameIsAnErrorAndItsChildrenAreNotRead) {
    parseClass("<attribute><dataType/></attribute><attribute name=\"b\"/>");
    expectParserError("Attribute name is not set: attribute.");
    // The empty data type would be an error of its own if it were read.
    ASSERT_NE(nullptr, moc());
    ASSERT_EQ(1u, moc()->getAttrsList().size());
    EXPECT_EQ("b", moc()->getAttrsList().front()->getName());
}

TEST_F(ModelParserClassesTest, AttributeWithEmptyNameIsWarnedAndRefused) {
    parseClass("<attribute name=\"\"/>");
    expectParserWarning("Failed to set name of the attr ().");
    expectParserError("Attribute name is not set: attribute.");
    EXPECT_TRUE(moc()->getAttrsList().empty());
}

TEST_F(ModelParserClassesTest, AttributeTextsAreStored) {
    parseAttr("<description>d</description><specification>s</specification><filter>f</filter><unit>ms</unit>");
    const ZefOamSpiMoAttribute& record = attr()->getStruct();
    EXPECT_STREQ("d", record.generalProperties.description);
    EXPECT_STREQ("s", record.generalProperties.specification);
    EXPECT_STREQ("f", record.generalProperties.hidden);
    EXPECT_STREQ("ms", record.unit);
}

TEST_F(ModelParserClassesTest, AttributeTextGivenTwiceIsWarnedWithElementAndAttributeName) {
    parseAttr("<unit>ms</unit><unit>s</unit><description>d</description><description>e</description>"
              "<specification>s</specification><specification>t</specification><filter>f</filter><filter>g</filter>");
    expectParserWarning("The unit of the attr (a) is already set.");
    expectParserWarning("The description of the attr (a) is already set.");
    expectParserWarning("The specification of the attr (a) is already set.");
    expectParserWarning("The filter of the attr (a) is already set.");
    EXPECT_STREQ("ms", attr()->getStruct().unit);
}

TEST_F(ModelParserClassesTest, AttributeFlags) {
    parseAttr("<mandatory/><nonPersistent/><readOnly/><key/><restricted/><noNotification/>");
    const ZefOamSpiMoAttribute& record = attr()->getStruct();
    EXPECT_TRUE(record.isMandatory);
    EXPECT_FALSE(record.isPersistent);
    EXPECT_TRUE(record.isReadOnly);
    EXPECT_TRUE(record.isKey);
    EXPECT_TRUE(attr()->getIsRestricted());
    EXPECT_FALSE(attr()->getIsNotifiable());
}

TEST_F(ModelParserClassesTest, AttributeStatusWords) {
    parseClass("<attribute name=\"a\"><deprecated/></attribute><attribute name=\"b\"><obsolete/></attribute>"
               "<attribute name=\"c\"><preliminary/></attribute>");
    EXPECT_EQ(ZefOamSpiStatusDeprecated, attr("a")->getStruct().generalProperties.status);
    EXPECT_EQ("DEPRECATED", attr("a")->getStatus3());
    EXPECT_EQ(ZefOamSpiStatusObsolete, attr("b")->getStruct().generalProperties.status);
    EXPECT_EQ("OBSOLETE", attr("b")->getStatus3());
    EXPECT_EQ(ZefOamSpiStatusCurrent, attr("c")->getStruct().generalProperties.status);
    EXPECT_EQ("PRELIMINARY", attr("c")->getStatus3());
}

TEST_F(ModelParserClassesTest, AttributeDomainExtensionIsStored) {
    parseAttr("<domainExtension domain=\"QCIM\"><extension name=\"isNillable\" value=\"true\"/></domainExtension>");
    EXPECT_TRUE(attr()->isNillable());
}

TEST_F(ModelParserClassesTest, AttributeUnsupportedChildrenAreTraced) {
    const std::vector<std::string> names = {
        "applicationTag", "local",        "static",       "undefined",          "lockBeforeModify", "restartType",
        "indexed",        "visibility",   "dependencies", "dependenciesScript", "feature",          "interfaceOnly",
        "disturbances",   "takesEffect",  "sideEffects",  "precondition",       "condition",        "counterType",
        "samplingRate",   "scanner",      "counterReset", "counterContext",     "getValue"};
    std::string content;
    for (const std::string& name : names) {
        content += "<" + name + "/>";
    }
    parseAttr(content);
    ASSERT_NE(nullptr, attr());
    for (const std::string& name : names) {
        EXPECT_TRUE(logged("Ignoring unsupported element: " + name + ".")) << name;
    }
}

TEST_F(ModelParserClassesTest, AttributeUnknownChildAndNonElementsAreTraced) {
    parseAttr("<colour/>stray<!--note-->");
    ASSERT_NE(nullptr, attr());
    EXPECT_TRUE(logged("Ignoring unknown element: colour."));
    EXPECT_TRUE(logged("Ignoring XML items of type: 3; name: #text; value: stray."));
    EXPECT_TRUE(logged("Ignoring comment: #comment."));
}

// ---- data types of attributes -----------------------------------------------------

TEST_F(ModelParserClassesTest, EveryPrimitiveNameSetsItsCode) {
    const std::vector<std::pair<std::string, ZefOamSpiMrType_3>> primitives = {
        {"int8", ZefMrType3Int8},     {"int16", ZefMrType3Int16},   {"int32", ZefMrType3Int32},
        {"int64", ZefMrType3Int64},   {"uint8", ZefMrType3UInt8},   {"uint16", ZefMrType3UInt16},
        {"uint32", ZefMrType3UInt32}, {"uint64", ZefMrType3UInt64}, {"string", ZefMrType3String},
        {"boolean", ZefMrType3Bool},  {"double", ZefMrType3Double}};
    std::string content;
    for (const auto& primitive : primitives) {
        content += "<attribute name=\"" + primitive.first + "\"><dataType><" + primitive.first +
                   "/></dataType></attribute>";
    }
    parseClass(content);
    for (const auto& primitive : primitives) {
        ASSERT_NE(nullptr, attr(primitive.first)) << primitive.first;
        EXPECT_EQ(primitive.second, attr(primitive.first)->getStruct().type) << primitive.first;
        EXPECT_EQ(primitive.second, attr(primitive.first)->getType()) << primitive.first;
    }
}

TEST_F(ModelParserClassesTest, PrimitiveDefaultValueIsStoredAndAddedToTheContainer) {
    parseAttrType("<int32 colour=\"red\"><defaultValue>-5</defaultValue><other/></int32>");
    EXPECT_STREQ("-5", attr()->getStruct().defaultValue);
    EXPECT_EQ(std::vector<std::string>{"-5"}, defaults(attr()->getTypeContainer()));
    EXPECT_TRUE(logged("Ignoring unknown attribute: colour, red"));
    EXPECT_TRUE(logged("Ignoring unknown element: other."));
}

TEST_F(ModelParserClassesTest, Int8DefaultOf300IsAnErrorAndNoDefaultIsKept) {
    parseAttrType("<int8><defaultValue>300</defaultValue></int8>");
    expectParserError("Invalid attribute (M~1.0~C~a) default value (300)");
    EXPECT_EQ(ZefMrType3Int8, attr()->getStruct().type);
    EXPECT_EQ(nullptr, attr()->getStruct().defaultValue);
    EXPECT_TRUE(defaults(attr()->getTypeContainer()).empty());
}

TEST_F(ModelParserClassesTest, Uint8DefaultOfMinusOneIsAnError) {
    parseAttrType("<uint8><defaultValue>-1</defaultValue></uint8>");
    expectParserError("Invalid attribute (M~1.0~C~a) default value (-1)");
    EXPECT_EQ(nullptr, attr()->getStruct().defaultValue);
}

TEST_F(ModelParserClassesTest, DefaultWithLeadingBlankIsAnError) {
    parseAttrType("<int16><defaultValue> 5</defaultValue></int16>");
    expectParserError("Invalid attribute (M~1.0~C~a) default value ( 5)");
    EXPECT_EQ(nullptr, attr()->getStruct().defaultValue);
}

TEST_F(ModelParserClassesTest, InvalidDefaultsOfEveryNumericType) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"int8", "128"},         {"int16", "40000"},       {"int32", "3000000000"},
        {"int64", "1e3"},        {"uint8", "256"},         {"uint16", "65536"},
        {"uint32", "4294967296"}, {"uint64", "-5"},        {"double", "1.0x"}};
    std::string content;
    for (const auto& item : cases) {
        content += "<attribute name=\"" + item.first + "\"><dataType><" + item.first + "><defaultValue>" +
                   item.second + "</defaultValue></" + item.first + "></dataType></attribute>";
    }
    parseClass(content);
    for (const auto& item : cases) {
        expectParserError("Invalid attribute (M~1.0~C~" + item.first + ") default value (" + item.second + ")");
        EXPECT_EQ(nullptr, attr(item.first)->getStruct().defaultValue) << item.first;
    }
}

TEST_F(ModelParserClassesTest, BooleanDefaultYesIsAnError) {
    parseAttrType("<boolean><defaultValue>yes</defaultValue></boolean>");
    expectParserError("Invalid attribute (M~1.0~C~a) default value (yes)");
    EXPECT_EQ(nullptr, attr()->getStruct().defaultValue);
}

TEST_F(ModelParserClassesTest, BooleanDefaultTrueWrittenUpperCaseIsStoredAsTrue) {
    parseAttrType("<boolean><defaultValue>TRUE</defaultValue></boolean>");
    EXPECT_STREQ("true", attr()->getStruct().defaultValue);
    EXPECT_EQ(std::vector<std::string>{"true"}, defaults(attr()->getTypeContainer()));
}

TEST_F(ModelParserClassesTest, BooleanDefaultOneIsStoredAsTrue) {
    parseAttrType("<boolean><defaultValue>1</defaultValue></boolean>");
    EXPECT_STREQ("true", attr()->getStruct().defaultValue);
}

TEST_F(ModelParserClassesTest, BooleanDefaultsZeroAndFalseAreStoredAsFalse) {
    parseClass("<attribute name=\"a\"><dataType><boolean><defaultValue>0</defaultValue></boolean></dataType>"
               "</attribute><attribute name=\"b\"><dataType><boolean><defaultValue>False</defaultValue></boolean>"
               "</dataType></attribute>");
    EXPECT_STREQ("false", attr("a")->getStruct().defaultValue);
    EXPECT_STREQ("false", attr("b")->getStruct().defaultValue);
}

TEST_F(ModelParserClassesTest, SecondPrimitiveDefaultKeepsTheFirstButBothAreContainerValues) {
    parseAttrType("<string><defaultValue>x</defaultValue><defaultValue>y</defaultValue></string>");
    EXPECT_STREQ("x", attr()->getStruct().defaultValue);
    EXPECT_EQ((std::vector<std::string>{"x", "y"}), defaults(attr()->getTypeContainer()));
}

TEST_F(ModelParserClassesTest, TwoDataTypeChildrenUseTheFirstAndWarn) {
    parseAttrType("<int8/><string/>");
    expectParserWarning("int8 can only define one data type at a time -- considering only one, ignoring the rest.");
    EXPECT_EQ(ZefMrType3Int8, attr()->getStruct().type);
}

TEST_F(ModelParserClassesTest, EmptyDataTypeIsAnErrorAndLeavesTheTypeUnset) {
    parseAttrType("");
    expectParserError("Could not find element in datatype: dataType.");
    ASSERT_NE(nullptr, attr());
    EXPECT_EQ(ZefMrType3NotSet, attr()->getStruct().type);
}

TEST_F(ModelParserClassesTest, VoidDataType) {
    parseAttrType("<void/>");
    EXPECT_EQ(ZefMrType3Void, attr()->getStruct().type);
}

TEST_F(ModelParserClassesTest, CommonUnsupportedDataTypeIsTracedAsUnsupported) {
    parseAttrType("<octet/>");
    EXPECT_TRUE(logged("Ignoring unsupported element: octet."));
    EXPECT_EQ(ZefMrType3NotSet, attr()->getStruct().type);
}

TEST_F(ModelParserClassesTest, UnknownDataTypeIsTracedAsUnknown) {
    parseAttrType("<colour/>");
    EXPECT_TRUE(logged("Ignoring unknown element: colour."));
    EXPECT_EQ(ZefMrType3NotSet, attr()->getStruct().type);
}

TEST_F(ModelParserClassesTest, ReferenceDataTypesSetTheirCodesAndTheReference) {
    parseClass("<attribute name=\"e\"><dataType><enumRef name=\"E\" colour=\"red\"><mimName>N</mimName>"
               "<mimVersion>2.0</mimVersion><defaultValue>A</defaultValue><other/><!--note--></enumRef>"
               "</dataType></attribute>"
               "<attribute name=\"m\"><dataType><moRef name=\"C\"/></dataType></attribute>"
               "<attribute name=\"s\"><dataType><structRef name=\"S\"/></dataType></attribute>"
               "<attribute name=\"d\"><dataType><derivedDataTypeRef name=\"D\"/></dataType></attribute>");
    AttrWrapper* enumAttr = attr("e");
    EXPECT_EQ(ZefMrType3Enum, enumAttr->getStruct().type);
    EXPECT_EQ("E", enumAttr->getRefName());
    EXPECT_EQ("N", enumAttr->getRefMomName());
    EXPECT_EQ("2.0", enumAttr->getRefMomVersion());
    EXPECT_STREQ("A", enumAttr->getStruct().defaultValue);
    EXPECT_EQ(std::vector<std::string>{"A"}, defaults(enumAttr->getTypeContainer()));
    EXPECT_TRUE(logged("Ignoring unknown attribute: colour, red"));
    EXPECT_TRUE(logged("Ignoring unknown element: other."));
    EXPECT_TRUE(logged("Ignoring comment: #comment."));
    EXPECT_EQ(ZefMrType3Reference, attr("m")->getStruct().type);
    EXPECT_EQ("C", attr("m")->getRefName());
    EXPECT_EQ(ZefMrType3Struct, attr("s")->getStruct().type);
    EXPECT_EQ(ZefMrType3Derived, attr("d")->getStruct().type);
    EXPECT_EQ("D", attr("d")->getRefName());
}

TEST_F(ModelParserClassesTest, ReferenceWithoutNameIsAnErrorButTheTypeIsSet) {
    parseAttrType("<enumRef><mimName>N</mimName></enumRef>");
    expectParserError("Reference must have a name attribute: enumRef.");
    EXPECT_EQ(ZefMrType3Enum, attr()->getStruct().type);
    EXPECT_EQ("N", attr()->getRefMomName());
}

TEST_F(ModelParserClassesTest, SequenceWithoutBoundsIsZeroToUnbounded) {
    parseAttrType("<sequence><int8/></sequence>");
    const ZefOamSpiMoAttribute& record = attr()->getStruct();
    EXPECT_EQ(ZefMrType3Int8, record.type);
    EXPECT_EQ(0, record.multiplicityRange.min);
    EXPECT_EQ(32767, record.multiplicityRange.max);
    EXPECT_TRUE(attr()->getIsMinSet());
    EXPECT_TRUE(attr()->getIsMaxSet());
    EXPECT_TRUE(record.isUnique);
    EXPECT_FALSE(record.isOrdered);
}

TEST_F(ModelParserClassesTest, SequenceWithBoundsAndFlags) {
    parseAttrType("<sequence colour=\"red\"><string><defaultValue>x</defaultValue></string>"
                  "<minLength>2</minLength><maxLength>5</maxLength><nonUnique/><ordered/></sequence>");
    const ZefOamSpiMoAttribute& record = attr()->getStruct();
    EXPECT_EQ(ZefMrType3String, record.type);
    EXPECT_EQ(2, record.multiplicityRange.min);
    EXPECT_EQ(5, record.multiplicityRange.max);
    EXPECT_FALSE(record.isUnique);
    EXPECT_TRUE(record.isOrdered);
    EXPECT_STREQ("x", record.defaultValue);
    EXPECT_TRUE(logged("Ignoring unknown attribute: colour, red"));
}

TEST_F(ModelParserClassesTest, SequenceWithInvalidBoundsIsWarnedAndFallsBackToTheDefaults) {
    parseAttrType("<sequence><int8/><minLength>x</minLength><maxLength>-1</maxLength></sequence>");
    expectParserWarning("Invalid min value for attribute (a).");
    expectParserWarning("Invalid max value for attribute (a).");
    EXPECT_EQ(0, attr()->getStruct().multiplicityRange.min);
    EXPECT_EQ(32767, attr()->getStruct().multiplicityRange.max);
}

TEST_F(ModelParserClassesTest, SequenceOfReferenceAllowsNoDefault) {
    parseAttrType("<sequence><moRef name=\"C\"><defaultValue>x</defaultValue></moRef></sequence>");
    EXPECT_EQ(ZefMrType3Reference, attr()->getStruct().type);
    EXPECT_EQ("C", attr()->getRefName());
    EXPECT_EQ(nullptr, attr()->getStruct().defaultValue);
    EXPECT_TRUE(logged("Ignoring unsupported element: defaultValue."));
}

TEST_F(ModelParserClassesTest, SeqDefaultValueOfThreeValuesIsJoinedByBlanks) {
    parseAttrType("<sequence><string/><seqDefaultValue colour=\"red\"><defaultValue>a</defaultValue>"
                  "<defaultValue>b</defaultValue><other/><defaultValue>c</defaultValue></seqDefaultValue></sequence>");
    EXPECT_STREQ("a b c", attr()->getStruct().defaultValue);
    EXPECT_EQ((std::vector<std::string>{"a", "b", "c"}), defaults(attr()->getTypeContainer()));
    EXPECT_TRUE(logged("Ignoring unknown attribute: colour, red"));
    EXPECT_TRUE(logged("Ignoring unknown element: other."));
}

TEST_F(ModelParserClassesTest, EmptySeqDefaultValueSetsNothing) {
    parseAttrType("<sequence><string/><seqDefaultValue/></sequence>");
    EXPECT_EQ(nullptr, attr()->getStruct().defaultValue);
    EXPECT_TRUE(defaults(attr()->getTypeContainer()).empty());
}

TEST_F(ModelParserClassesTest, SequenceUnsupportedAndUnknownChildren) {
    parseAttrType("<sequence><int8/><sequence/><wstring/><colour/>stray</sequence>");
    EXPECT_TRUE(logged("Ignoring unsupported element: sequence."));
    EXPECT_TRUE(logged("Ignoring unsupported element: wstring."));
    EXPECT_TRUE(logged("Ignoring unknown element: colour."));
    EXPECT_TRUE(logged("Ignoring XML items of type: 3; name: #text; value: stray."));
}

// ---- actions ---------------------------------------------------------------------

TEST_F(ModelParserClassesTest, ActionIsReadWithItsName) {
    parseClass("<action name=\"act\" colour=\"red\"><returnType><void/></returnType>"
               "<description>d</description></action>");
    ASSERT_NE(nullptr, action());
    EXPECT_EQ("M~1.0~C~act", action()->getId());
    EXPECT_STREQ("d", action()->getStruct().generalProperties.description);
    EXPECT_EQ(ZefMrType3Void, action()->getStruct().returnType.type);
    EXPECT_TRUE(logged("Ignoring unknown attribute: colour, red"));
    EXPECT_TRUE(logged(" >> Processing action: act."));
    EXPECT_TRUE(logged(" << Processed attribute: act."));
}

TEST_F(ModelParserClassesTest, ActionWithoutNameIsAnError) {
    parseClass("<action><returnType/></action>");
    expectParserError("Action name is not set: action.");
    EXPECT_TRUE(moc()->getMoActionList().empty());
}

TEST_F(ModelParserClassesTest, ActionWithEmptyNameUsesTheAttributeWording) {
    parseClass("<action name=\"\"/>");
    expectParserWarning("Failed to set name of the attr ().");
    expectParserError("Action name is not set: action.");
}

TEST_F(ModelParserClassesTest, ActionWithoutReturnTypeIsKeptWithAWarning) {
    parseAction("");
    expectParserWarning("The action act is missing returnType");
    EXPECT_NE(nullptr, action());
}

TEST_F(ModelParserClassesTest, ActionDescriptionGivenTwiceIsWarned) {
    parseAction("<returnType><void/></returnType><description>d</description><description>e</description>");
    expectParserWarning("The description of the action (act) is already set.");
}

TEST_F(ModelParserClassesTest, ActionStatusWordsAndDomainExtension) {
    parseClass("<action name=\"a1\"><returnType><void/></returnType><deprecated/>"
               "<domainExtension domain=\"QCIM\"><extension name=\"x\" value=\"1\"/></domainExtension></action>"
               "<action name=\"a2\"><returnType><void/></returnType><obsolete/></action>"
               "<action name=\"a3\"><returnType><void/></returnType><preliminary/></action>");
    EXPECT_EQ(ZefOamSpiStatusDeprecated, action("a1")->getStruct().generalProperties.status);
    EXPECT_EQ("DEPRECATED", action("a1")->getStatus3());
    ASSERT_NE(nullptr, action("a1")->getDomainExtension("QCIM", "x"));
    EXPECT_EQ(ZefOamSpiStatusObsolete, action("a2")->getStruct().generalProperties.status);
    EXPECT_EQ(ZefOamSpiStatusCurrent, action("a3")->getStruct().generalProperties.status);
    EXPECT_EQ("PRELIMINARY", action("a3")->getStatus3());
}

TEST_F(ModelParserClassesTest, ActionUnsupportedChildrenAreTraced) {
    const std::vector<std::string> names = {
        "applicationTag", "local",          "static",       "undefined",          "lockBeforeModify",
        "restartType",    "indexed",        "visibility",   "dependencies",       "dependenciesScript",
        "feature",        "interfaceOnly",  "disturbances", "takesEffect",        "sideEffects",
        "precondition",   "condition",      "counterType",  "samplingRate",       "scanner",
        "counterReset",   "counterContext", "getValue",     "transactionRequired", "transactionContraints"};
    std::string content = "<returnType><void/></returnType>";
    for (const std::string& name : names) {
        content += "<" + name + "/>";
    }
    parseAction(content);
    ASSERT_NE(nullptr, action());
    for (const std::string& name : names) {
        EXPECT_TRUE(logged("Ignoring unsupported element: " + name + ".")) << name;
    }
}

TEST_F(ModelParserClassesTest, ActionUnknownChildAndNonElementsAreTraced) {
    parseAction("<returnType><void/></returnType><specification/>stray<!--note-->");
    EXPECT_TRUE(logged("Ignoring unknown element: specification."));
    EXPECT_TRUE(logged("Ignoring XML items of type: 3; name: #text; value: stray."));
    EXPECT_TRUE(logged("Ignoring comment: #comment."));
}

// ---- return types ------------------------------------------------------------------

TEST_F(ModelParserClassesTest, PrimitiveReturnTypeWithDefault) {
    parseAction("<returnType><uint16><defaultValue>7</defaultValue></uint16></returnType>");
    EXPECT_EQ(ZefMrType3UInt16, action()->getStruct().returnType.type);
    EXPECT_STREQ("7", action()->getStruct().returnType.defaultValue);
    EXPECT_EQ(std::vector<std::string>{"7"}, defaults(action()->getTypeContainer()));
}

TEST_F(ModelParserClassesTest, InvalidReturnTypeDefaultNamesTheAction) {
    parseAction("<returnType><boolean><defaultValue>yes</defaultValue></boolean></returnType>");
    expectParserError("Invalid attribute (M~1.0~C~act) default value (yes)");
}

TEST_F(ModelParserClassesTest, ReferenceReturnTypeTakesNoDefault) {
    parseAction("<returnType><structRef name=\"S\"><mimName>N</mimName><defaultValue>x</defaultValue>"
                "</structRef></returnType>");
    EXPECT_EQ(ZefMrType3Struct, action()->getStruct().returnType.type);
    EXPECT_EQ("S", action()->getRefName());
    EXPECT_EQ("N", action()->getRefMomName());
    EXPECT_EQ(nullptr, action()->getStruct().returnType.defaultValue);
    EXPECT_TRUE(logged("Ignoring unsupported element: defaultValue."));
}

TEST_F(ModelParserClassesTest, SequenceReturnType) {
    parseAction("<returnType><sequence><moRef name=\"C\"/><maxLength>3</maxLength></sequence></returnType>");
    const ZefOamSpiDatatypeContainer& result = action()->getStruct().returnType;
    EXPECT_EQ(ZefMrType3Reference, result.type);
    EXPECT_EQ(0, result.multiplicityRange.min);
    EXPECT_EQ(3, result.multiplicityRange.max);
}

TEST_F(ModelParserClassesTest, UnsupportedAndUnknownReturnTypes) {
    parseClass("<action name=\"a1\"><returnType><float/></returnType></action>"
               "<action name=\"a2\"><returnType><colour/></returnType></action>");
    EXPECT_TRUE(logged("Ignoring unsupported element: float."));
    EXPECT_TRUE(logged("Ignoring unknown element: colour."));
    EXPECT_EQ(ZefMrType3NotSet, action("a1")->getStruct().returnType.type);
    EXPECT_EQ(ZefMrType3NotSet, action("a2")->getStruct().returnType.type);
}

TEST_F(ModelParserClassesTest, EmptyReturnTypeIsAnError) {
    parseAction("<returnType/>");
    expectParserError("Could not find element in datatype: returnType.");
    EXPECT_NE(nullptr, action());
}

// ---- parameters ---------------------------------------------------------------------

TEST_F(ModelParserClassesTest, ParameterIsAddedToItsAction) {
    parseParameter("<parameter name=\"p\" colour=\"red\"><in/><description>d</description>"
                   "<dataType><int8><defaultValue>3</defaultValue></int8></dataType></parameter>"
                   "<parameter name=\"q\"><in/><dataType><string/></dataType></parameter>");
    ParameterWrapper* first = parameter();
    ASSERT_NE(nullptr, first);
    EXPECT_EQ("p", first->getName());
    EXPECT_EQ(action(), first->getMoAction());
    EXPECT_STREQ("d", first->getStruct().generalProperties.description);
    EXPECT_EQ(ZefMrType3Int8, first->getStruct().datatype.type);
    EXPECT_STREQ("3", first->getStruct().datatype.defaultValue);
    EXPECT_EQ(std::vector<std::string>{"3"}, defaults(first->getTypeContainer()));
    ASSERT_NE(nullptr, first->getNext());
    EXPECT_EQ("q", first->getNext()->getName());
    EXPECT_TRUE(logged("Ignoring unknown attribute: colour, red"));
    EXPECT_TRUE(logged(" >> handling parameter: p."));
    EXPECT_TRUE(logged(" << handled parameter: p."));
}

TEST_F(ModelParserClassesTest, ParameterWithOutInsteadOfInIsKeptWithTraceAndWarning) {
    parseParameter("<parameter name=\"p\"><out/><dataType><int8/></dataType></parameter>");
    expectParserWarning("Parameter p missing in|inout|out element");
    EXPECT_TRUE(logged("Ignoring unsupported element: out."));
    ASSERT_NE(nullptr, parameter());
    EXPECT_EQ("p", parameter()->getName());
}

TEST_F(ModelParserClassesTest, ParameterInoutAndApplicationTagAreUnsupported) {
    parseParameter("<parameter name=\"p\"><in/><inout/><applicationTag/><colour/><dataType><int8/></dataType>"
                   "</parameter>");
    EXPECT_TRUE(logged("Ignoring unsupported element: inout."));
    EXPECT_TRUE(logged("Ignoring unsupported element: applicationTag."));
    EXPECT_TRUE(logged("Ignoring unknown element: colour."));
}

TEST_F(ModelParserClassesTest, ParameterWithoutSubNodesIsWarnedForEverythingMissing) {
    parseParameter("<parameter name=\"p\"/>");
    expectParserWarning("p missing sub nodes");
    expectParserWarning("Parameter p missing in|inout|out element");
    expectParserWarning("Parameter p missing dataType element");
    EXPECT_NE(nullptr, parameter());
}

TEST_F(ModelParserClassesTest, ParameterWithoutNameIsNotAdded) {
    parseParameter("<parameter><in/><dataType><int8/></dataType></parameter>");
    EXPECT_EQ((std::vector<std::string>{"WARNING, ModelParser: Parameter  missing name element",
                                        "ERROR, ModelParser: Actions (act) parameter has no name attribute set."}),
              takeMessages());
    EXPECT_EQ(nullptr, parameter());
}

TEST_F(ModelParserClassesTest, NillableParameterMayBeLeftOut) {
    parseParameter("<parameter name=\"p\"><in/><dataType><int8/></dataType>"
                   "<domainExtension domain=\"QCIM\"><extension name=\"isNillable\" value=\"true\"/></domainExtension>"
                   "</parameter>");
    EXPECT_TRUE(parameter()->getIsMinSet());
    EXPECT_EQ(0, parameter()->getStruct().datatype.multiplicityRange.min);
}

TEST_F(ModelParserClassesTest, ParameterDomainExtensionWithoutNillableKeepsTheMinimum) {
    parseParameter("<parameter name=\"p\"><in/><dataType><int8/></dataType>"
                   "<domainExtension domain=\"QCIM\"><extension name=\"x\" value=\"1\"/></domainExtension>"
                   "</parameter>");
    EXPECT_FALSE(parameter()->getIsMinSet());
    EXPECT_EQ(1, parameter()->getStruct().datatype.multiplicityRange.min);
}

TEST_F(ModelParserClassesTest, SecondParameterOfTheSameNameIsDropped) {
    parseParameter("<parameter name=\"p\"><in/><dataType><int8/></dataType></parameter>"
                   "<parameter name=\"p\"><in/><dataType><string/></dataType></parameter>");
    ASSERT_NE(nullptr, parameter());
    EXPECT_EQ(ZefMrType3Int8, parameter()->getStruct().datatype.type);
    EXPECT_EQ(nullptr, parameter()->getNext());
}

TEST_F(ModelParserClassesTest, InvalidParameterDefaultNamesTheParameter) {
    parseParameter("<parameter name=\"p\"><in/><dataType><uint8><defaultValue>-1</defaultValue></uint8></dataType>"
                   "</parameter>");
    expectParserError("Invalid attribute (p) default value (-1)");
}

TEST_F(ModelParserClassesTest, ParameterSequenceAndReference) {
    parseParameter("<parameter name=\"p\"><in/><dataType><sequence><enumRef name=\"E\"/><ordered/></sequence>"
                   "</dataType></parameter>"
                   "<parameter name=\"q\"><in/><dataType><derivedDataTypeRef name=\"D\"><defaultValue>v</defaultValue>"
                   "</derivedDataTypeRef></dataType></parameter>");
    ParameterWrapper* p = parameter();
    EXPECT_EQ(ZefMrType3Enum, p->getStruct().datatype.type);
    EXPECT_TRUE(p->getStruct().datatype.isOrdered);
    EXPECT_EQ(32767, p->getStruct().datatype.multiplicityRange.max);
    ParameterWrapper* q = p->getNext();
    ASSERT_NE(nullptr, q);
    EXPECT_EQ(ZefMrType3Derived, q->getStruct().datatype.type);
    EXPECT_EQ("D", q->getRefName());
    EXPECT_STREQ("v", q->getStruct().datatype.defaultValue);
}

// ---- the data type templates on a struct member --------------------------------------

TEST_F(ModelParserClassesTest, StructMemberDataTypes) {
    StructMemberWrapper member;
    member.setName("m");
    parser.handleDataType(loadElement("<dataType><int8><defaultValue>300</defaultValue></int8></dataType>"), &member);
    expectParserError("Invalid attribute (m) default value (300)");
    EXPECT_EQ(ZefMrType3Int8, member.getType());

    StructMemberWrapper sequence;
    sequence.setName("s");
    parser.handleSeqDataType(loadElement("<sequence><string/><seqDefaultValue><defaultValue>a</defaultValue>"
                                         "<defaultValue>b</defaultValue></seqDefaultValue></sequence>"),
                             &sequence);
    EXPECT_STREQ("a b", sequence.getDatatype().defaultValue);
    EXPECT_EQ((std::vector<std::string>{"a", "b"}), defaults(sequence.getTypeContainer()));

    StructMemberWrapper reference;
    reference.setName("r");
    parser.handleReference(loadElement("<moRef name=\"C\"><defaultValue>x</defaultValue></moRef>"), &reference, true);
    EXPECT_EQ(ZefMrType3Reference, reference.getType());
    EXPECT_STREQ("x", reference.getDatatype().defaultValue);
}

TEST_F(ModelParserClassesTest, CheckHandlePrimitiveDataTypeRecognisesOnlyPrimitiveNames) {
    StructMemberWrapper member;
    member.setName("m");
    ZefReturnT result = ZefFailure;
    EXPECT_FALSE(parser.checkHandlePrimitiveDataType(loadElement("<moRef name=\"C\"/>"), &member, result));
    EXPECT_EQ(ZefFailure, result);
    EXPECT_EQ(ZefMrType3NotSet, member.getType());
    EXPECT_TRUE(parser.checkHandlePrimitiveDataType(loadElement("<double><defaultValue>2.5</defaultValue></double>"),
                                                    &member, result));
    EXPECT_EQ(ZefOk, result);
    EXPECT_EQ(ZefMrType3Double, member.getType());
    EXPECT_STREQ("2.5", member.getDatatype().defaultValue);
}

TEST_F(ModelParserClassesTest, HandleSeqDefaultValueReturnsTheSetterResult) {
    ParameterWrapper param;
    param.setName("p");
    EXPECT_EQ(ZefOk, parser.handleSeqDefaultValue(loadElement("<seqDefaultValue/>"), &param));
    EXPECT_EQ(ZefOk, parser.handleSeqDefaultValue(
                         loadElement("<seqDefaultValue><defaultValue>a</defaultValue></seqDefaultValue>"), &param));
    EXPECT_EQ(ZefAlreadyExists,
              parser.handleSeqDefaultValue(
                  loadElement("<seqDefaultValue><defaultValue>b</defaultValue></seqDefaultValue>"), &param));
    EXPECT_STREQ("a", param.getDatatype().defaultValue);
}

} // namespace
