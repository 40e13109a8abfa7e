#pragma once

#include <QByteArrayList>

namespace WyTest {

/// So that the use of a deleted object does not pass unnoticed, also in code of Qt's.
inline void overwriteFreedMemory()
{
    QByteArrayList blocks;
    for (int size = 1; size < 600; size += 8) {
        for (int i = 0; i < 8; ++i)
            blocks += QByteArray(size, '\xff');
    }
}

} // namespace WyTest
