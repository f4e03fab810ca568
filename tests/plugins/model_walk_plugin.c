/*
 * A static validator plug-in that reads the whole model through the
 * version 4 query interface (the reader the unit tests use as well) and
 * hands the walk back as its information text, so that an end-to-end case
 * sees every element a plug-in can reach. It fails when a table answered
 * with an error code.
 */
#include <stdio.h>

#include "CallRecord.h"
#include "QueryInterfaceWalker.h"
#include "ZefOamApiStaticValidator.h"

static char walkText[1 << 16];
static char failureText[64];

static int walkCheck(const struct ZefOamSpiModelRepository_4* modelIf4, const char** result)
{
    int failure;
    zefTestRecordCall("ModelWalk", "check");
    failure = zefTestWalkModel(modelIf4, walkText, sizeof walkText);
    if (failure != 0) {
        snprintf(failureText, sizeof failureText, "a table answered %d", failure);
        *result = failureText;
        return 0;
    }
    *result = walkText;
    return 1;
}

static void walkFinish(void)
{
    zefTestRecordCall("ModelWalk", "finish");
}

static const ZefOamApiStaticValidatorInterface_1 modelWalk = {"ModelWalk", "1.0", walkCheck, walkFinish};

const ZefOamApiStaticValidatorInterface_1* getZefOamApiStaticValidatorInterface(void)
{
    return &modelWalk;
}
