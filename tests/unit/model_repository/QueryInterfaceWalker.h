/*
 * A reader of the model query interface written in plain C, as a static
 * validator plug-in is (see QueryInterfaceWalker.c).
 */
#ifndef ZEF_TEST_QUERY_INTERFACE_WALKER_H
#define ZEF_TEST_QUERY_INTERFACE_WALKER_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

struct ZefOamSpiModelRepository_4;

/*
 * Walks the model from the first MOM through the version 4 tables and
 * writes one line per element into `text` (cut at `size`). Returns 0, or
 * the first result code other than 0 and -2 that a table answered.
 */
int zefTestWalkModel(const struct ZefOamSpiModelRepository_4* mr, char* text, size_t size);

#ifdef __cplusplus
}
#endif

#endif /* ZEF_TEST_QUERY_INTERFACE_WALKER_H */
