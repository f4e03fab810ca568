// Pins the layout of the query interface tables. The tables are
// append-only: a reader built against an older header must find every slot
// where it was, so a failing assertion here is a broken binary interface, not
// a test to adjust. A new slot goes at the end of a new version's table.

#include <gtest/gtest.h>

#include <cstddef>

#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefOamSpiModelRepository_4_1.h"

namespace {

constexpr std::size_t kSlot = sizeof(void (*)());
constexpr std::size_t kHead = sizeof(ZefMgmtSpiInterface_1);

} // namespace

// Slot `index` of a table of function pointers.
#define ZEF_SLOT(table, slot, index) \
    static_assert(offsetof(table, slot) == (index) * kSlot, #table "." #slot)
// Sub-table pointer `index` of a versioned interface, behind the three texts.
#define ZEF_SUBTABLE(table, member, index) \
    static_assert(offsetof(table, member) == kHead + (index) * sizeof(void*), #table "." #member)
#define ZEF_SIZE(table, slots) static_assert(sizeof(table) == (slots) * kSlot, #table " size")

static_assert(kHead == 3 * sizeof(const char*), "three texts head every interface");
static_assert(sizeof(ZefOamSpiStatus_2) == 4, "status code is 32-bit");
static_assert(sizeof(ZefOamSpiMrIntProperty_4) == 4, "property codes are 32-bit");

// The codes are part of the interface as much as the slots are.
#define ZEF_CODE(code, value) static_assert((code) == (value), #code)
ZEF_CODE(ZefOamSpiStatus2Current, 1);
ZEF_CODE(ZefOamSpiStatus2Deprecated, 2);
ZEF_CODE(ZefOamSpiStatus2Obsolete, 3);
ZEF_CODE(ZefMrMoRefProperty3Moc, 0);
ZEF_CODE(ZefMrIntProperty3Resolution, 0);
ZEF_CODE(ZefMrIntProperty3Min, 1);
ZEF_CODE(ZefMrIntProperty3Max, 2);
ZEF_CODE(ZefMrIntProperty3FirstRange, 3);
ZEF_CODE(ZefMrStringProperty3Pattern, 0);
ZEF_CODE(ZefMrStringProperty3ExceptionText, 1);
ZEF_CODE(ZefMrStringProperty3MinLength, 2);
ZEF_CODE(ZefMrStringProperty3MaxLength, 3);
ZEF_CODE(ZefMrStringProperty3IsPassphrase, 4);
ZEF_CODE(ZefMrStringProperty3FirstLengthRange, 5);
ZEF_CODE(ZefMrFloatProperty3Resolution, 0);
ZEF_CODE(ZefMrFloatProperty3Min, 1);
ZEF_CODE(ZefMrFloatProperty3Max, 2);
ZEF_CODE(ZefMrFloatProperty3FirstRange, 3);
ZEF_CODE(ZefMrMoRefProperty4Moc, 0);
ZEF_CODE(ZefMrIntProperty4Resolution, 0);
ZEF_CODE(ZefMrIntProperty4Min, 1);
ZEF_CODE(ZefMrIntProperty4Max, 2);
ZEF_CODE(ZefMrIntProperty4FirstRange, 3);
ZEF_CODE(ZefMrStringProperty4Pattern, 0);
ZEF_CODE(ZefMrStringProperty4ExceptionText, 1);
ZEF_CODE(ZefMrStringProperty4MinLength, 2);
ZEF_CODE(ZefMrStringProperty4MaxLength, 3);
ZEF_CODE(ZefMrStringProperty4IsPassphrase, 4);
ZEF_CODE(ZefMrStringProperty4FirstLengthRange, 5);
ZEF_CODE(ZefMrFloatProperty4Resolution, 0);
ZEF_CODE(ZefMrFloatProperty4Min, 1);
ZEF_CODE(ZefMrFloatProperty4Max, 2);
ZEF_CODE(ZefMrFloatProperty4FirstRange, 3);


ZEF_SLOT(ZefOamSpiEntry_2, getMom, 0);
ZEF_SLOT(ZefOamSpiEntry_2, getMoc, 1);
ZEF_SLOT(ZefOamSpiEntry_2, getRoot, 2);
ZEF_SIZE(ZefOamSpiEntry_2, 3);

ZEF_SLOT(ZefOamSpiGeneralProperties_2, getName, 0);
ZEF_SLOT(ZefOamSpiGeneralProperties_2, getDescription, 1);
ZEF_SLOT(ZefOamSpiGeneralProperties_2, getSpecification, 2);
ZEF_SLOT(ZefOamSpiGeneralProperties_2, getHidden, 3);
ZEF_SLOT(ZefOamSpiGeneralProperties_2, getStatus, 4);
ZEF_SLOT(ZefOamSpiGeneralProperties_2, getDomainExtention, 5);
ZEF_SIZE(ZefOamSpiGeneralProperties_2, 6);

ZEF_SLOT(ZefOamSpiMom_2, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMom_2, getRootMoc, 1);
ZEF_SLOT(ZefOamSpiMom_2, getVersion, 2);
ZEF_SLOT(ZefOamSpiMom_2, getCorrection, 3);
ZEF_SLOT(ZefOamSpiMom_2, getRelease, 4);
ZEF_SLOT(ZefOamSpiMom_2, getNamespaceUri, 5);
ZEF_SLOT(ZefOamSpiMom_2, getNamespacePrefix, 6);
ZEF_SLOT(ZefOamSpiMom_2, getDocNo, 7);
ZEF_SLOT(ZefOamSpiMom_2, getRevision, 8);
ZEF_SLOT(ZefOamSpiMom_2, getAuthor, 9);
ZEF_SLOT(ZefOamSpiMom_2, getOrganization, 10);
ZEF_SLOT(ZefOamSpiMom_2, getNext, 11);
ZEF_SLOT(ZefOamSpiMom_2, getModelFeatures, 12);
ZEF_SIZE(ZefOamSpiMom_2, 13);

ZEF_SLOT(ZefOamSpiMoc_2, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMoc_2, getMom, 1);
ZEF_SLOT(ZefOamSpiMoc_2, getAttribute, 2);
ZEF_SLOT(ZefOamSpiMoc_2, getAction, 3);
ZEF_SLOT(ZefOamSpiMoc_2, getChildContainment, 4);
ZEF_SLOT(ZefOamSpiMoc_2, getParentContainment, 5);
ZEF_SLOT(ZefOamSpiMoc_2, getIsReadOnly, 6);
ZEF_SLOT(ZefOamSpiMoc_2, getIsRoot, 7);
ZEF_SLOT(ZefOamSpiMoc_2, getIsSystemCreated, 8);
ZEF_SLOT(ZefOamSpiMoc_2, getConstraint, 9);
ZEF_SIZE(ZefOamSpiMoc_2, 10);

ZEF_SLOT(ZefOamSpiContainment_2, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiContainment_2, getMom, 1);
ZEF_SLOT(ZefOamSpiContainment_2, getChildMoc, 2);
ZEF_SLOT(ZefOamSpiContainment_2, getParentMoc, 3);
ZEF_SLOT(ZefOamSpiContainment_2, getNextContainmentSameChildMoc, 4);
ZEF_SLOT(ZefOamSpiContainment_2, getNextContainmentSameParentMoc, 5);
ZEF_SLOT(ZefOamSpiContainment_2, getIsSystemCreated, 6);
ZEF_SLOT(ZefOamSpiContainment_2, getCanCreate, 7);
ZEF_SLOT(ZefOamSpiContainment_2, getCanDelete, 8);
ZEF_SLOT(ZefOamSpiContainment_2, getCardinalityMin, 9);
ZEF_SLOT(ZefOamSpiContainment_2, getCardinalityMax, 10);
ZEF_SIZE(ZefOamSpiContainment_2, 11);

ZEF_SLOT(ZefOamSpiTypeContainer_2, getType, 0);
ZEF_SLOT(ZefOamSpiTypeContainer_2, getDerived, 1);
ZEF_SLOT(ZefOamSpiTypeContainer_2, getEnum, 2);
ZEF_SLOT(ZefOamSpiTypeContainer_2, getStruct, 3);
ZEF_SLOT(ZefOamSpiTypeContainer_2, getReferencedMoc, 4);
ZEF_SLOT(ZefOamSpiTypeContainer_2, getDefaultValue, 5);
ZEF_SLOT(ZefOamSpiTypeContainer_2, getIsOrdered, 6);
ZEF_SLOT(ZefOamSpiTypeContainer_2, getIsUnique, 7);
ZEF_SLOT(ZefOamSpiTypeContainer_2, getMultiplicityMin, 8);
ZEF_SLOT(ZefOamSpiTypeContainer_2, getMultiplicityMax, 9);
ZEF_SIZE(ZefOamSpiTypeContainer_2, 10);

ZEF_SLOT(ZefOamSpiDerived_2, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiDerived_2, getMom, 1);
ZEF_SLOT(ZefOamSpiDerived_2, getType, 2);
ZEF_SLOT(ZefOamSpiDerived_2, getResolution, 3);
ZEF_SLOT(ZefOamSpiDerived_2, getFloatResolution, 4);
ZEF_SLOT(ZefOamSpiDerived_2, getFloatStringResolution, 5);
ZEF_SLOT(ZefOamSpiDerived_2, getStringRestrictionPattern, 6);
ZEF_SLOT(ZefOamSpiDerived_2, getStringRestrictionExceptionText, 7);
ZEF_SLOT(ZefOamSpiDerived_2, getStringRestrictionLength, 8);
ZEF_SLOT(ZefOamSpiDerived_2, getNumericRestrictionRange, 9);
ZEF_SLOT(ZefOamSpiDerived_2, getIsPassphrase, 10);
ZEF_SLOT(ZefOamSpiDerived_2, valueRangeGetMin, 11);
ZEF_SLOT(ZefOamSpiDerived_2, valueRangeGetMax, 12);
ZEF_SLOT(ZefOamSpiDerived_2, valueRangeGetMinDouble, 13);
ZEF_SLOT(ZefOamSpiDerived_2, valueRangeGetMaxDouble, 14);
ZEF_SLOT(ZefOamSpiDerived_2, valueRangeGetNext, 15);
ZEF_SIZE(ZefOamSpiDerived_2, 16);

ZEF_SLOT(ZefOamSpiEnum_2, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiEnum_2, getMom, 1);
ZEF_SLOT(ZefOamSpiEnum_2, getLiteral, 2);
ZEF_SLOT(ZefOamSpiEnum_2, literalGetGeneralProperties, 3);
ZEF_SLOT(ZefOamSpiEnum_2, literalGetValue, 4);
ZEF_SLOT(ZefOamSpiEnum_2, literalGetNext, 5);
ZEF_SIZE(ZefOamSpiEnum_2, 6);

ZEF_SLOT(ZefOamSpiStruct_2, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiStruct_2, getMom, 1);
ZEF_SLOT(ZefOamSpiStruct_2, getMember, 2);
ZEF_SLOT(ZefOamSpiStruct_2, getIsExclusive, 3);
ZEF_SLOT(ZefOamSpiStruct_2, memberGetGeneralProperties, 4);
ZEF_SLOT(ZefOamSpiStruct_2, memberGetTypeContainer, 5);
ZEF_SLOT(ZefOamSpiStruct_2, memberGetNext, 6);
ZEF_SIZE(ZefOamSpiStruct_2, 7);

ZEF_SLOT(ZefOamSpiAttribute_2, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiAttribute_2, getMoc, 1);
ZEF_SLOT(ZefOamSpiAttribute_2, getTypeContainer, 2);
ZEF_SLOT(ZefOamSpiAttribute_2, getNext, 3);
ZEF_SLOT(ZefOamSpiAttribute_2, getIsKey, 4);
ZEF_SLOT(ZefOamSpiAttribute_2, getIsMandatory, 5);
ZEF_SLOT(ZefOamSpiAttribute_2, getIsPersistent, 6);
ZEF_SLOT(ZefOamSpiAttribute_2, getIsReadOnly, 7);
ZEF_SLOT(ZefOamSpiAttribute_2, getIsRestricted, 8);
ZEF_SLOT(ZefOamSpiAttribute_2, getIsNotifiable, 9);
ZEF_SLOT(ZefOamSpiAttribute_2, getUnit, 10);
ZEF_SIZE(ZefOamSpiAttribute_2, 11);

ZEF_SLOT(ZefOamSpiAction_2, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiAction_2, getMoc, 1);
ZEF_SLOT(ZefOamSpiAction_2, getTypeContainer, 2);
ZEF_SLOT(ZefOamSpiAction_2, getNext, 3);
ZEF_SLOT(ZefOamSpiAction_2, getParameter, 4);
ZEF_SLOT(ZefOamSpiAction_2, parameterGetGeneralProperties, 5);
ZEF_SLOT(ZefOamSpiAction_2, parameterGetAction, 6);
ZEF_SLOT(ZefOamSpiAction_2, parameterGetTypeContainer, 7);
ZEF_SLOT(ZefOamSpiAction_2, parameterGetNext, 8);
ZEF_SIZE(ZefOamSpiAction_2, 9);

static_assert(offsetof(ZefOamSpiModelRepository_2, base) == 0, "ZefOamSpiModelRepository_2.base");
ZEF_SUBTABLE(ZefOamSpiModelRepository_2, entry, 0);
ZEF_SUBTABLE(ZefOamSpiModelRepository_2, generalProperties, 1);
ZEF_SUBTABLE(ZefOamSpiModelRepository_2, mom, 2);
ZEF_SUBTABLE(ZefOamSpiModelRepository_2, moc, 3);
ZEF_SUBTABLE(ZefOamSpiModelRepository_2, containment, 4);
ZEF_SUBTABLE(ZefOamSpiModelRepository_2, typeContainer, 5);
ZEF_SUBTABLE(ZefOamSpiModelRepository_2, derived, 6);
ZEF_SUBTABLE(ZefOamSpiModelRepository_2, enumType, 7);
ZEF_SUBTABLE(ZefOamSpiModelRepository_2, structType, 8);
ZEF_SUBTABLE(ZefOamSpiModelRepository_2, attribute, 9);
ZEF_SUBTABLE(ZefOamSpiModelRepository_2, action, 10);
static_assert(sizeof(ZefOamSpiModelRepository_2) == kHead + 11 * sizeof(void*), "ZefOamSpiModelRepository_2 size");

ZEF_SLOT(ZefOamSpiMrEntry_3, getMom, 0);
ZEF_SLOT(ZefOamSpiMrEntry_3, getMoc, 1);
ZEF_SLOT(ZefOamSpiMrEntry_3, getMocFromDn, 2);
ZEF_SLOT(ZefOamSpiMrEntry_3, getRoot, 3);
ZEF_SIZE(ZefOamSpiMrEntry_3, 4);

ZEF_SLOT(ZefOamSpiMrGeneralProperties_3, getName, 0);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_3, getDescription, 1);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_3, getSpecification, 2);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_3, getHidden, 3);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_3, getStatus, 4);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_3, getStatusText, 5);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_3, getDomainExtention, 6);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_3, getDomainExtensions, 7);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_3, domainExtensionGetName, 8);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_3, domainExtensionGetValue, 9);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_3, domainExtensionGetDomain, 10);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_3, domainExtensionGetNext, 11);
ZEF_SIZE(ZefOamSpiMrGeneralProperties_3, 12);

