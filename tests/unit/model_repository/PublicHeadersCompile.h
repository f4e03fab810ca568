/*
 * Sizes of public records as the C compiler lays them out (see
 * PublicHeadersCompile.c).
 */
#ifndef ZEF_TEST_PUBLIC_HEADERS_COMPILE_H
#define ZEF_TEST_PUBLIC_HEADERS_COMPILE_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

size_t zefTestCSizeOfModelRepository_2(void);
size_t zefTestCSizeOfModelRepository_3(void);
size_t zefTestCSizeOfModelRepository_4(void);
size_t zefTestCSizeOfModelRepository_4_1(void);
size_t zefTestCSizeOfStaticValidatorInterface_1(void);
size_t zefTestCSizeOfMoAttribute(void);
size_t zefTestCSizeOfDerived_2(void);
size_t zefTestCSizeOfFloat_4(void);
size_t zefTestCSizeOfModelRepository_1(void);
size_t zefTestCSizeOfComponent_2(void);

#ifdef __cplusplus
}
#endif

#endif /* ZEF_TEST_PUBLIC_HEADERS_COMPILE_H */
