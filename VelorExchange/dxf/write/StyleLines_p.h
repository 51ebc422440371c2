// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>
#include <QStringView>

namespace VelorExchange::dxf {

/// The lines of a style file.
class CStyleLines
{
public:
    /// Opens the file; an empty path opens nothing.
    explicit CStyleLines(const QString& path);

    bool IsOpen() const { return file.isOpen(); }

    /// Puts the next line, with its line end, in `line`; false at the end of the file.
    bool Next(QString& line);

private:
    QFile file;
};

/// Takes parts of a line one after the other, without copying the rest each time.
class CLineCutter
{
public:
    explicit CLineCutter(QStringView line) : rest(line) { }

    /// What is left.
    QStringView Rest() const { return rest; }

    /// Takes what stands before the next comma, and the comma; false, and nothing, without one.
    bool TakeToComma(QStringView& part);

    /// Takes what stands before the next comma, and the comma, or all that is left.
    QStringView TakeToCommaOrEnd();

private:
    QStringView rest;
};

/// The double that a text holds, blanks around it allowed; false leaves `value` alone.
bool ToNumber(QStringView text, double& value);

} // namespace VelorExchange::dxf
