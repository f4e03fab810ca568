/*
 * The model repository as other components of a management framework see it
 * directly: interface "ZefOamSpiModelRepository" version "1", which hands
 * out the public model records themselves (no handles), and its extension
 * "ZefOamSpiModelRepositoryExtension" version "1".
 *
 * Every function returns a ZefReturnT:
 *   0  success, the out value is written;
 *   2  the repository service is not started (answered before the
 *      arguments are looked at);
 *  -2  nothing found;
 *  -8  a null argument.
 * Records and texts handed out belong to the repository and stay valid
 * until the model is unloaded (the component is stopped).
 *
 * The header compiles as C99 and as C++.
 */
#ifndef ZEF_OAM_SPI_MODEL_REPOSITORY_1_H
#define ZEF_OAM_SPI_MODEL_REPOSITORY_1_H

#include "ZefMgmtSpi.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * "ZefOamSpiModelRepository" version "1".
 * Append-only: slot order fixed; new slots only in a new version.
 */
typedef struct ZefOamSpiModelRepository_1 {
    ZefMgmtSpiInterface_1 base;
    /** The first MOM of the model; -2 when the model holds none. */
    ZefReturnT (*getMoms)(const ZefOamSpiMom** mom);
    /** The class of that MOM name, MOM version and class name; -2 when there is none. */
    ZefReturnT (*getMoc)(const char* mimName, const char* mimVersion, const char* mocName, const ZefOamSpiMoc** moc);
    /** The root class of the model's containment tree; 0 with null when the model has none. */
    ZefReturnT (*getTreeRoot)(const ZefOamSpiMoc** moc);
} ZefOamSpiModelRepository_1;

/**
 * "ZefOamSpiModelRepositoryExtension" version "1".
 * Append-only: slot order fixed; new slots only in a new version.
 */
typedef struct ZefOamSpiModelRepositoryExtension_1 {
    ZefMgmtSpiInterface_1 base;
    /**
     * The model file from which the MOM of exactly that name and version was
     * read; -2 when no MOM has both.
     */
    ZefReturnT (*getFileName)(const char* mimName, const char* mimVersion, const char** fileName);
} ZefOamSpiModelRepositoryExtension_1;

#ifdef __cplusplus
}
#endif

#endif /* ZEF_OAM_SPI_MODEL_REPOSITORY_1_H */
