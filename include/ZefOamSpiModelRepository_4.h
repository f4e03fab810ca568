/*
 * Model query interface, version "4": the interface the static validator
 * plug-ins read the compiled model through.
 *
 * A reader starts at the entry table (the first MOM, a class by name or by
 * distinguished name, the tree root) and walks the model through opaque
 * 64-bit handles. Handles are issued per element kind: the handle passed to
 * a slot must be one of the kind that the slot's parameter names (a class
 * handle for a class getter, and so on); handles of different kinds share
 * values.
 *
 * Every slot returns a ZefReturnT:
 *   0  success, the out value is written;
 *   2  the repository service is not started (answered before anything else);
 *  -2  nothing to answer (no such link, no such property); the out value is
 *      left as it was;
 *  -8  null out pointer, or a handle that names no element of the kind (the
 *      thread's error text, zefMgmtSpiThreadContextGetErrorText, says which).
 * Texts handed out belong to the repository and stay valid until the model
 * is unloaded; the reader never frees or changes them.
 *
 * Lists are walked with a "first" getter and the "next" getter of the listed
 * kind, which answers -2 after the last element.
 *
 * A derived data type is reached from a type container (getDerived); its
 * restrictions are read through the type container with the MoRef, Int,
 * String and Float tables, whose property getters name what they read by a
 * property code and answer -2 for a code they do not carry.
 *
 * The header compiles as C99 and as C++.
 */
#ifndef ZEF_OAM_SPI_MODEL_REPOSITORY_4_H
#define ZEF_OAM_SPI_MODEL_REPOSITORY_4_H

#include <stdbool.h>
#include <stdint.h>

#include "ZefMgmtSpi.h"
#include "ZefOamSpiModelRepository_2.h" /* ZefOamSpiStatus_2 */
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Properties of a class reference type (table ZefOamSpiMrMoRef_4). */
typedef enum ZefOamSpiMrMoRefProperty_4 {
    ZefMrMoRefProperty4Moc = 0 /**< handle: the referenced class */
} ZefOamSpiMrMoRefProperty_4;

/** Properties of an integer type, read through its derived type (table ZefOamSpiMrInt_4). */
typedef enum ZefOamSpiMrIntProperty_4 {
    ZefMrIntProperty4Resolution = 0, /**< integer: the resolution */
    ZefMrIntProperty4Min = 1,        /**< integer: min of the first value range */
    ZefMrIntProperty4Max = 2,        /**< integer: max of the first value range */
    ZefMrIntProperty4FirstRange = 3  /**< handle: the first value range */
} ZefOamSpiMrIntProperty_4;

/** Properties of a string type, read through its derived type (table ZefOamSpiMrString_4). */
typedef enum ZefOamSpiMrStringProperty_4 {
    ZefMrStringProperty4Pattern = 0,         /**< text: the restriction pattern */
    ZefMrStringProperty4ExceptionText = 1,   /**< text: the pattern's exception text */
    ZefMrStringProperty4MinLength = 2,       /**< integer: min of the first length range */
    ZefMrStringProperty4MaxLength = 3,       /**< integer: max of the first length range */
    ZefMrStringProperty4IsPassphrase = 4,    /**< bool: the value is a passphrase */
    ZefMrStringProperty4FirstLengthRange = 5 /**< handle: the first length range */
} ZefOamSpiMrStringProperty_4;

/** Properties of a floating point type, read through its derived type (table ZefOamSpiMrFloat_4). */
typedef enum ZefOamSpiMrFloatProperty_4 {
    ZefMrFloatProperty4Resolution = 0, /**< double, or text as written in the model */
    ZefMrFloatProperty4Min = 1,        /**< double: min of the first value range */
    ZefMrFloatProperty4Max = 2,        /**< double: max of the first value range */
    ZefMrFloatProperty4FirstRange = 3  /**< handle: the first value range */
} ZefOamSpiMrFloatProperty_4;

/*
 * Every table below is append-only: the slot order is fixed for good, a
 * slot is never removed or reordered, and new functions go into a new
 * interface version published beside this one.
 */

