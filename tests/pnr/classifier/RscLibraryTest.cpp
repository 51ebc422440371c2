// SPDX-License-Identifier: MIT
#include "tests/pnr/classifier/ClassifierTest.h"
#include "VelorExchange/pnr/classifier/RscLibrary_p.h"

#include <QFileInfo>

namespace VelorExchange::pnr {

namespace {

constexpr const char* kNames[] = {
    "mapOpenRsc",
    "mapCloseRsc",
    "mapCreateTempSite",
    "mapCloseMap",
    "mapCreateBitmapEx",
    "mapPaintExampleObject",
    "mapCloseBitmap",
    "mapGetRscSegmentCount",
    "mapGetRscSegmentName",
    "mapGetRscSemanticClassificatorCount",
    "mapGetRscSemanticClassificatorCode",
    "mapGetRscSemanticClassificatorName",
    "mapGetRscObjectCountInLayer",
    "mapGetRscObjectLocalInLayer",
    "mapGetRscObjectNameInLayer",
    "mapGetRscObjectExcodeInLayer",
    "mapGetRscObjectCount",
    "mapGetRscObject",
    "mapGetRscSemanticCount",
    "mapGetRscSemanticCodeByNumber",
    "mapGetRscSemanticExByCode",
    "mapGetRscObjectKey",
};

} // namespace

TEST(RscLibrary, NamesAllFunctionsInTheirOrder)
{
    std::string expected;
    std::string found;
    for (const char* name : kNames) {
        expected += std::string(name) + "\n";
    }
    for (const CRscOperation& operation : CRscLibrary::Operations()) {
        found += std::string(operation.name) + "\n";
    }
    EXPECT_EQ(found, expected);
}

TEST(RscLibrary, EachRowHasAPointerOfItsOwn)
{
    CPanoramaRscClsReader reader;
    int target = 0;
    for (const CRscOperation& operation : CRscLibrary::Operations()) {
        EXPECT_FALSE(operation.isAssigned(reader)) << operation.name;
        operation.assign(reader, &target);
        EXPECT_TRUE(operation.isAssigned(reader)) << operation.name;
    }
}

TEST(RscLibrary, NullClearsAPointer)
{
    CPanoramaRscClsReader reader;
    int target = 0;
    for (const CRscOperation& operation : CRscLibrary::Operations()) {
        operation.assign(reader, &target);
        operation.assign(reader, nullptr);
        EXPECT_FALSE(operation.isAssigned(reader)) << operation.name;
    }
}

class RscLibraryLacking : public CClassifierTest, public ::testing::WithParamInterface<const char*>
{
};

TEST_P(RscLibraryLacking, AFunctionIsRefusedAndFreed)
{
    ASSERT_TRUE(QFileInfo::exists(StandInLacking(GetParam())));
    EXPECT_EQ(CReader::GetInstance(StandInLacking(GetParam())), nullptr);
    EXPECT_EQ(CReader::m_instance.hLibrary, nullptr);
    EXPECT_EQ(CReader::m_instance.libraryPath, QString());
    EXPECT_EQ(Calls(), "loaded\nfreed\n");
}

TEST_P(RscLibraryLacking, AFunctionLeavesAllPointersEmpty)
{
    CReader::GetInstance(StandInLacking(GetParam()));
    for (const CRscOperation& operation : CRscLibrary::Operations()) {
        EXPECT_FALSE(operation.isAssigned(CReader::m_instance)) << operation.name;
    }
}

TEST_P(RscLibraryLacking, AFunctionReplacesTheLoadedLibraryByNone)
{
    Loaded();
    EXPECT_EQ(CReader::GetInstance(StandInLacking(GetParam())), nullptr);
    EXPECT_EQ(CReader::GetInstance(QString()), nullptr);
    EXPECT_EQ(Calls(), "freed\nloaded\nfreed\n");
}

INSTANTIATE_TEST_SUITE_P(Each, RscLibraryLacking, ::testing::ValuesIn(kNames),
                         [](const auto& test) { return std::string(test.param); });

} // namespace VelorExchange::pnr
