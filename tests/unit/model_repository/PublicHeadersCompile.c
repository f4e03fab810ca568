/*
 * Every public header compiled as C, as a plug-in compiles them. The
 * functions report the sizes the C compiler gives the interface records so
 * that a C++ test can check that both languages agree on them.
 */
#include "ZefMgmtSpi.h"
#include "ZefOamApiStaticValidator.h"
#include "ZefOamSpiModelRepository_1.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefOamSpiModelRepository_4_1.h"
#include "ZefOamSpiMrTypes.h"
#include "ZefReturn.h"

#include "PublicHeadersCompile.h"

size_t zefTestCSizeOfModelRepository_2(void) { return sizeof(ZefOamSpiModelRepository_2); }
size_t zefTestCSizeOfModelRepository_3(void) { return sizeof(ZefOamSpiModelRepository_3); }
size_t zefTestCSizeOfModelRepository_4(void) { return sizeof(ZefOamSpiModelRepository_4); }
size_t zefTestCSizeOfModelRepository_4_1(void) { return sizeof(ZefOamSpiModelRepository_4_1); }
size_t zefTestCSizeOfStaticValidatorInterface_1(void) { return sizeof(ZefOamApiStaticValidatorInterface_1); }
size_t zefTestCSizeOfMoAttribute(void) { return sizeof(ZefOamSpiMoAttribute); }
size_t zefTestCSizeOfDerived_2(void) { return sizeof(ZefOamSpiDerived_2); }
size_t zefTestCSizeOfFloat_4(void) { return sizeof(ZefOamSpiMrFloat_4); }
size_t zefTestCSizeOfModelRepository_1(void) { return sizeof(ZefOamSpiModelRepository_1); }
size_t zefTestCSizeOfComponent_2(void) { return sizeof(ZefMgmtSpiComponent_2); }
