// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/FeatureRecorder.h"
#include "tests/support/LocaleCodec.h"
#include "tests/tools/RunVelorx.h"
#include "tools/velorx/features/MifFeatureSource.h"
#include "tools/velorx/features/MifFeatureTarget.h"
#include "tools/velorx/HostCodec.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace velorx::test {

template <class TFeature>
TFeature InLayer(const char* layer)
{
    TFeature feature;
    feature.kind = "X";
    feature.layer = QString::fromUtf8(layer);
    return feature;
}

inline SPointFeature Point(const char* layer, double x = 1, double y = 2)
{
    auto point = InLayer<SPointFeature>(layer);
    point.position = {x, y, 0};
    return point;
}

inline CFeatureLine Square(double left, double bottom, double size)
{
    return {{left, bottom, 0},
            {left + size, bottom, 0},
            {left + size, bottom + size, 0},
            {left, bottom + size, 0}};
}

inline CFeatureAttributes Attributes(std::vector<SFeatureAttribute> attributes)
{
    return std::make_shared<const std::vector<SFeatureAttribute>>(std::move(attributes));
}

/// Writes pairs into a folder of the test and reads them again.
class CMifTargetTest : public testing::Test
{
protected:
    CMifTargetTest() { SetCodePage("windows-1251"); }

    // A pair `name` in the folder of the test.
    CMifFeatureTarget& MakePair(const std::string& name = "out.mif")
    {
        return Make(folder.Write(name, ""), name);
    }

    CMifFeatureTarget& MakeFolder()
    {
        std::filesystem::create_directory(folder.path + "/tables");
        return Make(folder.path + "/tables", "tables");
    }

    CMifFeatureTarget& Make(const std::string& path, const std::string& name)
    {
        STargetOptions options;
        options.path = PathFromBytes(path);
        options.name = QString::fromStdString(name);
        options.precision = 2;
        target = std::make_unique<CMifFeatureTarget>(options, tally);
        return *target;
    }

    std::string File(const std::string& name) const { return ReadFile(folder.path + "/" + name); }
    bool Holds(const std::string& file, const std::string& part) const
    {
        return File(file).find(part) != std::string::npos;
    }

    // What the pair is when read again.
    const CFeatureRecorder& ReadBack(const std::string& name = "out.mif")
    {
        recorder = std::make_unique<CFeatureRecorder>();
        CFeatureTally ignored;
        CMifFeatureSource source(PathFromBytes(folder.path + "/" + name), {});
        EXPECT_EQ(source.Read(*recorder, ignored), "");
        return *recorder;
    }

    std::string Report() const
    {
        CConversionReport report;
        tally.FillReport(report);
        return report.ToText().toStdString();
    }
    bool Reports(const std::string& part) const { return Report().find(part) != std::string::npos; }

    std::set<std::string> Names(const std::string& below = "") const
    {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path + below)) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }

    const VelorExchange::test::CLocaleCodec local{"windows-1251"};
    const CTemporaryFolder folder;
    CFeatureTally tally;
    std::unique_ptr<CMifFeatureTarget> target;
    std::unique_ptr<CFeatureRecorder> recorder;
};

} // namespace velorx::test
