// Pins the layout of the published records: readers built against an older
// header must find every field where it was. A change here is a change of
// the binary interface.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>

#include "ZefOamSpiMrTypes.h"

#if UINTPTR_MAX == 0xffffffffffffffffu

#define ZEF_PIN(type, field, offset) static_assert(offsetof(type, field) == (offset), #type "." #field)

static_assert(sizeof(ZefOamSpiStatus) == 4, "status is a 32-bit enum");
static_assert(sizeof(ZefOamSpiMrType_3) == 4, "type code is 32-bit");
static_assert(sizeof(ZefOamSpiType_2) == 4, "type code is 32-bit");
static_assert(sizeof(ZefOamSpiMrType_4) == 4, "type code is 32-bit");
static_assert(sizeof(ZefOamSpiMoAttributeType) == 4, "type code is 32-bit");
static_assert(sizeof(bool) == 1, "flags are 8-bit");

ZEF_PIN(ZefOamSpiGeneralProperties, name, 0);
ZEF_PIN(ZefOamSpiGeneralProperties, description, 8);
ZEF_PIN(ZefOamSpiGeneralProperties, specification, 16);
ZEF_PIN(ZefOamSpiGeneralProperties, status, 24);
ZEF_PIN(ZefOamSpiGeneralProperties, hidden, 32);
static_assert(sizeof(ZefOamSpiGeneralProperties) == 40, "general properties");

ZEF_PIN(ZefOamSpiMultiplicityRange, min, 0);
ZEF_PIN(ZefOamSpiMultiplicityRange, max, 2);
static_assert(sizeof(ZefOamSpiMultiplicityRange) == 4, "multiplicity range");

ZEF_PIN(ZefOamSpiDatatypeContainer, type, 0);
ZEF_PIN(ZefOamSpiDatatypeContainer, derivedDatatype, 8);
ZEF_PIN(ZefOamSpiDatatypeContainer, enumDatatype, 16);
ZEF_PIN(ZefOamSpiDatatypeContainer, structDatatype, 24);
ZEF_PIN(ZefOamSpiDatatypeContainer, referencedMoc, 32);
ZEF_PIN(ZefOamSpiDatatypeContainer, defaultValue, 40);
ZEF_PIN(ZefOamSpiDatatypeContainer, multiplicityRange, 48);
ZEF_PIN(ZefOamSpiDatatypeContainer, isOrdered, 52);
ZEF_PIN(ZefOamSpiDatatypeContainer, isUnique, 53);
static_assert(sizeof(ZefOamSpiDatatypeContainer) == 56, "data type container");

ZEF_PIN(ZefOamSpiMom, generalProperties, 0);
ZEF_PIN(ZefOamSpiMom, version, 40);
ZEF_PIN(ZefOamSpiMom, release, 48);
ZEF_PIN(ZefOamSpiMom, namespaceURI, 56);
ZEF_PIN(ZefOamSpiMom, namespacePrefix, 64);
ZEF_PIN(ZefOamSpiMom, rootMoc, 72);
ZEF_PIN(ZefOamSpiMom, docNo, 80);
ZEF_PIN(ZefOamSpiMom, revision, 88);
ZEF_PIN(ZefOamSpiMom, author, 96);
ZEF_PIN(ZefOamSpiMom, organization, 104);
ZEF_PIN(ZefOamSpiMom, next, 112);
ZEF_PIN(ZefOamSpiMom, handle, 120);
ZEF_PIN(ZefOamSpiMom, generalPropertiesHandle, 128);
static_assert(sizeof(ZefOamSpiMom) == 136, "mom");

ZEF_PIN(ZefOamSpiMoc, generalProperties, 0);
ZEF_PIN(ZefOamSpiMoc, mom, 40);
ZEF_PIN(ZefOamSpiMoc, isReadOnly, 48);
ZEF_PIN(ZefOamSpiMoc, isRoot, 49);
ZEF_PIN(ZefOamSpiMoc, constraint, 56);
ZEF_PIN(ZefOamSpiMoc, moAttribute, 64);
ZEF_PIN(ZefOamSpiMoc, moAction, 72);
ZEF_PIN(ZefOamSpiMoc, childContainment, 80);
ZEF_PIN(ZefOamSpiMoc, parentContainment, 88);
ZEF_PIN(ZefOamSpiMoc, handle, 96);
ZEF_PIN(ZefOamSpiMoc, generalPropertiesHandle, 104);
static_assert(sizeof(ZefOamSpiMoc) == 112, "moc");