/** Where a reader starts. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrEntry_4 {
    /** The first MOM of the model. */
    ZefReturnT (*getMom)(uint64_t* momHandle);
    /** The class of that MOM name, MOM version and class name. */
    ZefReturnT (*getMoc)(const char* mimName, const char* mimVersion, const char* mocName, uint64_t* mocHandle);
    /**
     * The class a distinguished name leads to. `flag` is handed to the
     * repository's lookup: false lets a class name that is unique in the
     * model stand for the whole name.
     */
    ZefReturnT (*getMocFromDn)(const char* dn, bool flag, uint64_t* mocHandle);
    /** The root class of the model's containment tree. */
    ZefReturnT (*getRoot)(uint64_t* mocHandle);
} ZefOamSpiMrEntry_4;

/**
 * General properties of any element, and the element's domain extensions.
 * Append-only: slot order fixed; new slots only in a new version.
 */
typedef struct ZefOamSpiMrGeneralProperties_4 {
    ZefReturnT (*getName)(uint64_t generalPropertiesHandle, const char** name);
    ZefReturnT (*getDescription)(uint64_t generalPropertiesHandle, const char** description);
    ZefReturnT (*getSpecification)(uint64_t generalPropertiesHandle, const char** specification);
    ZefReturnT (*getHidden)(uint64_t generalPropertiesHandle, const char** hidden);
    ZefReturnT (*getStatus)(uint64_t generalPropertiesHandle, ZefOamSpiStatus_2* status);
    /** The status as written in the model ("CURRENT", "DEPRECATED", "OBSOLETE"). */
    ZefReturnT (*getStatusText)(uint64_t generalPropertiesHandle, const char** status);
    /** The value of the element's extension `name` in `domain`; -2 when it has none. */
    ZefReturnT (*getDomainExtention)(uint64_t generalPropertiesHandle, const char* domain, const char* name,
                                     const char** value);
    /**
     * Handles of all domain extensions of the element, in model order, as a
     * 0-terminated array valid until the next call for this element.
     */
    ZefReturnT (*getDomainExtensions)(uint64_t generalPropertiesHandle, const uint64_t** domainExtensionHandles);
    ZefReturnT (*domainExtensionGetName)(uint64_t domainExtensionHandle, const char** name);
    ZefReturnT (*domainExtensionGetValue)(uint64_t domainExtensionHandle, const char** value);
    ZefReturnT (*domainExtensionGetDomain)(uint64_t domainExtensionHandle, const char** domain);
    /** The next domain extension of the same element. */
    ZefReturnT (*domainExtensionGetNext)(uint64_t domainExtensionHandle, uint64_t* nextDomainExtensionHandle);
} ZefOamSpiMrGeneralProperties_4;

/** A MOM. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrMom_4 {
    ZefReturnT (*getGeneralProperties)(uint64_t momHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getRootMoc)(uint64_t momHandle, uint64_t* mocHandle);
    ZefReturnT (*getVersion)(uint64_t momHandle, const char** version);
    ZefReturnT (*getCorrection)(uint64_t momHandle, const char** correction);
    ZefReturnT (*getRelease)(uint64_t momHandle, const char** release);
    ZefReturnT (*getNamespaceUri)(uint64_t momHandle, const char** namespaceUri);
    ZefReturnT (*getNamespacePrefix)(uint64_t momHandle, const char** namespacePrefix);
    ZefReturnT (*getDocNo)(uint64_t momHandle, const char** docNo);
    ZefReturnT (*getRevision)(uint64_t momHandle, const char** revision);
    ZefReturnT (*getAuthor)(uint64_t momHandle, const char** author);
    ZefReturnT (*getOrganization)(uint64_t momHandle, const char** organization);
    /** The next MOM of the model. */
    ZefReturnT (*getNext)(uint64_t momHandle, uint64_t* nextMomHandle);
    /** The model feature names, a null-terminated array valid until the next call for this MOM. */
    ZefReturnT (*getModelFeatures)(uint64_t momHandle, const char* const** features);
} ZefOamSpiMrMom_4;