ZEF_SLOT(ZefOamSpiMrMom_3, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrMom_3, getRootMoc, 1);
ZEF_SLOT(ZefOamSpiMrMom_3, getVersion, 2);
ZEF_SLOT(ZefOamSpiMrMom_3, getCorrection, 3);
ZEF_SLOT(ZefOamSpiMrMom_3, getRelease, 4);
ZEF_SLOT(ZefOamSpiMrMom_3, getNamespaceUri, 5);
ZEF_SLOT(ZefOamSpiMrMom_3, getNamespacePrefix, 6);
ZEF_SLOT(ZefOamSpiMrMom_3, getDocNo, 7);
ZEF_SLOT(ZefOamSpiMrMom_3, getRevision, 8);
ZEF_SLOT(ZefOamSpiMrMom_3, getAuthor, 9);
ZEF_SLOT(ZefOamSpiMrMom_3, getOrganization, 10);
ZEF_SLOT(ZefOamSpiMrMom_3, getNext, 11);
ZEF_SLOT(ZefOamSpiMrMom_3, getModelFeatures, 12);
ZEF_SIZE(ZefOamSpiMrMom_3, 13);

ZEF_SLOT(ZefOamSpiMrMoc_3, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrMoc_3, getMom, 1);
ZEF_SLOT(ZefOamSpiMrMoc_3, getAttribute, 2);
ZEF_SLOT(ZefOamSpiMrMoc_3, getAction, 3);
ZEF_SLOT(ZefOamSpiMrMoc_3, getChildContainment, 4);
ZEF_SLOT(ZefOamSpiMrMoc_3, getParentContainment, 5);
ZEF_SLOT(ZefOamSpiMrMoc_3, getIsReadOnly, 6);
ZEF_SLOT(ZefOamSpiMrMoc_3, getIsRoot, 7);
ZEF_SLOT(ZefOamSpiMrMoc_3, getIsSystemCreated, 8);
ZEF_SLOT(ZefOamSpiMrMoc_3, getConstraint, 9);
ZEF_SIZE(ZefOamSpiMrMoc_3, 10);

