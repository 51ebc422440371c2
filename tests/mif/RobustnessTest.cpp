// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"
#include "VelorExchange/mif/Read.h"

#include <stdexcept>

using namespace VelorExchange;
using namespace VelorExchange::test;

namespace {

const QByteArray kMif = "Version 300\nDelimiter \";\"\nColumns 3\na Char (20)\nb Integer\n"
                        "c Decimal (5, 2)\nData\n"
                        "Point 1 2\nSymbol (34,0,9,\"f\",1,90)\n"
                        "Line 1 2 3 4\nPen (1,2,0)\n"
                        "PLine Multiple 2\n2\n1 2\n3 4\n2\n5 6\n7 8\nsmooth\n"
                        "Region 1\n3\n1 2\n3 4\n5 6\nBrush (2,255)\nCenter 1 2\n"
                        "Arc 1 2 3 4\n0 90\nText \"t\"\n1 2 3 4\nFont (\"A\",0,0,0)\nAngle 5\n"
                        "Multipoint 2\n1 2\n3 4\nCollection 2\nRect 1 2 3 4\nEllipse 1 2 3 4\n"
                        "RoundRect 1 2 3 4 5\n";
const QByteArray kMid = "\"x\";1;2.5\n\"y;z\";2;3.5\n;;\n\"q;3\n4;5;6;7\n\n\"x\";8;9\n";

// Reads what may be broken. The only exception that may come is that of a count.
void ReadBroken(const QByteArray& mif, const QByteArray& mid)
{
    static const CMifPair pair; // one folder for thousands of inputs
    pair.Write("mif", mif);
    pair.Write("mid", mid);
    CMifRecorder recorder;
    try {
        mif::Read(pair.Path(), &recorder);
    } catch (const std::length_error&) {
        recorder.counts["length_error"] = 1;
    }
    for (const auto& [operation, count] : recorder.counts) {
        EXPECT_LE(count, 40) << operation;
    }
}

} // namespace

TEST(Robustness, WholePairIsRead)
{
    CMifRecorder recorder;
    EXPECT_TRUE(mif::Read(CMifPair(kMif, kMid).Path(), &recorder));
    EXPECT_EQ(recorder.counts["AddPoint"], 3);
    EXPECT_EQ(recorder.counts["AddPolyline"], 3);
    EXPECT_EQ(recorder.counts["AddRoundRect"], 1);
}

TEST(Robustness, EveryPrefixIsRead)
{
    for (int size = 0; size <= kMif.size(); ++size) {
        ReadBroken(kMif.left(size), kMid);
    }
    for (int size = 0; size <= kMid.size(); ++size) {
        ReadBroken(kMif, kMid.left(size));
    }
}

TEST(Robustness, EveryByteMayBeAnother)
{
    for (int at = 0; at < kMif.size(); ++at) {
        for (const char c : {'\0', '\n', '9', '-', '"', '\xD0'}) {
            ReadBroken(QByteArray(kMif).replace(at, 1, QByteArray(1, c)), kMid);
        }
    }
    for (int at = 0; at < kMid.size(); ++at) {
        for (const char c : {'\0', '\n', ';', '"', '\xD0'}) {
            ReadBroken(kMif, QByteArray(kMid).replace(at, 1, QByteArray(1, c)));
        }
    }
}

TEST(Robustness, LongLinesAreRead)
{
    const QByteArray blanks(10 * 1048576, ' ');
    EXPECT_EQ(RecordedObjects("Point 1" + blanks + "2\nPoint 3 4\n"),
              "AddPoint (1 2)\nAddPoint (3 4)\n");
    EXPECT_EQ(RecordedObjects(QByteArray(10 * 1048576, 'x') + "\nPoint 3 4\n"), "AddPoint (3 4)\n");
    EXPECT_EQ(Recorded(CMifPair("Columns 1\na Char\nData\nPoint 3 4\n",
                                QByteArray(10 * 1048576, 'x') + '\n')),
              "AddPoint (3 4) [a=QString:" + std::string(255, 'x') + "]\n");
}

TEST(Robustness, RowOfOddQuotesIsOneField)
{
    EXPECT_EQ(Recorded(CMifPair("Columns 2\na Char\nb Char\nData\nPoint 3 4\nPoint 5 6\n",
                                "\"x\ty\nu\tv\n")),
              "AddPoint (3 4) [a=QString:x y]\nAddPoint (5 6) [a=QString:u] [b=QString:v]\n");
}