ZEF_PIN(ZefOamSpiMoAttribute, generalProperties, 0);
ZEF_PIN(ZefOamSpiMoAttribute, moc, 40);
ZEF_PIN(ZefOamSpiMoAttribute, type, 48);
ZEF_PIN(ZefOamSpiMoAttribute, derivedDatatype, 56);
ZEF_PIN(ZefOamSpiMoAttribute, enumDatatype, 64);
ZEF_PIN(ZefOamSpiMoAttribute, structDatatype, 72);
ZEF_PIN(ZefOamSpiMoAttribute, referencedMoc, 80);
ZEF_PIN(ZefOamSpiMoAttribute, isKey, 88);
ZEF_PIN(ZefOamSpiMoAttribute, isMandatory, 89);
ZEF_PIN(ZefOamSpiMoAttribute, isPersistent, 90);
ZEF_PIN(ZefOamSpiMoAttribute, isReadOnly, 91);
ZEF_PIN(ZefOamSpiMoAttribute, multiplicityRange, 92);
ZEF_PIN(ZefOamSpiMoAttribute, isOrdered, 96);
ZEF_PIN(ZefOamSpiMoAttribute, isUnique, 97);
ZEF_PIN(ZefOamSpiMoAttribute, defaultValue, 104);
ZEF_PIN(ZefOamSpiMoAttribute, unit, 112);
ZEF_PIN(ZefOamSpiMoAttribute, next, 120);
ZEF_PIN(ZefOamSpiMoAttribute, handle, 128);
ZEF_PIN(ZefOamSpiMoAttribute, generalPropertiesHandle, 136);
static_assert(sizeof(ZefOamSpiMoAttribute) == 144, "attribute");

ZEF_PIN(ZefOamSpiMoAction, generalProperties, 0);
ZEF_PIN(ZefOamSpiMoAction, moc, 40);
ZEF_PIN(ZefOamSpiMoAction, returnType, 48);
ZEF_PIN(ZefOamSpiMoAction, parameters, 104);
ZEF_PIN(ZefOamSpiMoAction, next, 112);
ZEF_PIN(ZefOamSpiMoAction, handle, 120);
ZEF_PIN(ZefOamSpiMoAction, generalPropertiesHandle, 128);
static_assert(sizeof(ZefOamSpiMoAction) == 136, "action");

ZEF_PIN(ZefOamSpiParameter, generalProperties, 0);
ZEF_PIN(ZefOamSpiParameter, moAction, 40);
ZEF_PIN(ZefOamSpiParameter, datatype, 48);
ZEF_PIN(ZefOamSpiParameter, next, 104);
ZEF_PIN(ZefOamSpiParameter, handle, 112);
ZEF_PIN(ZefOamSpiParameter, generalPropertiesHandle, 120);
static_assert(sizeof(ZefOamSpiParameter) == 128, "parameter");

ZEF_PIN(ZefOamSpiEnum, generalProperties, 0);
ZEF_PIN(ZefOamSpiEnum, mom, 40);
ZEF_PIN(ZefOamSpiEnum, literals, 48);
ZEF_PIN(ZefOamSpiEnum, handle, 56);
ZEF_PIN(ZefOamSpiEnum, generalPropertiesHandle, 64);
static_assert(sizeof(ZefOamSpiEnum) == 72, "enum");

ZEF_PIN(ZefOamSpiEnumLiteral, generalProperties, 0);
ZEF_PIN(ZefOamSpiEnumLiteral, value, 40);
ZEF_PIN(ZefOamSpiEnumLiteral, next, 48);
ZEF_PIN(ZefOamSpiEnumLiteral, handle, 56);
ZEF_PIN(ZefOamSpiEnumLiteral, generalPropertiesHandle, 64);
static_assert(sizeof(ZefOamSpiEnumLiteral) == 72, "enum literal");

