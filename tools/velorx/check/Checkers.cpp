// SPDX-License-Identifier: MIT
#include "tools/velorx/check/DxfChecker.h"
#include "tools/velorx/check/IChecker.h"
#include "tools/velorx/check/MifChecker.h"
#include "tools/velorx/check/SxfChecker.h"
#include "tools/velorx/check/SxfTextChecker.h"

namespace velorx {

namespace {

struct SCheckerMaker
{
    std::string_view family;
    bool isText;
    std::unique_ptr<IChecker> (*make)();
};

template <class T>
std::unique_ptr<IChecker> Make()
{
    return std::make_unique<T>();
}

constexpr SCheckerMaker kMakers[] = {
    {"DXF", false, Make<CDxfChecker>},
    {"MIF", false, Make<CMifChecker>},
    {"SXF", false, Make<CSxfChecker>},
    {"SXF", true, Make<CSxfTextChecker>},
};

} // namespace

std::unique_ptr<IChecker> MakeChecker(std::string_view family, bool isText)
{
    for (const SCheckerMaker& maker : kMakers) {
        if (maker.family == family && maker.isText == isText) {
            return maker.make();
        }
    }
    return nullptr;
}

} // namespace velorx
