// The public headers compile as C (PublicHeadersCompile.c is built by the C
// compiler) and give C and C++ the same layout of the interface records.

#include <gtest/gtest.h>

#include "PublicHeadersCompile.h"
#include "ZefOamApiStaticValidator.h"
#include "ZefOamSpiModelRepository_2.h"
#include "ZefOamSpiModelRepository_3.h"
#include "ZefOamSpiModelRepository_4.h"
#include "ZefOamSpiModelRepository_4_1.h"
#include "ZefOamSpiMrTypes.h"

TEST(PublicHeadersCompile, CAndCxxAgreeOnTheInterfaceTables)
{
    EXPECT_EQ(sizeof(ZefOamSpiModelRepository_2), zefTestCSizeOfModelRepository_2());
    EXPECT_EQ(sizeof(ZefOamSpiModelRepository_3), zefTestCSizeOfModelRepository_3());
    EXPECT_EQ(sizeof(ZefOamSpiModelRepository_4), zefTestCSizeOfModelRepository_4());
    EXPECT_EQ(sizeof(ZefOamSpiModelRepository_4_1), zefTestCSizeOfModelRepository_4_1());
    EXPECT_EQ(sizeof(ZefOamSpiDerived_2), zefTestCSizeOfDerived_2());
    EXPECT_EQ(sizeof(ZefOamSpiMrFloat_4), zefTestCSizeOfFloat_4());
}

TEST(PublicHeadersCompile, CAndCxxAgreeOnThePluginRecordAndTheModelRecords)
{
    EXPECT_EQ(sizeof(ZefOamApiStaticValidatorInterface_1), zefTestCSizeOfStaticValidatorInterface_1());
    EXPECT_EQ(sizeof(ZefOamSpiMoAttribute), zefTestCSizeOfMoAttribute());
}
