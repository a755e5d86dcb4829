#include "uxMessage.h"

#include <cstdio>

#if defined(__GLIBC__)
#include <execinfo.h>
#endif

QVariant uxMessage::get(const QString& name) const { return m_attributes.value(name); }

void uxMessage::set(const QString& name, const QVariant& value) { m_attributes.insert(name, value); }

bool uxMessage::contains(const QString& name) const { return m_attributes.contains(name); }

void uxMessage::printBT()
{
#if defined(__GLIBC__)
    void* frames[64];
    const int count = backtrace(frames, 64);
    backtrace_symbols_fd(frames, count, fileno(stderr));
#else
    std::fputs("backtrace not available\n", stderr);
#endif
}
