// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

namespace VelorExchange::test {

/// The folder with real files of other programs, which need not be there: the one that the environment
/// variable VELOREXCHANGE_CORPUS names, otherwise the one beside the checkout.
inline QString CorpusFolder()
{
    const QString named = qEnvironmentVariable("VELOREXCHANGE_CORPUS");
    return named.isEmpty() ? QStringLiteral(VELOREXCHANGE_CORPUS) : named;
}

} // namespace VelorExchange::test
