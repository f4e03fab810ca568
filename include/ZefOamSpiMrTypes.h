/*
 * The published records of the model repository: one C structure per kind of
 * model element, linked by pointers into the model graph that query readers
 * walk, plus the status and data type codes they carry.
 *
 * Layout rules kept by every record:
 * - the fields appear in their published order; a record only ever grows at
 *   its end, so a reader compiled against an older header still finds every
 *   field it knows at the same offset;
 * - every element record begins with a ZefOamSpiGeneralProperties fragment;
 * - strings are owned by the record that holds them (null means "not set");
 *   a reader never frees or changes them;
 * - pointers to other records are never owning;
 * - after its published fields, every element record carries its own query
 *   handle and the handle of its general properties (0 until the query
 *   interface has registered the element), so that a getter which reaches a
 *   related record through a pointer can hand out that record's handle.
 *
 * The header compiles as C99 and as C++.
 */
#ifndef ZEF_OAM_SPI_MR_TYPES_H
#define ZEF_OAM_SPI_MR_TYPES_H

#include <stdbool.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Life-cycle status of a model element. */
typedef enum ZefOamSpiStatus {
    ZefOamSpiStatusCurrent = 1,    /**< in use (the initial status) */
    ZefOamSpiStatusDeprecated = 2, /**< still valid, to be removed */
    ZefOamSpiStatusObsolete = 3    /**< no longer valid; never reverts */
} ZefOamSpiStatus;

/** Data type codes of the version 3 readers; also the codes the records store. */
typedef enum ZefOamSpiMrType_3 {
    ZefMrType3NotSet = 0,
    ZefMrType3Int8 = 1,
    ZefMrType3Int16 = 2,
    ZefMrType3Int32 = 3,
    ZefMrType3Int64 = 4,
    ZefMrType3UInt8 = 5,
    ZefMrType3UInt16 = 6,
    ZefMrType3UInt32 = 7,
    ZefMrType3UInt64 = 8,
    ZefMrType3String = 9,
    ZefMrType3Bool = 10,
    ZefMrType3Reference = 11, /**< reference to a class */
    ZefMrType3Enum = 12,
    ZefMrType3Derived = 13,   /**< derived (restricted) data type */
    ZefMrType3Struct = 14,
    ZefMrType3Void = 15,
    ZefMrType3Double = 16
} ZefOamSpiMrType_3;

/** Data type codes of the version 2 readers: the same numbers, without a double. */
typedef enum ZefOamSpiType_2 {
    ZefType2NotSet = 0,
    ZefType2Int8 = 1,
    ZefType2Int16 = 2,
    ZefType2Int32 = 3,
    ZefType2Int64 = 4,
    ZefType2UInt8 = 5,
    ZefType2UInt16 = 6,
    ZefType2UInt32 = 7,
    ZefType2UInt64 = 8,
    ZefType2String = 9,
    ZefType2Bool = 10,
    ZefType2Reference = 11,
    ZefType2Enum = 12,
    ZefType2Derived = 13,
    ZefType2Struct = 14,
    ZefType2Void = 15
} ZefOamSpiType_2;

/** Data type codes of the version 4 readers: the version 3 codes; new codes are appended. */
typedef enum ZefOamSpiMrType_4 {
    ZefMrType4NotSet = 0,
    ZefMrType4Int8 = 1,
    ZefMrType4Int16 = 2,
    ZefMrType4Int32 = 3,
    ZefMrType4Int64 = 4,
    ZefMrType4UInt8 = 5,
    ZefMrType4UInt16 = 6,
    ZefMrType4UInt32 = 7,
    ZefMrType4UInt64 = 8,
    ZefMrType4String = 9,
    ZefMrType4Bool = 10,
    ZefMrType4Reference = 11,
    ZefMrType4Enum = 12,
    ZefMrType4Derived = 13,
    ZefMrType4Struct = 14,
    ZefMrType4Void = 15,
    ZefMrType4Double = 16
} ZefOamSpiMrType_4;

/** Basic type of a derived data type as the record stores it (same numbers as version 3). */
typedef enum ZefOamSpiMoAttributeType {
    ZefMoAttributeTypeNotSet = 0,
    ZefMoAttributeTypeInt8 = 1,
    ZefMoAttributeTypeInt16 = 2,
    ZefMoAttributeTypeInt32 = 3,
    ZefMoAttributeTypeInt64 = 4,
    ZefMoAttributeTypeUInt8 = 5,
    ZefMoAttributeTypeUInt16 = 6,
    ZefMoAttributeTypeUInt32 = 7,
    ZefMoAttributeTypeUInt64 = 8,
    ZefMoAttributeTypeString = 9,
    ZefMoAttributeTypeBool = 10,
    ZefMoAttributeTypeReference = 11,
    ZefMoAttributeTypeEnum = 12,
    ZefMoAttributeTypeDerived = 13,
    ZefMoAttributeTypeStruct = 14,
    ZefMoAttributeTypeVoid = 15,
    ZefMoAttributeTypeDouble = 16
} ZefOamSpiMoAttributeType;

