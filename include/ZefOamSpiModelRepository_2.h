/*
 * Model query interface, version "2".
 *
 * A reader starts at the entry table (the first MOM, a class by name, the
 * tree root) and walks the compiled model through opaque 64-bit handles.
 * Handles are issued per element kind: the handle passed to a slot must be
 * one of the kind that the slot's parameter names (a class handle for a
 * class getter, and so on); handles of different kinds share values.
 *
 * Every slot returns a ZefReturnT:
 *   0  success, the out value is written;
 *   2  the repository service is not started (answered before anything else);
 *  -2  nothing to answer (no such link, no such element); the out value is
 *      left as it was;
 *  -8  null out pointer, or a handle that names no element of the kind (the
 *      thread's error text, zefMgmtSpiThreadContextGetErrorText, says which).
 * Texts handed out belong to the repository and stay valid until the model
 * is unloaded; the reader never frees or changes them.
 *
 * Lists are walked with a "first" getter and the "next" getter of the listed
 * kind, which answers -2 after the last element.
 *
 * The header compiles as C99 and as C++.
 */
#ifndef ZEF_OAM_SPI_MODEL_REPOSITORY_2_H
#define ZEF_OAM_SPI_MODEL_REPOSITORY_2_H

#include <stdbool.h>
#include <stdint.h>

#include "ZefMgmtSpi.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Life-cycle status as the query interface reports it (all versions). */
typedef enum ZefOamSpiStatus_2 {
    ZefOamSpiStatus2Current = 1,    /**< in use */
    ZefOamSpiStatus2Deprecated = 2, /**< still valid, to be removed */
    ZefOamSpiStatus2Obsolete = 3    /**< no longer valid */
} ZefOamSpiStatus_2;

/*
 * Every table below is append-only: the slot order is fixed for good, a
 * slot is never removed or reordered, and new functions go into a new
 * interface version published beside this one.
 */

/** Where a reader starts. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiEntry_2 {
    /** The first MOM of the model. */
    ZefReturnT (*getMom)(uint64_t* momHandle);
    /** The class of that MOM name, MOM version and class name. */
    ZefReturnT (*getMoc)(const char* mimName, const char* mimVersion, const char* mocName, uint64_t* mocHandle);
    /** The root class of the model's containment tree. */
    ZefReturnT (*getRoot)(uint64_t* mocHandle);
} ZefOamSpiEntry_2;

/** General properties of any element. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiGeneralProperties_2 {
    ZefReturnT (*getName)(uint64_t generalPropertiesHandle, const char** name);
    ZefReturnT (*getDescription)(uint64_t generalPropertiesHandle, const char** description);
    ZefReturnT (*getSpecification)(uint64_t generalPropertiesHandle, const char** specification);
    ZefReturnT (*getHidden)(uint64_t generalPropertiesHandle, const char** hidden);
    ZefReturnT (*getStatus)(uint64_t generalPropertiesHandle, ZefOamSpiStatus_2* status);
    /** The value of the element's extension `name` in `domain`; -2 when it has none. */
    ZefReturnT (*getDomainExtention)(uint64_t generalPropertiesHandle, const char* domain, const char* name,
                                     const char** value);
} ZefOamSpiGeneralProperties_2;

/** A MOM. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMom_2 {
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
} ZefOamSpiMom_2;

/** A class. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMoc_2 {
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
    ZefReturnT (*getIsReadOnly)(uint64_t mocHandle, bool* isReadOnly);
    ZefReturnT (*getIsRoot)(uint64_t mocHandle, bool* isRoot);
    ZefReturnT (*getIsSystemCreated)(uint64_t mocHandle, bool* isSystemCreated);
    ZefReturnT (*getConstraint)(uint64_t mocHandle, const char** constraint);
} ZefOamSpiMoc_2;

/** A containment. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiContainment_2 {
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
} ZefOamSpiContainment_2;

/**
 * The data type of an attribute, parameter, action result or struct member.
 * Append-only: slot order fixed; new slots only in a new version.
 */
typedef struct ZefOamSpiTypeContainer_2 {
    /** The base type of a derived type, otherwise the element's own type. */
    ZefReturnT (*getType)(uint64_t typeContainerHandle, ZefOamSpiType_2* type);
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
} ZefOamSpiTypeContainer_2;

/**
 * A derived data type and its value and length ranges.
 * Append-only: slot order fixed; new slots only in a new version.
 */
