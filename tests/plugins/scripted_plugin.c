/*
 * A static validator plug-in whose verdict is fixed when it is built, so
 * that the end-to-end cases can drive every branch of the validator's
 * report: PLUGIN_NAME and PLUGIN_VERSION name it, PLUGIN_PASSES (0 or 1) is
 * its verdict and PLUGIN_RESULT its result text (NULL leaves the result
 * unset). Built with PLUGIN_WITHOUT_ENTRY it exports no entry function, as
 * a library that is not a static validator.
 */
#include <stddef.h>

#include "CallRecord.h"
#include "ZefOamApiStaticValidator.h"

static int scriptedCheck(const struct ZefOamSpiModelRepository_4* modelIf4, const char** result)
{
    (void)modelIf4;
    zefTestRecordCall(PLUGIN_NAME, "check");
    if (PLUGIN_RESULT != NULL) {
        *result = PLUGIN_RESULT;
    }
    return PLUGIN_PASSES;
}

static void scriptedFinish(void)
{
    zefTestRecordCall(PLUGIN_NAME, "finish");
}

static const ZefOamApiStaticValidatorInterface_1 scripted = {PLUGIN_NAME, PLUGIN_VERSION, scriptedCheck,
                                                             scriptedFinish};

#ifndef PLUGIN_WITHOUT_ENTRY
const ZefOamApiStaticValidatorInterface_1* getZefOamApiStaticValidatorInterface(void)
{
    return &scripted;
}
#else
const ZefOamApiStaticValidatorInterface_1* zefTestScriptedUnexported(void)
{
    return &scripted;
}
#endif