/** A class. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrMoc_4 {
    ZefReturnT (*getGeneralProperties)(uint64_t mocHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getMom)(uint64_t mocHandle, uint64_t* momHandle);
    /** The first attribute; the others through the attribute table's getNext. */
    ZefReturnT (*getAttribute)(uint64_t mocHandle, uint64_t* attributeHandle);
    /** The first action; the others through the action table's getNext. */
    ZefReturnT (*getAction)(uint64_t mocHandle, uint64_t* actionHandle);
    /** The first containment in which the class is the parent. */
    ZefReturnT (*getChildContainment)(uint64_t mocHandle, uint64_t* containmentHandle);
    /** The first containment in which the class is the child. */
    ZefReturnT (*getParentContainment)(uint64_t mocHandle, uint64_t* containmentHandle);
    /** The first bidirectional association the class takes part in (in handle order). */
    ZefReturnT (*getFirstBiDirAssociation)(uint64_t mocHandle, uint64_t* associationHandle);
    /** The first unidirectional association that starts at the class (in handle order). */
    ZefReturnT (*getFirstUniDirAssociation)(uint64_t mocHandle, uint64_t* associationHandle);
    ZefReturnT (*getIsReadOnly)(uint64_t mocHandle, bool* isReadOnly);
    ZefReturnT (*getIsRoot)(uint64_t mocHandle, bool* isRoot);
    ZefReturnT (*getIsSystemCreated)(uint64_t mocHandle, bool* isSystemCreated);
    ZefReturnT (*getConstraint)(uint64_t mocHandle, const char** constraint);
} ZefOamSpiMrMoc_4;

/** A containment. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrContainment_4 {
    ZefReturnT (*getGeneralProperties)(uint64_t containmentHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getMom)(uint64_t containmentHandle, uint64_t* momHandle);
    ZefReturnT (*getChildMoc)(uint64_t containmentHandle, uint64_t* mocHandle);
    ZefReturnT (*getParentMoc)(uint64_t containmentHandle, uint64_t* mocHandle);
    ZefReturnT (*getNextContainmentSameChildMoc)(uint64_t containmentHandle, uint64_t* nextContainmentHandle);
    ZefReturnT (*getNextContainmentSameParentMoc)(uint64_t containmentHandle, uint64_t* nextContainmentHandle);
    ZefReturnT (*getIsSystemCreated)(uint64_t containmentHandle, bool* isSystemCreated);
    ZefReturnT (*getCanCreate)(uint64_t containmentHandle, bool* canCreate);
    ZefReturnT (*getCanDelete)(uint64_t containmentHandle, bool* canDelete);
    ZefReturnT (*getCardinalityMin)(uint64_t containmentHandle, uint64_t* min);
    ZefReturnT (*getCardinalityMax)(uint64_t containmentHandle, uint64_t* max);
} ZefOamSpiMrContainment_4;

/** One end of an association. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrAssociationEnd_4 {
    /** The class at this end. */
    ZefReturnT (*getMoc)(uint64_t associationEndHandle, uint64_t* mocHandle);
    /** The attribute that holds this end. */
    ZefReturnT (*getAttribute)(uint64_t associationEndHandle, uint64_t* attributeHandle);
    ZefReturnT (*getGeneralProperties)(uint64_t associationEndHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getName)(uint64_t associationEndHandle, const char** name);
    /** The name of the class at this end, as written in the model. */
    ZefReturnT (*getClassifier)(uint64_t associationEndHandle, const char** classifier);
    ZefReturnT (*isReserving)(uint64_t associationEndHandle, bool* isReserving);
    ZefReturnT (*isRestricted)(uint64_t associationEndHandle, bool* isRestricted);
    ZefReturnT (*getLower)(uint64_t associationEndHandle, uint64_t* lower);
    ZefReturnT (*getUpper)(uint64_t associationEndHandle, uint64_t* upper);
} ZefOamSpiMrAssociationEnd_4;

