/*
 * Contract between zef_model_validator and a static validator plug-in.
 *
 * A plug-in is a shared library that exports the C function
 *     const ZefOamApiStaticValidatorInterface_1* getZefOamApiStaticValidatorInterface(void);
 * The validator calls `check` once with the handle of the version 4 model
 * query interface and then `finish`. The layout of the record is fixed:
 * existing plug-ins depend on it, so fields are never reordered or removed.
 */
#ifndef ZEF_OAM_API_STATIC_VALIDATOR_H
#define ZEF_OAM_API_STATIC_VALIDATOR_H

#ifdef __cplusplus
extern "C" {
#endif

/** The version 4 model query interface table (declared in its own header). */
struct ZefOamSpiModelRepository_4;

/** Name of the entry symbol every plug-in exports. */
#define ZEF_STATIC_VALIDATOR_ENTRY_SYMBOL "getZefOamApiStaticValidatorInterface"

typedef struct ZefOamApiStaticValidatorInterface_1 {
    /** The validator's name, printed and logged. */
    const char* name;
    /** Its version text, printed and logged. */
    const char* version;
    /**
     * Checks the model. `modelIf4` is the version 4 query interface table;
     * `result` is set to null before
     * the call and may be pointed at a text owned by the plug-in.
     * Returns 0 when the model failed the check, non-zero when it passed
     * (leaving `result` unset, or pointing it at "", means nothing to say).
     */
    int (*check)(const struct ZefOamSpiModelRepository_4* modelIf4, const char** result);
    /** Called once after every call of `check`, whatever its outcome. */
    void (*finish)(void);
} ZefOamApiStaticValidatorInterface_1;

/** Type of the entry function. */
typedef const ZefOamApiStaticValidatorInterface_1* (*ZefOamApiGetStaticValidatorInterfaceFn)(void);

#ifdef __cplusplus
}
#endif

#endif /* ZEF_OAM_API_STATIC_VALIDATOR_H */