typedef struct ZefOamSpiMom ZefOamSpiMom;
typedef struct ZefOamSpiMoc ZefOamSpiMoc;
typedef struct ZefOamSpiMoAttribute ZefOamSpiMoAttribute;
typedef struct ZefOamSpiMoAction ZefOamSpiMoAction;
typedef struct ZefOamSpiParameter ZefOamSpiParameter;
typedef struct ZefOamSpiEnum ZefOamSpiEnum;
typedef struct ZefOamSpiEnumLiteral ZefOamSpiEnumLiteral;
typedef struct ZefOamSpiValueRange ZefOamSpiValueRange;
typedef struct ZefOamSpiDerivedDatatype ZefOamSpiDerivedDatatype;
typedef struct ZefOamSpiStruct ZefOamSpiStruct;
typedef struct ZefOamSpiStructMember ZefOamSpiStructMember;
typedef struct ZefOamSpiContainment ZefOamSpiContainment;
typedef struct ZefOamSpiAssociationEnd ZefOamSpiAssociationEnd;
typedef struct ZefOamSpiBiDirAssociation ZefOamSpiBiDirAssociation;
typedef struct ZefOamSpiUniDirAssociation ZefOamSpiUniDirAssociation;

/** Head of every element record. */
typedef struct ZefOamSpiGeneralProperties {
    char* name;
    char* description;
    char* specification;
    ZefOamSpiStatus status; /**< 1 until a status word is read */
    char* hidden;           /**< hidden marker (the model's filter text) */
} ZefOamSpiGeneralProperties;

/** Bounds of a multiplicity or cardinality; 32767 stands for unbounded. */
typedef struct ZefOamSpiMultiplicityRange {
    int16_t min;
    int16_t max;
} ZefOamSpiMultiplicityRange;

/** The data type of a typed element (parameter, struct member, action result). */
typedef struct ZefOamSpiDatatypeContainer {
    ZefOamSpiMrType_3 type;
    const ZefOamSpiDerivedDatatype* derivedDatatype; /**< type 13 */
    const ZefOamSpiEnum* enumDatatype;               /**< type 12 */
    const ZefOamSpiStruct* structDatatype;           /**< type 14 */
    const ZefOamSpiMoc* referencedMoc;               /**< type 11 */
    char* defaultValue;
    ZefOamSpiMultiplicityRange multiplicityRange; /**< 1..1 until set */
    bool isOrdered;
    bool isUnique;
} ZefOamSpiDatatypeContainer;

/** A model file's managed object model; all of them form a chain through next. */
struct ZefOamSpiMom {
    ZefOamSpiGeneralProperties generalProperties;
    char* version;
    char* release;
    char* namespaceURI;
    char* namespacePrefix;
    const ZefOamSpiMoc* rootMoc;
    char* docNo;
    char* revision;
    char* author;
    char* organization;
    const ZefOamSpiMom* next;
    uint64_t handle;
    uint64_t generalPropertiesHandle;
};

/** A managed object class. */
struct ZefOamSpiMoc {
    ZefOamSpiGeneralProperties generalProperties;
    const ZefOamSpiMom* mom;
    bool isReadOnly;
    bool isRoot;
    char* constraint;
    const ZefOamSpiMoAttribute* moAttribute;          /**< first attribute */
    const ZefOamSpiMoAction* moAction;                /**< first action */
    const ZefOamSpiContainment* childContainment;     /**< first containment with this class as parent */
    const ZefOamSpiContainment* parentContainment;    /**< first containment with this class as child */
    uint64_t handle;
    uint64_t generalPropertiesHandle;
};

/** An attribute of a class; the attributes of one class chain through next. */
struct ZefOamSpiMoAttribute {
    ZefOamSpiGeneralProperties generalProperties;
    const ZefOamSpiMoc* moc;
    ZefOamSpiMrType_3 type;
    const ZefOamSpiDerivedDatatype* derivedDatatype;
    const ZefOamSpiEnum* enumDatatype;
    const ZefOamSpiStruct* structDatatype;
    const ZefOamSpiMoc* referencedMoc;
    bool isKey;
    bool isMandatory;
    bool isPersistent;
    bool isReadOnly;
    ZefOamSpiMultiplicityRange multiplicityRange;
    bool isOrdered;
    bool isUnique;
    char* defaultValue;
    char* unit;
    const ZefOamSpiMoAttribute* next;
    uint64_t handle;
    uint64_t generalPropertiesHandle;
};

/** An action of a class; the actions of one class chain through next. */
struct ZefOamSpiMoAction {
    ZefOamSpiGeneralProperties generalProperties;
    const ZefOamSpiMoc* moc;
    ZefOamSpiDatatypeContainer returnType;
    const ZefOamSpiParameter* parameters; /**< first parameter */
    const ZefOamSpiMoAction* next;
    uint64_t handle;
    uint64_t generalPropertiesHandle;
};

