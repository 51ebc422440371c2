// SPDX-License-Identifier: MIT
#pragma once

#include "tests/pnr/classifier/StandIn.h"
#include "VelorExchange/Classifier.h"
#include "VelorExchange/pnr/classifier/FloatingPointGuard_p.h"

#include <QTextCodec>

#include <cfenv>
#include <gtest/gtest.h>
#include <stdexcept>
#include <utility>

namespace VelorExchange::pnr {

/// The path of the stand-in that lacks the function `missing`.
inline QString StandInLacking(const char* missing)
{
    return QStringLiteral(RSC_STAND_IN_FOLDER "/rsc_stand_in_lacking_") + QLatin1String(missing)
        + QStringLiteral(".so");
}

/// The path of the complete stand-in.
inline QString StandIn()
{
    return StandInLacking("nothing");
}

/// The path of another one.
inline QString SecondStandIn()
{
    return StandInLacking("second");
}

/// Sets the local codec and puts the old one back at the end of a test.
class CLocalCodec
{
public:
    explicit CLocalCodec(const char* name)
    {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName(name));
    }
    ~CLocalCodec() { QTextCodec::setCodecForLocale(before); }

private:
    QTextCodec* before = QTextCodec::codecForLocale();
};

/// Starts each test as a process does: nothing loaded, nothing saved, no trap and nothing pending.
class CClassifierTest : public ::testing::Test
{
protected:
    using CReader = CPanoramaRscClsReader;

    CClassifierTest() { Reset(); }
    ~CClassifierTest() override { Reset(); }

    /// The calls since the last time.
    static std::string Calls() { return std::exchange(standin::Current().calls, {}); }

    /// The instance with the stand-in loaded, and the record of calls empty.
    static CReader& Loaded()
    {
        CReader* reader = CReader::GetInstance(StandIn());
        if (reader == nullptr) {
            throw std::runtime_error("the stand-in can't be loaded");
        }
        Calls();
        return *reader;
    }

    /// The same with a classifier open.
    static CReader& Opened()
    {
        CReader& reader = Loaded();
        reader.Open(QStringLiteral("map.rsc"));
        Calls();
        return reader;
    }

private:
    static void Reset()
    {
        CReader::KillInstance();
        CReader::m_instance = CReader();
        standin::Current() = standin::State();
        savedControlWord = 0;
        isControlWordSaved = false;
        std::feclearexcept(FE_ALL_EXCEPT);
        fedisableexcept(FE_ALL_EXCEPT);
        std::fesetround(FE_TONEAREST);
    }
};

} // namespace VelorExchange::pnr
