// SPDX-License-Identifier: MIT
#include "tests/support/MifWriting.h"

#include <QFile>

namespace VelorExchange::test {

std::string CMifWriting::File(const char* file) const
{
    QFile opened(Name(file));
    return opened.open(QIODevice::ReadOnly) ? opened.readAll().toStdString() : "missing";
}

std::string CMifWriting::Data() const
{
    Rewrite();
    const std::string text = File("a.MIF");
    const std::string head = "DATA\n\n";
    const auto at = text.find(head);
    return at == std::string::npos ? "no data in: " + text : text.substr(at + head.size());
}

std::string CMifWriting::Report() const
{
    QString text;
    log.GetText(text);
    return text.left(text.lastIndexOf(QLatin1Char('\n'))).toStdString();
}

} // namespace VelorExchange::test
