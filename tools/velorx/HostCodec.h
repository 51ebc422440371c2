// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QTextCodec>

#include <string>

namespace velorx {

/// The local codec of this process: text in files goes through a given code page, and file names
/// keep the bytes that the shell handed over.
///
/// Qt turns file names into bytes by the same codec that decodes 8-bit text, so that a path typed in a
/// UTF-8 terminal would not open while drawings are read as windows-1251. `PathFromBytes` therefore
/// carries each byte that is no printable ASCII as a lone low surrogate, U+DC00 plus the byte, which no decoder ever
/// produces, and this codec turns such a character back into that one byte. Everything else is the code
/// page's own work.
class CHostCodec final : public QTextCodec
{
public:
    /// `page` is Qt's and lives as long as the process. Qt owns every codec from its construction
    /// on, so this one is made by `new` and never deleted.
    explicit CHostCodec(const QTextCodec& page) : codePage(page) { }

    QByteArray name() const override { return QByteArrayLiteral("velorx-host"); }

    /// The code page's number, by which the library knows single-byte code pages.
    int mibEnum() const override { return codePage.mibEnum(); }

    /// Qt's name of the code page.
    QString PageName() const { return QString::fromLatin1(codePage.name()); }

protected:
    QString convertToUnicode(const char* in, int length, ConverterState* state) const override;
    QByteArray convertFromUnicode(const QChar* in, int length,
                                  ConverterState* state) const override;

private:
    const QTextCodec& codePage;
};

/// Makes the code page called `name` the local codec. False, with nothing changed, if Qt knows no
/// such code page or if ASCII letters are not themselves in it.
bool SetCodePage(const std::string& name);

/// Whether `SetCodePage` would take `name`.
bool IsCodePage(const std::string& name);

/// Qt's name of the code page that text in files goes through: "windows-1251".
QString LocalCodePage();

/// A path of the command line for `QFile` and the library, once `SetCodePage` has been called.
QString PathFromBytes(const std::string& bytes);

/// A path from `PathFromBytes` as people read it: its bytes as UTF-8, or in the code page where they
/// are none.
QString TextOfPath(const QString& path);

/// A path for `QFile` that is called `text` where people read it.
QString PathOfText(const QString& text);

} // namespace velorx
