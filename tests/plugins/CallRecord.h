/*
 * Lets a test see which plug-in functions the validator called, in which
 * order: each call appends "<plug-in name> <event>" as one line to the file
 * named by ZEF_TEST_PLUGIN_CALLS, when that variable is set.
 */
#ifndef ZEF_TEST_PLUGIN_CALL_RECORD_H
#define ZEF_TEST_PLUGIN_CALL_RECORD_H

#include <stdio.h>
#include <stdlib.h>

static void zefTestRecordCall(const char* plugin, const char* event)
{
    const char* path = getenv("ZEF_TEST_PLUGIN_CALLS");
    FILE* calls;
    if (path == NULL) {
        return;
    }
    calls = fopen(path, "a");
    if (calls != NULL) {
        fprintf(calls, "%s %s\n", plugin, event);
        fclose(calls);
    }
}

#endif /* ZEF_TEST_PLUGIN_CALL_RECORD_H */