ZEF_SLOT(ZefOamSpiMrContainment_3, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrContainment_3, getMom, 1);
ZEF_SLOT(ZefOamSpiMrContainment_3, getChildMoc, 2);
ZEF_SLOT(ZefOamSpiMrContainment_3, getParentMoc, 3);
ZEF_SLOT(ZefOamSpiMrContainment_3, getNextContainmentSameChildMoc, 4);
ZEF_SLOT(ZefOamSpiMrContainment_3, getNextContainmentSameParentMoc, 5);
ZEF_SLOT(ZefOamSpiMrContainment_3, getIsSystemCreated, 6);
ZEF_SLOT(ZefOamSpiMrContainment_3, getCanCreate, 7);
ZEF_SLOT(ZefOamSpiMrContainment_3, getCanDelete, 8);
ZEF_SLOT(ZefOamSpiMrContainment_3, getCardinalityMin, 9);
ZEF_SLOT(ZefOamSpiMrContainment_3, getCardinalityMax, 10);
ZEF_SIZE(ZefOamSpiMrContainment_3, 11);

ZEF_SLOT(ZefOamSpiMrTypeContainer_3, getType, 0);
ZEF_SLOT(ZefOamSpiMrTypeContainer_3, getDerived, 1);
ZEF_SLOT(ZefOamSpiMrTypeContainer_3, getEnum, 2);
ZEF_SLOT(ZefOamSpiMrTypeContainer_3, getStruct, 3);
ZEF_SLOT(ZefOamSpiMrTypeContainer_3, getReferencedMoc, 4);
ZEF_SLOT(ZefOamSpiMrTypeContainer_3, getDefaultValue, 5);
ZEF_SLOT(ZefOamSpiMrTypeContainer_3, getIsOrdered, 6);
ZEF_SLOT(ZefOamSpiMrTypeContainer_3, getIsUnique, 7);
ZEF_SLOT(ZefOamSpiMrTypeContainer_3, getMultiplicityMin, 8);
ZEF_SLOT(ZefOamSpiMrTypeContainer_3, getMultiplicityMax, 9);
ZEF_SLOT(ZefOamSpiMrTypeContainer_3, derivedTypeGetGeneralProperties, 10);
ZEF_SLOT(ZefOamSpiMrTypeContainer_3, derivedTypeGetMom, 11);
ZEF_SLOT(ZefOamSpiMrTypeContainer_3, derivedTypeGetType, 12);
ZEF_SIZE(ZefOamSpiMrTypeContainer_3, 13);