/** A bidirectional association. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrBiDirAssociation_4 {
    ZefReturnT (*getGeneralProperties)(uint64_t associationHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getMom)(uint64_t associationHandle, uint64_t* momHandle);
    ZefReturnT (*getFirstAssociation)(uint64_t associationHandle, uint64_t* associationEndHandle);
    ZefReturnT (*getSecondAssociation)(uint64_t associationHandle, uint64_t* associationEndHandle);
    /** The next bidirectional association of the class `mocHandle` (a class handle), in handle order. */
    ZefReturnT (*getNextBidirectionalAssociation)(uint64_t associationHandle, uint64_t mocHandle,
                                                  uint64_t* nextAssociationHandle);
} ZefOamSpiMrBiDirAssociation_4;

/** A unidirectional association. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrUniDirAssociation_4 {
    ZefReturnT (*getGeneralProperties)(uint64_t associationHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getMom)(uint64_t associationHandle, uint64_t* momHandle);
    ZefReturnT (*getAssociationEnd)(uint64_t associationHandle, uint64_t* associationEndHandle);
    /** The next unidirectional association that starts at the same class, in handle order. */
    ZefReturnT (*getNextUnidirectionalAssociationSameMoc)(uint64_t associationHandle,
                                                          uint64_t* nextAssociationHandle);
    ZefReturnT (*getIsExternal)(uint64_t associationHandle, bool* isExternal);
} ZefOamSpiMrUniDirAssociation_4;

/**
 * The data type of an attribute, parameter, action result or struct member,
 * followed by the getters of the derived type it may refer to.
 * Append-only: slot order fixed; new slots only in a new version.
 */
typedef struct ZefOamSpiMrTypeContainer_4 {
    /** The element's own type code (13 for a derived type). */
    ZefReturnT (*getType)(uint64_t typeContainerHandle, ZefOamSpiMrType_4* type);
    ZefReturnT (*getDerived)(uint64_t typeContainerHandle, uint64_t* derivedTypeHandle);
    ZefReturnT (*getEnum)(uint64_t typeContainerHandle, uint64_t* enumHandle);
    ZefReturnT (*getStruct)(uint64_t typeContainerHandle, uint64_t* structHandle);
    ZefReturnT (*getReferencedMoc)(uint64_t typeContainerHandle, uint64_t* mocHandle);
    /** The default values, a null-terminated array (empty when none). */
    ZefReturnT (*getDefaultValue)(uint64_t typeContainerHandle, const char* const** values);
    ZefReturnT (*getIsOrdered)(uint64_t typeContainerHandle, bool* isOrdered);
    ZefReturnT (*getIsUnique)(uint64_t typeContainerHandle, bool* isUnique);
    ZefReturnT (*getMultiplicityMin)(uint64_t typeContainerHandle, uint64_t* min);
    ZefReturnT (*getMultiplicityMax)(uint64_t typeContainerHandle, uint64_t* max);
    ZefReturnT (*derivedTypeGetGeneralProperties)(uint64_t derivedTypeHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*derivedTypeGetMom)(uint64_t derivedTypeHandle, uint64_t* momHandle);
    /** The derived type's base type. */
    ZefReturnT (*derivedTypeGetType)(uint64_t derivedTypeHandle, ZefOamSpiMrType_4* type);
} ZefOamSpiMrTypeContainer_4;

/** An enumeration and its literals. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrEnum_4 {
    ZefReturnT (*getGeneralProperties)(uint64_t enumHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getMom)(uint64_t enumHandle, uint64_t* momHandle);
    /** The first literal. */
    ZefReturnT (*getLiteral)(uint64_t enumHandle, uint64_t* literalHandle);
    ZefReturnT (*literalGetGeneralProperties)(uint64_t literalHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*literalGetValue)(uint64_t literalHandle, int64_t* value);
    ZefReturnT (*literalGetNext)(uint64_t literalHandle, uint64_t* nextLiteralHandle);
} ZefOamSpiMrEnum_4;

