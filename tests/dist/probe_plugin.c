/*
 * A static validator plug-in built the way a plug-in author builds one:
 * against the installed headers, with the flags of pkg-config. Every public
 * header is included so that the installed folder is known to be complete.
 *
 * The entry function leaves a mark in the file named by
 * ZEF_DIST_PROBE_MARK, so a test can tell that the validator loaded the
 * library and called it. Built with -DZEF_PROBE_WITHOUT_ENTRY it exports no
 * entry function, as a library that is not a static validator.
 */
#include <ZefMgmtSpi.h>
#include <ZefOamApiStaticValidator.h>
#include <ZefOamSpiModelRepository_2.h>
#include <ZefOamSpiModelRepository_3.h>
#include <ZefOamSpiModelRepository_4.h>
#include <ZefOamSpiModelRepository_4_1.h>
#include <ZefOamSpiMrTypes.h>
#include <ZefReturn.h>

#include <stdio.h>
#include <stdlib.h>

static int probeCheck(const struct ZefOamSpiModelRepository_4* modelIf4, const char** result) {
    (void)modelIf4;
    *result = "";
    return 1;
}

static void probeFinish(void) {}

static const ZefOamApiStaticValidatorInterface_1 probeInterface = {
    "dist_probe", "1.0", probeCheck, probeFinish
};

#ifndef ZEF_PROBE_WITHOUT_ENTRY
const ZefOamApiStaticValidatorInterface_1* getZefOamApiStaticValidatorInterface(void) {
    const char* markPath = getenv("ZEF_DIST_PROBE_MARK");
    if (markPath != NULL) {
        FILE* mark = fopen(markPath, "a");
        if (mark != NULL) {
            fputs("entry called\n", mark);
            fclose(mark);
        }
    }
    return &probeInterface;
}
#else
/* Keeps the record referenced so that the compiler does not warn. */
const ZefOamApiStaticValidatorInterface_1* zefDistProbeUnexported(void) { return &probeInterface; }
#endif