ZEF_PIN(ZefOamSpiValueRange, min, 0);
ZEF_PIN(ZefOamSpiValueRange, max, 8);
ZEF_PIN(ZefOamSpiValueRange, minDouble, 16);
ZEF_PIN(ZefOamSpiValueRange, maxDouble, 24);
ZEF_PIN(ZefOamSpiValueRange, next, 32);
ZEF_PIN(ZefOamSpiValueRange, handle, 40);
static_assert(sizeof(ZefOamSpiValueRange) == 48, "value range");

ZEF_PIN(ZefOamSpiLengthRange, min, 0);
ZEF_PIN(ZefOamSpiLengthRange, max, 8);
static_assert(sizeof(ZefOamSpiLengthRange) == 16, "length range");

ZEF_PIN(ZefOamSpiDerivedDatatype, generalProperties, 0);
ZEF_PIN(ZefOamSpiDerivedDatatype, mom, 40);
ZEF_PIN(ZefOamSpiDerivedDatatype, type, 48);
ZEF_PIN(ZefOamSpiDerivedDatatype, pattern, 56);
ZEF_PIN(ZefOamSpiDerivedDatatype, stringLength, 64);
ZEF_PIN(ZefOamSpiDerivedDatatype, valueRange, 80);
ZEF_PIN(ZefOamSpiDerivedDatatype, handle, 88);
ZEF_PIN(ZefOamSpiDerivedDatatype, generalPropertiesHandle, 96);
static_assert(sizeof(ZefOamSpiDerivedDatatype) == 104, "derived data type");

ZEF_PIN(ZefOamSpiStruct, generalProperties, 0);
ZEF_PIN(ZefOamSpiStruct, mom, 40);
ZEF_PIN(ZefOamSpiStruct, members, 48);
ZEF_PIN(ZefOamSpiStruct, handle, 56);
ZEF_PIN(ZefOamSpiStruct, generalPropertiesHandle, 64);
static_assert(sizeof(ZefOamSpiStruct) == 72, "struct");

ZEF_PIN(ZefOamSpiStructMember, generalProperties, 0);
ZEF_PIN(ZefOamSpiStructMember, datatype, 40);
ZEF_PIN(ZefOamSpiStructMember, next, 96);
ZEF_PIN(ZefOamSpiStructMember, handle, 104);
ZEF_PIN(ZefOamSpiStructMember, generalPropertiesHandle, 112);
static_assert(sizeof(ZefOamSpiStructMember) == 120, "struct member");

ZEF_PIN(ZefOamSpiContainment, generalProperties, 0);
ZEF_PIN(ZefOamSpiContainment, mom, 40);
ZEF_PIN(ZefOamSpiContainment, parentMoc, 48);
ZEF_PIN(ZefOamSpiContainment, childMoc, 56);
ZEF_PIN(ZefOamSpiContainment, cardinality, 64);
ZEF_PIN(ZefOamSpiContainment, isSystemCreated, 68);
ZEF_PIN(ZefOamSpiContainment, nextContainmentSameParentMoc, 72);
ZEF_PIN(ZefOamSpiContainment, nextContainmentSameChildMoc, 80);
ZEF_PIN(ZefOamSpiContainment, handle, 88);
ZEF_PIN(ZefOamSpiContainment, generalPropertiesHandle, 96);
static_assert(sizeof(ZefOamSpiContainment) == 104, "containment");

ZEF_PIN(ZefOamSpiAssociationEnd, generalProperties, 0);
ZEF_PIN(ZefOamSpiAssociationEnd, mom, 40);
ZEF_PIN(ZefOamSpiAssociationEnd, isReserving, 48);
ZEF_PIN(ZefOamSpiAssociationEnd, isRestricted, 49);
ZEF_PIN(ZefOamSpiAssociationEnd, lower, 52);
ZEF_PIN(ZefOamSpiAssociationEnd, upper, 56);
ZEF_PIN(ZefOamSpiAssociationEnd, moc, 64);
ZEF_PIN(ZefOamSpiAssociationEnd, attribute, 72);
ZEF_PIN(ZefOamSpiAssociationEnd, handle, 80);
ZEF_PIN(ZefOamSpiAssociationEnd, generalPropertiesHandle, 88);
static_assert(sizeof(ZefOamSpiAssociationEnd) == 96, "association end");

