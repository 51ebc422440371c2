// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

namespace velorx {

/// A file that remembers whether all went into it that was to go there.
///
/// Qt takes a large write of which a full disk took only the start for no error, and the writers of pictures do not
/// look at what a write returns.
class CPictureFile final : public QFile
{
public:
    /// Whether every write has been taken whole, as far as it has left the buffer: flush first.
    bool IsWhole() const { return isWhole && error() == QFileDevice::NoError; }

protected:
    qint64 writeData(const char* data, qint64 size) override
    {
        const qint64 written = QFile::writeData(data, size);
        isWhole = isWhole && written == size;
        return written;
    }

private:
    bool isWhole = true;
};

} // namespace velorx