ZEF_SLOT(ZefOamSpiMrEnum_3, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrEnum_3, getMom, 1);
ZEF_SLOT(ZefOamSpiMrEnum_3, getLiteral, 2);
ZEF_SLOT(ZefOamSpiMrEnum_3, literalGetGeneralProperties, 3);
ZEF_SLOT(ZefOamSpiMrEnum_3, literalGetValue, 4);
ZEF_SLOT(ZefOamSpiMrEnum_3, literalGetNext, 5);
ZEF_SIZE(ZefOamSpiMrEnum_3, 6);

ZEF_SLOT(ZefOamSpiMrStruct_3, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrStruct_3, getMom, 1);
ZEF_SLOT(ZefOamSpiMrStruct_3, getMember, 2);
ZEF_SLOT(ZefOamSpiMrStruct_3, getIsExclusive, 3);
ZEF_SLOT(ZefOamSpiMrStruct_3, memberGetGeneralProperties, 4);
ZEF_SLOT(ZefOamSpiMrStruct_3, memberGetTypeContainer, 5);
ZEF_SLOT(ZefOamSpiMrStruct_3, memberGetNext, 6);
ZEF_SIZE(ZefOamSpiMrStruct_3, 7);

ZEF_SLOT(ZefOamSpiMrAttribute_3, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrAttribute_3, getMoc, 1);
ZEF_SLOT(ZefOamSpiMrAttribute_3, getTypeContainer, 2);
ZEF_SLOT(ZefOamSpiMrAttribute_3, getNext, 3);
ZEF_SLOT(ZefOamSpiMrAttribute_3, getIsKey, 4);
ZEF_SLOT(ZefOamSpiMrAttribute_3, getIsMandatory, 5);
ZEF_SLOT(ZefOamSpiMrAttribute_3, getIsPersistent, 6);
ZEF_SLOT(ZefOamSpiMrAttribute_3, getIsReadOnly, 7);
ZEF_SLOT(ZefOamSpiMrAttribute_3, getIsRestricted, 8);
ZEF_SLOT(ZefOamSpiMrAttribute_3, getIsNotifiable, 9);
ZEF_SLOT(ZefOamSpiMrAttribute_3, getUnit, 10);
ZEF_SIZE(ZefOamSpiMrAttribute_3, 11);

