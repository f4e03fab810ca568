/*
 * The small part of the management framework's service provider interface
 * that the model repository uses: the common head of every interface record,
 * the log and trace interfaces the logging singleton forwards to, the
 * component record, the interface portal and its accessor, and the
 * per-thread error text of the C interfaces.
 */
#ifndef ZEF_MGMT_SPI_H
#define ZEF_MGMT_SPI_H

#include <stdarg.h>
#include <stdint.h>

#include "ZefReturn.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * Head of every interface record: who provides it, its name and its version
 * text. The operations of the concrete interface follow these three texts.
 */
typedef struct ZefMgmtSpiInterface_1 {
    const char* componentName;
    const char* interfaceName;
    const char* interfaceVersion;
} ZefMgmtSpiInterface_1;

/** Log interface "ZefMwSpiLog" version "1". */
typedef struct ZefMwSpiLog_1 {
    ZefMgmtSpiInterface_1 base;
    /** Writes one finished log line; non-zero means it could not be written. */
    ZefReturnT (*log)(int version, unsigned int level, int facility, const char* line);
} ZefMwSpiLog_1;

/** Trace interface "ZefMwSpiTrace" version "1". */
typedef struct ZefMwSpiTrace_1 {
    ZefMgmtSpiInterface_1 base;
    void (*enter)(const char* line);
    void (*leave)(const char* line);
    void (*print)(unsigned int level, const char* line);
} ZefMwSpiTrace_1;

typedef uint32_t ZefMwSpiTraceSubsystemHandle_2T;
typedef uint32_t ZefMwSpiTraceLevelT;

/** Trace interface "ZefMwSpiTrace" version "2": per-subsystem tracing. */
typedef struct ZefMwSpiTrace_2 {
    ZefMgmtSpiInterface_1 base;
    /** Registers a subsystem by name and returns its handle; non-zero on failure. */
    ZefReturnT (*registerSubsystem)(const char* name, ZefMwSpiTraceSubsystemHandle_2T* handle);
    void (*print)(ZefMwSpiTraceSubsystemHandle_2T subsystem, ZefMwSpiTraceLevelT level,
                  const char* file, const char* function, unsigned int line,
                  const char* format, va_list args);
} ZefMwSpiTrace_2;

/*
 * Components. A component describes itself in a ZefMgmtSpiComponent_2
 * record and registers it with the framework's interface portal, which it
 * obtains through the portal accessor handed to it at initialisation. The
 * framework then calls the record's start and stop functions.
 */

/**
 * Component record "ZefMgmtSpiComponent" version "2". The head names the
 * component (componentName) and the record's own interface and version.
 * Append-only: the field order is fixed; new fields only in a new version.
 */
typedef struct ZefMgmtSpiComponent_2 {
    ZefMgmtSpiInterface_1 base;
    /** The interfaces the component provides, ending with a null pointer. */
    const ZefMgmtSpiInterface_1* const* providedInterfaces;
    /**
     * The interfaces the component needs from others, ending with a null
     * pointer. Their componentName is null (any provider will do); a null
     * interfaceVersion accepts any version.
     */
    const ZefMgmtSpiInterface_1* const* requiredInterfaces;
    /** Starts the component; 0 on success, any other value is a failure. */
    ZefReturnT (*start)(void);
    /** Stops the component; 0 on success. */
    ZefReturnT (*stop)(void);
    /** Component flags; 1 is what every component of this program sets. */
    int flags;
} ZefMgmtSpiComponent_2;

/**
 * Interface portal "ZefMgmtSpiInterfacePortal" version "3": where components
 * register. Append-only: slot order fixed; new slots only in a new version.
 */
typedef struct ZefMgmtSpiInterfacePortal_3 {
    ZefMgmtSpiInterface_1 base;
    /** Makes the component known to the framework; 0 on success. */
    ZefReturnT (*registerComponent)(const ZefMgmtSpiComponent_2* component);
    /** Forgets a registered component; 0 on success. */
    ZefReturnT (*unregisterComponent)(const ZefMgmtSpiComponent_2* component);
} ZefMgmtSpiInterfacePortal_3;

/** Hands a component the interface portal of the framework. */
typedef struct ZefMgmtSpiInterfacePortalAccessor {
    /**
     * The portal of the given interface version ("3"); null when the
     * framework has none of that version. The portal's head carries the
     * version text; its operations follow as in the portal record of that
     * version.
     */
    ZefMgmtSpiInterface_1* (*getPortal)(const char* version);
} ZefMgmtSpiInterfacePortalAccessor;

/** Per-thread scratch and error text of the C interfaces. */
typedef struct ZefMgmtSpiThreadContext_1 {
    char copyBuffer[4096];
    char errorText[4096];
} ZefMgmtSpiThreadContext_1;

/** Nothing to prepare; returns 0. */
ZefReturnT zefMgmtSpiThreadContextInit(void);
/** The calling thread's block, created on first use; -1 and null when no key can be created. */
ZefReturnT zefMgmtSpiThreadContextGet(ZefMgmtSpiThreadContext_1** out);
/** Formats the error text (null empties it); -1 when no block is available. */
ZefReturnT zefMgmtSpiThreadContextSetErrorText(const char* fmt, ...)
#ifdef __GNUC__
    __attribute__((format(printf, 1, 2)))
#endif
    ;
/** Writes the new text in front of the current one; -8 for a null or empty format. */
ZefReturnT zefMgmtSpiThreadContextPrependErrorText(const char* fmt, ...)
#ifdef __GNUC__
    __attribute__((format(printf, 1, 2)))
#endif
    ;
/** A copy of the error text, valid until the thread's next call; null when no block exists. */
const char* zefMgmtSpiThreadContextGetErrorText(void);

#ifdef __cplusplus
}
#endif

#endif /* ZEF_MGMT_SPI_H */
