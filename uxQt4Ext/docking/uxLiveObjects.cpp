#include "uxLiveObjects_p.h"

#include <cstdio>
#include <cstring>

namespace {

bool isHexDigit(char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); }

// "0x" (any case) and up to one pointer's worth of hex digits: longer text
// cannot name an address, and sscanf on an out-of-range number is undefined.
bool looksLikeAddress(const QByteArray& data)
{
    const int maxDigits = int(2 * sizeof(void*));
    int start = 0;
    if (data.size() >= 2 && data.at(0) == '0' && (data.at(1) == 'x' || data.at(1) == 'X'))
        start = 2;
    const int digits = data.size() - start;
    if (digits < 1 || digits > maxDigits)
        return false;
    for (int i = start; i < data.size(); ++i) {
        if (!isHexDigit(data.at(i)))
            return false;
    }
    return true;
}

} // namespace

quintptr uxLiveObjectsDetail::parseAddress(const QByteArray& data)
{
    if (!looksLikeAddress(data))
        return 0;
    char text[2 + 2 * sizeof(void*) + 1] = {};
    std::memcpy(text, data.constData(), size_t(data.size()));
    void* address = nullptr;
    int consumed = 0;
    if (std::sscanf(text, "%p%n", &address, &consumed) != 1 || consumed != data.size())
        return 0;
    return reinterpret_cast<quintptr>(address);
}

QByteArray uxLiveObjectsDetail::printAddress(const void* object)
{
    char text[64] = {};
    const int length = qsnprintf(text, sizeof text, "%p", object);
    return QByteArray(text, qBound(0, length, int(sizeof text) - 1));
}
