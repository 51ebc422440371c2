// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"
#include "VelorExchange/mif/Read.h"

#include <cmath>
#include <random>

using namespace VelorExchange;
using namespace VelorExchange::test;

namespace {

// Keeps the vertices of the polyline that it gets.
class CVertexHost final : public mif::IMIFReader
{
public:
    std::vector<CPoint2D> points;
    void AddArc(const mif::CArcMIF&) override { }
    void AddRoundRect(const mif::CRoundRectMIF&) override { }
    void AddEllipse(const mif::CRectMIF&) override { }
    void AddRect(const mif::CRectMIF&) override { }
    void AddText(const mif::CTextMIF&) override { }
    void AddPolyline(const mif::CPolylineMIF& line) override { points = line.points; }
    void AddRegion(const mif::CRegionMIF&) override { }
    void AddPoint(const mif::CPointMIF&) override { }
    void SetProgressRange(int) override { }
    void SetProgress(int) override { }
    void Finish() override { }
};

QByteArray RandomNumber(std::mt19937& random)
{
    static const char* const kOdd[] = {"-0",
                                       "+5",
                                       ".5",
                                       "5.",
                                       "-.5",
                                       "-",
                                       ".",
                                       "1e5",
                                       "1E-3",
                                       "1,5",
                                       "0x1",
                                       "nan",
                                       "inf",
                                       "--1",
                                       "1-2",
                                       "1.2.3",
                                       "12345678901234567890",
                                       "0.000000000000000000001",
                                       "000000000000000000012.5"};
    if (random() % 4 == 0) {
        return kOdd[random() % std::size(kOdd)];
    }
    QByteArray number = random() % 3 == 0 ? "-" : "";
    for (auto digits = random() % 12; digits > 0; --digits) {
        number += static_cast<char>('0' + random() % 10);
    }
    if (random() % 4 != 0) {
        number += '.';
        for (auto digits = random() % 10; digits > 0; --digits) {
            number += static_cast<char>('0' + random() % 10);
        }
    }
    return number.isEmpty() ? "7" : number;
}

void ExpectSame(double value, const QByteArray& text)
{
    const double expected = QString::fromLatin1(text).toDouble();
    if (expected == expected) {
        EXPECT_EQ(value, expected) << text.constData();
        EXPECT_EQ(std::signbit(value), std::signbit(expected)) << text.constData();
    } else {
        EXPECT_NE(value, value) << text.constData();
    }
}

} // namespace

TEST(Vertices, NumbersAreThoseOfToDouble)
{
    std::mt19937 random(37);
    const int count = 20000;
    std::vector<QByteArray> numbers;
    QByteArray mif = "Data\nPLine " + QByteArray::number(count) + '\n';
    const char* const blanks[] = {" ", "\t", "  ", " \t "};
    const char* const ends[] = {"\n", "\r\n", " \n", " 5\n", "\t\r\n"};
    for (int i = 0; i < count; ++i) {
        numbers.push_back(RandomNumber(random));
        numbers.push_back(RandomNumber(random));
        mif += numbers[numbers.size() - 2] + blanks[random() % 4] + numbers.back()
            + ends[random() % 5];
    }
    CVertexHost host;
    ASSERT_TRUE(mif::Read(CMifPair(mif).Path(), &host));
    ASSERT_EQ(host.points.size(), static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < host.points.size(); ++i) {
        ExpectSame(host.points[i].x, numbers[i * 2]);
        ExpectSame(host.points[i].y, numbers[i * 2 + 1]);
    }
}

TEST(Vertices, OddLinesTakeTheRoadByTokens)
{
    EXPECT_EQ(RecordedObjects("PLine 4\n1\v2 3\n4;5 6\n\t7\t \t8\t9\n1 2\xD0\xB0\n"),
              "AddPolyline (0 3)(0 6)(7 8)(1 0)\n");
}
