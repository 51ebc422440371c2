// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace VelorExchange::test {

/// A file that holds `bytes` as long as it lives.
class CTextFile
{
public:
    explicit CTextFile(const QByteArray& bytes)
    {
        EXPECT_TRUE(file.open());
        file.write(bytes);
        file.close();
    }
    QString Path() const { return file.fileName(); }

private:
    QTemporaryFile file;
};

} // namespace VelorExchange::test
