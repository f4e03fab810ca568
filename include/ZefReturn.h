/*
 * Result codes shared by the record setters, the repository, the service
 * and every function of the model query interface.
 */
#ifndef ZEF_RETURN_H
#define ZEF_RETURN_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** Signed 32-bit result code; 0 is success. */
typedef int32_t ZefReturnT;

enum {
    ZefOk = 0,               /**< success */
    ZefNotStarted = 2,       /**< the repository service is not started */
    ZefFailure = -1,         /**< general failure */
    ZefNotFound = -2,        /**< nothing found, or a null member handed to a list */
    ZefAlreadyExists = -3,   /**< value already set, element already registered, already started */
    ZefInvalidArgument = -8, /**< null or empty argument, text that does not convert */
    ZefValidationFailed = -9 /**< a static validator plug-in reported failure */
};

#ifdef __cplusplus
}
#endif

#endif /* ZEF_RETURN_H */