/** A parameter of an action; the parameters of one action chain through next. */
struct ZefOamSpiParameter {
    ZefOamSpiGeneralProperties generalProperties;
    const ZefOamSpiMoAction* moAction;
    ZefOamSpiDatatypeContainer datatype;
    const ZefOamSpiParameter* next;
    uint64_t handle;
    uint64_t generalPropertiesHandle;
};

/** An enumeration. */
struct ZefOamSpiEnum {
    ZefOamSpiGeneralProperties generalProperties;
    const ZefOamSpiMom* mom;
    const ZefOamSpiEnumLiteral* literals; /**< first literal */
    uint64_t handle;
    uint64_t generalPropertiesHandle;
};

/** A literal of an enumeration; value holds the low 16 bits of the literal's value. */
struct ZefOamSpiEnumLiteral {
    ZefOamSpiGeneralProperties generalProperties;
    int16_t value;
    const ZefOamSpiEnumLiteral* next;
    uint64_t handle;
    uint64_t generalPropertiesHandle;
};

/**
 * One value (or length) range of a derived data type. Integer types use min
 * and max, the floating type minDouble and maxDouble; bounds never set are 0.
 */
struct ZefOamSpiValueRange {
    int64_t min;
    int64_t max;
    double minDouble;
    double maxDouble;
    const ZefOamSpiValueRange* next;
    uint64_t handle;
};

/** Length restriction of a string type, as version 1 readers see it. */
typedef struct ZefOamSpiLengthRange {
    int64_t min;
    int64_t max;
} ZefOamSpiLengthRange;

/** A derived (restricted) data type. */
struct ZefOamSpiDerivedDatatype {
    ZefOamSpiGeneralProperties generalProperties;
    const ZefOamSpiMom* mom;
    ZefOamSpiMoAttributeType type;           /**< basic type */
    char* pattern;
    ZefOamSpiLengthRange stringLength;       /**< copy of the first length range */
    const ZefOamSpiValueRange* valueRange;   /**< first value range */
    uint64_t handle;
    uint64_t generalPropertiesHandle;
};

/** A struct data type. */
struct ZefOamSpiStruct {
    ZefOamSpiGeneralProperties generalProperties;
    const ZefOamSpiMom* mom;
    const ZefOamSpiStructMember* members; /**< first member */
    uint64_t handle;
    uint64_t generalPropertiesHandle;
};

/** A member of a struct; the members of one struct chain through next. */
struct ZefOamSpiStructMember {
    ZefOamSpiGeneralProperties generalProperties;
    ZefOamSpiDatatypeContainer datatype;
    const ZefOamSpiStructMember* next;
    uint64_t handle;
    uint64_t generalPropertiesHandle;
};

/** A containment between a parent and a child class. */
struct ZefOamSpiContainment {
    ZefOamSpiGeneralProperties generalProperties;
    const ZefOamSpiMom* mom;
    const ZefOamSpiMoc* parentMoc;
    const ZefOamSpiMoc* childMoc;
    ZefOamSpiMultiplicityRange cardinality;
    bool isSystemCreated;
    const ZefOamSpiContainment* nextContainmentSameParentMoc;
    const ZefOamSpiContainment* nextContainmentSameChildMoc;
    uint64_t handle;
    uint64_t generalPropertiesHandle;
};

/**
 * One end of an association. lower and upper hold values of the 16-bit
 * range; moc and attribute are the class and attribute the end resolves to.
 */
struct ZefOamSpiAssociationEnd {
    ZefOamSpiGeneralProperties generalProperties;
    const ZefOamSpiMom* mom;
    bool isReserving;
    bool isRestricted;
    int32_t lower;
    int32_t upper;
    const ZefOamSpiMoc* moc;
    const ZefOamSpiMoAttribute* attribute;
    uint64_t handle;
    uint64_t generalPropertiesHandle;
};

/** An association navigable from both ends. */
struct ZefOamSpiBiDirAssociation {
    ZefOamSpiGeneralProperties generalProperties;
    const ZefOamSpiMom* mom;
    const ZefOamSpiAssociationEnd* firstAssociationEnd;
    const ZefOamSpiAssociationEnd* secondAssociationEnd;
    uint64_t handle;
    uint64_t generalPropertiesHandle;
};

/** An association navigable from its origin class to its one end. */
struct ZefOamSpiUniDirAssociation {
    ZefOamSpiGeneralProperties generalProperties;
    const ZefOamSpiMom* mom;
    const ZefOamSpiAssociationEnd* associationEnd;
    const ZefOamSpiMoc* originMoc; /**< the class the association starts from */
    uint64_t handle;
    uint64_t generalPropertiesHandle;
};

#ifdef __cplusplus
}
#endif

#endif /* ZEF_OAM_SPI_MR_TYPES_H */