typedef struct ZefOamSpiDerived_2 {
    ZefReturnT (*getGeneralProperties)(uint64_t derivedTypeHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getMom)(uint64_t derivedTypeHandle, uint64_t* momHandle);
    /** The base type; -8 for a base type version 2 has no code for (double). */
    ZefReturnT (*getType)(uint64_t derivedTypeHandle, ZefOamSpiType_2* type);
    ZefReturnT (*getResolution)(uint64_t derivedTypeHandle, int64_t* resolution);
    ZefReturnT (*getFloatResolution)(uint64_t derivedTypeHandle, double* resolution);
    ZefReturnT (*getFloatStringResolution)(uint64_t derivedTypeHandle, const char** resolution);
    ZefReturnT (*getStringRestrictionPattern)(uint64_t derivedTypeHandle, const char** pattern);
    ZefReturnT (*getStringRestrictionExceptionText)(uint64_t derivedTypeHandle, const char** exceptionText);
    /** The first length range of a string type (a value range handle). */
    ZefReturnT (*getStringRestrictionLength)(uint64_t derivedTypeHandle, uint64_t* valueRangeHandle);
    /** The first value range of a numeric type. */
    ZefReturnT (*getNumericRestrictionRange)(uint64_t derivedTypeHandle, uint64_t* valueRangeHandle);
    ZefReturnT (*getIsPassphrase)(uint64_t derivedTypeHandle, bool* isPassphrase);
    ZefReturnT (*valueRangeGetMin)(uint64_t valueRangeHandle, int64_t* min);
    ZefReturnT (*valueRangeGetMax)(uint64_t valueRangeHandle, int64_t* max);
    ZefReturnT (*valueRangeGetMinDouble)(uint64_t valueRangeHandle, double* min);
    ZefReturnT (*valueRangeGetMaxDouble)(uint64_t valueRangeHandle, double* max);
    ZefReturnT (*valueRangeGetNext)(uint64_t valueRangeHandle, uint64_t* nextValueRangeHandle);
} ZefOamSpiDerived_2;

/** An enumeration and its literals. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiEnum_2 {
    ZefReturnT (*getGeneralProperties)(uint64_t enumHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getMom)(uint64_t enumHandle, uint64_t* momHandle);
    /** The first literal. */
    ZefReturnT (*getLiteral)(uint64_t enumHandle, uint64_t* literalHandle);
    ZefReturnT (*literalGetGeneralProperties)(uint64_t literalHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*literalGetValue)(uint64_t literalHandle, int64_t* value);
    ZefReturnT (*literalGetNext)(uint64_t literalHandle, uint64_t* nextLiteralHandle);
} ZefOamSpiEnum_2;

/** A struct and its members. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiStruct_2 {
    ZefReturnT (*getGeneralProperties)(uint64_t structHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getMom)(uint64_t structHandle, uint64_t* momHandle);
    /** The first member. */
    ZefReturnT (*getMember)(uint64_t structHandle, uint64_t* memberHandle);
    ZefReturnT (*getIsExclusive)(uint64_t structHandle, bool* isExclusive);
    ZefReturnT (*memberGetGeneralProperties)(uint64_t memberHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*memberGetTypeContainer)(uint64_t memberHandle, uint64_t* typeContainerHandle);
    ZefReturnT (*memberGetNext)(uint64_t memberHandle, uint64_t* nextMemberHandle);
} ZefOamSpiStruct_2;

/** An attribute of a class. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiAttribute_2 {
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
} ZefOamSpiAttribute_2;

/** An action of a class and its parameters. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiAction_2 {
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
} ZefOamSpiAction_2;

/**
 * The model query interface "ZefOamSpiModelRepository" version "2": the
 * three texts of every interface record, then the sub-tables.
 * Append-only: slot order fixed; new sub-tables only in a new version.
 */
typedef struct ZefOamSpiModelRepository_2 {
    ZefMgmtSpiInterface_1 base;
    const ZefOamSpiEntry_2* entry;
    const ZefOamSpiGeneralProperties_2* generalProperties;
    const ZefOamSpiMom_2* mom;
    const ZefOamSpiMoc_2* moc;
    const ZefOamSpiContainment_2* containment;
    const ZefOamSpiTypeContainer_2* typeContainer;
    const ZefOamSpiDerived_2* derived;
    const ZefOamSpiEnum_2* enumType;
    const ZefOamSpiStruct_2* structType;
    const ZefOamSpiAttribute_2* attribute;
    const ZefOamSpiAction_2* action;
} ZefOamSpiModelRepository_2;

#ifdef __cplusplus
}
#endif

#endif /* ZEF_OAM_SPI_MODEL_REPOSITORY_2_H */