ZEF_PIN(ZefOamSpiBiDirAssociation, generalProperties, 0);
ZEF_PIN(ZefOamSpiBiDirAssociation, mom, 40);
ZEF_PIN(ZefOamSpiBiDirAssociation, firstAssociationEnd, 48);
ZEF_PIN(ZefOamSpiBiDirAssociation, secondAssociationEnd, 56);
ZEF_PIN(ZefOamSpiBiDirAssociation, handle, 64);
ZEF_PIN(ZefOamSpiBiDirAssociation, generalPropertiesHandle, 72);
static_assert(sizeof(ZefOamSpiBiDirAssociation) == 80, "bidirectional association");

ZEF_PIN(ZefOamSpiUniDirAssociation, generalProperties, 0);
ZEF_PIN(ZefOamSpiUniDirAssociation, mom, 40);
ZEF_PIN(ZefOamSpiUniDirAssociation, associationEnd, 48);
ZEF_PIN(ZefOamSpiUniDirAssociation, originMoc, 56);
ZEF_PIN(ZefOamSpiUniDirAssociation, handle, 64);
ZEF_PIN(ZefOamSpiUniDirAssociation, generalPropertiesHandle, 72);
static_assert(sizeof(ZefOamSpiUniDirAssociation) == 80, "unidirectional association");

#undef ZEF_PIN

#endif

TEST(ZefOamSpiMrTypesLayoutTest, CodesHaveTheirPublishedValues)
{
    EXPECT_EQ(1, ZefOamSpiStatusCurrent);
    EXPECT_EQ(2, ZefOamSpiStatusDeprecated);
    EXPECT_EQ(3, ZefOamSpiStatusObsolete);
    const int codes3[] = {ZefMrType3NotSet, ZefMrType3Int8,   ZefMrType3Int16,     ZefMrType3Int32,
                          ZefMrType3Int64,  ZefMrType3UInt8,  ZefMrType3UInt16,    ZefMrType3UInt32,
                          ZefMrType3UInt64, ZefMrType3String, ZefMrType3Bool,      ZefMrType3Reference,
                          ZefMrType3Enum,   ZefMrType3Derived, ZefMrType3Struct,   ZefMrType3Void,
                          ZefMrType3Double};
    const int codes4[] = {ZefMrType4NotSet, ZefMrType4Int8,   ZefMrType4Int16,     ZefMrType4Int32,
                          ZefMrType4Int64,  ZefMrType4UInt8,  ZefMrType4UInt16,    ZefMrType4UInt32,
                          ZefMrType4UInt64, ZefMrType4String, ZefMrType4Bool,      ZefMrType4Reference,
                          ZefMrType4Enum,   ZefMrType4Derived, ZefMrType4Struct,   ZefMrType4Void,
                          ZefMrType4Double};
    const int codesAttr[] = {ZefMoAttributeTypeNotSet,  ZefMoAttributeTypeInt8,      ZefMoAttributeTypeInt16,
                             ZefMoAttributeTypeInt32,   ZefMoAttributeTypeInt64,     ZefMoAttributeTypeUInt8,
                             ZefMoAttributeTypeUInt16,  ZefMoAttributeTypeUInt32,    ZefMoAttributeTypeUInt64,
                             ZefMoAttributeTypeString,  ZefMoAttributeTypeBool,      ZefMoAttributeTypeReference,
                             ZefMoAttributeTypeEnum,    ZefMoAttributeTypeDerived,   ZefMoAttributeTypeStruct,
                             ZefMoAttributeTypeVoid,    ZefMoAttributeTypeDouble};
    const int codes2[] = {ZefType2NotSet, ZefType2Int8,   ZefType2Int16,     ZefType2Int32,  ZefType2Int64,
                          ZefType2UInt8,  ZefType2UInt16, ZefType2UInt32,    ZefType2UInt64, ZefType2String,
                          ZefType2Bool,   ZefType2Reference, ZefType2Enum,   ZefType2Derived, ZefType2Struct,
                          ZefType2Void};
    for (int code = 0; code <= 16; ++code) {
        EXPECT_EQ(code, codes3[code]);
        EXPECT_EQ(code, codes4[code]);
        EXPECT_EQ(code, codesAttr[code]);
        if (code <= 15) {
            EXPECT_EQ(code, codes2[code]);
        }
    }
}