ZEF_SLOT(ZefOamSpiMrAction_3, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrAction_3, getMoc, 1);
ZEF_SLOT(ZefOamSpiMrAction_3, getTypeContainer, 2);
ZEF_SLOT(ZefOamSpiMrAction_3, getNext, 3);
ZEF_SLOT(ZefOamSpiMrAction_3, getParameter, 4);
ZEF_SLOT(ZefOamSpiMrAction_3, parameterGetGeneralProperties, 5);
ZEF_SLOT(ZefOamSpiMrAction_3, parameterGetAction, 6);
ZEF_SLOT(ZefOamSpiMrAction_3, parameterGetTypeContainer, 7);
ZEF_SLOT(ZefOamSpiMrAction_3, parameterGetNext, 8);
ZEF_SIZE(ZefOamSpiMrAction_3, 9);

ZEF_SLOT(ZefOamSpiMrMoRef_3, getHandleProperty, 0);
ZEF_SIZE(ZefOamSpiMrMoRef_3, 1);

ZEF_SLOT(ZefOamSpiMrInt_3, getIntProperty, 0);
ZEF_SLOT(ZefOamSpiMrInt_3, getHandleProperty, 1);
ZEF_SLOT(ZefOamSpiMrInt_3, rangeGetMin, 2);
ZEF_SLOT(ZefOamSpiMrInt_3, rangeGetMax, 3);
ZEF_SLOT(ZefOamSpiMrInt_3, rangeGetNext, 4);
ZEF_SIZE(ZefOamSpiMrInt_3, 5);

ZEF_SLOT(ZefOamSpiMrString_3, getStringProperty, 0);
ZEF_SLOT(ZefOamSpiMrString_3, getIntProperty, 1);
ZEF_SLOT(ZefOamSpiMrString_3, getBoolProperty, 2);
ZEF_SLOT(ZefOamSpiMrString_3, getHandleProperty, 3);
ZEF_SLOT(ZefOamSpiMrString_3, rangeGetMin, 4);
ZEF_SLOT(ZefOamSpiMrString_3, rangeGetMax, 5);
ZEF_SLOT(ZefOamSpiMrString_3, rangeGetNext, 6);
ZEF_SIZE(ZefOamSpiMrString_3, 7);

ZEF_SLOT(ZefOamSpiMrFloat_3, getFloatProperty, 0);
ZEF_SLOT(ZefOamSpiMrFloat_3, getStringProperty, 1);
ZEF_SLOT(ZefOamSpiMrFloat_3, getHandleProperty, 2);
ZEF_SLOT(ZefOamSpiMrFloat_3, rangeGetMin, 3);
ZEF_SLOT(ZefOamSpiMrFloat_3, rangeGetMax, 4);
ZEF_SLOT(ZefOamSpiMrFloat_3, rangeGetNext, 5);
ZEF_SIZE(ZefOamSpiMrFloat_3, 6);

static_assert(offsetof(ZefOamSpiModelRepository_3, base) == 0, "ZefOamSpiModelRepository_3.base");
ZEF_SUBTABLE(ZefOamSpiModelRepository_3, entry, 0);
ZEF_SUBTABLE(ZefOamSpiModelRepository_3, generalProperties, 1);
ZEF_SUBTABLE(ZefOamSpiModelRepository_3, mom, 2);
ZEF_SUBTABLE(ZefOamSpiModelRepository_3, moc, 3);
ZEF_SUBTABLE(ZefOamSpiModelRepository_3, containment, 4);
ZEF_SUBTABLE(ZefOamSpiModelRepository_3, typeContainer, 5);
ZEF_SUBTABLE(ZefOamSpiModelRepository_3, enumType, 6);
ZEF_SUBTABLE(ZefOamSpiModelRepository_3, structType, 7);
ZEF_SUBTABLE(ZefOamSpiModelRepository_3, attribute, 8);
ZEF_SUBTABLE(ZefOamSpiModelRepository_3, action, 9);
ZEF_SUBTABLE(ZefOamSpiModelRepository_3, moRef, 10);
ZEF_SUBTABLE(ZefOamSpiModelRepository_3, intType, 11);
ZEF_SUBTABLE(ZefOamSpiModelRepository_3, stringType, 12);
ZEF_SUBTABLE(ZefOamSpiModelRepository_3, floatType, 13);
static_assert(sizeof(ZefOamSpiModelRepository_3) == kHead + 14 * sizeof(void*), "ZefOamSpiModelRepository_3 size");

ZEF_SLOT(ZefOamSpiMrEntry_4, getMom, 0);
ZEF_SLOT(ZefOamSpiMrEntry_4, getMoc, 1);
ZEF_SLOT(ZefOamSpiMrEntry_4, getMocFromDn, 2);
ZEF_SLOT(ZefOamSpiMrEntry_4, getRoot, 3);
ZEF_SIZE(ZefOamSpiMrEntry_4, 4);