/** A struct and its members. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrStruct_4 {
    ZefReturnT (*getGeneralProperties)(uint64_t structHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getMom)(uint64_t structHandle, uint64_t* momHandle);
    /** The first member. */
    ZefReturnT (*getMember)(uint64_t structHandle, uint64_t* memberHandle);
    ZefReturnT (*getIsExclusive)(uint64_t structHandle, bool* isExclusive);
    ZefReturnT (*memberGetGeneralProperties)(uint64_t memberHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*memberGetTypeContainer)(uint64_t memberHandle, uint64_t* typeContainerHandle);
    ZefReturnT (*memberGetNext)(uint64_t memberHandle, uint64_t* nextMemberHandle);
} ZefOamSpiMrStruct_4;

/** An attribute of a class. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrAttribute_4 {
    ZefReturnT (*getGeneralProperties)(uint64_t attributeHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getMoc)(uint64_t attributeHandle, uint64_t* mocHandle);
    ZefReturnT (*getTypeContainer)(uint64_t attributeHandle, uint64_t* typeContainerHandle);
    ZefReturnT (*getNext)(uint64_t attributeHandle, uint64_t* nextAttributeHandle);
    ZefReturnT (*getIsKey)(uint64_t attributeHandle, bool* isKey);
    ZefReturnT (*getIsMandatory)(uint64_t attributeHandle, bool* isMandatory);
    ZefReturnT (*getIsPersistent)(uint64_t attributeHandle, bool* isPersistent);
    ZefReturnT (*getIsReadOnly)(uint64_t attributeHandle, bool* isReadOnly);
    ZefReturnT (*getIsRestricted)(uint64_t attributeHandle, bool* isRestricted);
    ZefReturnT (*getIsNotifiable)(uint64_t attributeHandle, bool* isNotifiable);
    ZefReturnT (*getUnit)(uint64_t attributeHandle, const char** unit);
} ZefOamSpiMrAttribute_4;

/** An action of a class and its parameters. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrAction_4 {
    ZefReturnT (*getGeneralProperties)(uint64_t actionHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getMoc)(uint64_t actionHandle, uint64_t* mocHandle);
    /** The data type of the result. */
    ZefReturnT (*getTypeContainer)(uint64_t actionHandle, uint64_t* typeContainerHandle);
    ZefReturnT (*getNext)(uint64_t actionHandle, uint64_t* nextActionHandle);
    /** The first parameter. */
    ZefReturnT (*getParameter)(uint64_t actionHandle, uint64_t* parameterHandle);
    ZefReturnT (*parameterGetGeneralProperties)(uint64_t parameterHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*parameterGetAction)(uint64_t parameterHandle, uint64_t* actionHandle);
    ZefReturnT (*parameterGetTypeContainer)(uint64_t parameterHandle, uint64_t* typeContainerHandle);
    ZefReturnT (*parameterGetNext)(uint64_t parameterHandle, uint64_t* nextParameterHandle);
} ZefOamSpiMrAction_4;

/** A class reference type. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrMoRef_4 {
    ZefReturnT (*getHandleProperty)(uint64_t typeContainerHandle, ZefOamSpiMrMoRefProperty_4 property,
                                    uint64_t* handle);
} ZefOamSpiMrMoRef_4;

/**
 * The restrictions of an integer type and its value ranges.
 * Append-only: slot order fixed; new slots only in a new version.
 */
typedef struct ZefOamSpiMrInt_4 {
    ZefReturnT (*getIntProperty)(uint64_t typeContainerHandle, ZefOamSpiMrIntProperty_4 property, int64_t* value);
    ZefReturnT (*getHandleProperty)(uint64_t typeContainerHandle, ZefOamSpiMrIntProperty_4 property,
                                    uint64_t* handle);
    ZefReturnT (*rangeGetMin)(uint64_t valueRangeHandle, int64_t* min);
    ZefReturnT (*rangeGetMax)(uint64_t valueRangeHandle, int64_t* max);
    ZefReturnT (*rangeGetNext)(uint64_t valueRangeHandle, uint64_t* nextValueRangeHandle);
} ZefOamSpiMrInt_4;

