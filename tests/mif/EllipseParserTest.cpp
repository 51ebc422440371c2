// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

using namespace VelorExchange::test;

TEST(EllipseParser, ReadsItsRectangleAndClauses)
{
    EXPECT_EQ(RecordedObjects("Ellipse 1 2 3 4\nBrush (1,0,0)\nPen (2,2,0)\n"),
              "AddEllipse (1 2)(3 4) pen=2,2,#000000 brush=1,#000000,#000000\n");
}

TEST(EllipseParser, FourTokensAreTooFew)
{
    EXPECT_EQ(RecordedObjects("Ellipse 1 2 3\n"), "");
}