ZEF_SLOT(ZefOamSpiMrGeneralProperties_4, getName, 0);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_4, getDescription, 1);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_4, getSpecification, 2);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_4, getHidden, 3);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_4, getStatus, 4);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_4, getStatusText, 5);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_4, getDomainExtention, 6);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_4, getDomainExtensions, 7);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_4, domainExtensionGetName, 8);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_4, domainExtensionGetValue, 9);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_4, domainExtensionGetDomain, 10);
ZEF_SLOT(ZefOamSpiMrGeneralProperties_4, domainExtensionGetNext, 11);
ZEF_SIZE(ZefOamSpiMrGeneralProperties_4, 12);

ZEF_SLOT(ZefOamSpiMrMom_4, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrMom_4, getRootMoc, 1);
ZEF_SLOT(ZefOamSpiMrMom_4, getVersion, 2);
ZEF_SLOT(ZefOamSpiMrMom_4, getCorrection, 3);
ZEF_SLOT(ZefOamSpiMrMom_4, getRelease, 4);
ZEF_SLOT(ZefOamSpiMrMom_4, getNamespaceUri, 5);
ZEF_SLOT(ZefOamSpiMrMom_4, getNamespacePrefix, 6);
ZEF_SLOT(ZefOamSpiMrMom_4, getDocNo, 7);
ZEF_SLOT(ZefOamSpiMrMom_4, getRevision, 8);
ZEF_SLOT(ZefOamSpiMrMom_4, getAuthor, 9);
ZEF_SLOT(ZefOamSpiMrMom_4, getOrganization, 10);
ZEF_SLOT(ZefOamSpiMrMom_4, getNext, 11);
ZEF_SLOT(ZefOamSpiMrMom_4, getModelFeatures, 12);
ZEF_SIZE(ZefOamSpiMrMom_4, 13);

ZEF_SLOT(ZefOamSpiMrMoc_4, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrMoc_4, getMom, 1);
ZEF_SLOT(ZefOamSpiMrMoc_4, getAttribute, 2);
ZEF_SLOT(ZefOamSpiMrMoc_4, getAction, 3);
ZEF_SLOT(ZefOamSpiMrMoc_4, getChildContainment, 4);
ZEF_SLOT(ZefOamSpiMrMoc_4, getParentContainment, 5);
ZEF_SLOT(ZefOamSpiMrMoc_4, getFirstBiDirAssociation, 6);
ZEF_SLOT(ZefOamSpiMrMoc_4, getFirstUniDirAssociation, 7);
ZEF_SLOT(ZefOamSpiMrMoc_4, getIsReadOnly, 8);
ZEF_SLOT(ZefOamSpiMrMoc_4, getIsRoot, 9);
ZEF_SLOT(ZefOamSpiMrMoc_4, getIsSystemCreated, 10);
ZEF_SLOT(ZefOamSpiMrMoc_4, getConstraint, 11);
ZEF_SIZE(ZefOamSpiMrMoc_4, 12);

ZEF_SLOT(ZefOamSpiMrContainment_4, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrContainment_4, getMom, 1);
ZEF_SLOT(ZefOamSpiMrContainment_4, getChildMoc, 2);
ZEF_SLOT(ZefOamSpiMrContainment_4, getParentMoc, 3);
ZEF_SLOT(ZefOamSpiMrContainment_4, getNextContainmentSameChildMoc, 4);
ZEF_SLOT(ZefOamSpiMrContainment_4, getNextContainmentSameParentMoc, 5);
ZEF_SLOT(ZefOamSpiMrContainment_4, getIsSystemCreated, 6);
ZEF_SLOT(ZefOamSpiMrContainment_4, getCanCreate, 7);
ZEF_SLOT(ZefOamSpiMrContainment_4, getCanDelete, 8);
ZEF_SLOT(ZefOamSpiMrContainment_4, getCardinalityMin, 9);
ZEF_SLOT(ZefOamSpiMrContainment_4, getCardinalityMax, 10);
ZEF_SIZE(ZefOamSpiMrContainment_4, 11);

ZEF_SLOT(ZefOamSpiMrAssociationEnd_4, getMoc, 0);
ZEF_SLOT(ZefOamSpiMrAssociationEnd_4, getAttribute, 1);
ZEF_SLOT(ZefOamSpiMrAssociationEnd_4, getGeneralProperties, 2);
ZEF_SLOT(ZefOamSpiMrAssociationEnd_4, getName, 3);
ZEF_SLOT(ZefOamSpiMrAssociationEnd_4, getClassifier, 4);
ZEF_SLOT(ZefOamSpiMrAssociationEnd_4, isReserving, 5);
ZEF_SLOT(ZefOamSpiMrAssociationEnd_4, isRestricted, 6);
ZEF_SLOT(ZefOamSpiMrAssociationEnd_4, getLower, 7);
ZEF_SLOT(ZefOamSpiMrAssociationEnd_4, getUpper, 8);
ZEF_SIZE(ZefOamSpiMrAssociationEnd_4, 9);

ZEF_SLOT(ZefOamSpiMrBiDirAssociation_4, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrBiDirAssociation_4, getMom, 1);
ZEF_SLOT(ZefOamSpiMrBiDirAssociation_4, getFirstAssociation, 2);
ZEF_SLOT(ZefOamSpiMrBiDirAssociation_4, getSecondAssociation, 3);
ZEF_SLOT(ZefOamSpiMrBiDirAssociation_4, getNextBidirectionalAssociation, 4);
ZEF_SIZE(ZefOamSpiMrBiDirAssociation_4, 5);

