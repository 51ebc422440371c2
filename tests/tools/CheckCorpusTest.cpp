// SPDX-License-Identifier: MIT
// `velorx check` over real files that others made. The files are not part of the tree.
#include "tests/tools/CheckSupport.h"
#include "tools/velorx/formats/SxfHeader.h"
#include "tools/velorx/HostCodec.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>

namespace velorx::test {

namespace {

using CKinds = std::set<std::string>;

/// The files that are not sound, and how. Each was looked at by hand; all others must be sound.
const std::map<std::string, CKinds>& KnownFaults()
{
    static const std::map<std::string, CKinds> faults = {
        {"dxf/dxfparser-net/advanced-geometry.dxf", {"bad-code", "no-end", "open-section"}},
        {"dxf/dxfparser-net/complex.dxf", {"no-end", "odd-end"}},
        {"dxf/dxfparser-net/draworder.dxf", {"no-end", "odd-end"}},
        {"dxf/dxfparser-net/viewport-paper.dxf", {"no-end", "odd-end"}},
        {"dxf/ezdxf/bin_dxf_r12.dxf", {"binary"}},
        {"dxf/ezdxf/bin_dxf_r13.dxf", {"binary"}},
        {"dxf/ezdxf/mtext_complex_inline_codes.dxf", {"long-line"}},
        {"dxf/gdal/BINARY_wipeout.dxf", {"binary"}},
        {"dxf/gdal/additional-entities.dxf", {"long-line"}},
        {"dxf/gdal/assorted.dxf", {"bad-integer"}},
        {"dxf/gdal/clusterfuzz-testcase-minimized-dxf_fuzzer-5400376672124928.dxf",
         {"bad-code", "no-end", "open-section"}},
        {"dxf/gdal/clusterfuzz-testcase-minimized-shape_fuzzer-6126814756995072.dxf",
         {"bad-code", "no-end", "no-start"}},
        {"dxf/gdal/elliptical-arc-hatch-min.dxf", {"no-end"}},
        {"dxf/gdal/insert-recursive-pair.dxf", {"block-loop"}},
        {"dxf/gdal/insert-too-many-errors.dxf", {"bad-code", "no-end", "stray"}},
        {"dxf/gdal/spline_closed.dxf", {"bad-count"}},
        {"dxf/gdal/text.dxf", {"stray"}},
        {"dxf/ixmilia/diamond-bin.dxf", {"binary"}},
        {"dxf/netdxf/sample_binary.dxf", {"binary"}},
        {"mif/gdal/all_possible_fields.mif", {"unread-type"}},
        {"mif/gdal/multilinemid.mif", {"bad-quotes", "bad-row", "many-rows"}},
        {"mif/gdal/proj_34.mif", {"no-rows"}},
    };
    return faults;
}

std::string CorpusFolder()
{
    const char* folder = std::getenv("VELOREXCHANGE_CORPUS");
    return folder != nullptr ? folder : VELOREXCHANGE_CORPUS;
}

CKinds FaultsOf(const char* family, const std::string& path)
{
    CFindings findings;
    EXPECT_EQ(MakeChecker(family, false)->Check(PathFromBytes(path), findings, nullptr), "");
    CKinds kinds;
    for (const SFindingsOfKind& kind : findings.Kinds()) {
        if (kind.kind->level == ELevel::Fault) {
            kinds.insert(kind.kind->id);
        }
    }
    return kinds;
}

} // namespace

TEST(CheckCorpus, FindsWhatIsWrongAndNothingElse)
{
    const std::string corpus = CorpusFolder();
    if (!std::filesystem::exists(corpus)) {
        GTEST_SKIP() << "no corpus at " << corpus;
    }
    const CCodePage codePage("windows-1251"); // that of velorx, unless told otherwise
    constexpr const char* kFamilies[][2] = {{"DXF", ".dxf"}, {"MIF", ".mif"}, {"SXF", ".sxf"}};
    std::map<std::string, CKinds> found;
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(corpus)) {
        for (const auto& [family, extension] : kFamilies) {
            if (entry.path().extension() == extension) {
                ++files;
                const CKinds kinds = FaultsOf(family, entry.path().string());
                if (!kinds.empty()) {
                    found[std::filesystem::relative(entry.path(), corpus).string()] = kinds;
                }
            }
        }
    }
    EXPECT_GT(files, 150);
    EXPECT_EQ(found, KnownFaults());
}

} // namespace velorx::test
