/*
 * Model query interface, version "4_1": published beside version "4" and
 * read together with it. It repeats the enumeration and association tables
 * of version 4 (same slots, same answers, handles of the same kinds) and
 * adds lookups by name that this repository does not offer: they answer -2
 * (not found) at once, whatever their arguments.
 *
 * The result codes are those of version 4 (ZefOamSpiModelRepository_4.h).
 * The header compiles as C99 and as C++.
 */
#ifndef ZEF_OAM_SPI_MODEL_REPOSITORY_4_1_H
#define ZEF_OAM_SPI_MODEL_REPOSITORY_4_1_H

#include <stdbool.h>
#include <stdint.h>

#include "ZefMgmtSpi.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefReturn.h"

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Every table below is append-only: the slot order is fixed for good, a
 * slot is never removed or reordered, and new functions go into a new
 * interface version published beside this one.
 */

/** Lookups by name; each answers -2. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrEntry_4_1 {
    ZefReturnT (*getEnum)(const char* mimName, const char* mimVersion, const char* enumName, uint64_t* enumHandle);
    ZefReturnT (*getBiDirAssociation)(const char* mimName, const char* mimVersion, const char* associationName,
                                      uint64_t* associationHandle);
    ZefReturnT (*getUniDirAssociation)(const char* mimName, const char* mimVersion, const char* associationName,
                                       uint64_t* associationHandle);
} ZefOamSpiMrEntry_4_1;

/** An enumeration and its literals. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrEnum_4_1 {
    ZefReturnT (*getGeneralProperties)(uint64_t enumHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getMom)(uint64_t enumHandle, uint64_t* momHandle);
    /** The first literal. */
    ZefReturnT (*getLiteral)(uint64_t enumHandle, uint64_t* literalHandle);
    ZefReturnT (*literalGetGeneralProperties)(uint64_t literalHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*literalGetValue)(uint64_t literalHandle, int64_t* value);
    ZefReturnT (*literalGetNext)(uint64_t literalHandle, uint64_t* nextLiteralHandle);
} ZefOamSpiMrEnum_4_1;

/** A bidirectional association. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrBiDirAssociation_4_1 {
    ZefReturnT (*getGeneralProperties)(uint64_t associationHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getMom)(uint64_t associationHandle, uint64_t* momHandle);
    ZefReturnT (*getFirstAssociation)(uint64_t associationHandle, uint64_t* associationEndHandle);
    ZefReturnT (*getSecondAssociation)(uint64_t associationHandle, uint64_t* associationEndHandle);
    /** The next bidirectional association of the class `mocHandle` (a class handle), in handle order. */
    ZefReturnT (*getNextBidirectionalAssociation)(uint64_t associationHandle, uint64_t mocHandle,
                                                  uint64_t* nextAssociationHandle);
} ZefOamSpiMrBiDirAssociation_4_1;

/** A unidirectional association. Append-only: slot order fixed; new slots only in a new version. */
typedef struct ZefOamSpiMrUniDirAssociation_4_1 {
    ZefReturnT (*getGeneralProperties)(uint64_t associationHandle, uint64_t* generalPropertiesHandle);
    ZefReturnT (*getMom)(uint64_t associationHandle, uint64_t* momHandle);
    ZefReturnT (*getAssociationEnd)(uint64_t associationHandle, uint64_t* associationEndHandle);
    /** The next unidirectional association that starts at the same class, in handle order. */
    ZefReturnT (*getNextUnidirectionalAssociationSameMoc)(uint64_t associationHandle,
                                                          uint64_t* nextAssociationHandle);
    ZefReturnT (*getIsExternal)(uint64_t associationHandle, bool* isExternal);
} ZefOamSpiMrUniDirAssociation_4_1;

/**
 * The model query interface "ZefOamSpiModelRepository" version "4_1": the
 * three texts of every interface record, then the sub-tables.
 * Append-only: slot order fixed; new sub-tables only in a new version.
 */
typedef struct ZefOamSpiModelRepository_4_1 {
    ZefMgmtSpiInterface_1 base;
    const ZefOamSpiMrEntry_4_1* entry;
    const ZefOamSpiMrEnum_4_1* enumType;
    const ZefOamSpiMrBiDirAssociation_4_1* biDirAssociation;
    const ZefOamSpiMrUniDirAssociation_4_1* uniDirAssociation;
} ZefOamSpiModelRepository_4_1;

#ifdef __cplusplus
}
#endif

#endif /* ZEF_OAM_SPI_MODEL_REPOSITORY_4_1_H */