ZEF_SLOT(ZefOamSpiMrUniDirAssociation_4, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrUniDirAssociation_4, getMom, 1);
ZEF_SLOT(ZefOamSpiMrUniDirAssociation_4, getAssociationEnd, 2);
ZEF_SLOT(ZefOamSpiMrUniDirAssociation_4, getNextUnidirectionalAssociationSameMoc, 3);
ZEF_SLOT(ZefOamSpiMrUniDirAssociation_4, getIsExternal, 4);
ZEF_SIZE(ZefOamSpiMrUniDirAssociation_4, 5);

ZEF_SLOT(ZefOamSpiMrTypeContainer_4, getType, 0);
ZEF_SLOT(ZefOamSpiMrTypeContainer_4, getDerived, 1);
ZEF_SLOT(ZefOamSpiMrTypeContainer_4, getEnum, 2);
ZEF_SLOT(ZefOamSpiMrTypeContainer_4, getStruct, 3);
ZEF_SLOT(ZefOamSpiMrTypeContainer_4, getReferencedMoc, 4);
ZEF_SLOT(ZefOamSpiMrTypeContainer_4, getDefaultValue, 5);
ZEF_SLOT(ZefOamSpiMrTypeContainer_4, getIsOrdered, 6);
ZEF_SLOT(ZefOamSpiMrTypeContainer_4, getIsUnique, 7);
ZEF_SLOT(ZefOamSpiMrTypeContainer_4, getMultiplicityMin, 8);
ZEF_SLOT(ZefOamSpiMrTypeContainer_4, getMultiplicityMax, 9);
ZEF_SLOT(ZefOamSpiMrTypeContainer_4, derivedTypeGetGeneralProperties, 10);
ZEF_SLOT(ZefOamSpiMrTypeContainer_4, derivedTypeGetMom, 11);
ZEF_SLOT(ZefOamSpiMrTypeContainer_4, derivedTypeGetType, 12);
ZEF_SIZE(ZefOamSpiMrTypeContainer_4, 13);

ZEF_SLOT(ZefOamSpiMrEnum_4, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrEnum_4, getMom, 1);
ZEF_SLOT(ZefOamSpiMrEnum_4, getLiteral, 2);
ZEF_SLOT(ZefOamSpiMrEnum_4, literalGetGeneralProperties, 3);
ZEF_SLOT(ZefOamSpiMrEnum_4, literalGetValue, 4);
ZEF_SLOT(ZefOamSpiMrEnum_4, literalGetNext, 5);
ZEF_SIZE(ZefOamSpiMrEnum_4, 6);

ZEF_SLOT(ZefOamSpiMrStruct_4, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrStruct_4, getMom, 1);
ZEF_SLOT(ZefOamSpiMrStruct_4, getMember, 2);
ZEF_SLOT(ZefOamSpiMrStruct_4, getIsExclusive, 3);
ZEF_SLOT(ZefOamSpiMrStruct_4, memberGetGeneralProperties, 4);
ZEF_SLOT(ZefOamSpiMrStruct_4, memberGetTypeContainer, 5);
ZEF_SLOT(ZefOamSpiMrStruct_4, memberGetNext, 6);
ZEF_SIZE(ZefOamSpiMrStruct_4, 7);

ZEF_SLOT(ZefOamSpiMrAttribute_4, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrAttribute_4, getMoc, 1);
ZEF_SLOT(ZefOamSpiMrAttribute_4, getTypeContainer, 2);
ZEF_SLOT(ZefOamSpiMrAttribute_4, getNext, 3);
ZEF_SLOT(ZefOamSpiMrAttribute_4, getIsKey, 4);
ZEF_SLOT(ZefOamSpiMrAttribute_4, getIsMandatory, 5);
ZEF_SLOT(ZefOamSpiMrAttribute_4, getIsPersistent, 6);
ZEF_SLOT(ZefOamSpiMrAttribute_4, getIsReadOnly, 7);
ZEF_SLOT(ZefOamSpiMrAttribute_4, getIsRestricted, 8);
ZEF_SLOT(ZefOamSpiMrAttribute_4, getIsNotifiable, 9);
ZEF_SLOT(ZefOamSpiMrAttribute_4, getUnit, 10);
ZEF_SIZE(ZefOamSpiMrAttribute_4, 11);

ZEF_SLOT(ZefOamSpiMrAction_4, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrAction_4, getMoc, 1);
ZEF_SLOT(ZefOamSpiMrAction_4, getTypeContainer, 2);
ZEF_SLOT(ZefOamSpiMrAction_4, getNext, 3);
ZEF_SLOT(ZefOamSpiMrAction_4, getParameter, 4);
ZEF_SLOT(ZefOamSpiMrAction_4, parameterGetGeneralProperties, 5);
ZEF_SLOT(ZefOamSpiMrAction_4, parameterGetAction, 6);
ZEF_SLOT(ZefOamSpiMrAction_4, parameterGetTypeContainer, 7);
ZEF_SLOT(ZefOamSpiMrAction_4, parameterGetNext, 8);
ZEF_SIZE(ZefOamSpiMrAction_4, 9);

ZEF_SLOT(ZefOamSpiMrMoRef_4, getHandleProperty, 0);
ZEF_SIZE(ZefOamSpiMrMoRef_4, 1);