/**
 * The restrictions of a string type and its length ranges.
 * Append-only: slot order fixed; new slots only in a new version.
 */
typedef struct ZefOamSpiMrString_4 {
    ZefReturnT (*getStringProperty)(uint64_t typeContainerHandle, ZefOamSpiMrStringProperty_4 property,
                                    const char** value);
    ZefReturnT (*getIntProperty)(uint64_t typeContainerHandle, ZefOamSpiMrStringProperty_4 property,
                                 int64_t* value);
    ZefReturnT (*getBoolProperty)(uint64_t typeContainerHandle, ZefOamSpiMrStringProperty_4 property, bool* value);
    ZefReturnT (*getHandleProperty)(uint64_t typeContainerHandle, ZefOamSpiMrStringProperty_4 property,
                                    uint64_t* handle);
    ZefReturnT (*rangeGetMin)(uint64_t lengthRangeHandle, int64_t* min);
    ZefReturnT (*rangeGetMax)(uint64_t lengthRangeHandle, int64_t* max);
    ZefReturnT (*rangeGetNext)(uint64_t lengthRangeHandle, uint64_t* nextLengthRangeHandle);
} ZefOamSpiMrString_4;

/**
 * The restrictions of a floating point type and its value ranges.
 * Append-only: slot order fixed; new slots only in a new version.
 */
typedef struct ZefOamSpiMrFloat_4 {
    ZefReturnT (*getFloatProperty)(uint64_t typeContainerHandle, ZefOamSpiMrFloatProperty_4 property,
                                   double* value);
    /**
     * Checks in this order: null value -8; a property other than the
     * resolution -2; service not started 2; then the resolution text.
     */
    ZefReturnT (*getStringProperty)(uint64_t typeContainerHandle, ZefOamSpiMrFloatProperty_4 property,
                                    const char** value);
    ZefReturnT (*getHandleProperty)(uint64_t typeContainerHandle, ZefOamSpiMrFloatProperty_4 property,
                                    uint64_t* handle);
    ZefReturnT (*rangeGetMin)(uint64_t valueRangeHandle, double* min);
    ZefReturnT (*rangeGetMax)(uint64_t valueRangeHandle, double* max);
    ZefReturnT (*rangeGetNext)(uint64_t valueRangeHandle, uint64_t* nextValueRangeHandle);
} ZefOamSpiMrFloat_4;

/**
 * The model query interface "ZefOamSpiModelRepository" version "4": the
 * three texts of every interface record, then the sub-tables.
 * Append-only: slot order fixed; new sub-tables only in a new version.
 */
typedef struct ZefOamSpiModelRepository_4 {
    ZefMgmtSpiInterface_1 base;
    const ZefOamSpiMrEntry_4* entry;
    const ZefOamSpiMrGeneralProperties_4* generalProperties;
    const ZefOamSpiMrMom_4* mom;
    const ZefOamSpiMrMoc_4* moc;
    const ZefOamSpiMrContainment_4* containment;
    const ZefOamSpiMrAssociationEnd_4* associationEnd;
    const ZefOamSpiMrBiDirAssociation_4* biDirAssociation;
    const ZefOamSpiMrUniDirAssociation_4* uniDirAssociation;
    const ZefOamSpiMrTypeContainer_4* typeContainer;
    const ZefOamSpiMrEnum_4* enumType;
    const ZefOamSpiMrStruct_4* structType;
    const ZefOamSpiMrAttribute_4* attribute;
    const ZefOamSpiMrAction_4* action;
    const ZefOamSpiMrMoRef_4* moRef;
    const ZefOamSpiMrInt_4* intType;
    const ZefOamSpiMrString_4* stringType;
    const ZefOamSpiMrFloat_4* floatType;
} ZefOamSpiModelRepository_4;

#ifdef __cplusplus
}
#endif

#endif /* ZEF_OAM_SPI_MODEL_REPOSITORY_4_H */
