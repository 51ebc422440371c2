// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/PnrLocalCodec.h"
#include "tools/velorx/ConversionReport.h"
#include "tools/velorx/formats/SxfReading.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>

namespace velorx::test {

/// Writes down what a reading of a map hands over, one line of text an object.
class CSxfRecorder final : public ISxfHost
{
public:
    void Take(VelorExchange::pnr::CLineObject& line) override;
    void Take(VelorExchange::pnr::CSquareObject& area) override;
    void Take(VelorExchange::pnr::CPointObject& point) override;
    void Take(VelorExchange::pnr::CTextObject& text) override;
    void TakeFrame() override { log += "frame\n"; }

    std::string log;

private:
    void Record(const std::string& kind, const VelorExchange::pnr::CBaseObject& object,
                const std::string& drawing);
};

/// Maps in a folder of their own, with text in windows-1251.
class CSxfMaps : public testing::Test
{
protected:
    /// Writes a file and returns its path.
    QString Write(const QByteArray& bytes, const char* name = "map") const;

    /// What reading the map hands over.
    std::string Read(const QByteArray& map) const;
    static std::string ReadFile(const QString& path);

    /// The losses of a report, "2 what" a line.
    static std::string Losses(const CConversionReport& report);

    CLocalCodec codec{"windows-1251"};
    QTemporaryDir folder;
};

} // namespace velorx::test