ZEF_SLOT(ZefOamSpiMrInt_4, getIntProperty, 0);
ZEF_SLOT(ZefOamSpiMrInt_4, getHandleProperty, 1);
ZEF_SLOT(ZefOamSpiMrInt_4, rangeGetMin, 2);
ZEF_SLOT(ZefOamSpiMrInt_4, rangeGetMax, 3);
ZEF_SLOT(ZefOamSpiMrInt_4, rangeGetNext, 4);
ZEF_SIZE(ZefOamSpiMrInt_4, 5);

ZEF_SLOT(ZefOamSpiMrString_4, getStringProperty, 0);
ZEF_SLOT(ZefOamSpiMrString_4, getIntProperty, 1);
ZEF_SLOT(ZefOamSpiMrString_4, getBoolProperty, 2);
ZEF_SLOT(ZefOamSpiMrString_4, getHandleProperty, 3);
ZEF_SLOT(ZefOamSpiMrString_4, rangeGetMin, 4);
ZEF_SLOT(ZefOamSpiMrString_4, rangeGetMax, 5);
ZEF_SLOT(ZefOamSpiMrString_4, rangeGetNext, 6);
ZEF_SIZE(ZefOamSpiMrString_4, 7);

ZEF_SLOT(ZefOamSpiMrFloat_4, getFloatProperty, 0);
ZEF_SLOT(ZefOamSpiMrFloat_4, getStringProperty, 1);
ZEF_SLOT(ZefOamSpiMrFloat_4, getHandleProperty, 2);
ZEF_SLOT(ZefOamSpiMrFloat_4, rangeGetMin, 3);
ZEF_SLOT(ZefOamSpiMrFloat_4, rangeGetMax, 4);
ZEF_SLOT(ZefOamSpiMrFloat_4, rangeGetNext, 5);
ZEF_SIZE(ZefOamSpiMrFloat_4, 6);

static_assert(offsetof(ZefOamSpiModelRepository_4, base) == 0, "ZefOamSpiModelRepository_4.base");
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, entry, 0);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, generalProperties, 1);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, mom, 2);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, moc, 3);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, containment, 4);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, associationEnd, 5);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, biDirAssociation, 6);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, uniDirAssociation, 7);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, typeContainer, 8);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, enumType, 9);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, structType, 10);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, attribute, 11);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, action, 12);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, moRef, 13);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, intType, 14);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, stringType, 15);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4, floatType, 16);
static_assert(sizeof(ZefOamSpiModelRepository_4) == kHead + 17 * sizeof(void*), "ZefOamSpiModelRepository_4 size");

ZEF_SLOT(ZefOamSpiMrEntry_4_1, getEnum, 0);
ZEF_SLOT(ZefOamSpiMrEntry_4_1, getBiDirAssociation, 1);
ZEF_SLOT(ZefOamSpiMrEntry_4_1, getUniDirAssociation, 2);
ZEF_SIZE(ZefOamSpiMrEntry_4_1, 3);

ZEF_SLOT(ZefOamSpiMrEnum_4_1, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrEnum_4_1, getMom, 1);
ZEF_SLOT(ZefOamSpiMrEnum_4_1, getLiteral, 2);
ZEF_SLOT(ZefOamSpiMrEnum_4_1, literalGetGeneralProperties, 3);
ZEF_SLOT(ZefOamSpiMrEnum_4_1, literalGetValue, 4);
ZEF_SLOT(ZefOamSpiMrEnum_4_1, literalGetNext, 5);
ZEF_SIZE(ZefOamSpiMrEnum_4_1, 6);

ZEF_SLOT(ZefOamSpiMrBiDirAssociation_4_1, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrBiDirAssociation_4_1, getMom, 1);
ZEF_SLOT(ZefOamSpiMrBiDirAssociation_4_1, getFirstAssociation, 2);
ZEF_SLOT(ZefOamSpiMrBiDirAssociation_4_1, getSecondAssociation, 3);
ZEF_SLOT(ZefOamSpiMrBiDirAssociation_4_1, getNextBidirectionalAssociation, 4);
ZEF_SIZE(ZefOamSpiMrBiDirAssociation_4_1, 5);

ZEF_SLOT(ZefOamSpiMrUniDirAssociation_4_1, getGeneralProperties, 0);
ZEF_SLOT(ZefOamSpiMrUniDirAssociation_4_1, getMom, 1);
ZEF_SLOT(ZefOamSpiMrUniDirAssociation_4_1, getAssociationEnd, 2);
ZEF_SLOT(ZefOamSpiMrUniDirAssociation_4_1, getNextUnidirectionalAssociationSameMoc, 3);
ZEF_SLOT(ZefOamSpiMrUniDirAssociation_4_1, getIsExternal, 4);
ZEF_SIZE(ZefOamSpiMrUniDirAssociation_4_1, 5);

static_assert(offsetof(ZefOamSpiModelRepository_4_1, base) == 0, "ZefOamSpiModelRepository_4_1.base");
ZEF_SUBTABLE(ZefOamSpiModelRepository_4_1, entry, 0);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4_1, enumType, 1);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4_1, biDirAssociation, 2);
ZEF_SUBTABLE(ZefOamSpiModelRepository_4_1, uniDirAssociation, 3);
static_assert(sizeof(ZefOamSpiModelRepository_4_1) == kHead + 4 * sizeof(void*), "ZefOamSpiModelRepository_4_1 size");

// The layout is checked while compiling; this test only records that the
// file took part in the build.
TEST(QueryInterfaceTableLayout, IsPinnedAtCompileTime)
{
    EXPECT_EQ(kHead + 17 * sizeof(void*), sizeof(ZefOamSpiModelRepository_4));
}
